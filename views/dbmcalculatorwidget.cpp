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
    setUp(*m_ui);
}

DbmCalculatorWidget::~DbmCalculatorWidget() = default;
