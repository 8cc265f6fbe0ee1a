// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "voltagecalculatorwidget.h"

#include "mainprofile.h"
#include "ui_voltagecalculatorwidget.h"

using namespace Dezimo;

VoltageCalculatorWidget::VoltageCalculatorWidget(QWidget *parent)
    : KeypadCalculatorWidget(MainProfile::instance().voltageCalculator(), parent),
      m_ui(std::make_unique<Ui::VoltageCalculatorWidget>()),
      m_voltages(MainProfile::instance().voltageCalculator())
{
    setUp(*m_ui, {QT_TR_NOOP("Voltage: 1V, 250mV, 3uV. Join with + and -; brackets work."),
                  {QT_TR_NOOP("root of the sum of squares: 3mV + 4mV = 5mV"),
                   QT_TR_NOOP("sum at the phase between the two: 3mV + 4mV = 7mV at 0°"),
                   QT_TR_NOOP("plain sum of the peaks: 3mV + 4mV = 7mV")}});
    hints().add(
        {{m_ui->phaseSpinBox,
          QT_TR_NOOP("Phase φ between correlated a and b: √(a² + b² ± 2ab·cos φ) for a ± b")}});
    m_ui->phaseSpinBox->setRange(VoltageCalculatorProfile::kMinimumPhase,
                                 VoltageCalculatorProfile::kMaximumPhase);
    mirror(&m_voltages, this,
           {{&VoltageCalculatorProfile::phaseChanged, &VoltageCalculatorWidget::onPhaseChanged}});
}

VoltageCalculatorWidget::~VoltageCalculatorWidget()
{
    finishOpenEdit();
}

/// The spin box shows a stored phase without its decimals. The model keeps them until the person
/// changes the phase.
void VoltageCalculatorWidget::on_phaseSpinBox_valueChanged(int degrees)
{
    if (degrees == shownPhase())
        return;
    m_voltages.setPhase(degrees);
    recalculate();
}

void VoltageCalculatorWidget::onPhaseChanged()
{
    m_ui->phaseSpinBox->setValue(shownPhase());
}

int VoltageCalculatorWidget::shownPhase() const
{
    return qRound(qBound(double(VoltageCalculatorProfile::kMinimumPhase), m_voltages.phase(),
                         double(VoltageCalculatorProfile::kMaximumPhase)));
}
