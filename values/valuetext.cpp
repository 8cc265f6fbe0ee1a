// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "valuetext.h"

namespace Dezimo {

namespace {

constexpr int kLevelDecimals = 2;

QString numberText(double value, char format, int precision)
{
    return QStringLiteral("%1").arg(value, 0, format, precision, QLatin1Char(' '));
}

} // namespace

QString generalText(double value, int significantDigits)
{
    return numberText(value, 'G', significantDigits);
}

QString fixedText(double value)
{
    return numberText(value, 'f', kLevelDecimals);
}

} // namespace Dezimo
