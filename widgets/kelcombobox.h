// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELCOMBOBOX_H
#define WIDGETS_KELCOMBOBOX_H

#include <QComboBox>

/**
 * A combo box whose list opens directly below the box and is at least as wide, on every platform.
 * The list is a plain list view, so that style sheets reach its items. Assistive technology reads
 * the choice from the list, so the chosen item is selected there even while the list is closed.
 *
 * The wheel changes the choice only if the box has the focus, and it does not give the focus to the
 * box. So a page scrolls past the box without changing it.
 */
class KelComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit KelComboBox(QWidget *parent = nullptr);
    /// Takes the focus from the list while the box that hears of it is still whole.
    ~KelComboBox() override;

    /// The font size of the list in pixels, for a box whose own font has other sizes. The list gets
    /// it when it opens, because Qt would measure the list in that font even while it is closed.
    void setListFontSize(int size);

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    Q_INVOKABLE void endPopup();
    void selectCurrentItem();

    QString m_listStyle;
};

#endif
