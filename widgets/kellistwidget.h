// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLISTWIDGET_H
#define WIDGETS_KELLISTWIDGET_H

#include <QListWidget>

/**
 * A list that takes the keyboard focus only from Tab. A click on an item chooses it and leaves the
 * focus where it is, so that the person can go on typing in the page that the item opens. The list
 * draws no focus rectangle of the platform.
 *
 * Assistive technology can only select an item, so a selected item becomes the current one.
 */
class KelListWidget final : public QListWidget
{
    Q_OBJECT

public:
    explicit KelListWidget(QWidget *parent = nullptr);

private:
    void followSelection();
};

#endif
