// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelscrollpage.h"

#include <QScrollArea>

KelScrollPage::KelScrollPage(QWidget *parent) : QWidget(parent)
{
    if (auto *area = qobject_cast<QScrollArea *>(parent))
        area->setWidget(this);
}
