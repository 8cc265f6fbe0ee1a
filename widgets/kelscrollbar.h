// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSCROLLBAR_H
#define WIDGETS_KELSCROLLBAR_H

#include <QAbstractScrollArea>
#include <QScrollBar>

/**
 * A scroll bar that the style sheets dress. They leave Qt's own alone: each list of choices has two
 * of them, hardly ever seen, and to style all of these took 4 of 100 steps of the program's start.
 */
class KelScrollBar final : public QScrollBar
{
    Q_OBJECT

public:
    explicit KelScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr)
        : QScrollBar(orientation, parent)
    {}

    /// Gives the area two of its own, in place of Qt's.
    static void installOn(QAbstractScrollArea &area)
    {
        area.setVerticalScrollBar(new KelScrollBar(Qt::Vertical, &area));
        area.setHorizontalScrollBar(new KelScrollBar(Qt::Horizontal, &area));
    }
};

#endif
