// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSPINBOX_H
#define WIDGETS_KELSPINBOX_H

#include <QSpinBox>

/**
 * A spin box for whole numbers without the platform's focus rectangle, so that its focus looks as
 * the style sheets say.
 */
class KelSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit KelSpinBox(QWidget *parent = nullptr) : QSpinBox(parent)
    {
        setAttribute(Qt::WA_MacShowFocusRect, false);
    }
};

#endif
