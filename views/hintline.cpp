// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "hintline.h"

#include "plaintip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

/// The text stands on its foot, because Qt 5 and 6 round its height differently.
constexpr int kBelowText = 4;

} // namespace

HintLine::HintLine(QWidget *page) : QLabel(page)
{
    setContentsMargins(0, 0, 0, kBelowText);
    setObjectName(QStringLiteral("hintLine"));
    setTextFormat(Qt::PlainText);
}

bool HintLine::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool HintLine::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString tip = isCut() ? PlainTip::of(text()) : QString();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip, this);
    return true;
}

void HintLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignBottom, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
}
