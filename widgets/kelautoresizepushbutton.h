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
    explicit KelAutoResizePushButton(QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;
};

#endif
