// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "voltagesteps.h"

#include <QTest>

using namespace Dezimo;

class VoltageCalculatorInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brackets_data();
    void brackets() { checkCalculatorCase<VoltageCalculatorProfile>(); }
    void cleaning_data();
    void cleaning() { checkCalculatorCase<VoltageCalculatorProfile>(); }
    void errors_data();
    void errors() { checkCalculatorCase<VoltageCalculatorProfile>(); }
};

namespace {

using namespace VoltageUnit;

constexpr int kUncorrelated = VoltageMode::Uncorrelated;
constexpr int kCorrelated = VoltageMode::Correlated;
constexpr int kPeak = VoltageMode::Peak;

/// An error in the brackets keeps all units on offer, as they are at first.
const char kAll[] = "mV V none";

} // namespace

void VoltageCalculatorInputTest::brackets_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows correlated(kCorrelated);
    const CalculatorRows peak(kPeak);

    uncorrelated("a lone voltage in V", "(1V)", "1E+03 mV");
    uncorrelated("a lone voltage in V, shown in V", "(1V)", "1 V");
    correlated("a lone voltage in mV", "(5mV)", "5 mV");
    peak("a lone voltage in mV, shown in V", "(5mV)", "0.005 V");
    peak("a lone voltage, with no unit chosen: mV", "(2V)", "2E+03 mV", None);
    uncorrelated("a lone negative voltage", "(-3mV)", "-3 mV");
    uncorrelated("a lone voltage with a plus sign", "(+3mV)", "3 mV");
    uncorrelated("a lone plain number", "(10)", "10", Mv);
    uncorrelated("a lone prefixed voltage: 470 µV", "(470uV)", "0.47 mV");
    uncorrelated("brackets of all kinds around a lone voltage", "{[(-3mV)]}", "-3 mV");
    uncorrelated("a lone value that is no number", "(abc)", "invalid input mV");
    uncorrelated("a lone level", "(3dBm)", "invalid input mV");
    uncorrelated("a lone power", "(3mW)", "invalid input V");
    uncorrelated("a lone unit", "(mV)", "invalid input mV");
    uncorrelated("an exponent's sign counts as an operator: no lone value", "(1e-3V)",
                 "invalid input mV");
    uncorrelated("an exponent without a sign is a lone value", "(1e3mV)", "1 V");
    uncorrelated("a sum around all", "(3mV+4mV)", "5 mV");
    uncorrelated("a sum in three groups around all", "(((3mV+4mV)))", "5 mV");
    peak("groups at both sides: (1 + 2) - (3 + 4)", "(1mV+2mV)-(3mV+4mV)", "-4 mV");
    peak("nested groups: 10 - (5 - (3 - 1))", "10mV-(5mV-(3mV-1mV))", "7 mV");
    peak("a negative group after a minus: 5 - (1 - 3)", "5mV-(1mV-3mV)", "7 mV");
    peak("a negative group around a group", "((1mV-3mV))", "-2 mV");
    peak("a small voltage from a group is no value for the next", "((1e-5mV+1e-5mV))",
         "invalid input mV");
    peak("a signed value in a group: 5 + (-3)", "5mV+(-3mV)", "2 mV");
    peak("square brackets", "[1mV+2mV]-1mV", "2 mV");
    peak("curly brackets", "{1mV+2mV}-1mV", "2 mV");
    peak("a number in front of a group joins its text: 22 mV", "2(1mV+1mV)-2mV", "20 mV");
    peak("a number in front of a group alone is no expression", "2(1mV+1mV)", "invalid input mV");
    peak("a unit behind a group of plain numbers: 5 V + 1 V", "(2+3)V+1V", "6 V");
    peak("a negative group behind a number reads as a difference", "5mV(1mV-3mV)", "3 mV");
    peak("a group counts in mV whatever it is made of: 2000 + 10", "(1V+1V)+10mV", "2.01E+03 mV");
}

void VoltageCalculatorInputTest::cleaning_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows peak(kPeak);

    uncorrelated("blanks are ignored", " 3 mV + 4 mV ", "5 mV");
    uncorrelated("line ends and tabs are ignored", "3mV\r\n+\t4mV\n", "5 mV");
    uncorrelated("no-break, narrow and thin spaces are ignored", "3\u00A0mV+4\u202Fm\u2009V",
                 "5 mV");
    peak("a decimal comma", "1,5mV+1,25mV", "2.75 mV");
    peak("the minus sign is a minus", "3mV\u22124mV", "-1 mV");
    peak("the minus sign is a sign", "\u22123mV+4mV", "1 mV");
    peak("a point without a leading digit", ".5V+.25V", "0.75 V");
    peak("the micro sign is no prefix", "1µV+1mV", "invalid input mV");
}

void VoltageCalculatorInputTest::errors_data()
{
    addCalculatorColumns();
    const CalculatorRows uncorrelated(kUncorrelated);
    const CalculatorRows correlated(kCorrelated);
    const CalculatorRows peak(kPeak);

    uncorrelated("an empty text", "", "invalid input mV");
    uncorrelated("a lone voltage without brackets", "3mV", "invalid input mV");
    peak("a lone negative voltage without brackets", "-3mV", "invalid input V");
    uncorrelated("a lone plain number, with no unit chosen", "5", "invalid input");
    uncorrelated("a lone operator", "+", "invalid input mV");
    uncorrelated("an operator without a second operand", "3mV+", "invalid input mV");
    uncorrelated("a word", "abc", "invalid input mV");
    uncorrelated("a word as the first operand", "abc+1mV", "invalid input mV");
    uncorrelated("a word as the second operand", "1mV+abc", "invalid input V");
    uncorrelated("a unit without a number", "mV+1mV", "invalid input mV");
    peak("two signs are no number", "3mV---4mV", "invalid input mV");
    peak("two points are no number", "1.2.3mV+1mV", "invalid input mV");
    peak("a level", "3dBm+1mV", "invalid input mV");
    peak("a power first", "3mW+1mV", "invalid input mV");
    peak("a power second", "1mV+3W", "invalid input V");
    peak("a ratio", "1mV+3dB", "invalid input mV");
    uncorrelated("a unit missing on the left", "1+1mV", "unit missing mV");
    correlated("a unit missing on the right", "1mV+1", "unit missing V");
    peak("a unit missing, with no unit chosen", "1mV+1", "unit missing");
    peak("a failed step ends the evaluation", "1mV+1+1mV", "unit missing mV");
    peak("a number that does not parse goes before a missing unit", "1mV+abc+1",
         "invalid input mV");
    uncorrelated("a word with a unit missing too", "1mV-x", "invalid input mV");
    peak("a unit missing after a plain sum", "1+1+1mV", "unit missing mV");
    uncorrelated("a closing bracket is missing", "(1mV", "bracket missing mV", kAll);
    uncorrelated("a closing bracket is missing, with V chosen", "((1mV+1mV)", "bracket missing V",
                 kAll);
    uncorrelated("brackets are counted before anything is read", "abc(()", "bracket missing", kAll);
    uncorrelated("a closing bracket only is evaluated as it is", "1mV+1mV)", "invalid input mV");
    uncorrelated("an empty group", "1mV+()", "invalid input mV", kAll);
    uncorrelated("an empty group around all, with V chosen", "()", "invalid input V", kAll);
    uncorrelated("an empty group of blanks, with no unit chosen", "( )", "invalid input", kAll);
    uncorrelated("brackets that do not pair", ")1mV+1mV(", "invalid input V", kAll);
    uncorrelated("a group that is invalid", "(1mV+x)", "invalid input mV");
    uncorrelated("a step that failed before an invalid group", "1mV+1+(1mV+x)", "unit missing mV");
    uncorrelated("a group with a missing unit in a sum", "2mV+(1mV+1)", "invalid input mV");
    uncorrelated("a step that failed before a group with a missing unit", "1mV+1+(1mV+1)",
                 "unit missing mV");
    uncorrelated("a group with a missing unit around all", "(1mV+1)", "unit missing V");
    uncorrelated("a missing unit handed on by a group", "((1mV+1))", "unit missing mV");
    uncorrelated("a missing unit with a number behind it", "((1mV+1)5)", "invalid input mV");
}

DEZIMO_TEST_MAIN(QCoreApplication, VoltageCalculatorInputTest)

#include "tst_voltagecalculatorinput.moc"
