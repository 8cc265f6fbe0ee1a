// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_MIRROREDTEXT_H
#define VIEWS_MIRROREDTEXT_H

#include <QLineEdit>

/// Writes a model's text into its field. A text that is there already is left alone: writing it
/// again would move the cursor to the end while the person types in the middle.
inline void mirrorText(QLineEdit *edit, const QString &text)
{
    if (edit->text() != text)
        edit->setText(text);
}

#endif
