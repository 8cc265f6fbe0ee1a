// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorwidget.h"

#include "mainprofile.h"
#include "ui_dbmcalculatorwidget.h"

#include <QEvent>

using namespace Dezimo;

DbmCalculatorWidget::DbmCalculatorWidget(QWidget *parent)
    : KeypadCalculatorWidget(MainProfile::instance().dbmCalculator(), parent),
      m_ui(std::make_unique<Ui::DbmCalculatorWidget>())
{
    m_ui->setupUi(this);
    setUp(*m_ui);
}

DbmCalculatorWidget::~DbmCalculatorWidget() = default;

void DbmCalculatorWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(this);
    KeypadCalculatorWidget::changeEvent(event);
}
