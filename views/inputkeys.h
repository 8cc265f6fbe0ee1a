// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_INPUTKEYS_H
#define VIEWS_INPUTKEYS_H

#include <QObject>

class QKeyEvent;
class QLineEdit;

/**
 * The keys that an input line has as the line of a calculator: `=` asks for the result, and Esc for
 * an empty line.
 */
class InputKeys final : public QObject
{
    Q_OBJECT

public:
    /// @p input owns the object.
    explicit InputKeys(QLineEdit *input);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void calculateRequested();
    void clearRequested();

private:
    bool hasUseFor(const QKeyEvent &key);
};

#endif
