// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "vswrconverterwidget.h"

#include "errortexts.h"
#include "mainprofile.h"
#include "ui_vswrconverterwidget.h"

using namespace Dezimo;

VswrConverterWidget::VswrConverterWidget(QWidget *parent)
    : ModulePage(parent),
      m_ui(std::make_unique<Ui::VswrConverterWidget>()),
      m_profile(&MainProfile::instance().vswrConverter())
{
    build(*m_ui);
    setUpFields();
    connectCalculations();
    tellAboutFields();
    showModel();
}

VswrConverterWidget::~VswrConverterWidget()
{
    finishOpenEdit();
}

void VswrConverterWidget::setUpFields()
{
    m_ui->vswrLineEdit->setPrefixText(QStringLiteral("1 : "));
    m_ui->r2LineEdit->setSuffixText(QStringLiteral("%"));
    m_ui->arLineEdit->setSuffixText(QStringLiteral("dB"));
    m_ui->amLineEdit->setSuffixText(QStringLiteral("dB"));
    dressFields();
    m_ui->forwardPowerLineEdit->setUnitSelector(m_ui->forwardPowerUnitComboBox);
    m_ui->reflectedPowerLineEdit->setUnitSelector(m_ui->reflectedPowerUnitComboBox);
    m_ui->absorbedPowerLineEdit->setUnitSelector(m_ui->absorbedPowerUnitComboBox);
    m_ui->forwardVoltageLineEdit->setUnitSelector(m_ui->forwardVoltageUnitComboBox);
    m_ui->reflectedVoltageLineEdit->setUnitSelector(m_ui->reflectedVoltageUnitComboBox);
    m_ui->absorbedVoltageLineEdit->setUnitSelector(m_ui->absorbedVoltageUnitComboBox);
}

/// Leaving a field, or Enter in it, calculates from its row.
void VswrConverterWidget::connectCalculations()
{
    using Model = VswrConverterProfile;
    const struct
    {
        const KelLineEdit *field;
        void (Model::*calculate)();
    } rows[] = {
        {m_ui->vswrLineEdit, &Model::calculateFromVswr},
        {m_ui->rLineEdit, &Model::calculateFromR},
        {m_ui->r2LineEdit, &Model::calculateFromR2},
        {m_ui->arLineEdit, &Model::calculateFromAr},
        {m_ui->amLineEdit, &Model::calculateFromAm},
        {m_ui->forwardPowerLineEdit, &Model::calculateFromPForward},
        {m_ui->reflectedPowerLineEdit, &Model::calculateFromPReflected},
        {m_ui->absorbedPowerLineEdit, &Model::calculateFromPAbsorbed},
        {m_ui->forwardVoltageLineEdit, &Model::calculateFromVForward},
        {m_ui->reflectedVoltageLineEdit, &Model::calculateFromVReflected},
        {m_ui->absorbedVoltageLineEdit, &Model::calculateFromVAbsorbed},
    };
    for (const auto &row : rows)
        connect(row.field, &KelLineEdit::editingFinished, m_profile, row.calculate);
}

void VswrConverterWidget::tellAboutFields()
{
    const auto because = [](const char *sentence) {
        return std::vector<HintReason>{{ErrorText::kInvalidInput, sentence}};
    };
    const auto noValue = [](const char *noNumber, const char *noSolution) {
        return std::vector<HintReason>{{ErrorText::kInvalidInput, noNumber},
                                       {ErrorText::kNotANumber, noSolution}};
    };
    hints().add({
        {m_ui->vswrLineEdit, QT_TR_NOOP("VSWR s, from 1 up: 2, 1.5; Γ = (s - 1)/(s + 1)"),
         because(QT_TR_NOOP("The VSWR is a number from 1 up, with a point: 2, 1.5"))},
        {m_ui->rLineEdit, QT_TR_NOOP("Magnitude of Γ, from 0 to 1: 0.33; s = (1 + Γ)/(1 - Γ)"),
         because(QT_TR_NOOP("Γ is a number from 0 to 1, with a point: 0.33"))},
        {m_ui->r2LineEdit, QT_TR_NOOP("Reflected power in %, from 0 to 100: 11; Γ²·100"),
         because(QT_TR_NOOP("Γ² is a number from 0 to 100, with a point: 11.1"))},
        {m_ui->arLineEdit, QT_TR_NOOP("Return loss in dB, from 0 up: 9.5; -20·log₁₀ Γ"),
         because(QT_TR_NOOP("The return loss is a number from 0 up, with a point: 9.5"))},
        {m_ui->amLineEdit, QT_TR_NOOP("Mismatch loss in dB, from 0 up: 0.5; -10·log₁₀(1 - Γ²)"),
         because(QT_TR_NOOP("The mismatch loss is a number from 0 up, with a point: 0.5"))},
        {m_ui->forwardPowerLineEdit,
         QT_TR_NOOP("Forward power P→ in %1; gives P← = P→·Γ² if Γ² is known"),
         noValue(QT_TR_NOOP("The forward power is a number without a unit, with a point: 2.5, -30"),
                 QT_TR_NOOP("No forward power fits: it would be below zero, or Γ² is 0"))},
        {m_ui->reflectedPowerLineEdit,
         QT_TR_NOOP("Reflected power P← in %1; gives P→ = P←/Γ² if Γ² is known"),
         noValue(
             QT_TR_NOOP("The reflected power is a number without a unit, with a point: 2.5, -30"),
             QT_TR_NOOP("No reflected power fits: it would be below zero, or Γ² is 0"))},
        {m_ui->absorbedPowerLineEdit,
         QT_TR_NOOP("Absorbed power P→ - P← in %1; with Γ² known, a new one empties itself and P→"),
         noValue(
             QT_TR_NOOP("The absorbed power is a number without a unit, with a point: 2.5, -30"),
             QT_TR_NOOP("No absorbed power fits: it would be below zero, or Γ² is 0"))},
        {m_ui->forwardVoltageLineEdit,
         QT_TR_NOOP("Forward voltage V→ in %1; gives V← = V→·Γ² if Γ² is known"),
         noValue(
             QT_TR_NOOP("The forward voltage is a number without a unit, with a point: 2.5, -30"),
             QT_TR_NOOP("No forward voltage fits: it would be below zero, or Γ² is 0"))},
        {m_ui->reflectedVoltageLineEdit,
         QT_TR_NOOP("Reflected voltage V← in %1; gives V→ = V←/Γ² if Γ² is known"),
         noValue(
             QT_TR_NOOP("The reflected voltage is a number without a unit, with a point: 2.5, -30"),
             QT_TR_NOOP("No reflected voltage fits: it would be below zero, or Γ² is 0"))},
        {m_ui->absorbedVoltageLineEdit,
         QT_TR_NOOP(
             "Absorbed voltage V→ - V← in %1; with Γ² known, a new one empties itself and V→"),
         noValue(
             QT_TR_NOOP("The absorbed voltage is a number without a unit, with a point: 2.5, -30"),
             QT_TR_NOOP("No absorbed voltage fits: it would be below zero, or Γ² is 0"))},
    });
}

void VswrConverterWidget::showModel()
{
    using Model = VswrConverterProfile;
    using View = VswrConverterWidget;
    const std::vector<Value<Model, View>> values = {
        {&Model::vswrChanged, &View::onVswrChanged},
        {&Model::rChanged, &View::onRChanged},
        {&Model::r2Changed, &View::onR2Changed},
        {&Model::arChanged, &View::onArChanged},
        {&Model::amChanged, &View::onAmChanged},
        {&Model::pForwardChanged, &View::onPForwardChanged},
        {&Model::pReflectedChanged, &View::onPReflectedChanged},
        {&Model::pAbsorbedChanged, &View::onPAbsorbedChanged},
        {&Model::vForwardChanged, &View::onVForwardChanged},
        {&Model::vReflectedChanged, &View::onVReflectedChanged},
        {&Model::vAbsorbedChanged, &View::onVAbsorbedChanged},
        {&Model::pForwardUnitChanged, &View::onPForwardUnitChanged},
        {&Model::pReflectedUnitChanged, &View::onPReflectedUnitChanged},
        {&Model::pAbsorbedUnitChanged, &View::onPAbsorbedUnitChanged},
        {&Model::vForwardUnitChanged, &View::onVForwardUnitChanged},
        {&Model::vReflectedUnitChanged, &View::onVReflectedUnitChanged},
        {&Model::vAbsorbedUnitChanged, &View::onVAbsorbedUnitChanged},
        {&Model::currentModeChanged, &View::onCurrentModeChanged},
    };
    mirror(m_profile, this, values);
}

void VswrConverterWidget::onVswrChanged()
{
    showText(m_ui->vswrLineEdit, m_profile->vswr());
}

void VswrConverterWidget::onRChanged()
{
    showText(m_ui->rLineEdit, m_profile->r());
}

void VswrConverterWidget::onR2Changed()
{
    showText(m_ui->r2LineEdit, m_profile->r2());
}

void VswrConverterWidget::onArChanged()
{
    showText(m_ui->arLineEdit, m_profile->ar());
}

void VswrConverterWidget::onAmChanged()
{
    showText(m_ui->amLineEdit, m_profile->am());
}

void VswrConverterWidget::onPForwardChanged()
{
    showText(m_ui->forwardPowerLineEdit, m_profile->pForward());
}

void VswrConverterWidget::onPReflectedChanged()
{
    showText(m_ui->reflectedPowerLineEdit, m_profile->pReflected());
}

void VswrConverterWidget::onPAbsorbedChanged()
{
    showText(m_ui->absorbedPowerLineEdit, m_profile->pAbsorbed());
}

void VswrConverterWidget::onVForwardChanged()
{
    showText(m_ui->forwardVoltageLineEdit, m_profile->vForward());
}

void VswrConverterWidget::onVReflectedChanged()
{
    showText(m_ui->reflectedVoltageLineEdit, m_profile->vReflected());
}

void VswrConverterWidget::onVAbsorbedChanged()
{
    showText(m_ui->absorbedVoltageLineEdit, m_profile->vAbsorbed());
}

void VswrConverterWidget::onPForwardUnitChanged()
{
    m_ui->forwardPowerUnitComboBox->setCurrentIndex(m_profile->pForwardUnit());
}

void VswrConverterWidget::onPReflectedUnitChanged()
{
    m_ui->reflectedPowerUnitComboBox->setCurrentIndex(m_profile->pReflectedUnit());
}

void VswrConverterWidget::onPAbsorbedUnitChanged()
{
    m_ui->absorbedPowerUnitComboBox->setCurrentIndex(m_profile->pAbsorbedUnit());
}

void VswrConverterWidget::onVForwardUnitChanged()
{
    m_ui->forwardVoltageUnitComboBox->setCurrentIndex(m_profile->vForwardUnit());
}

void VswrConverterWidget::onVReflectedUnitChanged()
{
    m_ui->reflectedVoltageUnitComboBox->setCurrentIndex(m_profile->vReflectedUnit());
}

void VswrConverterWidget::onVAbsorbedUnitChanged()
{
    m_ui->absorbedVoltageUnitComboBox->setCurrentIndex(m_profile->vAbsorbedUnit());
}

void VswrConverterWidget::onCurrentModeChanged()
{
    m_ui->mainTab->setCurrentIndex(m_profile->currentMode());
}
