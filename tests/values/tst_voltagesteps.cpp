// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "table.h"
#include "testmain.h"
#include "voltagesteps.h"

#include <QTest>

#include <cmath>

using namespace Dezimo;

class VoltageStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void combines_data();
    void combines();
    void refusesADifferenceOfUncorrelatedVoltages();
    void addsInMillivolt();
    void isNumberWhereSidesNearlyCancel();
    void cancelsExactlyAfterAnyTurn();
    void staysFiniteWhereSquaresDoNot();
};

namespace {

using namespace Units;

double combined(int mode, double phase, double left, Operator operation, double right)
{
    return VoltageSteps(mode, phase)
        .combine({left, &kMillivolt}, operation, {right, &kMillivolt})
        ->value;
}

} // namespace

void VoltageStepsTest::combines_data()
{
    columns<int, double, double, double>({"mode", "phase", "sum", "difference"});
    // The sum and the difference of 3 mV and 4 mV.
    const auto row = [](const char *tag, int mode, double phase, double sum, double difference) {
        QTest::newRow(tag) << mode << phase << sum << difference;
    };
    row("correlated in phase: 3 + 4 and |3 - 4|", VoltageMode::Correlated, 0, 7, 1);
    row("correlated at 90 degrees: sqrt(9 + 16)", VoltageMode::Correlated, 90, 5, 5);
    row("correlated at 60 degrees: sqrt(25 + 12), sqrt(25 - 12)", VoltageMode::Correlated, 60,
        std::sqrt(37.0), std::sqrt(13.0));
    row("correlated at -60 degrees", VoltageMode::Correlated, -60, std::sqrt(37.0),
        std::sqrt(13.0));
    row("correlated in opposition: |3 - 4| and 3 + 4", VoltageMode::Correlated, 180, 1, 7);
    row("correlated after a turn", VoltageMode::Correlated, 360, 7, 1);
    row("peak: 3 + 4 and 3 - 4", VoltageMode::Peak, 0, 7, -1);
    row("peak, whatever the phase", VoltageMode::Peak, 90, 7, -1);
}

void VoltageStepsTest::combines()
{
    QFETCH(int, mode);
    QFETCH(double, phase);
    QFETCH(double, sum);
    QFETCH(double, difference);

    QCOMPARE(combined(mode, phase, 3, Operator::Plus, 4), sum);
    QCOMPARE(combined(mode, phase, 3, Operator::Minus, 4), difference);
}

void VoltageStepsTest::refusesADifferenceOfUncorrelatedVoltages()
{
    VoltageSteps steps(VoltageMode::Uncorrelated, 0);
    QVERIFY(!steps.combine({3, &kMillivolt}, Operator::Minus, {4, &kMillivolt}));
    QCOMPARE(steps.combine({3, &kMillivolt}, Operator::Plus, {4, &kMillivolt})->value, 5.0);
}

void VoltageStepsTest::addsInMillivolt()
{
    const std::optional<Operand> sum =
        VoltageSteps(VoltageMode::Peak, 0).combine({1, &kVolt}, Operator::Plus, {1, &kMillivolt});
    QCOMPARE(sum->value, 1001.0);
    QCOMPARE(sum->unit, &kMillivolt);
}

void VoltageStepsTest::isNumberWhereSidesNearlyCancel()
{
    double right = 0.1;
    for (int i = 0; i < 1000; ++i) {
        right = std::nextafter(right, 1.0);
        QCOMPARE(combined(VoltageMode::Correlated, 0, 0.1, Operator::Minus, right), right - 0.1);
    }
}

void VoltageStepsTest::cancelsExactlyAfterAnyTurn()
{
    for (const double turn : {-360.0, 0.0, 360.0})
        QVERIFY(combined(VoltageMode::Correlated, turn, 0.3, Operator::Minus, 0.3) == 0.0);
    for (const double halfTurn : {-180.0, 180.0})
        QVERIFY(combined(VoltageMode::Correlated, halfTurn, 0.3, Operator::Plus, 0.3) == 0.0);
}

void VoltageStepsTest::staysFiniteWhereSquaresDoNot()
{
    QCOMPARE(combined(VoltageMode::Uncorrelated, 0, 3e200, Operator::Plus, 4e200), 5e200);
    QCOMPARE(combined(VoltageMode::Correlated, 0, 3e200, Operator::Plus, 4e200), 7e200);
}

DEZIMO_TEST_MAIN(QCoreApplication, VoltageStepsTest)

#include "tst_voltagesteps.moc"
