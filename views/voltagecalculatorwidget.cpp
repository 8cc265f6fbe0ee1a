// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "voltagecalculatorwidget.h"

#include "mainprofile.h"
#include "ui_voltagecalculatorwidget.h"

#include <QEvent>

using namespace Dezimo;

VoltageCalculatorWidget::VoltageCalculatorWidget(QWidget *parent)
    : KeypadCalculatorWidget(MainProfile::instance().voltageCalculator(), parent),
      m_ui(std::make_unique<Ui::VoltageCalculatorWidget>()),
      m_voltages(MainProfile::instance().voltageCalculator())
{
    m_ui->setupUi(this);
    setUp(*m_ui);
    m_ui->phaseSpinBox->setRange(VoltageCalculatorProfile::kMinimumPhase,
                                 VoltageCalculatorProfile::kMaximumPhase);
    connect(&m_voltages, &VoltageCalculatorProfile::phaseChanged, this,
            &VoltageCalculatorWidget::onPhaseChanged);
    onPhaseChanged();
}

VoltageCalculatorWidget::~VoltageCalculatorWidget() = default;

void VoltageCalculatorWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(this);
    KeypadCalculatorWidget::changeEvent(event);
}

/// A stored phase may have decimals, which being shown does not take from it.
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
