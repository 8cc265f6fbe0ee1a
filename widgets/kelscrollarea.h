// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSCROLLAREA_H
#define WIDGETS_KELSCROLLAREA_H

#include "kelscrollbar.h"

#include <QEvent>
#include <QScrollArea>

/**
 * A scroll area whose KelScrollPage joins it by itself. The form compiler knows it as a plain
 * widget and so makes the page as its child; the page of a QScrollArea it makes apart, fills, and
 * moves there at last, which styles everything on it twice. Its scroll bars are those of the
 * toolkit.
 */
class KelScrollArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit KelScrollArea(QWidget *parent = nullptr) : QScrollArea(parent)
    {
        KelScrollBar::installOn(*this);
    }

protected:
    /// A scroll area that was too small for its page learns only with the next layout that it no
    /// longer needs its scroll bars, and would be painted with them until then.
    bool event(QEvent *event) override
    {
        const bool isDone = QScrollArea::event(event);
        if (event->type() == QEvent::Resize) {
            QEvent layout(QEvent::LayoutRequest);
            QScrollArea::event(&layout);
        }
        return isDone;
    }
};

#endif
