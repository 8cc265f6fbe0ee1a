// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "unitconverterwidget.h"

#include "errortexts.h"
#include "mainprofile.h"
#include "ui_unitconverterwidget.h"

#include <QPushButton>

using namespace Dezimo;

UnitConverterWidget::UnitConverterWidget(QWidget *parent)
    : ModulePage(parent),
      m_ui(std::make_unique<Ui::UnitConverterWidget>()),
      m_profile(&MainProfile::instance().unitConverter())
{
    build(*m_ui);
    m_ui->impedanceLineEdit->setSuffixText(QStringLiteral("Ω"));
    markErrors(findChildren<KelLineEdit *>());
    m_ui->dbmLineEdit->setUnitSelector(m_ui->dbmUnitComboBox);
    m_ui->wattLineEdit->setUnitSelector(m_ui->wattUnitComboBox);
    m_ui->voltLineEdit->setUnitSelector(m_ui->voltUnitComboBox);
    m_ui->dbvLineEdit->setUnitSelector(m_ui->dbvUnitComboBox);
    addVoltageModes();
    tellAboutFields();
    showModel();
}

UnitConverterWidget::~UnitConverterWidget()
{
    finishOpenEdit();
}

/// The buttons of the switch exist only now, so they take their place in the tab order here.
void UnitConverterWidget::addVoltageModes()
{
    m_ui->vModeToggle->addItems(
        {QStringLiteral("Vrms"), QStringLiteral("Vpp"), QStringLiteral("Vavg")});
    m_ui->vModeToggle->setCurrentIndex(0);
    connect(m_ui->vModeToggle, &KelToggleButton::currentIndexChanged, this,
            &UnitConverterWidget::onVModeToggle_currentIndexChanged);

    QWidget *previous = m_ui->impedanceLineEdit;
    const QList<QPushButton *> buttons = m_ui->vModeToggle->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        setTabOrder(previous, button);
        previous = button;
    }
}

void UnitConverterWidget::tellAboutFields()
{
    const auto because = [](const char *sentence) {
        return std::vector<HintReason>{{ErrorText::kInvalidInput, sentence}};
    };
    hints().add({
        {m_ui->dbmLineEdit, QT_TR_NOOP("Power in %1: 13.5, -30; P = Vrms²/R"),
         because(QT_TR_NOOP(
             "The logarithmic power is a number without a unit, with a point: 13.5, -30"))},
        {m_ui->wattLineEdit, QT_TR_NOOP("Power in %1: 22.4, 500u; P = Vrms²/R"),
         because(QT_TR_NOOP(
             "The linear power is a number from 0 up, without a unit, with a point: 2.5, 100m"))},
        {m_ui->impedanceLineEdit,
         QT_TR_NOOP("Impedance in ohms; a new one empties the four values"),
         {{ErrorText::kInvalid,
           QT_TR_NOOP("The impedance is a number of ohms, with a point: 50, 37.5")}}},
        {m_ui->vModeToggle,
         QT_TR_NOOP(
             "Which voltage of a sine is shown; a new mode calculates again from the power")},
        {m_ui->dbvLineEdit, QT_TR_NOOP("Voltage in %1: -13, 107; Vrms = √(P·R)"),
         because(QT_TR_NOOP(
             "The logarithmic voltage is a number without a unit, with a point: 107, -13.5"))},
        {m_ui->voltLineEdit, QT_TR_NOOP("Voltage in %1: 2.5, 100u; Vrms = √(P·R)"),
         because(QT_TR_NOOP(
             "The linear voltage is a number from 0 up, without a unit, with a point: 2.5, 100u"))},
    });
}

void UnitConverterWidget::showModel()
{
    using Model = UnitConverterProfile;
    using View = UnitConverterWidget;
    const std::vector<Value<Model, View>> values = {
        {&Model::logPowerChanged, &View::onLogPowerChanged},
        {&Model::linPowerChanged, &View::onLinPowerChanged},
        {&Model::logVoltageChanged, &View::onLogVoltageChanged},
        {&Model::linVoltageChanged, &View::onLinVoltageChanged},
        {&Model::logPowerUnitChanged, &View::onLogPowerUnitChanged},
        {&Model::linPowerUnitChanged, &View::onLinPowerUnitChanged},
        {&Model::logVoltageUnitChanged, &View::onLogVoltageUnitChanged},
        {&Model::linVoltageUnitChanged, &View::onLinVoltageUnitChanged},
        {&Model::impedanceChanged, &View::onImpedanceChanged},
        {&Model::voltageModeChanged, &View::onVoltageModeChanged},
    };
    mirror(m_profile, this, values);
}

void UnitConverterWidget::on_dbmUnitComboBox_currentIndexChanged(int index)
{
    if (index == m_profile->logPowerUnit())
        return;
    m_profile->setLogPowerUnit(index);
    m_profile->rescaleLogPower();
}

void UnitConverterWidget::on_wattUnitComboBox_currentIndexChanged(int index)
{
    if (index == m_profile->linPowerUnit())
        return;
    m_profile->setLinPowerUnit(index);
    m_profile->rescaleLinPower();
}

void UnitConverterWidget::on_voltUnitComboBox_currentIndexChanged(int index)
{
    if (index == m_profile->linVoltageUnit())
        return;
    m_profile->setLinVoltageUnit(index);
    m_profile->rescaleLinVoltage();
}

void UnitConverterWidget::on_dbvUnitComboBox_currentIndexChanged(int index)
{
    if (index == m_profile->logVoltageUnit())
        return;
    m_profile->setLogVoltageUnit(index);
    m_profile->rescaleLogVoltage();
}

void UnitConverterWidget::onVModeToggle_currentIndexChanged(int index)
{
    m_profile->setVoltageMode(index);
    m_profile->calculateFromLinPower();
}

void UnitConverterWidget::onLogPowerChanged()
{
    showText(m_ui->dbmLineEdit, m_profile->logPower());
}

void UnitConverterWidget::onLinPowerChanged()
{
    showText(m_ui->wattLineEdit, m_profile->linPower());
}

void UnitConverterWidget::onLogVoltageChanged()
{
    showText(m_ui->dbvLineEdit, m_profile->logVoltage());
}

void UnitConverterWidget::onLinVoltageChanged()
{
    showText(m_ui->voltLineEdit, m_profile->linVoltage());
}

void UnitConverterWidget::onImpedanceChanged()
{
    showText(m_ui->impedanceLineEdit, m_profile->impedance());
}

void UnitConverterWidget::onLogPowerUnitChanged()
{
    m_ui->dbmUnitComboBox->setCurrentIndex(m_profile->logPowerUnit());
}

void UnitConverterWidget::onLinPowerUnitChanged()
{
    m_ui->wattUnitComboBox->setCurrentIndex(m_profile->linPowerUnit());
}

void UnitConverterWidget::onLogVoltageUnitChanged()
{
    m_ui->dbvUnitComboBox->setCurrentIndex(m_profile->logVoltageUnit());
}

void UnitConverterWidget::onLinVoltageUnitChanged()
{
    m_ui->voltUnitComboBox->setCurrentIndex(m_profile->linVoltageUnit());
}

void UnitConverterWidget::onVoltageModeChanged()
{
    m_ui->vModeToggle->setCurrentIndex(m_profile->voltageMode());
}
