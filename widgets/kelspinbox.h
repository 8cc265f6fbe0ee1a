// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSPINBOX_H
#define WIDGETS_KELSPINBOX_H

#include <QSpinBox>

/**
 * A spin box for whole numbers without the platform's focus rectangle, so that its focus looks as
 * the style sheets say.
 *
 * The wheel changes the number only if the box has the focus, and it does not give the focus to the
 * box. So a page scrolls past the box without changing it.
 *
 * A number that is pasted or dropped is cleaned first (see pastedtext.h), and the suffix and the
 * prefix of the box are left out. What the mouse brings replaces the number.
 */
class KelSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit KelSpinBox(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

#endif
