// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "quotedtext.h"

#include <algorithm>

namespace Dezimo::QuotedText {

namespace {

constexpr QChar kEllipsis(0x2026);
constexpr QChar kReplacement(0xFFFD);

/// Line ends would break the line, and marks of direction would turn it around.
bool isPlain(QChar character)
{
    const QChar::Category category = character.category();
    return (character.isPrint() || character.isSurrogate()) && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph;
}

QString inQuotes(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return !isPlain(character); },
        kReplacement);
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

/// Half of a character that takes two places is left out, too.
QString beginning(const QString &text)
{
    if (text.size() <= kLength)
        return inQuotes(text);
    QString kept = text.left(kLength - 1);
    if (kept.at(kept.size() - 1).isHighSurrogate())
        kept.chop(1);
    return inQuotes(kept + kEllipsis);
}

QString end(const QString &text)
{
    if (text.size() <= kLength)
        return inQuotes(text);
    QString kept = text.right(kLength - 1);
    if (kept.at(0).isLowSurrogate())
        kept.remove(0, 1);
    return inQuotes(kEllipsis + kept);
}

bool isShort(const QString &text, int length)
{
    return text.size() <= length && std::all_of(text.begin(), text.end(), isPlain);
}

} // namespace Dezimo::QuotedText
