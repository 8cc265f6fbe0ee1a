// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellistwidget.h"

KelListWidget::KelListWidget(QWidget *parent) : QListWidget(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QListWidget::itemSelectionChanged, this, &KelListWidget::followSelection);
}

void KelListWidget::followSelection()
{
    const QList<QListWidgetItem *> selected = selectedItems();
    if (selected.size() == 1)
        setCurrentItem(selected.first());
}
