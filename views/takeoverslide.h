// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_TAKEOVERSLIDE_H
#define VIEWS_TAKEOVERSLIDE_H

#include <QParallelAnimationGroup>
#include <QPointer>

class QWidget;

/**
 * The movement with which a result becomes the next input: the result row slides up by its own
 * height while the input slides up into its place. At the end both are where their layouts put
 * them, even if the window was resized in the meantime.
 */
class TakeOverSlide final : public QObject
{
    Q_OBJECT

public:
    /// @p page owns the movements while they run.
    explicit TakeOverSlide(QWidget *page);
    ~TakeOverSlide() override;

    bool isRunning() const { return !m_moves.isNull(); }

    /// Both widgets must outlive the slide. Do not start a slide that runs.
    void start(QWidget *resultRow, QWidget *input);
    /// Ends a running slide at once.
    void finish();

Q_SIGNALS:
    void finished();

private:
    QPointer<QParallelAnimationGroup> m_moves;
};

#endif
