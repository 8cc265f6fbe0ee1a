// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "vswrconverterwidget.h"

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
    markErrors(findChildren<KelLineEdit *>());
    describeByUnit(m_ui->forwardPowerLineEdit, m_ui->forwardPowerUnitComboBox);
    describeByUnit(m_ui->reflectedPowerLineEdit, m_ui->reflectedPowerUnitComboBox);
    describeByUnit(m_ui->absorbedPowerLineEdit, m_ui->absorbedPowerUnitComboBox);
    describeByUnit(m_ui->forwardVoltageLineEdit, m_ui->forwardVoltageUnitComboBox);
    describeByUnit(m_ui->reflectedVoltageLineEdit, m_ui->reflectedVoltageUnitComboBox);
    describeByUnit(m_ui->absorbedVoltageLineEdit, m_ui->absorbedVoltageUnitComboBox);
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
