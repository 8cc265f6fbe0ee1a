// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELAUTORESIZEPUSHBUTTON_H
#define WIDGETS_KELAUTORESIZEPUSHBUTTON_H

#include "kelpushbutton.h"

/**
 * A push button whose font follows its size: half the smaller one of width and height, in pixels.
 * The button sets the font in its own style sheet, so do not give it another one.
 */
class KelAutoResizePushButton final : public KelPushButton
{
    Q_OBJECT

public:
    using KelPushButton::KelPushButton;

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        KelPushButton::resizeEvent(event);
        setStyleSheet(QStringLiteral("font-size: %1px").arg(qMin(width(), height()) / 2));
    }
};

#endif
