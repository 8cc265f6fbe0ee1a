// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_VSWRCONVERTERPROFILE_H
#define PROFILES_VSWRCONVERTERPROFILE_H

#include "profile.h"

#include <QString>

#include <optional>

class UnitTable;

/**
 * The VSWR converter: a mismatched port as VSWR, reflection coefficient, its square in percent,
 * return loss and mismatch loss, and as forward, reflected and absorbed power and voltage.
 *
 * Finishing a field of the reflection group computes the rest of the group. Finishing a power (or
 * voltage) computes the other two from the square of the reflection coefficient, or the third one
 * from the two that are known; it never writes into the reflection group. A finished field that is
 * no valid number reads "invalid input"; an empty one does nothing. Results that are infinite or no
 * number stand as the words that Qt writes for them.
 *
 * A unit setter rewrites its row's text so that it stands for the same quantity.
 */
class VswrConverterProfile final : public Profile
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
    explicit VswrConverterProfile(QObject *parent = nullptr);

    QString vswr() const { return m_vswr; }
    /// Magnitude of the reflection coefficient.
    QString r() const { return m_r; }
    /// Its square in percent.
    QString r2() const { return m_r2; }
    /// Return loss in dB.
    QString ar() const { return m_ar; }
    /// Mismatch loss in dB.
    QString am() const { return m_am; }
    QString pForward() const { return m_pForward; }
    QString pReflected() const { return m_pReflected; }
    QString pAbsorbed() const { return m_pAbsorbed; }
    QString vForward() const { return m_vForward; }
    QString vReflected() const { return m_vReflected; }
    QString vAbsorbed() const { return m_vAbsorbed; }
    /// 0: powers, 1: voltages.
    int currentMode() const { return m_currentMode; }
    /// Power units are 0 dBm, 1 dBW, 2 W, 3 mW.
    int pForwardUnit() const { return m_pForwardUnit; }
    int pReflectedUnit() const { return m_pReflectedUnit; }
    int pAbsorbedUnit() const { return m_pAbsorbedUnit; }
    /// Voltage units are 0 dBV, 1 dBµV, 2 V, 3 mV.
    int vForwardUnit() const { return m_vForwardUnit; }
    int vReflectedUnit() const { return m_vReflectedUnit; }
    int vAbsorbedUnit() const { return m_vAbsorbedUnit; }

    void setVswr(const QString &text);
    void setR(const QString &text);
    void setR2(const QString &text);
    void setAr(const QString &text);
    void setAm(const QString &text);
    void setPForward(const QString &text);
    void setPReflected(const QString &text);
    void setPAbsorbed(const QString &text);
    void setVForward(const QString &text);
    void setVReflected(const QString &text);
    void setVAbsorbed(const QString &text);
    void setCurrentMode(int mode);
    void setPForwardUnit(int unit);
    void setPReflectedUnit(int unit);
    void setPAbsorbedUnit(int unit);
    void setVForwardUnit(int unit);
    void setVReflectedUnit(int unit);
    void setVAbsorbedUnit(int unit);

    void saveSettings(QSettings &settings) override;
    /// The units come before the texts, so that the texts end up exactly as they were stored.
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    void calculateFromVswr();
    void calculateFromR();
    void calculateFromR2();
    void calculateFromAr();
    void calculateFromAm();
    void calculateFromPForward();
    void calculateFromPReflected();
    void calculateFromPAbsorbed();
    void calculateFromVForward();
    void calculateFromVReflected();
    void calculateFromVAbsorbed();

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
    struct Field
    {
        QString (VswrConverterProfile::*get)() const;
        void (VswrConverterProfile::*set)(const QString &);
    };

    struct Quantity;

    struct Row
    {
        Field field;
        int VswrConverterProfile::*unit;
        void (VswrConverterProfile::*unitChanged)();
        const UnitTable &units;
    };

    /// The powers or the voltages. Both halves follow the same rules with the same factor: that the
    /// voltages too are linked by the square of the reflection coefficient, and that the absorbed
    /// one is the plain difference, is meant.
    struct Rows
    {
        Row forward;
        Row reflected;
        Row absorbed;
    };

    QString text(const Field &field) const;
    void setText(const Field &field, const QString &text);

    std::optional<double> readEdited(const Quantity &edited);
    void reject(const Quantity &edited);
    void finishQuantity(const Quantity &edited);

    void finishForward(const Rows &rows);
    void finishReflected(const Rows &rows);
    void finishAbsorbed(const Rows &rows);
    std::optional<double> readEdited(const Row &edited);
    double valueOf(const Row &row) const;
    void show(const Row &row, double baseValue);
    bool isFilled(const Row &row) const;
    double reflectedShare() const;
    void setUnit(const Row &row, int unit);

    static const Quantity kVswr;
    static const Quantity kR;
    static const Quantity kR2;
    static const Quantity kAr;
    static const Quantity kAm;
    static const Rows kPowers;
    static const Rows kVoltages;

    QString m_vswr;
    QString m_r;
    QString m_r2;
    QString m_ar;
    QString m_am;
    QString m_pForward;
    QString m_pReflected;
    QString m_pAbsorbed;
    QString m_vForward;
    QString m_vReflected;
    QString m_vAbsorbed;
    int m_currentMode = 0;
    int m_pForwardUnit = 0;
    int m_pReflectedUnit = 0;
    int m_pAbsorbedUnit = 0;
    int m_vForwardUnit = 0;
    int m_vReflectedUnit = 0;
    int m_vAbsorbedUnit = 0;
};

#endif
