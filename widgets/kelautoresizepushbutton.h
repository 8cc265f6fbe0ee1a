// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELAUTORESIZEPUSHBUTTON_H
#define WIDGETS_KELAUTORESIZEPUSHBUTTON_H

#include "kelpushbutton.h"

/**
 * A push button whose font follows its size: half the smaller one of width and height, in pixels.
 * The font is set through the button's own style sheet, which replaces any other that is set on the
 * button itself.
 */
class KelAutoResizePushButton final : public KelPushButton
{
    Q_OBJECT

public:
    explicit KelAutoResizePushButton(QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;
};

#endif
