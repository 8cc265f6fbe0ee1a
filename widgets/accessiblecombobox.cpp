// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessiblecombobox.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>

AccessibleComboBox::AccessibleComboBox(QComboBox *box)
    : QAccessibleWidget(box, QAccessible::ComboBox),
      m_box(box)
{}

void *AccessibleComboBox::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleComboBox::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_box->currentText() : QAccessibleWidget::text(kind);
}

QAccessible::State AccessibleComboBox::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = m_box->view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QAccessibleInterface *AccessibleComboBox::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(m_box->view()) : nullptr;
}

int AccessibleComboBox::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->object() == m_box->view() ? 0 : -1;
}

QStringList AccessibleComboBox::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (m_box->isEnabled())
        names << showMenuAction() << pressAction() << increaseAction() << decreaseAction();
    return names;
}

void AccessibleComboBox::doAction(const QString &name)
{
    if (!m_box->isEnabled())
        return;
    if (name == showMenuAction() || name == pressAction())
        m_box->showPopup();
    else if (name == increaseAction())
        pressKey(Qt::Key_Down);
    else if (name == decreaseAction())
        pressKey(Qt::Key_Up);
    else
        QAccessibleWidget::doAction(name);
}

void AccessibleComboBox::selection(int, int *start, int *end) const
{
    *start = 0;
    *end = 0;
}

QString AccessibleComboBox::text(int start, int end) const
{
    return m_box->currentText().mid(start, end - start);
}

int AccessibleComboBox::characterCount() const
{
    return int(m_box->currentText().size());
}

QRect AccessibleComboBox::characterRect(int offset) const
{
    return offset >= 0 && offset < characterCount() ? rect() : QRect();
}

int AccessibleComboBox::offsetAtPoint(const QPoint &point) const
{
    return rect().contains(point) ? 0 : -1;
}

QString AccessibleComboBox::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleComboBox::pressKey(Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_box, &press);
}
