// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_VSWRCONVERTERPROFILE_H
#define PROFILES_VSWRCONVERTERPROFILE_H

#include "announced.h"
#include "moduleprofile.h"

#include <QString>

#include <optional>

namespace Dezimo {

class UnitSelector;

/**
 * The VSWR converter: a mismatched port as VSWR, reflection coefficient, its square in percent,
 * return loss and mismatch loss, and as forward, reflected and absorbed power and voltage.
 *
 * Finishing a field of the reflection group computes the rest of the group. Finishing a power (or
 * voltage) computes the other two from the square of the reflection coefficient, or the third one
 * from the two that are known; it never writes into the reflection group. A finished field without
 * a valid number gets "invalid input"; an empty one does nothing. Results that are infinite or not
 * numbers are shown in the words that Qt has for them.
 *
 * A unit setter rewrites its row's text so that it stands for the same quantity.
 */
class VswrConverterProfile final : public ModuleProfile
{
    Q_OBJECT
    Q_PROPERTY(QString vswr READ vswr WRITE setVswr NOTIFY vswrChanged)
    Q_PROPERTY(QString r READ r WRITE setR NOTIFY rChanged)
    Q_PROPERTY(QString r2 READ r2 WRITE setR2 NOTIFY r2Changed)
    Q_PROPERTY(QString ar READ ar WRITE setAr NOTIFY arChanged)
    Q_PROPERTY(QString am READ am WRITE setAm NOTIFY amChanged)
    Q_PROPERTY(QString pForward READ pForward WRITE setPForward NOTIFY pForwardChanged)
    Q_PROPERTY(QString pReflected READ pReflected WRITE setPReflected NOTIFY pReflectedChanged)
    Q_PROPERTY(QString pAbsorbed READ pAbsorbed WRITE setPAbsorbed NOTIFY pAbsorbedChanged)
    Q_PROPERTY(QString vForward READ vForward WRITE setVForward NOTIFY vForwardChanged)
    Q_PROPERTY(QString vReflected READ vReflected WRITE setVReflected NOTIFY vReflectedChanged)
    Q_PROPERTY(QString vAbsorbed READ vAbsorbed WRITE setVAbsorbed NOTIFY vAbsorbedChanged)
    Q_PROPERTY(int currentMode READ currentMode WRITE setCurrentMode NOTIFY currentModeChanged)
    Q_PROPERTY(int pForwardUnit READ pForwardUnit WRITE setPForwardUnit NOTIFY pForwardUnitChanged)
    Q_PROPERTY(
        int pReflectedUnit READ pReflectedUnit WRITE setPReflectedUnit NOTIFY pReflectedUnitChanged)
    Q_PROPERTY(
        int pAbsorbedUnit READ pAbsorbedUnit WRITE setPAbsorbedUnit NOTIFY pAbsorbedUnitChanged)
    Q_PROPERTY(int vForwardUnit READ vForwardUnit WRITE setVForwardUnit NOTIFY vForwardUnitChanged)
    Q_PROPERTY(
        int vReflectedUnit READ vReflectedUnit WRITE setVReflectedUnit NOTIFY vReflectedUnitChanged)
    Q_PROPERTY(
        int vAbsorbedUnit READ vAbsorbedUnit WRITE setVAbsorbedUnit NOTIFY vAbsorbedUnitChanged)

public:
    using ModuleProfile::ModuleProfile;

    QString vswr() const { return m_vswr.text.get(); }
    /// Magnitude of the reflection coefficient.
    QString r() const { return m_r.text.get(); }
    /// Its square in percent.
    QString r2() const { return m_r2.text.get(); }
    /// Return loss in dB.
    QString ar() const { return m_ar.text.get(); }
    /// Mismatch loss in dB.
    QString am() const { return m_am.text.get(); }
    QString pForward() const { return m_powers.forward.text.get(); }
    QString pReflected() const { return m_powers.reflected.text.get(); }
    QString pAbsorbed() const { return m_powers.absorbed.text.get(); }
    QString vForward() const { return m_voltages.forward.text.get(); }
    QString vReflected() const { return m_voltages.reflected.text.get(); }
    QString vAbsorbed() const { return m_voltages.absorbed.text.get(); }
    /// 0: powers, 1: voltages.
    int currentMode() const { return m_currentMode.get(); }
    /// Power units are 0 dBm, 1 dBW, 2 W, 3 mW.
    int pForwardUnit() const { return m_powers.forward.unit.get(); }
    int pReflectedUnit() const { return m_powers.reflected.unit.get(); }
    int pAbsorbedUnit() const { return m_powers.absorbed.unit.get(); }
    /// Voltage units are 0 dBV, 1 dBµV, 2 V, 3 mV.
    int vForwardUnit() const { return m_voltages.forward.unit.get(); }
    int vReflectedUnit() const { return m_voltages.reflected.unit.get(); }
    int vAbsorbedUnit() const { return m_voltages.absorbed.unit.get(); }

    void setVswr(const QString &text) { m_vswr.text.set(text); }
    void setR(const QString &text) { m_r.text.set(text); }
    void setR2(const QString &text) { m_r2.text.set(text); }
    void setAr(const QString &text) { m_ar.text.set(text); }
    void setAm(const QString &text) { m_am.text.set(text); }
    void setPForward(const QString &text) { m_powers.forward.text.set(text); }
    void setPReflected(const QString &text) { m_powers.reflected.text.set(text); }
    void setPAbsorbed(const QString &text) { m_powers.absorbed.text.set(text); }
    void setVForward(const QString &text) { m_voltages.forward.text.set(text); }
    void setVReflected(const QString &text) { m_voltages.reflected.text.set(text); }
    void setVAbsorbed(const QString &text) { m_voltages.absorbed.text.set(text); }
    void setCurrentMode(int mode) { m_currentMode.set(mode); }
    void setPForwardUnit(int unit) { m_powers.forward.setUnit(unit); }
    void setPReflectedUnit(int unit) { m_powers.reflected.setUnit(unit); }
    void setPAbsorbedUnit(int unit) { m_powers.absorbed.setUnit(unit); }
    void setVForwardUnit(int unit) { m_voltages.forward.setUnit(unit); }
    void setVReflectedUnit(int unit) { m_voltages.reflected.setUnit(unit); }
    void setVAbsorbedUnit(int unit) { m_voltages.absorbed.setUnit(unit); }

    void saveSettings(QSettings &settings) override;
    /// The units come before the texts, so that the texts end up exactly as they were stored.
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    void calculateFromVswr();
    void calculateFromR() { finishQuantity(m_r); }
    void calculateFromR2() { finishQuantity(m_r2); }
    void calculateFromAr() { finishQuantity(m_ar); }
    void calculateFromAm() { finishQuantity(m_am); }
    void calculateFromPForward() { finishForward(m_powers); }
    void calculateFromPReflected() { finishReflected(m_powers); }
    void calculateFromPAbsorbed() { finishAbsorbed(m_powers); }
    void calculateFromVForward() { finishForward(m_voltages); }
    void calculateFromVReflected() { finishReflected(m_voltages); }
    void calculateFromVAbsorbed() { finishAbsorbed(m_voltages); }

Q_SIGNALS:
    void vswrChanged();
    void rChanged();
    void r2Changed();
    void arChanged();
    void amChanged();
    void pForwardChanged();
    void pReflectedChanged();
    void pAbsorbedChanged();
    void pForwardUnitChanged();
    void pReflectedUnitChanged();
    void pAbsorbedUnitChanged();
    void vForwardChanged();
    void vReflectedChanged();
    void vAbsorbedChanged();
    void vForwardUnitChanged();
    void vReflectedUnitChanged();
    void vAbsorbedUnitChanged();
    void currentModeChanged();

private:
    struct Rule;

    /// One of the five that describe the reflection.
    struct Quantity
    {
        Announced<QString> text;
        const Rule &rule;
    };

    /// A power or a voltage with its unit; base values are in mW or mV.
    struct Row
    {
        Announced<QString> text;
        Announced<int> unit;
        const UnitSelector &units;
        /// Whose digits a result has.
        const ModuleProfile &model;

        bool isFilled() const { return !text.get().isEmpty(); }
        double value() const;
        std::optional<double> readEdited();
        void show(double baseValue, int unitIndex);
        void show(double baseValue) { show(baseValue, unit.get()); }
        void setUnit(int newUnit);
    };

    /// The powers or the voltages. Both follow the same rules on purpose: the square of the
    /// reflection coefficient links the voltages too, and the absorbed one is the plain difference.
    struct Rows
    {
        Row forward;
        Row reflected;
        Row absorbed;
    };

    std::optional<double> readEdited(Quantity &edited);
    void reject(Quantity &edited);
    void finishQuantity(Quantity &edited);

    void finishForward(Rows &rows);
    void finishReflected(Rows &rows);
    void finishAbsorbed(Rows &rows);
    double reflectedShare() const;

    static const Rule kVswr;
    static const Rule kR;
    static const Rule kR2;
    static const Rule kAr;
    static const Rule kAm;
    static const UnitSelector kPowerUnits;
    static const UnitSelector kVoltageUnits;

    using Self = VswrConverterProfile;
    Quantity m_vswr{{this, &Self::vswrChanged}, kVswr};
    Quantity m_r{{this, &Self::rChanged}, kR};
    Quantity m_r2{{this, &Self::r2Changed}, kR2};
    Quantity m_ar{{this, &Self::arChanged}, kAr};
    Quantity m_am{{this, &Self::amChanged}, kAm};
    Rows m_powers{
        {{this, &Self::pForwardChanged}, {this, &Self::pForwardUnitChanged}, kPowerUnits, *this},
        {{this, &Self::pReflectedChanged},
         {this, &Self::pReflectedUnitChanged},
         kPowerUnits,
         *this},
        {{this, &Self::pAbsorbedChanged}, {this, &Self::pAbsorbedUnitChanged}, kPowerUnits, *this},
    };
    Rows m_voltages{
        {{this, &Self::vForwardChanged}, {this, &Self::vForwardUnitChanged}, kVoltageUnits, *this},
        {{this, &Self::vReflectedChanged},
         {this, &Self::vReflectedUnitChanged},
         kVoltageUnits,
         *this},
        {{this, &Self::vAbsorbedChanged},
         {this, &Self::vAbsorbedUnitChanged},
         kVoltageUnits,
         *this},
    };
    Announced<int> m_currentMode{this, &Self::currentModeChanged};
};

} // namespace Dezimo

#endif
