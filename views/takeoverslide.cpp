// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "takeoverslide.h"

#include "animations.h"

#include <QLayout>
#include <QWidget>

namespace {

void layOutAnew(const QWidget *widget)
{
    QLayout *layout = widget->parentWidget()->layout();
    layout->invalidate();
    layout->activate();
}

} // namespace

TakeOverSlide::TakeOverSlide(QWidget *page) : QObject(page) {}

TakeOverSlide::~TakeOverSlide()
{
    delete m_moves;
}

void TakeOverSlide::start(QWidget *resultRow, QWidget *input)
{
    const QPoint row = resultRow->pos();
    const QPoint place = input->pos();
    m_moves = new QParallelAnimationGroup(parent());
    m_moves->addAnimation(
        makeAnimation(resultRow, "pos", row, row - QPoint(0, resultRow->height())));
    m_moves->addAnimation(makeAnimation(input, "pos", place + QPoint(0, input->height()), place));
    connect(m_moves, &QAbstractAnimation::finished, this, [this, resultRow, input] {
        layOutAnew(resultRow);
        layOutAnew(input);
        m_moves.clear();
        Q_EMIT finished();
    });
    m_moves->start(QAbstractAnimation::DeleteWhenStopped);
}

void TakeOverSlide::finish()
{
    if (isRunning())
        m_moves->setCurrentTime(m_moves->totalDuration());
}
