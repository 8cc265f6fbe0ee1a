// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessiblelineedit.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>

AccessibleLineEdit::AccessibleLineEdit(QLineEdit *edit)
    : QAccessibleWidget(edit, QAccessible::EditableText),
      m_edit(edit)
{}

void *AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface && isEditable())
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleLineEdit::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return m_edit->text();
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && given.isEmpty() ? m_edit->placeholderText() : given;
}

void AccessibleLineEdit::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State AccessibleLineEdit::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = m_edit->isReadOnly();
    state.editable = !m_edit->isReadOnly();
    state.selectableText = true;
    return state;
}

QStringList AccessibleLineEdit::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (isEditable())
        names += pressAction();
    return names;
}

void AccessibleLineEdit::doAction(const QString &name)
{
    if (name != pressAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    if (!isEditable())
        return;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &press);
}

void AccessibleLineEdit::selection(int index, int *start, int *end) const
{
    const bool isSelected = index == 0 && m_edit->hasSelectedText();
    *start = isSelected ? m_edit->selectionStart() : 0;
    *end = isSelected ? m_edit->selectionEnd() : 0;
}

int AccessibleLineEdit::selectionCount() const
{
    return m_edit->hasSelectedText() ? 1 : 0;
}

void AccessibleLineEdit::removeSelection(int index)
{
    if (index == 0)
        m_edit->deselect();
}

void AccessibleLineEdit::setSelection(int index, int start, int end)
{
    if (index == 0)
        m_edit->setSelection(bounded(start), bounded(end) - bounded(start));
}

int AccessibleLineEdit::cursorPosition() const
{
    return m_edit->cursorPosition();
}

void AccessibleLineEdit::setCursorPosition(int position)
{
    m_edit->setCursorPosition(bounded(position));
}

QString AccessibleLineEdit::text(int start, int end) const
{
    return m_edit->text().mid(bounded(start), qMax(0, bounded(end) - bounded(start)));
}

int AccessibleLineEdit::characterCount() const
{
    return int(m_edit->text().size());
}

/// Qt only says where the cursor is. The width of the text between gives the place of a character.
QRect AccessibleLineEdit::characterRect(int offset) const
{
    if (offset < 0 || offset >= characterCount())
        return {};
    const QString text = m_edit->text();
    const QFontMetrics font(m_edit->font());
    const auto widthUpTo = [&](int position) {
        return font.horizontalAdvance(text, position);
    };
    const QRect cursor = m_edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int x = cursor.center().x() + widthUpTo(offset) - widthUpTo(cursorPosition());
    return {m_edit->mapToGlobal(QPoint(x, cursor.y())),
            QSize(widthUpTo(offset + 1) - widthUpTo(offset), cursor.height())};
}

int AccessibleLineEdit::offsetAtPoint(const QPoint &point) const
{
    return m_edit->cursorPositionAt(m_edit->mapFromGlobal(point));
}

void AccessibleLineEdit::scrollToSubstring(int start, int end)
{
    setCursorPosition(end);
    setCursorPosition(start);
}

/// The whole text looks alike.
QString AccessibleLineEdit::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleLineEdit::replaceText(int start, int end, const QString &text)
{
    if (!isEditable())
        return;
    const int first = bounded(start);
    m_edit->setCursorPosition(first);
    m_edit->setSelection(first, qMax(0, bounded(end) - first));
    m_edit->insert(text);
}

bool AccessibleLineEdit::isEditable() const
{
    return m_edit->isEnabled() && !m_edit->isReadOnly();
}

int AccessibleLineEdit::bounded(int position) const
{
    return qBound(0, position, characterCount());
}
