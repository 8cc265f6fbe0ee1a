// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_HINTLINE_H
#define VIEWS_HINTLINE_H

#include <QLabel>

/**
 * The line at the foot of a page, in quiet letters. Its sentence never asks for more room: one that
 * is longer ends in an ellipsis, and is whole in the tool tip.
 */
class HintLine final : public QLabel
{
    Q_OBJECT

public:
    explicit HintLine(QWidget *page);

    /// Whether the sentence has no room.
    bool isCut() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

#endif
