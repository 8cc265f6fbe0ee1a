// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"

#include "expressionprofile.h"

#include <QTest>

using namespace Dezimo;

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

void addCalculatorCases(std::initializer_list<CalculatorCase> cases)
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("chosenUnit");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("shownUnit");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<double>("phase");
    for (const CalculatorCase &row : cases) {
        QTest::newRow(row.tag) << QString::fromUtf8(row.input) << row.mode << row.chosenUnit
                               << QString::fromUtf8(row.output) << row.shownUnit
                               << QString::fromUtf8(row.offered) << row.phase;
    }
}

void checkCalculatorCase(ExpressionProfile &calculator, int decimalPlaces)
{
    QFETCH(QString, input);
    QFETCH(int, mode);
    QFETCH(int, chosenUnit);
    QFETCH(QString, output);
    QFETCH(int, shownUnit);
    QFETCH(QString, offered);

    calculator.setSignificantDigits(decimalPlaces);
    calculator.setMode(mode);
    calculator.setOutputUnit(chosenUnit);
    calculator.setInput(input);
    calculator.calculate();
    QCOMPARE(calculator.output(), output);
    QCOMPARE(calculator.outputUnit(), shownUnit);
    QCOMPARE(offeredUnits(calculator), offered);
    QCOMPARE(calculator.input(), input);
}
