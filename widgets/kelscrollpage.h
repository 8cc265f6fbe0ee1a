// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELSCROLLPAGE_H
#define WIDGETS_KELSCROLLPAGE_H

#include <QWidget>

/**
 * The page of a KelScrollArea. Made as the child of a scroll area it becomes that one's contents
 * while it is still empty.
 */
class KelScrollPage final : public QWidget
{
    Q_OBJECT

public:
    explicit KelScrollPage(QWidget *parent = nullptr);
};

#endif
