// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellistwidget.h"

KelListWidget::KelListWidget(QWidget *parent) : QListWidget(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::TabFocus);
}
