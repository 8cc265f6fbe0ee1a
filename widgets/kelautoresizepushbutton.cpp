// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelautoresizepushbutton.h"

KelAutoResizePushButton::KelAutoResizePushButton(QWidget *parent) : KelPushButton(parent) {}

void KelAutoResizePushButton::resizeEvent(QResizeEvent *event)
{
    KelPushButton::resizeEvent(event);
    setStyleSheet(QStringLiteral("font-size: %1px").arg(qMin(width(), height()) / 2));
}
