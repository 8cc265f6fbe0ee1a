// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELCOMBOBOX_H
#define WIDGETS_KELCOMBOBOX_H

#include <QComboBox>

/**
 * A combo box whose list opens directly below the box and is at least as wide, on every platform.
 * The list is a plain list view, so that style sheets reach its items. Whether it is open or not,
 * the item selected in it is the chosen one, which assistive technology reads there.
 *
 * The wheel chooses only in a box that has the focus, which it does not get by the wheel. So a page
 * can be scrolled past it.
 */
class KelComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit KelComboBox(QWidget *parent = nullptr);
    /// The list gives up the focus first: what it says of losing it must find the whole box.
    ~KelComboBox() override;

    void showPopup() override;
    void hidePopup() override;

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    Q_INVOKABLE void endPopup();
    void selectCurrentItem();
};

#endif
