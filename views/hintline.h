// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_HINTLINE_H
#define VIEWS_HINTLINE_H

#include <QLabel>

/**
 * The line at the foot of a page, in quiet letters. It is always as high, and never wider than the
 * page: a sentence that has no room ends in an ellipsis, and is whole in the tool tip.
 */
class HintLine : public QLabel
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
