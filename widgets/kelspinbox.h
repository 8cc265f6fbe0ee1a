// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSPINBOX_H
#define WIDGETS_KELSPINBOX_H

#include <QSpinBox>

/**
 * A spin box for whole numbers that shows no focus rectangle of the platform, so that its focus
 * looks as the style sheets say. Range, prefix and suffix come from the form that holds it.
 */
class KelSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit KelSpinBox(QWidget *parent = nullptr);
};

#endif
