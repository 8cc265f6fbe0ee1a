// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "pastedtext.h"

#include <QVector>

namespace PastedText {

namespace {

constexpr char16_t kMicroSign = u'\u00B5';
constexpr char16_t kGreekMu = u'\u03BC';
constexpr char16_t kHyphen = u'\u2010';
constexpr char16_t kHorizontalBar = u'\u2015'; ///< the last dash of the row that the hyphen begins
constexpr char16_t kMinusSign = u'\u2212';
constexpr char16_t kSmallHyphen = u'\uFE63';
constexpr char16_t kWideHyphen = u'\uFF0D';
constexpr char16_t kWidePlus = u'\uFF0B';

/// Blanks of every width, line ends and other control characters, and formatting characters: those
/// of no width, marks of direction and of the byte order.
bool isDropped(QChar character)
{
    switch (character.category()) {
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
        return true;
    default:
        return false;
    }
}

bool isMinus(QChar character)
{
    return (character >= QChar(kHyphen) && character <= QChar(kHorizontalBar)) ||
           character == QChar(kMinusSign) || character == QChar(kSmallHyphen) ||
           character == QChar(kWideHyphen);
}

QChar plain(QChar character, MicroSign microSign)
{
    if (isMinus(character))
        return QLatin1Char('-');
    if (character == QChar(kWidePlus))
        return QLatin1Char('+');
    const bool isMicro = character == QChar(kMicroSign) || character == QChar(kGreekMu);
    return isMicro && microSign == MicroSign::Replaced ? QLatin1Char('u') : character;
}

QString plain(const QString &text, MicroSign microSign)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar character : text) {
        if (!isDropped(character))
            kept += plain(character, microSign);
    }
    return kept;
}

struct Spelling
{
    QString text;
    Qt::CaseSensitivity letters = Qt::CaseSensitive; // mW and MW are not the same
};

/// The ways to write a unit. There are two signs for the ohm that look alike.
QVector<Spelling> spellings(const QString &unit)
{
    if (unit != QStringLiteral("\u03A9"))
        return {{unit}};
    return {{unit},
            {QStringLiteral("\u2126")},
            {QStringLiteral("ohm"), Qt::CaseInsensitive},
            {QStringLiteral("ohms"), Qt::CaseInsensitive}};
}

/// One letter before the unit is its prefix. More of them belong to another unit.
bool mayComeBeforeUnit(const QString &text)
{
    const auto size = text.size();
    return size < 2 || !text.at(size - 1).isLetter() || !text.at(size - 2).isLetter();
}

QString withoutUnit(const QString &text, const QString &unit)
{
    const QVector<Spelling> all = spellings(unit);
    for (const Spelling &spelling : all) {
        if (!text.endsWith(spelling.text, spelling.letters))
            continue;
        QString rest = text.chopped(spelling.text.size());
        if (mayComeBeforeUnit(rest))
            return rest;
    }
    return text;
}

} // namespace

QString cleaned(const QString &text, const QString &unit, MicroSign microSign)
{
    const QString kept = plain(text, microSign);
    const QString plainUnit = plain(unit, microSign);
    return plainUnit.isEmpty() ? kept : withoutUnit(kept, plainUnit);
}

} // namespace PastedText
