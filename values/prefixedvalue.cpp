// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "prefixedvalue.h"

#include <algorithm>
#include <iterator>

namespace Dezimo {

namespace {

struct Prefix
{
    char letter;
    double factor;
};

constexpr Prefix kPrefixes[] = {
    {'f', 1e-15}, {'p', 1e-12}, {'n', 1e-9}, {'u', 1e-6}, {'m', 1e-3},
    {'k', 1e3},   {'M', 1e6},   {'G', 1e9},  {'T', 1e12}, {'P', 1e15},
};

} // namespace

bool isPrefix(QChar character)
{
    return std::any_of(std::begin(kPrefixes), std::end(kPrefixes), [character](const Prefix &each) {
        return character == QLatin1Char(each.letter);
    });
}

double parsePrefixedValue(QString &text, bool *ok)
{
    double factor = 1.0;
    bool prefixed = false;
    for (const Prefix &prefix : kPrefixes) {
        const QLatin1Char letter(prefix.letter);
        if (!text.contains(letter))
            continue;
        if (prefixed) {
            // Two different prefixes make no number, so nothing that could parse may remain.
            text = QStringLiteral("trash");
            break;
        }
        text.remove(letter);
        factor = prefix.factor;
        prefixed = true;
    }
    return text.toDouble(ok) * factor;
}

std::optional<double> readPrefixedValue(QString text)
{
    bool ok = false;
    const double value = parsePrefixedValue(text, &ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

} // namespace Dezimo
