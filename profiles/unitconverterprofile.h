// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_UNITCONVERTERPROFILE_H
#define PROFILES_UNITCONVERTERPROFILE_H

#include "announced.h"
#include "moduleprofile.h"

#include <QString>

#include <functional>
#include <optional>

namespace Dezimo {

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
class UnitConverterProfile final : public ModuleProfile
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
    using ModuleProfile::ModuleProfile;

    QString logPower() const { return m_logPower.text.get(); }
    QString linPower() const { return m_linPower.text.get(); }
    QString logVoltage() const { return m_logVoltage.text.get(); }
    QString linVoltage() const { return m_linVoltage.text.get(); }
    /// 0: dBm, 1: dBW.
    int logPowerUnit() const { return m_logPower.unit.get(); }
    /// 0: mW, 1: W.
    int linPowerUnit() const { return m_linPower.unit.get(); }
    /// 0: dBV, 1: dBµV, 2: dBu.
    int logVoltageUnit() const { return m_logVoltage.unit.get(); }
    /// 0: mV, 1: V.
    int linVoltageUnit() const { return m_linVoltage.unit.get(); }
    /// In ohms.
    QString impedance() const { return m_impedance.get(); }
    /// 0: Vrms, 1: Vpp, 2: Vavg.
    int voltageMode() const { return m_voltageMode.get(); }

    void setLogPower(const QString &text) { m_logPower.show(text); }
    void setLinPower(const QString &text) { m_linPower.show(text); }
    void setLogVoltage(const QString &text) { m_logVoltage.show(text); }
    void setLinVoltage(const QString &text) { m_linVoltage.show(text); }
    void setLogPowerUnit(int unit) { m_logPower.unit.set(unit); }
    void setLinPowerUnit(int unit) { m_linPower.unit.set(unit); }
    void setLogVoltageUnit(int unit) { m_logVoltage.unit.set(unit); }
    void setLinVoltageUnit(int unit) { m_linVoltage.unit.set(unit); }
    void setImpedance(const QString &text) { m_impedance.set(text); }
    void setVoltageMode(int mode) { m_voltageMode.set(mode); }

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
    struct Rule;

    /// One of the four fields. Its text, whether typed, calculated or loaded, is in the unit that
    /// was chosen when it was shown, until the rescale slot rewrites it.
    struct Field
    {
        Announced<QString> text;
        Announced<int> unit;
        const Rule &rule;
        /// Whose digits a result has.
        const ModuleProfile &model;
        int textUnit = 0;

        void show(const QString &newText);
        void showValue(double value);
        void showBaseValue(double baseValue);
        void clearNonFinite();
        void rescale(const std::function<double(double)> &toNewUnit);
    };

    std::optional<double> readEdited(Field &edited);
    void reject(Field &edited);
    void showVoltagesOf(double milliwatt);
    void showPowersOf(double millivoltRms);
    void clearNonFiniteResults(const Field &edited);
    double shownPerRms() const;
    double readImpedance();

    static const Rule kLogPower;
    static const Rule kLinPower;
    static const Rule kLogVoltage;
    static const Rule kLinVoltage;

    using Self = UnitConverterProfile;
    Field m_logPower{
        {this, &Self::logPowerChanged}, {this, &Self::logPowerUnitChanged}, kLogPower, *this};
    Field m_linPower{
        {this, &Self::linPowerChanged}, {this, &Self::linPowerUnitChanged}, kLinPower, *this};
    Field m_logVoltage{
        {this, &Self::logVoltageChanged}, {this, &Self::logVoltageUnitChanged}, kLogVoltage, *this};
    Field m_linVoltage{
        {this, &Self::linVoltageChanged}, {this, &Self::linVoltageUnitChanged}, kLinVoltage, *this};
    Announced<QString> m_impedance{this, &Self::impedanceChanged, QStringLiteral("50")};
    Announced<int> m_voltageMode{this, &Self::voltageModeChanged};
};

} // namespace Dezimo

#endif
