// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelcombobox.h"

#include "accessiblewidgets.h"
#include "kelcomboboxstyle.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QListView>
#include <QWheelEvent>

/// The list is made where it will be: a list that is moved there is styled anew.
KelComboBox::KelComboBox(QWidget *parent) : QComboBox(parent)
{
    auto *style = new KelComboBoxStyle;
    style->setParent(this);
    setStyle(style);
    setView(new QListView(view()->parentWidget()));
    installAccessibleWidgets();
    setFocusPolicy(Qt::StrongFocus);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &KelComboBox::selectCurrentItem);
}

KelComboBox::~KelComboBox()
{
    view()->clearFocus();
}

void KelComboBox::showPopup()
{
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    QSizePolicy policy = view()->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::MinimumExpanding);
    view()->setSizePolicy(policy);
    view()->setMinimumWidth(width());
    // The view sits in a frame, which is the popup's window.
    view()->parentWidget()->move(mapToGlobal(QPoint(0, height())));
}

/// A choice by key is read from the list only after it is hidden.
void KelComboBox::hidePopup()
{
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(this, "endPopup", Qt::QueuedConnection);
}

/// What the box leaves alone scrolls the page that it is on.
void KelComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

/// A list that was left without a choice has selected what the pointer or the keys were last on.
/// And while it was open, the box was not told that the pointer has left.
void KelComboBox::endPopup()
{
    selectCurrentItem();
    if (!underMouse() || rect().contains(mapFromGlobal(QCursor::pos())))
        return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(this, &leave);
    update();
}

void KelComboBox::selectCurrentItem()
{
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()));
}
