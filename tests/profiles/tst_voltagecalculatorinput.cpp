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
    void brackets();
    void cleaning_data();
    void cleaning();
    void errors_data();
    void errors();
};

namespace {

using namespace VoltageUnit;

constexpr int kDefaultDigits = 3;

constexpr int kUncorrelated = VoltageMode::Uncorrelated;
constexpr int kCorrelated = VoltageMode::Correlated;
constexpr int kPeak = VoltageMode::Peak;

const char kVoltages[] = "mV V";
const char kPlain[] = "none";
/// A defect of the brackets leaves everything offered, as it is at first.
const char kUntouched[] = "mV V none";

} // namespace

void VoltageCalculatorInputTest::brackets_data()
{
    addCalculatorCases({
        {"a lone voltage in V", "(1V)", kUncorrelated, Mv, "1E+03", Mv, kVoltages},
        {"a lone voltage in V, shown in V", "(1V)", kUncorrelated, V, "1", V, kVoltages},
        {"a lone voltage in mV", "(5mV)", kCorrelated, Mv, "5", Mv, kVoltages},
        {"a lone voltage in mV, shown in V", "(5mV)", kPeak, V, "0.005", V, kVoltages},
        {"a lone voltage, with no unit chosen: mV", "(2V)", kPeak, None, "2E+03", Mv, kVoltages},
        {"a lone negative voltage", "(-3mV)", kUncorrelated, Mv, "-3", Mv, kVoltages},
        {"a lone voltage with a plus sign", "(+3mV)", kUncorrelated, Mv, "3", Mv, kVoltages},
        {"a lone plain number", "(10)", kUncorrelated, Mv, "10", None, kPlain},
        {"a lone prefixed voltage: 470 µV", "(470uV)", kUncorrelated, Mv, "0.47", Mv, kVoltages},
        {"brackets of all kinds around a lone voltage", "{[(-3mV)]}", kUncorrelated, Mv, "-3", Mv,
         kVoltages},
        {"a lone value that is no number", "(abc)", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a lone level", "(3dBm)", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"a lone power", "(3mW)", kUncorrelated, V, "invalid input", V, kVoltages},
        {"a lone unit", "(mV)", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"an exponent's sign counts as an operator: no lone value", "(1e-3V)", kUncorrelated, Mv,
         "invalid input", Mv, kVoltages},
        {"an exponent without a sign is a lone value", "(1e3mV)", kUncorrelated, V, "1", V,
         kVoltages},
        {"a sum around all", "(3mV+4mV)", kUncorrelated, Mv, "5", Mv, kVoltages},
        {"a sum in three groups around all", "(((3mV+4mV)))", kUncorrelated, Mv, "5", Mv,
         kVoltages},
        {"groups at both sides: (1 + 2) - (3 + 4)", "(1mV+2mV)-(3mV+4mV)", kPeak, Mv, "-4", Mv,
         kVoltages},
        {"nested groups: 10 - (5 - (3 - 1))", "10mV-(5mV-(3mV-1mV))", kPeak, Mv, "7", Mv,
         kVoltages},
        {"a negative group after a minus: 5 - (1 - 3)", "5mV-(1mV-3mV)", kPeak, Mv, "7", Mv,
         kVoltages},
        {"a negative group around a group", "((1mV-3mV))", kPeak, Mv, "-2", Mv, kVoltages},
        {"a small voltage from a group is no value for the next", "((1e-5mV+1e-5mV))", kPeak, Mv,
         "invalid input", Mv, kVoltages},
        {"a signed value in a group: 5 + (-3)", "5mV+(-3mV)", kPeak, Mv, "2", Mv, kVoltages},
        {"square brackets", "[1mV+2mV]-1mV", kPeak, Mv, "2", Mv, kVoltages},
        {"curly brackets", "{1mV+2mV}-1mV", kPeak, Mv, "2", Mv, kVoltages},
        {"a number in front of a group joins its text: 22 mV", "2(1mV+1mV)-2mV", kPeak, Mv, "20",
         Mv, kVoltages},
        {"a number in front of a group alone is no expression", "2(1mV+1mV)", kPeak, Mv,
         "invalid input", Mv, kVoltages},
        {"a unit behind a group of plain numbers: 5 V + 1 V", "(2+3)V+1V", kPeak, V, "6", V,
         kVoltages},
        {"a negative group behind a number reads as a difference", "5mV(1mV-3mV)", kPeak, Mv, "3",
         Mv, kVoltages},
        {"a group counts in mV whatever it is made of: 2000 + 10", "(1V+1V)+10mV", kPeak, Mv,
         "2.01E+03", Mv, kVoltages},
    });
}

void VoltageCalculatorInputTest::brackets()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorInputTest::cleaning_data()
{
    addCalculatorCases({
        {"blanks are ignored", " 3 mV + 4 mV ", kUncorrelated, Mv, "5", Mv, kVoltages},
        {"line ends and tabs are ignored", "3mV\r\n+\t4mV\n", kUncorrelated, Mv, "5", Mv,
         kVoltages},
        {"no-break, narrow and thin spaces are ignored", "3\u00A0mV+4\u202Fm\u2009V", kUncorrelated,
         Mv, "5", Mv, kVoltages},
        {"a decimal comma", "1,5mV+1,25mV", kPeak, Mv, "2.75", Mv, kVoltages},
        {"the minus sign is a minus", "3mV\u22124mV", kPeak, Mv, "-1", Mv, kVoltages},
        {"the minus sign is a sign", "\u22123mV+4mV", kPeak, Mv, "1", Mv, kVoltages},
        {"a point without a leading digit", ".5V+.25V", kPeak, V, "0.75", V, kVoltages},
        {"the micro sign is no prefix", "1µV+1mV", kPeak, Mv, "invalid input", Mv, kVoltages},
    });
}

void VoltageCalculatorInputTest::cleaning()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void VoltageCalculatorInputTest::errors_data()
{
    addCalculatorCases({
        {"an empty text", "", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"a lone voltage without brackets", "3mV", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a lone negative voltage without brackets", "-3mV", kPeak, V, "invalid input", V,
         kVoltages},
        {"a lone plain number, with no unit chosen", "5", kUncorrelated, None, "invalid input",
         None, kPlain},
        {"a lone operator", "+", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"an operator without a second operand", "3mV+", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a word", "abc", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"a word as the first operand", "abc+1mV", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a word as the second operand", "1mV+abc", kUncorrelated, V, "invalid input", V,
         kVoltages},
        {"a unit without a number", "mV+1mV", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"two signs are no number", "3mV---4mV", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"two points are no number", "1.2.3mV+1mV", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"a level", "3dBm+1mV", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"a power first", "3mW+1mV", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"a power second", "1mV+3W", kPeak, V, "invalid input", V, kVoltages},
        {"a ratio", "1mV+3dB", kPeak, Mv, "invalid input", Mv, kVoltages},
        {"a unit missing on the left", "1+1mV", kUncorrelated, Mv, "unit missing", Mv, kVoltages},
        {"a unit missing on the right", "1mV+1", kCorrelated, V, "unit missing", V, kVoltages},
        {"a unit missing, with no unit chosen", "1mV+1", kPeak, None, "unit missing", None, kPlain},
        {"a failed step ends the evaluation", "1mV+1+1mV", kPeak, Mv, "unit missing", Mv,
         kVoltages},
        {"a number that does not parse goes before a missing unit", "1mV+abc+1", kPeak, Mv,
         "invalid input", Mv, kVoltages},
        {"a word with a unit missing too", "1mV-x", kUncorrelated, Mv, "invalid input", Mv,
         kVoltages},
        {"a unit missing after a plain sum", "1+1+1mV", kPeak, Mv, "unit missing", Mv, kVoltages},
        {"a closing bracket is missing", "(1mV", kUncorrelated, Mv, "bracket missing", Mv,
         kUntouched},
        {"a closing bracket is missing, with V chosen", "((1mV+1mV)", kUncorrelated, V,
         "bracket missing", V, kUntouched},
        {"brackets are counted before anything is read", "abc(()", kUncorrelated, None,
         "bracket missing", None, kUntouched},
        {"a closing bracket only is evaluated as it is", "1mV+1mV)", kUncorrelated, Mv,
         "invalid input", Mv, kVoltages},
        {"an empty group", "1mV+()", kUncorrelated, Mv, "invalid input", Mv, kUntouched},
        {"an empty group around all, with V chosen", "()", kUncorrelated, V, "invalid input", V,
         kUntouched},
        {"an empty group of blanks, with no unit chosen", "( )", kUncorrelated, None,
         "invalid input", None, kUntouched},
        {"brackets that do not pair", ")1mV+1mV(", kUncorrelated, V, "invalid input", V,
         kUntouched},
        {"a group that is invalid", "(1mV+x)", kUncorrelated, Mv, "invalid input", Mv, kVoltages},
        {"a step that failed before an invalid group", "1mV+1+(1mV+x)", kUncorrelated, Mv,
         "unit missing", Mv, kVoltages},
        {"a group with a missing unit in a sum", "2mV+(1mV+1)", kUncorrelated, Mv, "invalid input",
         Mv, kVoltages},
        {"a step that failed before a group with a missing unit", "1mV+1+(1mV+1)", kUncorrelated,
         Mv, "unit missing", Mv, kVoltages},
        {"a group with a missing unit around all", "(1mV+1)", kUncorrelated, V, "unit missing", V,
         kVoltages},
        {"a missing unit handed on by a group", "((1mV+1))", kUncorrelated, Mv, "unit missing", Mv,
         kVoltages},
        {"a missing unit with a number behind it", "((1mV+1)5)", kUncorrelated, Mv, "invalid input",
         Mv, kVoltages},
    });
}

void VoltageCalculatorInputTest::errors()
{
    VoltageCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

DEZIMO_TEST_MAIN(QCoreApplication, VoltageCalculatorInputTest)

#include "tst_voltagecalculatorinput.moc"
