// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSPINBOX_H
#define WIDGETS_KELSPINBOX_H

#include <QSpinBox>
#include <QWheelEvent>

/**
 * A spin box for whole numbers without the platform's focus rectangle, so that its focus looks as
 * the style sheets say.
 *
 * The wheel changes the number only if the box has the focus, and it does not give the focus to the
 * box. So a page scrolls past the box without changing it.
 */
class KelSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit KelSpinBox(QWidget *parent = nullptr) : QSpinBox(parent)
    {
        setAttribute(Qt::WA_MacShowFocusRect, false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    /// An ignored wheel event goes to the page, which scrolls.
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus())
            QSpinBox::wheelEvent(event);
        else
            event->ignore();
    }
};

#endif
