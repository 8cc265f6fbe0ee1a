// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_QUIETERROR_H
#define VIEWS_QUIETERROR_H

#include <QObject>

class KelLineEdit;
class QLineEdit;

/**
 * Keeps an error quiet while the person types what it comes from: whoever has not finished typing
 * is not wrong yet. Typing begins with any edit, whether by keys, by the keypad or by pasting. It
 * ends when the person leaves the input line and when the program writes into it, but not while a
 * menu is open, because the focus comes back from there. The page ends it by itself where a person
 * asks for the result.
 */
class QuietError final : public QObject
{
    Q_OBJECT

public:
    /// @p result owns the object.
    QuietError(QLineEdit *input, KelLineEdit *result);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void begin(const QString &typed);
    void end();

    KelLineEdit *const m_result;
    QString m_typed; ///< as the person left it
};

#endif
