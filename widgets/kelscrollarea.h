// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSCROLLAREA_H
#define WIDGETS_KELSCROLLAREA_H

#include "kelscrollbar.h"

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
};

#endif
