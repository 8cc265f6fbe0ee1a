// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_INPUTKEYS_H
#define VIEWS_INPUTKEYS_H

#include "expressionhistory.h"

#include <QObject>

class QKeyEvent;
class QLineEdit;

/**
 * The keys that an input line has as the line of a calculator: `=` asks for the result and Esc for
 * an empty line, and Up and Down recall what was taken over before. Recalling is an edit like
 * typing, so the result follows and Ctrl+Z takes it back.
 */
class InputKeys final : public QObject
{
    Q_OBJECT

public:
    /// @p input owns the object.
    explicit InputKeys(QLineEdit *input);

    void noteTakenOver(const QString &expression) { m_history.add(expression); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void calculateRequested();
    void clearRequested();

private:
    bool hasUseFor(const QKeyEvent &key);
    void recall(const QString &line);

    QLineEdit *const m_input;
    ExpressionHistory m_history;
};

#endif
