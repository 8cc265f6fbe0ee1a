// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorwidget.h"

#include "mainprofile.h"
#include "ui_dbmcalculatorwidget.h"

using namespace Dezimo;

DbmCalculatorWidget::DbmCalculatorWidget(QWidget *parent)
    : KeypadCalculatorWidget(MainProfile::instance().dbmCalculator(), parent),
      m_ui(std::make_unique<Ui::DbmCalculatorWidget>())
{
    setUp(*m_ui, {QT_TR_NOOP("Level, power or ratio: 10dBm, 3dBW, 5kW, 3dB. "
                             "Join with + and -; brackets work."),
                  {QT_TR_NOOP("mean of the inputs: 10dBm + 10dBm = 10dBm"),
                   QT_TR_NOOP("sum of the inputs, in phase: 10dBm + 10dBm = 13.01dBm"),
                   QT_TR_NOOP("plain sum of the powers: 10W + 5W = 15W")}});
    m_ui->inputLineEdit->setMicroSign(PastedText::MicroSign::Kept); // of the unit µW
}

DbmCalculatorWidget::~DbmCalculatorWidget()
{
    finishOpenEdit();
}
