// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_DBMCALCULATORWIDGET_H
#define VIEWS_DBMCALCULATORWIDGET_H

#include "keypadcalculatorwidget.h"

#include <memory>

namespace Ui {
class DbmCalculatorWidget;
}

/**
 * The page of the dBm calculator: sums and differences of power levels, powers and ratios, with the
 * units dBm, mW, W, µW, dBW and dB to show the result in.
 */
class DbmCalculatorWidget final : public KeypadCalculatorWidget
{
    Q_OBJECT

public:
    explicit DbmCalculatorWidget(QWidget *parent = nullptr);
    ~DbmCalculatorWidget() override;

private:
    const std::unique_ptr<Ui::DbmCalculatorWidget> m_ui;
};

#endif
