// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_FIELDTEXT_H
#define VIEWS_FIELDTEXT_H

#include <QLineEdit>

/// Shows a model's text in its field. A field that reads so already is left alone: what is typed
/// comes back from the model with every key, and setting it again would send the cursor to the end.
inline void showFieldText(QLineEdit *field, const QString &text)
{
    if (field->text() != text)
        field->setText(text);
}

#endif
