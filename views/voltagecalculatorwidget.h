// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_VOLTAGECALCULATORWIDGET_H
#define VIEWS_VOLTAGECALCULATORWIDGET_H

#include "keypadcalculatorwidget.h"

#include <memory>

namespace Dezimo {
class VoltageCalculatorProfile;
}

namespace Ui {
class VoltageCalculatorWidget;
}

/**
 * The page of the voltage calculator: sums and differences of voltages, with the units mV and V to
 * show the result in, and the phase between correlated voltages in whole degrees.
 */
class VoltageCalculatorWidget final : public KeypadCalculatorWidget
{
    Q_OBJECT

public:
    explicit VoltageCalculatorWidget(QWidget *parent = nullptr);
    ~VoltageCalculatorWidget() override;

private Q_SLOTS:
    void on_phaseSpinBox_valueChanged(int degrees);
    void onPhaseChanged();

private:
    int shownPhase() const;

    const std::unique_ptr<Ui::VoltageCalculatorWidget> m_ui;
    Dezimo::VoltageCalculatorProfile &m_voltages;
};

#endif
