// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_UNITCONVERTERPROFILE_H
#define PROFILES_UNITCONVERTERPROFILE_H

#include "profile.h"

#include <QString>

#include <functional>
#include <optional>

/**
 * The unit converter: one signal at a load impedance as power level, power, voltage and voltage
 * level. Finishing any of the four fields computes the other three. Voltages are RMS, peak-to-peak
 * or average values of a sine, as the voltage mode says.
 *
 * Each field has a unit of its own. A unit setter only stores; the rescale slot of the field then
 * rewrites its text so that it stands for the same quantity. A field that does not parse reads
 * "invalid input" and empties the others, an impedance that does not parse reads "invalid", and
 * results that are infinite or no number are not shown.
 */
class UnitConverterProfile final : public Profile
{
    Q_OBJECT
    Q_PROPERTY(QString logPower READ logPower WRITE setLogPower NOTIFY logPowerChanged)
    Q_PROPERTY(QString linPower READ linPower WRITE setLinPower NOTIFY linPowerChanged)
    Q_PROPERTY(QString logVoltage READ logVoltage WRITE setLogVoltage NOTIFY logVoltageChanged)
    Q_PROPERTY(QString linVoltage READ linVoltage WRITE setLinVoltage NOTIFY linVoltageChanged)
    Q_PROPERTY(int logPowerUnit READ logPowerUnit WRITE setLogPowerUnit NOTIFY logPowerUnitChanged)
    Q_PROPERTY(int linPowerUnit READ linPowerUnit WRITE setLinPowerUnit NOTIFY linPowerUnitChanged)
    Q_PROPERTY(
        int logVoltageUnit READ logVoltageUnit WRITE setLogVoltageUnit NOTIFY logVoltageUnitChanged)
    Q_PROPERTY(
        int linVoltageUnit READ linVoltageUnit WRITE setLinVoltageUnit NOTIFY linVoltageUnitChanged)
    Q_PROPERTY(QString impedance READ impedance WRITE setImpedance NOTIFY impedanceChanged)
    Q_PROPERTY(int voltageMode READ voltageMode WRITE setVoltageMode NOTIFY voltageModeChanged)

public:
    explicit UnitConverterProfile(QObject *parent = nullptr);

    QString logPower() const { return m_logPower; }
    QString linPower() const { return m_linPower; }
    QString logVoltage() const { return m_logVoltage; }
    QString linVoltage() const { return m_linVoltage; }
    /// 0: dBm, 1: dBW.
    int logPowerUnit() const { return m_logPowerUnit; }
    /// 0: mW, 1: W.
    int linPowerUnit() const { return m_linPowerUnit; }
    /// 0: dBV, 1: dBµV, 2: dBu.
    int logVoltageUnit() const { return m_logVoltageUnit; }
    /// 0: mV, 1: V.
    int linVoltageUnit() const { return m_linVoltageUnit; }
    /// In ohms.
    QString impedance() const { return m_impedance; }
    /// 0: Vrms, 1: Vpp, 2: Vavg.
    int voltageMode() const { return m_voltageMode; }

    void setLogPower(const QString &text);
    void setLinPower(const QString &text);
    void setLogVoltage(const QString &text);
    void setLinVoltage(const QString &text);
    void setLogPowerUnit(int unit);
    void setLinPowerUnit(int unit);
    void setLogVoltageUnit(int unit);
    void setLinVoltageUnit(int unit);
    void setImpedance(const QString &text);
    void setVoltageMode(int mode);

    void saveSettings(QSettings &settings) override;
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    /// A calculation from an empty field does nothing.
    void calculateFromLinPower();
    void calculateFromLinVoltage();
    void calculateFromLogPower();
    void calculateFromLogVoltage();

    /// To be called once after the unit was changed by hand. A text that is no number stays.
    void rescaleLinPower();
    void rescaleLinVoltage();
    void rescaleLogPower();
    void rescaleLogVoltage();

    /// Empties the four values.
    void clearAll();

Q_SIGNALS:
    void logPowerChanged();
    void linPowerChanged();
    void logVoltageChanged();
    void linVoltageChanged();
    void logPowerUnitChanged();
    void linPowerUnitChanged();
    void logVoltageUnitChanged();
    void linVoltageUnitChanged();
    void impedanceChanged();
    void voltageModeChanged();

private:
    struct Field;

    QString text(const Field &field) const;
    void setText(const Field &field, const QString &text);

    std::optional<double> readEdited(const Field &edited);
    void reject(const Field &edited);
    void show(const Field &field, double baseValue);
    void showVoltagesOf(double milliwatt);
    void showPowersOf(double millivoltRms);
    void clearNonFinite(const Field &field);
    void clearNonFiniteResults(const Field &edited);
    void rescale(const Field &field, const std::function<double(double)> &toNewUnit);
    double readImpedance();

    static const Field kLogPower;
    static const Field kLinPower;
    static const Field kLogVoltage;
    static const Field kLinVoltage;

    QString m_logPower;
    QString m_linPower;
    QString m_logVoltage;
    QString m_linVoltage;
    int m_logPowerUnit = 0;
    int m_linPowerUnit = 0;
    int m_logVoltageUnit = 0;
    int m_linVoltageUnit = 0;
    QString m_impedance = QStringLiteral("50");
    int m_voltageMode = 0;
    /// The unit that was chosen when the text of logVoltage was set, which is the one it stands in.
    int m_previousLogVoltageUnit = 0;
};

#endif
