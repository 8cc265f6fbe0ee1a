// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_STRAYKEYS_H
#define VIEWS_STRAYKEYS_H

#include <QObject>

class QKeyEvent;
class QLineEdit;
class QWidget;

/**
 * Brings to an input line what is typed while a control beside it has the focus, and with it the
 * focus, so that typing goes on there.
 *
 * A control keeps what it has a use for itself: selectors and lists find their entries by letters.
 * While the input line is not to be seen, every control keeps everything.
 */
class StrayKeys final : public QObject
{
    Q_OBJECT

public:
    /// Only the characters of @p alphabet are brought. @p input owns the object.
    StrayKeys(QLineEdit *input, const QString &alphabet);

    void takeFrom(QWidget *control);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isStray(const QObject *control, const QKeyEvent &key) const;

    QLineEdit *const m_input;
    const QString m_alphabet;
};

#endif
