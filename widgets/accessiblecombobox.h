// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_ACCESSIBLECOMBOBOX_H
#define WIDGETS_ACCESSIBLECOMBOBOX_H

#include <QAccessibleWidget>

class QComboBox;

/**
 * Shows a combo box of the toolkit to assistive technology. On Unix, Qt's own interface reports the
 * chosen item as the name, so nobody hears what the box is for. Here the box keeps its name and the
 * item is its value, which can also be read as text because AT-SPI has no other way to pass it on.
 * The actions Increase and Decrease choose the next and the previous item as the arrow keys do, and
 * skip the items that cannot be chosen.
 */
class AccessibleComboBox final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit AccessibleComboBox(QComboBox *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override { return 1; } ///< the list of items
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int *start, int *end) const override;

private:
    void pressKey(Qt::Key key);

    QComboBox *const m_box;
};

#endif
