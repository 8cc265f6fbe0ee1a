// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "voltagesteps.h"

#include <QTest>

using namespace Dezimo;

class VoltageCalculatorProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uncorrelated_data();
    void uncorrelated();
    void correlated_data();
    void correlated();
    void peak_data();
    void peak();
    void units_data();
    void units();
    void zeroDigits_data();
    void zeroDigits();
    void tenDigits_data();
    void tenDigits();
};

namespace {

using namespace VoltageUnit;

constexpr int kDefaultDigits = 3;

constexpr int kUncorrelated = VoltageMode::Uncorrelated;
constexpr int kCorrelated = VoltageMode::Correlated;
constexpr int kPeak = VoltageMode::Peak;

const char kVoltages[] = "mV V";
const char kPlain[] = "none";

} // namespace

void VoltageCalculatorProfileTest::uncorrelated_data()
{
    addCalculatorCases({
        {"3 and 4 give 5", "3mV+4mV", kUncorrelated, Mv, "5", Mv, kVoltages},
        {"3 mV and 4 mV in V", "3mV+4mV", kUncorrelated, V, "0.005", V, kVoltages},
        {"equal voltages: 10 x sqrt 2", "10mV+10mV", kUncorrelated, Mv, "14.1", Mv, kVoltages},
        {"three equal ones: sqrt 3", "1mV+1mV+1mV", kUncorrelated, Mv, "1.73", Mv, kVoltages},
        {"1, 2 and 2 give 3", "1mV+2mV+2mV", kUncorrelated, Mv, "3", Mv, kVoltages},
        {"V and V: 3000 and 4000 mV", "3V+4V", kUncorrelated, Mv, "5E+03", Mv, kVoltages},
        {"V and mV: 3000 and 4000 mV", "3V+4000mV", kUncorrelated, Mv, "5E+03", Mv, kVoltages},
        {"a negative voltage counts as its square", "-3mV+4mV", kUncorrelated, Mv, "5", Mv,
         kVoltages},
        {"a sign after the operator counts as the square", "3mV+-4mV", kUncorrelated, Mv, "5", Mv,
         kVoltages},
        {"zero adds nothing", "0mV+5mV", kUncorrelated, Mv, "5", Mv, kVoltages},
        {"two zeros", "0mV+0mV", kUncorrelated, Mv, "0", Mv, kVoltages},
        {"a difference is refused", "3mV-4mV", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"a difference is refused, with V chosen", "3mV-4mV", kUncorrelated, V, "invalid input", V,
         kVoltages},
        {"a difference is refused, with no unit chosen", "3mV-4mV", kUncorrelated, None,
         "invalid input", None, kPlain},
        {"a difference after a sum is refused", "3mV+4mV-1mV", kUncorrelated, Mv, "invalid input",
         Mv, kVoltages},
        {"a difference in a group is refused", "(3mV-4mV)", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a difference in a group of a sum is refused", "1mV+(3mV-4mV)", kUncorrelated, Mv,
         "invalid input", Mv, kVoltages},
        {"groups: sqrt(3^2 + 4^2) and 12 give 13", "(3mV+4mV)+12mV", kUncorrelated, Mv, "13", Mv,
         kVoltages},
        {"nested groups: 12 and (3 and 4) give 13", "12mV+(3mV+(4mV))", kUncorrelated, Mv, "13", Mv,
         kVoltages},
        {"plain numbers are summed plainly: 3 + 4", "3+4", kUncorrelated, Mv, "7", None, kPlain},
        {"plain numbers are subtracted plainly: 3 - 4", "3-4", kUncorrelated, Mv, "-1", None,
         kPlain},
        {"a plain chain: 5 - 3 + 2", "5-3+2", kUncorrelated, V, "4", None, kPlain},
        {"a missing unit goes before the refused difference", "3mV-4", kUncorrelated, Mv,
         "unit missing", Mv, kVoltages},
        {"a missing unit on the left goes before the refused difference", "3-4mV", kUncorrelated, V,
         "unit missing", V, kVoltages},
    });
}

void VoltageCalculatorProfileTest::uncorrelated()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorProfileTest::correlated_data()
{
    addCalculatorCases({
        {"in phase: 3 + 4", "3mV+4mV", kCorrelated, Mv, "7", Mv, kVoltages},
        {"in phase, a difference: |3 - 4|", "3mV-4mV", kCorrelated, Mv, "1", Mv, kVoltages},
        {"in phase, a difference the other way: |4 - 3|", "4mV-3mV", kCorrelated, V, "0.001", V,
         kVoltages},
        {"in phase, equal voltages cancel", "3mV-3mV", kCorrelated, Mv, "0", Mv, kVoltages},
        {"in phase, equal voltages cancel in V", "1V-1000mV", kCorrelated, V, "0", V, kVoltages},
        {"in phase, a chain: |3 + 4 - 10|", "3mV+4mV-10mV", kCorrelated, Mv, "3", Mv, kVoltages},
        {"in phase, a negative voltage: |-3 + 4|", "-3mV+4mV", kCorrelated, Mv, "1", Mv, kVoltages},
        {"in phase, V and mV: 1000 + 1500", "1V+1500mV", kCorrelated, Mv, "2.5E+03", Mv, kVoltages},
        {"in phase, a group: 10 - (3 + 4)", "10mV-(3mV+4mV)", kCorrelated, Mv, "3", Mv, kVoltages},
        {"in phase, plain numbers are plain: 3 - 4", "3-4", kCorrelated, Mv, "-1", None, kPlain},
        {"in phase, a missing unit", "3mV-4", kCorrelated, Mv, "unit missing", Mv, kVoltages},
        {"at 90°: sqrt(3^2 + 4^2)", "3mV+4mV", kCorrelated, Mv, "5", Mv, kVoltages, 90},
        {"at 90°, a difference: sqrt(3^2 + 4^2)", "3mV-4mV", kCorrelated, Mv, "5", Mv, kVoltages,
         90},
        {"at 90°, in V", "3mV+4mV", kCorrelated, V, "0.005", V, kVoltages, 90},
        {"at 90°, left to right: sqrt(5^2 + 12^2)", "3mV+4mV+12mV", kCorrelated, Mv, "13", Mv,
         kVoltages, 90},
        {"at 90°, a group: sqrt(12^2 + 5^2)", "12mV+(3mV+4mV)", kCorrelated, Mv, "13", Mv,
         kVoltages, 90},
        {"at 90°, plain numbers are plain: 3 + 4", "3+4", kCorrelated, Mv, "7", None, kPlain, 90},
        {"at 60°: sqrt(9 + 16 + 12)", "3mV+4mV", kCorrelated, Mv, "6.08", Mv, kVoltages, 60},
        {"at 60°, a difference: sqrt(9 + 16 - 12)", "3mV-4mV", kCorrelated, Mv, "3.61", Mv,
         kVoltages, 60},
        {"at 60°, equal ones differ by the same", "5mV-5mV", kCorrelated, Mv, "5", Mv, kVoltages,
         60},
        {"at 120°: sqrt(9 + 16 - 12)", "3mV+4mV", kCorrelated, Mv, "3.61", Mv, kVoltages, 120},
        {"at 120°, equal ones sum to the same", "5mV+5mV", kCorrelated, Mv, "5", Mv, kVoltages,
         120},
        {"at 180°: |3 - 4|", "3mV+4mV", kCorrelated, Mv, "1", Mv, kVoltages, 180},
        {"at 180°, a difference: 3 + 4", "3mV-4mV", kCorrelated, Mv, "7", Mv, kVoltages, 180},
        {"at 180°, equal voltages cancel", "3mV+3mV", kCorrelated, Mv, "0", Mv, kVoltages, 180},
        {"at -180°, equal voltages cancel", "3mV+3mV", kCorrelated, Mv, "0", Mv, kVoltages, -180},
        {"at -90°: sqrt(3^2 + 4^2)", "3mV+4mV", kCorrelated, Mv, "5", Mv, kVoltages, -90},
        {"at 360°: 3 + 4", "3mV+4mV", kCorrelated, Mv, "7", Mv, kVoltages, 360},
        {"at 360°, equal voltages cancel", "3mV-3mV", kCorrelated, Mv, "0", Mv, kVoltages, 360},
        {"at -360°, equal voltages cancel", "3mV-3mV", kCorrelated, Mv, "0", Mv, kVoltages, -360},
        {"at 270°: sqrt(3^2 + 4^2)", "3mV+4mV", kCorrelated, Mv, "5", Mv, kVoltages, 270},
        {"at 45°: sqrt(2 + sqrt 2)", "1mV+1mV", kCorrelated, Mv, "1.85", Mv, kVoltages, 45},
        {"at 45°, a difference: sqrt(2 - sqrt 2)", "1mV-1mV", kCorrelated, Mv, "0.765", Mv,
         kVoltages, 45},
        {"nearly equal voltages keep their difference", "0.1mV-0.1000000001mV", kCorrelated, Mv,
         "1E-10", Mv, kVoltages},
        {"at 90° with zero", "0mV+5mV", kCorrelated, Mv, "5", Mv, kVoltages, 90},
        {"the phase does not count in the uncorrelated mode", "3mV+4mV", kUncorrelated, Mv, "5", Mv,
         kVoltages, 60},
        {"the phase does not count in the peak mode", "3mV+4mV", kPeak, Mv, "7", Mv, kVoltages, 60},
    });
}

void VoltageCalculatorProfileTest::correlated()
{
    VoltageCalculatorProfile calculator;
    QFETCH(double, phase);
    calculator.setPhase(phase);
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorProfileTest::peak_data()
{
    addCalculatorCases({
        {"a sum: 3 + 4", "3mV+4mV", kPeak, Mv, "7", Mv, kVoltages},
        {"a difference: 3 - 4", "3mV-4mV", kPeak, Mv, "-1", Mv, kVoltages},
        {"a difference the other way: 4 - 3", "4mV-3mV", kPeak, Mv, "1", Mv, kVoltages},
        {"V and mV: 1000 + 10", "1V+10mV", kPeak, Mv, "1.01E+03", Mv, kVoltages},
        {"V and mV in V: 1.01", "1V+10mV", kPeak, V, "1.01", V, kVoltages},
        {"mV and V: 500 + 2000", "500mV+2V", kPeak, V, "2.5", V, kVoltages},
        {"V and V: 2000 - 500", "2V-0.5V", kPeak, Mv, "1.5E+03", Mv, kVoltages},
        {"a chain: 1 + 2 - 3 + 4", "1mV+2mV-3mV+4mV", kPeak, Mv, "4", Mv, kVoltages},
        {"a sum after a difference: 5 - 3 + 1", "5mV-3mV+1mV", kPeak, Mv, "3", Mv, kVoltages},
        {"a sign after the operator: 3 + -4", "3mV+-4mV", kPeak, Mv, "-1", Mv, kVoltages},
        {"a minus after a minus: 3 - -4", "3mV--4mV", kPeak, Mv, "7", Mv, kVoltages},
        {"a plus after a minus: 3 - +4", "3mV-+4mV", kPeak, Mv, "-1", Mv, kVoltages},
        {"a sign at the start: -3 + 4", "-3mV+4mV", kPeak, Mv, "1", Mv, kVoltages},
        {"plain numbers: 3 - 4", "3-4", kPeak, None, "-1", None, kPlain},
        {"a missing unit", "3mV-4", kPeak, Mv, "unit missing", Mv, kVoltages},
        {"a prefix: 470 µV + 30 µV", "470uV+30uV", kPeak, Mv, "0.5", Mv, kVoltages},
        {"a prefix: 5 kV + 1 kV", "5kV+1kV", kPeak, V, "6E+03", V, kVoltages},
        {"M is not m: 2 MV", "1MV+1MV", kPeak, V, "2E+06", V, kVoltages},
        {"n: 5 nV + 5 nV", "5nV+5nV", kPeak, Mv, "1E-05", Mv, kVoltages},
        {"a prefix before mV: 1 k of mV", "1kmV+1V", kPeak, V, "2", V, kVoltages},
        {"a prefix of a plain number: 5000 + 1", "5k+1", kPeak, None, "5E+03", None, kPlain},
        {"m as a prefix of a plain number: 0.005 + 0.001", "5m+1m", kPeak, None, "0.006", None,
         kPlain},
        {"two prefixes are no number", "1kMV+1V", kPeak, V, "invalid input", V, kVoltages},
        {"an exponent: 0.1 + 1", "1e-1mV+1mV", kPeak, Mv, "1.1", Mv, kVoltages},
        {"a capital exponent: 1000 + 1000", "1E+3mV+1V", kPeak, V, "2", V, kVoltages},
        {"an exponent without a sign: 100 + 1", "1e2mV+1mV", kPeak, Mv, "101", Mv, kVoltages},
        {"a voltage too large for a number is infinite", "1e308V+1V", kPeak, Mv, "INF", Mv,
         kVoltages},
        {"an infinite voltage may be added to", "1e308V+1V+1V", kPeak, Mv, "INF", Mv, kVoltages},
        {"an infinite voltage may be negative", "1V-1e308V+1V", kPeak, Mv, "-INF", Mv, kVoltages},
        {"infinity minus infinity is no number, and stays none", "1e308V-1e308V+1V", kPeak, Mv,
         "NAN", Mv, kVoltages},
        // 10 digits round it to 1.797693135E+308, which no double holds
        {"the largest number is rounded beyond all numbers", "1.7976931348623157e308mV+0mV", kPeak,
         Mv, "invalid input", Mv, kVoltages},
        {"the largest number is rounded beyond all numbers before the next step",
         "1.7976931348623157e308mV+0mV+0mV", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"the largest plain number is rounded beyond all numbers", "1.7976931348623157e308+0+0",
         kPeak, None, "invalid input", None, kPlain},
    });
}

void VoltageCalculatorProfileTest::peak()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorProfileTest::units_data()
{
    addCalculatorCases({
        {"zero in mV", "3mV-3mV", kPeak, Mv, "0", Mv, kVoltages},
        {"zero in V", "3mV-3mV", kPeak, V, "0", V, kVoltages},
        {"zero, with no unit chosen: mV", "3mV-3mV", kPeak, None, "0", Mv, kVoltages},
        {"a negative voltage in V", "3mV-5mV", kPeak, V, "-0.002", V, kVoltages},
        {"a negative voltage, with no unit chosen: mV", "3mV-5mV", kPeak, None, "-2", Mv,
         kVoltages},
        {"a voltage, with no unit chosen: mV", "3V+1V", kPeak, None, "4E+03", Mv, kVoltages},
        {"an uncorrelated voltage, with no unit chosen: mV", "3mV+4mV", kUncorrelated, None, "5",
         Mv, kVoltages},
        {"a plain number, with mV chosen", "2+3", kPeak, Mv, "5", None, kPlain},
        {"a plain number, with V chosen", "2+3", kPeak, V, "5", None, kPlain},
        {"a plain number, with no unit chosen", "2+3", kPeak, None, "5", None, kPlain},
        {"a negative plain number", "2-3", kCorrelated, V, "-1", None, kPlain},
        {"plain zero", "2-2", kCorrelated, Mv, "0", None, kPlain},
    });
}

void VoltageCalculatorProfileTest::units()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorProfileTest::zeroDigits_data()
{
    addCalculatorCases({
        {"0 digits count as one: 1234 is 1E+03", "1V+234mV", kPeak, Mv, "1E+03", Mv, kVoltages},
        {"0 digits in V: 1.234", "1V+234mV", kPeak, V, "1", V, kVoltages},
        {"0 digits of a plain number: 16", "15+1", kPeak, None, "2E+01", None, kPlain},
        {"0 digits of 3 and 4", "3mV+4mV", kUncorrelated, Mv, "5", Mv, kVoltages},
    });
}

void VoltageCalculatorProfileTest::zeroDigits()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, 0);
}

void VoltageCalculatorProfileTest::tenDigits_data()
{
    addCalculatorCases({
        {"10 digits of a root: sqrt 2", "1mV+1mV", kUncorrelated, Mv, "1.414213562", Mv, kVoltages},
        {"10 digits of a root in V: sqrt 2 / 1000", "1mV+1mV", kUncorrelated, V, "0.001414213562",
         V, kVoltages},
        {"10 digits of sums: 1000.000001", "1V+1nV", kPeak, Mv, "1000.000001", Mv, kVoltages},
        {"10 digits of a plain number", "1.234567890123+1", kPeak, None, "2.23456789", None,
         kPlain},
        {"a step keeps 10 digits: 1 mV vanishes beside 1E8 V", "1e8V+1mV-1e8V", kPeak, Mv, "0", Mv,
         kVoltages},
        {"a step keeps 10 digits: 1 mV remains beside 1E6 V", "1e6V+1mV-1e6V", kPeak, Mv, "1", Mv,
         kVoltages},
        {"V and mV, 10 digits: 1001 mV", "1V+1mV", kPeak, Mv, "1001", Mv, kVoltages},
    });
}

void VoltageCalculatorProfileTest::tenDigits()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, 10);
}

DEZIMO_TEST_MAIN(QCoreApplication, VoltageCalculatorProfileTest)

#include "tst_voltagecalculatorprofile.moc"
