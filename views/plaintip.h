// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_PLAINTIP_H
#define VIEWS_PLAINTIP_H

#include <QTextDocument>

namespace PlainTip {

/// A tool tip that shows what looks like markup as it stands. A reason may quote anything.
inline QString of(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace PlainTip

#endif
