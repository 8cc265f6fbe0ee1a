// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operandreason.h"

#include "expressiontext.h"
#include "prefixedvalue.h"
#include "quotedtext.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Dezimo {

namespace {

using QuotedText::beginning;

/// How people write a unit besides its symbol, upper and lower case being the same.
struct Spelling
{
    QLatin1String written;
    QLatin1String symbol;
};

constexpr Spelling kOtherSpellings[] = {
    {latin1("watt"), Units::kWatt.symbol}, {latin1("watts"), Units::kWatt.symbol},
    {latin1("volt"), Units::kVolt.symbol}, {latin1("volts"), Units::kVolt.symbol},
    {latin1("dBmW"), Units::kDbm.symbol},
};

/// Operators of other calculators.
constexpr char16_t kOtherOperators[] = u"*/^%=:;\u00B7\u00D7\u00F7";
/// Dashes that are no minus sign.
constexpr char16_t kDashes[] = u"\u2010\u2011\u2012\u2013\u2014\u2015\uFE63\uFF0D";

/// The first character of @p text that is one of @p characters, or nothing.
template <std::size_t size>
QString firstOf(const QString &text, const char16_t (&characters)[size])
{
    const auto end = std::end(characters) - 1;
    const auto found = std::find_if(text.begin(), text.end(), [end, &characters](QChar each) {
        return std::find(std::begin(characters), end, each.unicode()) != end;
    });
    return found == text.end() ? QString() : QString(*found);
}

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isPartOfNumber(QChar character)
{
    return isDigit(character) || ExpressionText::isOperator(character) ||
           QStringLiteral(".eE").contains(character);
}

/// An operand as it should be: a number with a sign, then a prefix and a unit.
struct Parts
{
    QString number;
    QString unit;
};

Parts partsOf(const QString &operand)
{
    const auto end = std::find_if_not(operand.begin(), operand.end(), isPartOfNumber);
    const int length = int(end - operand.begin());
    return {operand.left(length), operand.mid(length)};
}

bool isRead(const QString &operand, const ExpressionUnits &units)
{
    return parseOperand(operand, units).has_value();
}

/// Whether @p unit stands rightly behind a number.
bool isUnit(const QString &unit, const ExpressionUnits &units)
{
    return isRead(QLatin1Char('1') + unit, units);
}

/// The parser knows micro as "u".
QString withoutMicroSign(QString text)
{
    return text.replace(QChar(0xB5), QLatin1Char('u'));
}

QChar inOtherCase(QChar letter)
{
    return letter.isUpper() ? letter.toLower() : letter.toUpper();
}

/// @p unit if it is @p spelling with a prefix at most, in any case: with @p symbol instead.
QString respelled(const QString &unit, QLatin1String spelling, QLatin1String symbol)
{
    if (!unit.endsWith(spelling, Qt::CaseInsensitive))
        return {};
    const QString prefix = unit.chopped(spelling.size());
    if (prefix.isEmpty())
        return symbol;
    if (prefix.size() > 1)
        return {};
    const QChar letter = prefix.front();
    return QString(isPrefix(letter) ? letter : inOtherCase(letter)) + symbol;
}

int equalCharacters(const QString &one, const QString &other)
{
    int count = 0;
    for (int i = 0; i < std::min(one.size(), other.size()); ++i)
        count += one.at(i) == other.at(i) ? 1 : 0;
    return count;
}

/// What @p typed was meant to be: of the units that differ from it in upper and lower case, that
/// with the most equal letters, so that Mw is MW and not mW. Empty if there is none.
QString meantUnit(const QString &typed, const ExpressionUnits &units)
{
    const QString unit = withoutMicroSign(typed);
    QStringList meant;
    for (const ExpressionUnit &each : units) {
        const QLatin1String symbol = each.unit->symbol;
        if (symbol.isEmpty())
            continue;
        meant += respelled(typed, symbol, symbol);
        meant += respelled(unit, symbol, symbol);
        for (const Spelling &other : kOtherSpellings) {
            if (other.symbol == symbol)
                meant += respelled(unit, other.written, symbol);
        }
    }
    QString best;
    int bestCount = -1;
    for (const QString &each : std::as_const(meant)) {
        const int count = equalCharacters(each, typed);
        if (!each.isEmpty() && count > bestCount && isUnit(each, units)) {
            best = each;
            bestCount = count;
        }
    }
    return best;
}

/// "dBm, dBW or W".
QString listOf(const ExpressionUnits &units)
{
    QStringList symbols;
    for (const ExpressionUnit &each : units) {
        if (!each.text.isEmpty())
            symbols += each.text;
    }
    const QString last = symbols.takeLast();
    return symbols.join(QLatin1String(", ")) + QLatin1String(" or ") + last;
}

bool hasTwoPrefixes(const QString &unit, const ExpressionUnits &units)
{
    return std::any_of(units.begin(), units.end(), [&unit](const ExpressionUnit &each) {
        const int prefixes = int(unit.size() - each.text.size());
        return prefixes > 1 && unit.endsWith(each.text) &&
               std::all_of(unit.begin(), unit.begin() + prefixes, isPrefix);
    });
}

/// Whether @p number is written rightly: only its exponent can be too much then.
bool hasExponent(const QString &number)
{
    const int letter = int(number.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive));
    int first = letter + 1;
    if (first < number.size() && ExpressionText::isOperator(number.at(first)))
        ++first;
    bool isNumber = false;
    const QStringView mantissa = QStringView(number).left(letter < 0 ? number.size() : letter);
    static_cast<void>(mantissa.toDouble(&isNumber));
    return isNumber && first < number.size() &&
           std::all_of(number.begin() + first, number.end(), isDigit);
}

QString numberReason(const QString &number)
{
    if (std::isinf(number.toDouble()))
        return beginning(number) + QLatin1String(" is too large a number");
    if (hasExponent(number))
        return beginning(number) + QLatin1String(" is too small a number");
    return beginning(number) + QLatin1String(" is no number");
}

QString unitReason(const Parts &parts, const ExpressionUnits &units)
{
    const QString unit = beginning(parts.unit);
    const QString withoutSign = withoutMicroSign(parts.unit);
    const QString rewritten = parts.number + withoutSign;
    if (withoutSign != parts.unit && isRead(rewritten, units) && QuotedText::isShort(rewritten))
        return unit + QLatin1String(" is no unit here; write ") + rewritten;
    if (hasTwoPrefixes(parts.unit, units))
        return unit + QLatin1String(" has more than one prefix");
    const QString meant = meantUnit(parts.unit, units);
    if (!meant.isEmpty())
        return unit + QLatin1String(" is no unit; it is written ") + meant;
    return unit + QLatin1String(" is no unit here; use ") + listOf(units);
}

/// Nothing if @p operand has no such character.
OperandReason characterReason(const QString &operand)
{
    const QString other = firstOf(operand, kOtherOperators);
    if (!other.isEmpty())
        return {other, QLatin1String("Only + and - are calculated here, not ") + beginning(other)};
    const QString dash = firstOf(operand, kDashes);
    if (!dash.isEmpty())
        return {dash, beginning(dash) + QLatin1String(" is no minus sign here; write -")};
    return {};
}

} // namespace

OperandReason operandReason(const QString &operand, const ExpressionUnits &units)
{
    OperandReason character = characterReason(operand);
    if (!character.culprit.isEmpty())
        return character;
    if (operand.size() > 1 && ExpressionText::isOperator(operand.at(1)) &&
        ExpressionText::isOperator(operand.front()))
        return {operand.left(2), beginning(operand) + QLatin1String(" has more than one sign")};

    const Parts parts = partsOf(operand);
    const bool hasNumber = std::any_of(parts.number.begin(), parts.number.end(), isDigit);
    if (!hasNumber && !parts.unit.isEmpty() && isUnit(parts.unit, units))
        return {parts.unit, QLatin1String("A number is missing before ") + beginning(parts.unit)};
    if (!hasNumber || std::any_of(parts.unit.begin(), parts.unit.end(), isDigit))
        return {operand, beginning(operand) + QLatin1String(" is no number")};
    if (isUnit(parts.unit, units))
        return {parts.number, numberReason(parts.number)};
    return {parts.unit, unitReason(parts, units)};
}

} // namespace Dezimo
