// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"

#include "expressionprofile.h"
#include "table.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

namespace {

constexpr int kTheShownOne = -1;

/// The unit at the end of @p result.
int unitOf(const ExpressionProfile &calculator, const QString &result)
{
    int unit = 0;
    while (unit < calculator.plainUnit() &&
           !result.endsWith(QLatin1Char(' ') + calculator.unitText(unit)))
        ++unit;
    return unit;
}

/// The selector offers several units for a power or a voltage, and one for a ratio or a plain
/// number.
QString usualUnits(const QString &shown)
{
    for (const char *units : {"dBm mW W µW dBW", "mV V"}) {
        if (words(units).contains(shown))
            return QString::fromUtf8(units);
    }
    return shown.isEmpty() ? QStringLiteral("none") : shown;
}

} // namespace

QMap<int, bool> allVoltageUnits()
{
    return {{0, true}, {1, true}, {2, true}};
}

QString offeredUnits(const ExpressionProfile &calculator)
{
    QStringList texts;
    const QMap<int, bool> validUnits = calculator.validUnits();
    for (auto it = validUnits.begin(); it != validUnits.end(); ++it) {
        const QString text = calculator.unitText(it.key());
        if (it.value())
            texts += text.isEmpty() ? QStringLiteral("none") : text;
    }
    return texts.join(QLatin1Char(' '));
}

void calculate(ExpressionProfile &calculator, const char *input)
{
    calculator.setInput(QString::fromUtf8(input));
    calculator.calculate();
}

void CalculatorRows::operator()(const char *tag, const char *input, const char *result,
                                const char *offered) const
{
    (*this)(tag, input, result, kTheShownOne, offered);
}

void CalculatorRows::operator()(const char *tag, const char *input, const char *result, int chosen,
                                const char *offered) const
{
    row(tag, input, m_mode, chosen, result, offered, m_phase);
}

void addCalculatorColumns()
{
    columns<QString, int, int, QString, QString, double>(
        {"input", "mode", "chosen", "result", "offered", "phase"});
}

void checkCalculatorCase(ExpressionProfile &calculator, int digits)
{
    QFETCH(QString, input);
    QFETCH(int, mode);
    QFETCH(int, chosen);
    QFETCH(QString, result);
    QFETCH(QString, offered);

    const int shown = unitOf(calculator, result);
    const QString unit = calculator.unitText(shown);
    calculator.setSignificantDigits(digits);
    calculator.setMode(mode);
    calculator.setOutputUnit(chosen == kTheShownOne ? shown : chosen);
    calculator.setInput(input);
    calculator.calculate();
    QCOMPARE(calculator.output(), result.chopped(unit.isEmpty() ? 0 : unit.size() + 1));
    QCOMPARE(calculator.outputUnit(), shown);
    QCOMPARE(offeredUnits(calculator), offered.isEmpty() ? usualUnits(unit) : offered);
    QCOMPARE(calculator.input(), input);
}
