// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_VSWRCONVERTERWIDGET_H
#define VIEWS_VSWRCONVERTERWIDGET_H

#include "modulepage.h"
#include "vswrconverterprofile.h"

#include <memory>

namespace Ui {
class VswrConverterWidget;
}

/**
 * The page of the VSWR converter: the five reflection quantities one above the other and, on two
 * tabs below them, the powers and the voltages with their units. Typing stores a text in the model;
 * leaving a field calculates from it.
 *
 * A change of the language empties the VSWR field, and no other.
 */
class VswrConverterWidget final : public ModulePage
{
    Q_OBJECT

public:
    explicit VswrConverterWidget(QWidget *parent = nullptr);
    ~VswrConverterWidget() override;

private Q_SLOTS:
    void on_vswrLineEdit_textEdited(const QString &arg1) { m_profile->setVswr(arg1); }
    void on_rLineEdit_textEdited(const QString &arg1) { m_profile->setR(arg1); }
    void on_r2LineEdit_textEdited(const QString &arg1) { m_profile->setR2(arg1); }
    void on_arLineEdit_textEdited(const QString &arg1) { m_profile->setAr(arg1); }
    void on_amLineEdit_textEdited(const QString &arg1) { m_profile->setAm(arg1); }
    void on_forwardPowerLineEdit_textEdited(const QString &arg1) { m_profile->setPForward(arg1); }
    void on_reflectedPowerLineEdit_textEdited(const QString &arg1)
    {
        m_profile->setPReflected(arg1);
    }
    void on_absorbedPowerLineEdit_textEdited(const QString &arg1) { m_profile->setPAbsorbed(arg1); }
    void on_forwardVoltageLineEdit_textEdited(const QString &arg1) { m_profile->setVForward(arg1); }
    void on_reflectedVoltageLineEdit_textEdited(const QString &arg1)
    {
        m_profile->setVReflected(arg1);
    }
    void on_absorbedVoltageLineEdit_textEdited(const QString &arg1)
    {
        m_profile->setVAbsorbed(arg1);
    }

    void on_forwardPowerUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setPForwardUnit(index);
    }
    void on_reflectedPowerUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setPReflectedUnit(index);
    }
    void on_absorbedPowerUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setPAbsorbedUnit(index);
    }
    void on_forwardVoltageUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setVForwardUnit(index);
    }
    void on_reflectedVoltageUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setVReflectedUnit(index);
    }
    void on_absorbedVoltageUnitComboBox_currentIndexChanged(int index)
    {
        m_profile->setVAbsorbedUnit(index);
    }
    void on_mainTab_currentChanged(int index) { m_profile->setCurrentMode(index); }

    void onVswrChanged();
    void onRChanged();
    void onR2Changed();
    void onArChanged();
    void onAmChanged();
    void onPForwardChanged();
    void onPReflectedChanged();
    void onPAbsorbedChanged();
    void onVForwardChanged();
    void onVReflectedChanged();
    void onVAbsorbedChanged();
    void onPForwardUnitChanged();
    void onPReflectedUnitChanged();
    void onPAbsorbedUnitChanged();
    void onVForwardUnitChanged();
    void onVReflectedUnitChanged();
    void onVAbsorbedUnitChanged();
    void onCurrentModeChanged();

private:
    void setUpFields();
    void connectCalculations();
    void tellAboutFields();
    void showModel();

    const std::unique_ptr<Ui::VswrConverterWidget> m_ui;
    Dezimo::VswrConverterProfile *const m_profile;
};

#endif
