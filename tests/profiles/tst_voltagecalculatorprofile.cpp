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
    void uncorrelated() { checkCalculatorCase<VoltageCalculatorProfile>(); }
    void correlated_data();
    void correlated();
    void peak_data();
    void peak() { checkCalculatorCase<VoltageCalculatorProfile>(); }
    void units_data();
    void units() { checkCalculatorCase<VoltageCalculatorProfile>(); }
    void zeroDigits_data();
    void zeroDigits() { checkCalculatorCase<VoltageCalculatorProfile>(0); }
    void tenDigits_data();
    void tenDigits() { checkCalculatorCase<VoltageCalculatorProfile>(10); }
};

namespace {

using namespace VoltageUnit;

constexpr int kUncorrelated = VoltageMode::Uncorrelated;
constexpr int kCorrelated = VoltageMode::Correlated;
constexpr int kPeak = VoltageMode::Peak;

} // namespace

void VoltageCalculatorProfileTest::uncorrelated_data()
{
    addCalculatorColumns();
    const CalculatorRows row(kUncorrelated);

    row("3 and 4 give 5", "3mV+4mV", "5 mV");
    row("3 mV and 4 mV in V", "3mV+4mV", "0.005 V");
    row("equal voltages: 10 x sqrt 2", "10mV+10mV", "14.1 mV");
    row("three equal ones: sqrt 3", "1mV+1mV+1mV", "1.73 mV");
    row("1, 2 and 2 give 3", "1mV+2mV+2mV", "3 mV");
    row("V and V: 3000 and 4000 mV", "3V+4V", "5E+03 mV");
    row("V and mV: 3000 and 4000 mV", "3V+4000mV", "5E+03 mV");
    row("a negative voltage counts as its square", "-3mV+4mV", "5 mV");
    row("a sign after the operator counts as the square", "3mV+-4mV", "5 mV");
    row("zero adds nothing", "0mV+5mV", "5 mV");
    row("two zeros", "0mV+0mV", "0 mV");
    row("a difference is refused", "3mV-4mV", "invalid input mV");
    row("a difference is refused, with V chosen", "3mV-4mV", "invalid input V");
    row("a difference is refused, with no unit chosen", "3mV-4mV", "invalid input");
    row("a difference after a sum is refused", "3mV+4mV-1mV", "invalid input mV");
    row("a difference in a group is refused", "(3mV-4mV)", "invalid input mV");
    row("a difference in a group of a sum is refused", "1mV+(3mV-4mV)", "invalid input mV");
    row("groups: sqrt(3^2 + 4^2) and 12 give 13", "(3mV+4mV)+12mV", "13 mV");
    row("nested groups: 12 and (3 and 4) give 13", "12mV+(3mV+(4mV))", "13 mV");
    row("plain numbers are summed plainly: 3 + 4", "3+4", "7", Mv);
    row("plain numbers are subtracted plainly: 3 - 4", "3-4", "-1", Mv);
    row("a plain chain: 5 - 3 + 2", "5-3+2", "4", V);
    row("a missing unit goes before the refused difference", "3mV-4", "unit missing mV");
    row("a missing unit on the left goes before the refused difference", "3-4mV", "unit missing V");
}

void VoltageCalculatorProfileTest::correlated_data()
{
    addCalculatorColumns();
    const CalculatorRows correlated(kCorrelated);
    const auto at = [](double phase) {
        return CalculatorRows(kCorrelated, phase);
    };

    correlated("in phase: 3 + 4", "3mV+4mV", "7 mV");
    correlated("in phase, a difference: |3 - 4|", "3mV-4mV", "1 mV");
    correlated("in phase, a difference the other way: |4 - 3|", "4mV-3mV", "0.001 V");
    correlated("in phase, equal voltages cancel", "3mV-3mV", "0 mV");
    correlated("in phase, equal voltages cancel in V", "1V-1000mV", "0 V");
    correlated("in phase, a chain: |3 + 4 - 10|", "3mV+4mV-10mV", "3 mV");
    correlated("in phase, a negative voltage: |-3 + 4|", "-3mV+4mV", "1 mV");
    correlated("in phase, V and mV: 1000 + 1500", "1V+1500mV", "2.5E+03 mV");
    correlated("in phase, a group: 10 - (3 + 4)", "10mV-(3mV+4mV)", "3 mV");
    correlated("in phase, plain numbers are plain: 3 - 4", "3-4", "-1", Mv);
    correlated("in phase, a missing unit", "3mV-4", "unit missing mV");
    at(90)("at 90°: sqrt(3^2 + 4^2)", "3mV+4mV", "5 mV");
    at(90)("at 90°, a difference: sqrt(3^2 + 4^2)", "3mV-4mV", "5 mV");
    at(90)("at 90°, in V", "3mV+4mV", "0.005 V");
    at(90)("at 90°, left to right: sqrt(5^2 + 12^2)", "3mV+4mV+12mV", "13 mV");
    at(90)("at 90°, a group: sqrt(12^2 + 5^2)", "12mV+(3mV+4mV)", "13 mV");
    at(90)("at 90°, plain numbers are plain: 3 + 4", "3+4", "7", Mv);
    at(60)("at 60°: sqrt(9 + 16 + 12)", "3mV+4mV", "6.08 mV");
    at(60)("at 60°, a difference: sqrt(9 + 16 - 12)", "3mV-4mV", "3.61 mV");
    at(60)("at 60°, equal ones differ by the same", "5mV-5mV", "5 mV");
    at(120)("at 120°: sqrt(9 + 16 - 12)", "3mV+4mV", "3.61 mV");
    at(120)("at 120°, equal ones sum to the same", "5mV+5mV", "5 mV");
    at(180)("at 180°: |3 - 4|", "3mV+4mV", "1 mV");
    at(180)("at 180°, a difference: 3 + 4", "3mV-4mV", "7 mV");
    at(180)("at 180°, equal voltages cancel", "3mV+3mV", "0 mV");
    at(-180)("at -180°, equal voltages cancel", "3mV+3mV", "0 mV");
    at(-90)("at -90°: sqrt(3^2 + 4^2)", "3mV+4mV", "5 mV");
    at(360)("at 360°: 3 + 4", "3mV+4mV", "7 mV");
    at(360)("at 360°, equal voltages cancel", "3mV-3mV", "0 mV");
    at(-360)("at -360°, equal voltages cancel", "3mV-3mV", "0 mV");
    at(270)("at 270°: sqrt(3^2 + 4^2)", "3mV+4mV", "5 mV");
    at(45)("at 45°: sqrt(2 + sqrt 2)", "1mV+1mV", "1.85 mV");
    at(45)("at 45°, a difference: sqrt(2 - sqrt 2)", "1mV-1mV", "0.765 mV");
    correlated("nearly equal voltages keep their difference", "0.1mV-0.1000000001mV", "1E-10 mV");
    at(90)("at 90° with zero", "0mV+5mV", "5 mV");
    CalculatorRows(kUncorrelated, 60)("the phase does not count in the uncorrelated mode",
                                      "3mV+4mV", "5 mV");
    CalculatorRows(kPeak, 60)("the phase does not count in the peak mode", "3mV+4mV", "7 mV");
}

void VoltageCalculatorProfileTest::correlated()
{
    VoltageCalculatorProfile calculator;
    QFETCH(double, phase);
    calculator.setPhase(phase);
    checkCalculatorCase(calculator);
}

void VoltageCalculatorProfileTest::peak_data()
{
    addCalculatorColumns();
    const CalculatorRows row(kPeak);

    row("a sum: 3 + 4", "3mV+4mV", "7 mV");
    row("a difference: 3 - 4", "3mV-4mV", "-1 mV");
    row("a difference the other way: 4 - 3", "4mV-3mV", "1 mV");
    row("V and mV: 1000 + 10", "1V+10mV", "1.01E+03 mV");
    row("V and mV in V: 1.01", "1V+10mV", "1.01 V");
    row("mV and V: 500 + 2000", "500mV+2V", "2.5 V");
    row("V and V: 2000 - 500", "2V-0.5V", "1.5E+03 mV");
    row("a chain: 1 + 2 - 3 + 4", "1mV+2mV-3mV+4mV", "4 mV");
    row("a sum after a difference: 5 - 3 + 1", "5mV-3mV+1mV", "3 mV");
    row("a sign after the operator: 3 + -4", "3mV+-4mV", "-1 mV");
    row("a minus after a minus: 3 - -4", "3mV--4mV", "7 mV");
    row("a plus after a minus: 3 - +4", "3mV-+4mV", "-1 mV");
    row("a sign at the start: -3 + 4", "-3mV+4mV", "1 mV");
    row("plain numbers: 3 - 4", "3-4", "-1");
    row("a missing unit", "3mV-4", "unit missing mV");
    row("a prefix: 470 µV + 30 µV", "470uV+30uV", "0.5 mV");
    row("a prefix: 5 kV + 1 kV", "5kV+1kV", "6E+03 V");
    row("M is not m: 2 MV", "1MV+1MV", "2E+06 V");
    row("n: 5 nV + 5 nV", "5nV+5nV", "1E-05 mV");
    row("a prefix before mV: 1 k of mV", "1kmV+1V", "2 V");
    row("a prefix of a plain number: 5000 + 1", "5k+1", "5E+03");
    row("m as a prefix of a plain number: 0.005 + 0.001", "5m+1m", "0.006");
    row("two prefixes are no number", "1kMV+1V", "invalid input V");
    row("an exponent: 0.1 + 1", "1e-1mV+1mV", "1.1 mV");
    row("a capital exponent: 1000 + 1000", "1E+3mV+1V", "2 V");
    row("an exponent without a sign: 100 + 1", "1e2mV+1mV", "101 mV");
    row("a voltage too large for a number is infinite", "1e308V+1V", "INF mV");
    row("an infinite voltage may be added to", "1e308V+1V+1V", "INF mV");
    row("an infinite voltage may be negative", "1V-1e308V+1V", "-INF mV");
    row("infinity minus infinity is no number, and stays none", "1e308V-1e308V+1V", "NAN mV");
    // 10 digits round it to 1.797693135E+308, which no double holds
    row("the largest number is rounded beyond all numbers", "1.7976931348623157e308mV+0mV",
        "invalid input mV");
    row("the largest number is rounded beyond all numbers before the next step",
        "1.7976931348623157e308mV+0mV+0mV", "invalid input mV");
    row("the largest plain number is rounded beyond all numbers", "1.7976931348623157e308+0+0",
        "invalid input");
}

void VoltageCalculatorProfileTest::units_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows correlated(kCorrelated);
    const CalculatorRows peak(kPeak);

    peak("zero in mV", "3mV-3mV", "0 mV");
    peak("zero in V", "3mV-3mV", "0 V");
    peak("zero, with no unit chosen: mV", "3mV-3mV", "0 mV", None);
    peak("a negative voltage in V", "3mV-5mV", "-0.002 V");
    peak("a negative voltage, with no unit chosen: mV", "3mV-5mV", "-2 mV", None);
    peak("a voltage, with no unit chosen: mV", "3V+1V", "4E+03 mV", None);
    uncorrelated("an uncorrelated voltage, with no unit chosen: mV", "3mV+4mV", "5 mV", None);
    peak("a plain number, with mV chosen", "2+3", "5", Mv);
    peak("a plain number, with V chosen", "2+3", "5", V);
    peak("a plain number, with no unit chosen", "2+3", "5");
    correlated("a negative plain number", "2-3", "-1", V);
    correlated("plain zero", "2-2", "0", Mv);
}

void VoltageCalculatorProfileTest::zeroDigits_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows peak(kPeak);

    peak("0 digits count as one: 1234 is 1E+03", "1V+234mV", "1E+03 mV");
    peak("0 digits in V: 1.234", "1V+234mV", "1 V");
    peak("0 digits of a plain number: 16", "15+1", "2E+01");
    uncorrelated("0 digits of 3 and 4", "3mV+4mV", "5 mV");
}

void VoltageCalculatorProfileTest::tenDigits_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows peak(kPeak);

    uncorrelated("10 digits of a root: sqrt 2", "1mV+1mV", "1.414213562 mV");
    uncorrelated("10 digits of a root in V: sqrt 2 / 1000", "1mV+1mV", "0.001414213562 V");
    peak("10 digits of sums: 1000.000001", "1V+1nV", "1000.000001 mV");
    peak("10 digits of a plain number", "1.234567890123+1", "2.23456789");
    peak("a step keeps 10 digits: 1 mV vanishes beside 1E8 V", "1e8V+1mV-1e8V", "0 mV");
    peak("a step keeps 10 digits: 1 mV remains beside 1E6 V", "1e6V+1mV-1e6V", "1 mV");
    peak("V and mV, 10 digits: 1001 mV", "1V+1mV", "1001 mV");
}

DEZIMO_TEST_MAIN(QCoreApplication, VoltageCalculatorProfileTest)

#include "tst_voltagecalculatorprofile.moc"
