// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "quieterror.h"

#include "kellineedit.h"

#include <QFocusEvent>

/// Qt emits textEdited before textChanged if a person edits, and textChanged alone if the program
/// writes a text.
QuietError::QuietError(QLineEdit *input, KelLineEdit *result) : QObject(result), m_result(result)
{
    input->installEventFilter(this);
    connect(input, &QLineEdit::textEdited, this, &QuietError::begin);
    connect(input, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text != m_typed)
            end();
    });
}

bool QuietError::eventFilter(QObject *watched, QEvent *event)
{
    const bool isLeft = event->type() == QEvent::FocusOut &&
                        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason;
    if (isLeft)
        end();
    return QObject::eventFilter(watched, event);
}

void QuietError::begin(const QString &typed)
{
    m_typed = typed;
    m_result->setQuiet(true);
}

void QuietError::end()
{
    m_result->setQuiet(false);
}
