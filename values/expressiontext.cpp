// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressiontext.h"

namespace Dezimo::ExpressionText {

namespace {

constexpr char16_t kNoBreakSpace = u'\u00A0';
constexpr char16_t kMicroSign = u'\u00B5';
constexpr char16_t kGreekMu = u'\u03BC';
constexpr char16_t kThinSpace = u'\u2009';
constexpr char16_t kNarrowNoBreakSpace = u'\u202F';
constexpr char16_t kMinusSign = u'\u2212';

bool isDropped(QChar character)
{
    switch (character.unicode()) {
    case u' ':
    case u'\t':
    case u'\n':
    case u'\r':
    case kNoBreakSpace:
    case kNarrowNoBreakSpace:
    case kThinSpace:
        return true;
    default:
        return false;
    }
}

QChar folded(QChar character)
{
    switch (character.unicode()) {
    case u',':
        return QLatin1Char('.');
    case u'[':
    case u'{':
        return QLatin1Char('(');
    case u']':
    case u'}':
        return QLatin1Char(')');
    case kMinusSign:
        return QLatin1Char('-');
    case kGreekMu:
        return QChar(kMicroSign);
    default:
        return character;
    }
}

bool isExponentLetter(QChar character)
{
    return character == QLatin1Char('E') || character == QLatin1Char('e');
}

} // namespace

QString cleaned(const QString &typed)
{
    QString text;
    for (const QChar character : typed) {
        if (!isDropped(character))
            text += folded(character);
    }
    return text;
}

bool isOperator(QChar character)
{
    return character == QLatin1Char('+') || character == QLatin1Char('-');
}

std::vector<int> operatorPositions(const QString &text)
{
    std::vector<int> positions;
    for (int i = 1; i < text.size(); ++i) {
        const QChar before = text.at(i - 1);
        if (isOperator(text.at(i)) && !isOperator(before) && !isExponentLetter(before))
            positions.push_back(i);
    }
    return positions;
}

} // namespace Dezimo::ExpressionText
