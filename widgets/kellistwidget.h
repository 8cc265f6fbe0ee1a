// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLISTWIDGET_H
#define WIDGETS_KELLISTWIDGET_H

#include <QListWidget>

/**
 * A list that is reached by Tab only: a click on an item chooses it and leaves the keyboard focus
 * where it is, so that typing goes on in the page that the item opens. It shows no focus rectangle
 * of the platform.
 *
 * An item that is selected without being made current becomes current: assistive technology does
 * no more than select.
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
