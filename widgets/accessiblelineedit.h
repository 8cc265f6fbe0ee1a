// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_ACCESSIBLELINEEDIT_H
#define WIDGETS_ACCESSIBLELINEEDIT_H

#include <QAccessibleWidget>

class QLineEdit;

/**
 * Shows a line edit of the toolkit to assistive technology. The pages rely on textEdited(), which
 * Qt's own interface does not emit. This one edits as a person does: a text from a screen reader, a
 * braille keyboard or a voice emits it. The action Press is the Return key, which finishes the edit
 * without moving the focus.
 *
 * A position beyond the text means its end. A read-only edit offers no editing.
 */
class AccessibleLineEdit final : public QAccessibleWidget,
                                 public QAccessibleTextInterface,
                                 public QAccessibleEditableTextInterface
{
public:
    explicit AccessibleLineEdit(QLineEdit *edit);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int offset, const QString &text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override;

private:
    bool isEditable() const;
    int bounded(int position) const;

    QLineEdit *const m_edit;
};

#endif
