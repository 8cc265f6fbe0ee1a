// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelcombobox.h"

#include "kelcomboboxstyle.h"

#include <QListView>

KelComboBox::KelComboBox(QWidget *parent) : QComboBox(parent)
{
    auto *style = new KelComboBoxStyle;
    style->setParent(this);
    setStyle(style);
    setView(new QListView);
}

void KelComboBox::showPopup()
{
    QComboBox::showPopup();
    QSizePolicy policy = view()->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::MinimumExpanding);
    view()->setSizePolicy(policy);
    view()->setMinimumWidth(width());
    // The view sits in a frame, which is the popup's window.
    view()->parentWidget()->move(mapToGlobal(QPoint(0, height())));
}
