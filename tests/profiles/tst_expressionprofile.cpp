// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "dbmcalculatorprofile.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "voltagesteps.h"
#include "words.h"

#include <QSignalSpy>
#include <QTest>

using namespace Dezimo;

class ExpressionProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAResult();
    void declaresItsPropertiesInOrder();
    void namesItsUnits();
    void settersDoNotCalculate();
    void calculationSignalsEachChangeOnce();
    void calculationShowsUnitBeforeResult();
    void offersUnitsAgainThatWereNotOffered();
    void aLoneValueIsAnErrorAtOnce();
    void evaluatesWithoutPublishing();
    void usesTheDecimalPlacesOfTheMoment();
    void unknownUnitsAndModesDoNoHarm();
};

namespace {

QStringList propertyNames(const QObject &object)
{
    QStringList names;
    for (const QMetaProperty &property : declaredProperties(object))
        names += QString::fromLatin1(property.name());
    return names;
}

} // namespace

void ExpressionProfileTest::startsWithoutAResult()
{
    VoltageCalculatorProfile voltage;
    DbmCalculatorProfile dbm;
    for (ExpressionProfile *calculator :
         {static_cast<ExpressionProfile *>(&voltage), static_cast<ExpressionProfile *>(&dbm)}) {
        QCOMPARE(calculator->input(), QString());
        QCOMPARE(calculator->output(), QStringLiteral("---"));
        QCOMPARE(calculator->outputUnit(), 0);
        QCOMPARE(calculator->mode(), 0);
    }
    QCOMPARE(voltage.phase(), 0.0);
    QCOMPARE(voltage.validUnits(), allVoltageUnits());
    QCOMPARE(dbm.validUnits().size(), 7);
    QVERIFY(!dbm.validUnits().values().contains(false));
}

void ExpressionProfileTest::declaresItsPropertiesInOrder()
{
    const DbmCalculatorProfile dbm;
    QCOMPARE(propertyNames(dbm), words("input output outputUnit mode validUnits"));
    const VoltageCalculatorProfile voltage;
    QCOMPARE(propertyNames(voltage), words("input output outputUnit mode validUnits phase"));
    QCOMPARE(signalNames(ExpressionProfile::staticMetaObject),
             words("inputChanged outputChanged outputUnitChanged modeChanged validUnitsChanged"));
    QCOMPARE(signalNames(VoltageCalculatorProfile::staticMetaObject), words("phaseChanged"));
}

void ExpressionProfileTest::namesItsUnits()
{
    DbmCalculatorProfile dbm;
    QStringList texts;
    for (int unit = -1; unit <= 7; ++unit)
        texts += dbm.unitText(unit);
    QCOMPARE(texts.join(QLatin1Char('|')), QStringLiteral("|dBm|mW|W|\u00B5W|dBW|dB||"));
    QCOMPARE(dbm.plainUnit(), 6);

    VoltageCalculatorProfile voltage;
    texts.clear();
    for (int unit = -1; unit <= 3; ++unit)
        texts += voltage.unitText(unit);
    QCOMPARE(texts.join(QLatin1Char('|')), QStringLiteral("|mV|V||"));
    QCOMPARE(voltage.plainUnit(), 2);
}

void ExpressionProfileTest::settersDoNotCalculate()
{
    VoltageCalculatorProfile calculator;
    calculator.setInput(QStringLiteral("3mV+4mV"));
    calculator.setMode(VoltageMode::Peak);
    calculator.setOutputUnit(VoltageUnit::V);
    calculator.setPhase(90);
    QCOMPARE(calculator.output(), QStringLiteral("---"));
    calculator.calculate();
    QCOMPARE(calculator.output(), QStringLiteral("0.007"));
}

void ExpressionProfileTest::calculationSignalsEachChangeOnce()
{
    DbmCalculatorProfile calculator;
    QSignalSpy output(&calculator, &DbmCalculatorProfile::outputChanged);
    QSignalSpy unit(&calculator, &DbmCalculatorProfile::outputUnitChanged);
    QSignalSpy valid(&calculator, &DbmCalculatorProfile::validUnitsChanged);
    const auto counts = [&] {
        return QList<int>{int(output.count()), int(unit.count()), int(valid.count())};
    };

    calculate(calculator, "10dBm+3dB"); // 13.00 dBm, all power units
    QCOMPARE(counts(), (QList<int>{1, 0, 1}));
    calculator.calculate();
    QCOMPARE(counts(), (QList<int>{1, 0, 1}));
    calculate(calculator, "10dBm+4dB"); // 14.00 dBm
    QCOMPARE(counts(), (QList<int>{2, 0, 1}));
    calculate(calculator, "(10dBm+1dB)+3dB"); // 14.00 dBm again
    QCOMPARE(counts(), (QList<int>{2, 0, 1}));
    calculate(calculator, "1+2"); // 3, plain only
    QCOMPARE(counts(), (QList<int>{3, 1, 2}));
    calculate(calculator, "(1+2"); // the units stay
    QCOMPARE(counts(), (QList<int>{4, 1, 2}));
    calculate(calculator, "10dBm"); // an error text keeps the plain unit
    QCOMPARE(counts(), (QList<int>{5, 1, 2}));
    calculate(calculator, "1mW-2mW"); // -1 mW, no level
    QCOMPARE(counts(), (QList<int>{6, 2, 3}));
    // The minus sign of the exponent makes the group look like an expression, but one without an
    // operator. The group's error text shows first, then that of the sum before it. All power units
    // are back.
    calculate(calculator, "1mW+1+(1e-3mW)");
    QCOMPARE(counts(), (QList<int>{8, 2, 4}));
    QCOMPARE(calculator.output(), QStringLiteral("unit missing"));
}

void ExpressionProfileTest::calculationShowsUnitBeforeResult()
{
    DbmCalculatorProfile calculator;
    QStringList order;
    connect(&calculator, &DbmCalculatorProfile::outputUnitChanged, this,
            [&order] { order += QStringLiteral("unit"); });
    connect(&calculator, &DbmCalculatorProfile::outputChanged, this,
            [&order] { order += QStringLiteral("output"); });
    connect(&calculator, &DbmCalculatorProfile::validUnitsChanged, this,
            [&order] { order += QStringLiteral("valid"); });
    calculate(calculator, "3dB+3dB");
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("unit output valid"));
}

void ExpressionProfileTest::offersUnitsAgainThatWereNotOffered()
{
    const QString all = QStringLiteral("dBm mW W \u00B5W dBW");
    const QString linear = QStringLiteral("mW W \u00B5W");
    DbmCalculatorProfile calculator;
    calculate(calculator, "1mW-2mW"); // -1 mW, no level
    QCOMPARE(offeredUnits(calculator), linear);
    calculate(calculator, "10dBm+3dB"); // 13 dBm
    QCOMPARE(offeredUnits(calculator), all);
    calculate(calculator, "1mW-2mW");
    QCOMPARE(offeredUnits(calculator), linear);
    calculate(calculator, "1mW+x");
    QCOMPARE(calculator.output(), QStringLiteral("invalid input"));
    QCOMPARE(offeredUnits(calculator), all);

    calculate(calculator, "3dB+3dB"); // 6 dB
    QCOMPARE(offeredUnits(calculator), QStringLiteral("dB"));
    calculate(calculator, "1mW-2mW");
    QCOMPARE(offeredUnits(calculator), linear);
    calculate(calculator, "1mW+1");
    QCOMPARE(calculator.output(), QStringLiteral("unit missing"));
    QCOMPARE(offeredUnits(calculator), all);
}

void ExpressionProfileTest::aLoneValueIsAnErrorAtOnce()
{
    DbmCalculatorProfile calculator;
    QCOMPARE(calculator.evaluate(QStringLiteral("10dBm")), QStringLiteral("invalid input"));
    QCOMPARE(calculator.output(), QStringLiteral("invalid input"));
    QVERIFY(calculator.validUnits().value(PowerUnit::Db));
}

void ExpressionProfileTest::evaluatesWithoutPublishing()
{
    DbmCalculatorProfile dbm;
    dbm.setMode(2);
    const auto result = [&dbm](const char *text) {
        return dbm.evaluate(QString::fromUtf8(text));
    };
    QCOMPARE(result("10dBm+10dBm"), QStringLiteral("20mW"));
    QCOMPARE(result("10dBm+3dB"), QStringLiteral("13dBm"));
    QCOMPARE(result("10dB+3dB"), QStringLiteral("13dB"));
    QCOMPARE(result("10+3"), QStringLiteral("13"));
    QCOMPARE(result("1GW+0W"), QStringLiteral("1E+12mW"));
    QCOMPARE(result("1mW+0dBm+1dB"), QStringLiteral("4.01029995664dBm")); // 10 lg 2 + 1
    QCOMPARE(result("1mW+1"), QStringLiteral("unit missing"));
    QCOMPARE(result("1mW+x"), QStringLiteral("invalid input"));
    QCOMPARE(dbm.output(), QStringLiteral("---"));

    VoltageCalculatorProfile voltage;
    QCOMPARE(voltage.evaluate(QStringLiteral("1V+1V")), QStringLiteral("1414.213562mV"));
    QCOMPARE(voltage.output(), QStringLiteral("---"));
}

void ExpressionProfileTest::usesTheDecimalPlacesOfTheMoment()
{
    VoltageCalculatorProfile calculator;
    calculate(calculator, "1mV+1mV");
    QCOMPARE(calculator.output(), QStringLiteral("1.41"));
    calculator.setSignificantDigits(5);
    QCOMPARE(calculator.output(), QStringLiteral("1.41"));
    calculator.calculate();
    QCOMPARE(calculator.output(), QStringLiteral("1.4142"));
}

void ExpressionProfileTest::unknownUnitsAndModesDoNoHarm()
{
    DbmCalculatorProfile dbm;
    VoltageCalculatorProfile voltage;
    for (const int odd : {-1, 7, 100}) {
        dbm.setOutputUnit(odd);
        dbm.setMode(odd);
        calculate(dbm, "1mW+x");
        calculate(dbm, "10mW+10mW"); // 20 mW, 13.01 dBm
        QCOMPARE(dbm.output(), QStringLiteral("20"));
        QCOMPARE(dbm.outputUnit(), int(PowerUnit::Mw));
        voltage.setOutputUnit(odd);
        voltage.setMode(odd);
        calculate(voltage, "3mV+4mV");
        QCOMPARE(voltage.output(), QStringLiteral("7"));
        QCOMPARE(voltage.outputUnit(), int(VoltageUnit::Mv));
    }
}

DEZIMO_TEST_MAIN(QCoreApplication, ExpressionProfileTest)

#include "tst_expressionprofile.moc"
