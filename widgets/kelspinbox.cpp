// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelspinbox.h"

KelSpinBox::KelSpinBox(QWidget *parent) : QSpinBox(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
}
