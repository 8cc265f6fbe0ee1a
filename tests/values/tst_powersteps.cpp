// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "powersteps.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

#include <cmath>

using namespace Dezimo;

class PowerStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data();
    void converts();
    void nonPositivePowersHaveNoLevel();
    void formsTheRunningMean();
    void endsTheMeanAtADifference();
    void endsTheMeanAtARatio();
    void sumsOtherwise();
};

namespace {

using namespace Units;

Operand milliwatt(double value)
{
    return {value, &kMilliwatt};
}

} // namespace

Q_DECLARE_METATYPE(const Unit *)

void PowerStepsTest::converts_data()
{
    columns<const Unit *, double>({"unit", "value"});
    // 100 mW, which are 20 dBm.
    row("20 dBm", &kDbm, 20.0);
    row("-10 dBW", &kDbw, -10.0);
    row("100 mW", &kMilliwatt, 100.0);
    row("0.1 W", &kWatt, 0.1);
    row("1E5 \u00B5W", &kMicrowatt, 1e5);
}

void PowerStepsTest::converts()
{
    QFETCH(const Unit *, unit);
    QFETCH(double, value);

    QCOMPARE(levelFrom({value, unit}), 20.0);
    QCOMPARE(unit->toBase(value), 100.0);
    QCOMPARE(unit->fromBase(100.0), value);
}

void PowerStepsTest::nonPositivePowersHaveNoLevel()
{
    QCOMPARE(levelFrom({0.0, &kWatt}), -HUGE_VAL);
    QVERIFY(std::isnan(levelFrom({-1.0, &kMilliwatt})));
    QCOMPARE(levelFrom({3.0, &kDb}), 3.0);
}

void PowerStepsTest::formsTheRunningMean()
{
    PowerSteps steps(true);
    // (1 + 3)/2 = 2, (1 + 3 + 8)/3 = 4, (1 + 3 + 8 + 0)/4 = 3
    QCOMPARE(steps.combine(milliwatt(1), Operator::Plus, milliwatt(3))->value, 2.0);
    QCOMPARE(steps.combine(milliwatt(2), Operator::Plus, milliwatt(8))->value, 4.0);
    QCOMPARE(steps.combine(milliwatt(4), Operator::Plus, milliwatt(0))->value, 3.0);
}

void PowerStepsTest::endsTheMeanAtADifference()
{
    PowerSteps steps(true);
    QCOMPARE(steps.combine(milliwatt(5), Operator::Minus, milliwatt(3))->value, 2.0);
    QVERIFY(!steps.combine(milliwatt(2), Operator::Plus, milliwatt(1)));
    QCOMPARE(steps.combine(milliwatt(2), Operator::Minus, milliwatt(1))->value, 1.0);
    QCOMPARE(steps.combine({2.0, &kDbm}, Operator::Plus, {1.0, &kDb})->value, 3.0);
}

void PowerStepsTest::endsTheMeanAtARatio()
{
    PowerSteps steps(true);
    // A first mean is still possible after a ratio.
    QCOMPARE(steps.combine({7.0, &kDbm}, Operator::Plus, {3.0, &kDb})->value, 10.0);
    QCOMPARE(steps.combine({10.0, &kDbm}, Operator::Plus, milliwatt(4))->value, 7.0);
    QCOMPARE(steps.combine(milliwatt(10), Operator::Minus, {3.0, &kDb})->value, 7.0);
    QVERIFY(!steps.combine({7.0, &kDbm}, Operator::Plus, milliwatt(1)));
}

void PowerStepsTest::sumsOtherwise()
{
    PowerSteps steps(false);
    const std::optional<Operand> sum = steps.combine({10.0, &kDbm}, Operator::Plus, {1.0, &kWatt});
    QCOMPARE(sum->value, 1010.0);
    QCOMPARE(sum->unit, &kMilliwatt);
    QCOMPARE(steps.combine(milliwatt(5), Operator::Minus, milliwatt(3))->value, 2.0);
    QCOMPARE(steps.combine(milliwatt(2), Operator::Plus, milliwatt(3))->value, 5.0);
}

DEZIMO_TEST_MAIN(QCoreApplication, PowerStepsTest)

#include "tst_powersteps.moc"
