// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "powersteps.h"
#include "testmain.h"

#include <QTest>

#include <cmath>

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

using namespace PowerUnit;

Operand milliwatt(double value)
{
    return {value, Mw};
}

} // namespace

void PowerStepsTest::converts_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("milliwatt");

    QTest::newRow("20 dBm are 100 mW") << int(Dbm) << 20.0 << 20.0 << 100.0;
    QTest::newRow("-10 dBW are 20 dBm and 100 mW") << int(Dbw) << -10.0 << 20.0 << 100.0;
    QTest::newRow("100 mW are 20 dBm") << int(Mw) << 100.0 << 20.0 << 100.0;
    QTest::newRow("0.1 W are 20 dBm and 100 mW") << int(W) << 0.1 << 20.0 << 100.0;
    QTest::newRow("1E5 µW are 20 dBm and 100 mW") << int(Uw) << 1e5 << 20.0 << 100.0;
}

void PowerStepsTest::converts()
{
    QFETCH(int, unit);
    QFETCH(double, value);
    QFETCH(double, level);
    QFETCH(double, milliwatt);

    QCOMPARE(levelFrom({value, unit}), level);
    QCOMPARE(milliwattFrom({value, unit}), milliwatt);
    QCOMPARE(powerIn(unit, milliwatt), value);
}

void PowerStepsTest::nonPositivePowersHaveNoLevel()
{
    QCOMPARE(levelFrom({0.0, W}), -HUGE_VAL);
    QVERIFY(std::isnan(levelFrom({-1.0, Mw})));
    QCOMPARE(levelFrom({3.0, Db}), 3.0);
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
    QCOMPARE(steps.combine({2.0, Dbm}, Operator::Plus, {1.0, Db})->value, 3.0);
}

void PowerStepsTest::endsTheMeanAtARatio()
{
    PowerSteps steps(true);
    // A ratio in front of the first mean leaves the mean to be formed.
    QCOMPARE(steps.combine({7.0, Dbm}, Operator::Plus, {3.0, Db})->value, 10.0);
    QCOMPARE(steps.combine({10.0, Dbm}, Operator::Plus, milliwatt(4))->value, 7.0);
    QCOMPARE(steps.combine(milliwatt(10), Operator::Minus, {3.0, Db})->value, 7.0);
    QVERIFY(!steps.combine({7.0, Dbm}, Operator::Plus, milliwatt(1)));
}

void PowerStepsTest::sumsOtherwise()
{
    PowerSteps steps(false);
    const std::optional<Operand> sum = steps.combine({10.0, Dbm}, Operator::Plus, {1.0, W});
    QCOMPARE(sum->value, 1010.0);
    QCOMPARE(sum->unit, int(Mw));
    QCOMPARE(steps.combine(milliwatt(5), Operator::Minus, milliwatt(3))->value, 2.0);
    QCOMPARE(steps.combine(milliwatt(2), Operator::Plus, milliwatt(3))->value, 5.0);
}

DEZIMO_TEST_MAIN(QCoreApplication, PowerStepsTest)

#include "tst_powersteps.moc"
