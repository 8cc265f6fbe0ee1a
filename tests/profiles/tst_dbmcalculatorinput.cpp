// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "dbmcalculatorprofile.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class DbmCalculatorInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brackets_data();
    void brackets() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void cleaning_data();
    void cleaning() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void prefixes_data();
    void prefixes() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void errors_data();
    void errors() { checkCalculatorCase<DbmCalculatorProfile>(); }
};

namespace {

using namespace PowerUnit;

constexpr int kIncoherent = 0;
constexpr int kCoherent = 1;
constexpr int kNumeric = 2;

const char kLinear[] = "mW W µW";
/// An error in the brackets keeps all units on offer, as they are at first.
const char kAll[] = "dBm mW W µW dBW dB none";

} // namespace

void DbmCalculatorInputTest::brackets_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows numeric(kNumeric);

    incoherent("a lone level in a group", "(10dBm)", "10.00 dBm");
    incoherent("a lone ratio in a group", "(10dB)", "10.00 dB", Dbm);
    incoherent("a lone plain number in a group", "(10)", "10", Dbm);
    incoherent("a lone power in W: 10 lg 10000", "(10W)", "40.00 dBm");
    incoherent("a lone power in W, in mW", "(10W)", "1E+04 mW");
    incoherent("a lone power in W, in dBW: 10 lg 10", "(10W)", "10.00 dBW");
    incoherent("a lone power in W cannot be in dB: mW", "(10W)", "1E+04 mW", Db);
    incoherent("a lone power in W has a unit: mW", "(10W)", "1E+04 mW", None);
    incoherent("a lone level in dBW: 10 + 30", "(10dBW)", "40.00 dBm");
    incoherent("a lone dBW in W: 10^(10/10)", "(10dBW)", "10 W");
    incoherent("a lone dBW in mW: 10^(40/10)", "(10dBW)", "1E+04 mW");
    incoherent("a lone dBW in µW: 10^(40/10) x 1000", "(10dBW)", "1E+07 µW");
    incoherent("a lone dBW in dBW", "(10dBW)", "10.00 dBW");
    incoherent("a lone dBW cannot be in dB: dBm", "(10dBW)", "40.00 dBm", Db);
    incoherent("a lone dBW has a unit: dBm", "(10dBW)", "40.00 dBm", None);
    incoherent("a lone power in µW, in dBm: 10 lg 0.005", "(5µW)", "-23.01 dBm");
    incoherent("a lone power in µW, in dBW: -23.01 - 30", "(5µW)", "-53.01 dBW");
    incoherent("a lone power in µW: 0.005 mW", "(5µW)", "0.005 mW");
    incoherent("a lone power in mW", "(10mW)", "10.00 dBm");
    incoherent("a lone power of zero has no level", "(0W)", "0 mW", Dbw, kLinear);
    incoherent("a lone negative power has no level", "(-5µW)", "-0.005 mW", Dbm, kLinear);
    incoherent("a lone prefixed power: 5 kW", "(5kW)", "5E+03 W");
    incoherent("a lone level with a sign", "(-3dBm)", "-3.00 dBm");
    incoherent("a lone level with a plus sign", "(+3dBm)", "3.00 dBm");
    incoherent("two brackets around a lone value", "((10dBm))", "10.00 dBm");
    incoherent("three kinds of brackets around a lone level with a sign", "{[(-3dBm)]}",
               "-3.00 dBm");
    incoherent("a lone value that is no number", "(abc)", "invalid input dBm");
    incoherent("a lone voltage", "(1V)", "invalid input dBm");
    incoherent("a lone unit", "(dBm)", "invalid input dBm");
    incoherent("an exponent's sign counts as an operator: no lone value", "(1e-3mW)",
               "invalid input mW");
    incoherent("an exponent without a sign is a lone value", "(1e3mW)", "1 W");
    numeric("a sum in a group around all", "(1mW+2mW)", "3 mW");
    numeric("a sum in three groups around all", "(((1mW+2mW)))", "3 mW");
    numeric("a negative power from a group around a group", "((1mW-3mW))", "-2 mW", kLinear);
    numeric("a small power from a group is no value for the next", "((1e-5mW+1e-5mW))",
            "invalid input mW");
    numeric("the example of a level, a gain and a group: 20 mW - 3 mW, 12.30 dBm",
            "10dBm+3.0103dB-(2mW+1mW)", "12.30 dBm");
    numeric("a group at the left: (10 - 4) - 1", "(10mW-4mW)-1mW", "5 mW");
    numeric("a group at the right: 10 - (4 - 1)", "10mW-(4mW-1mW)", "7 mW");
    numeric("groups at both sides: (1 + 2) - (3 + 4)", "(1mW+2mW)-(3mW+4mW)", "-4 mW", kLinear);
    numeric("nested groups: 10 - (5 - (3 - 1))", "10mW-(5mW-(3mW-1mW))", "7 mW");
    numeric("a negative group after an operator: 5 + (1 - 3)", "5mW+(1mW-3mW)", "3 mW");
    numeric("a negative group after a minus: 5 - (1 - 3)", "5mW-(1mW-3mW)", "7 mW");
    numeric("a signed value in a group: 10 + (-3)", "10dBm+(-3dB)", "7.00 dBm");
    numeric("a signed chain in a group: (-10 + 3) + 1", "(-10dBm+3dB)+1dB", "-6.00 dBm");
    numeric("square brackets", "[1mW+2mW]-1mW", "2 mW");
    numeric("curly brackets", "{1mW+2mW}-1mW", "2 mW");
    numeric("brackets of different kinds pair", "[1mW+2mW}-1mW", "2 mW");
    numeric("a number in front of a group joins its text: 22 mW", "2(1mW+1mW)-2mW", "20 mW");
    numeric("a number in front of a group alone is no expression", "2(1mW+1mW)",
            "invalid input mW");
    numeric("a unit behind a group of plain numbers: 5 mW + 1 mW", "(2+3)mW+1mW", "6 mW");
    numeric("a group of a number and a unit behind it: 5 mW + 1 mW", "(5)mW+1mW", "6 mW");
    numeric("a negative group behind a number reads as a difference: 5 - 2", "5mW(1mW-3mW)",
            "3 mW");
    numeric("two groups next to each other join: 23 + 1", "(2)(3)+1", "24");
    numeric("a group with a large value keeps its exponent: 1E+12 + 1E+12", "(1e12W+1W)+1e12W",
            "2E+12 W");
    incoherent("a group of ratios stays a ratio: 10 + (3 + 2)", "10dBm+(3dB+2dB)", "15.00 dBm");
    numeric("brackets inside a number: 12 + 1", "1(2)+1", "13");
}

void DbmCalculatorInputTest::cleaning_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows numeric(kNumeric);

    numeric("blanks are ignored", " 3 dBm + 3 dB ", "6.00 dBm");
    numeric("line feeds are ignored", "3dBm\n+3dB\n", "6.00 dBm");
    numeric("tabs and carriage returns are ignored", "3dBm\t+\r3dB", "6.00 dBm");
    numeric("no-break spaces are ignored", "3\u00A0dBm+3\u00A0dB", "6.00 dBm");
    numeric("narrow no-break and thin spaces are ignored", "3\u202FdBm+3\u2009dB", "6.00 dBm");
    numeric("a blank within a number is ignored: 10 + 3", "1 0dBm+3dB", "13.00 dBm");
    numeric("a blank within a unit is ignored", "10d Bm+3dB", "13.00 dBm");
    numeric("a decimal comma", "1,5dBm+1dB", "2.50 dBm");
    numeric("two decimal commas in two numbers", "1,5dBm+1,25dB", "2.75 dBm");
    numeric("the minus sign is a minus", "10dBm\u22123dB", "7.00 dBm");
    numeric("the minus sign is a sign", "\u221210dBm+3dB", "-7.00 dBm");
    numeric("the Greek mu is micro", "1\u03BCW+1\u03BCW", "2 µW");
    numeric("a no-break space only is an empty text", "\u00A0", "invalid input dBm");
    numeric("an exponent with a minus: 0.1 + 1", "1e-1mW+1mW", "1.1 mW");
    numeric("a capital exponent with a minus: 0.1 + 1", "1E-1mW+1mW", "1.1 mW");
    numeric("an exponent with a plus: 1000 + 1", "1e+3mW+1W", "2 W");
    numeric("an exponent without a sign: 100 + 1", "1e2mW+1mW", "101 mW");
    numeric("an exponent in a plain number: 0.05 + 0.01", "5e-2+1e-2", "0.06");
    numeric("a sign after an operator: 10 + -3", "10dBm+-3dB", "7.00 dBm");
    numeric("a minus after a minus: 10 - -3", "10dBm--3dB", "13.00 dBm");
    numeric("a plus after a minus: 10 - +3", "10dBm-+3dB", "7.00 dBm");
    numeric("a plus sign at the start", "+10dBm+3dB", "13.00 dBm");
    incoherent("a minus sign at the start", "-10dBm+3dB", "-7.00 dBm");
    numeric("a point without a leading digit: .5 + .25", ".5mW+.25mW", "0.75 mW");
    numeric("a point without a following digit: 1 + 2", "1.mW+2.mW", "3 mW");
}

void DbmCalculatorInputTest::prefixes_data()
{
    addCalculatorColumns();
    const CalculatorRows row(kNumeric);

    row("k: 5 kW + 1 kW", "5kW+1kW", "6E+03 W");
    row("M is not m: 2 MW + 1 MW", "2MW+1MW", "3E+06 W");
    row("m in front of a W is mW", "2mW+1mW", "0.003 W");
    row("u is micro: 470 uW + 30 uW", "470uW+30uW", "500 µW");
    row("n: 5 nW + 5 nW = 1E-05 mW", "5nW+5nW", "1E-05 mW");
    row("p: 1 pW + 1 pW = 2E-06 µW", "1pW+1pW", "2E-06 µW");
    row("G: 1 GW + 1 GW", "1GW+1GW", "2E+09 W");
    row("a prefix of a plain number: 5000 + 1", "5k+1", "5E+03");
    row("m as a prefix of a plain number: 0.005 + 0.001", "5m+1m", "0.006");
    row("a prefix of a level: 0.01 kdBm is 10 dBm", "0.01kdBm+3dB", "13.00 dBm");
    row("a prefix before the unit mW: 1 k of mW", "1kmW+1W", "2 W");
    row("two prefixes are no number", "1kMW+1W", "invalid input W");
    row("a prefix in the middle: 3k5 is 35 k", "3k5W+1kW", "3.6E+04 W");
}

void DbmCalculatorInputTest::errors_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows coherent(kCoherent);
    const CalculatorRows numeric(kNumeric);

    incoherent("an empty text", "", "invalid input dBm");
    incoherent("a lone level without brackets", "10dBm", "invalid input dBm");
    incoherent("a lone negative level without brackets", "-3dBm", "invalid input dBm");
    incoherent("a lone plain number, with W chosen", "5", "invalid input W");
    incoherent("a lone ratio, with dB chosen", "5dB", "invalid input dB");
    incoherent("a lone plain number, with no unit chosen", "5", "invalid input");
    incoherent("a lone operator", "+", "invalid input dBm");
    incoherent("two operators", "+-", "invalid input dBm");
    incoherent("an operator without a second operand", "10dBm+", "invalid input dBm");
    incoherent("an operator and a sign without an operand", "10dBm+-", "invalid input dBm");
    incoherent("a word", "abc", "invalid input dBm");
    incoherent("a word as the first operand", "abc+1mW", "invalid input dBm");
    incoherent("a word as the second operand", "1mW+abc", "invalid input dBm");
    incoherent("a unit without a number", "dBm+1dB", "invalid input dBm");
    numeric("two signs are no number: 10 - --3", "10dBm---3dB", "invalid input dBm");
    numeric("two points are no number", "1.2.3mW+1mW", "invalid input dBm");
    numeric("a decimal comma and a point are no number", "1,2.3mW+1mW", "invalid input dBm");
    numeric("an exponent without digits", "1e+mW+1mW", "invalid input dBm");
    numeric("a voltage first", "1V+1mW", "invalid input dBm");
    numeric("a voltage second", "1mW+1V", "invalid input dBm");
    numeric("a voltage with a plain number", "1V+1", "invalid input dBm");
    numeric("a unit missing on the left", "1+1mW", "unit missing dBm");
    numeric("a unit missing on the right", "1mW+1", "unit missing dBm");
    coherent("a unit missing in a difference", "1dBm-1", "unit missing dBW");
    incoherent("a unit missing, in the incoherent mode", "1mW+1", "unit missing dBm");
    numeric("a unit missing, with dB chosen", "1mW+1", "unit missing dB");
    numeric("a unit missing, with no unit chosen", "1mW+1", "unit missing");
    numeric("a failed step ends the evaluation", "1mW+1+1mW", "unit missing dBm");
    numeric("a failed step ends it before a word", "1mW+1+abc", "unit missing dBm");
    numeric("a word ends it before a missing unit", "abc+1mW+1", "invalid input dBm");
    numeric("a number that does not parse goes before a missing unit", "1mW+abc+1",
            "invalid input dBm");
    numeric("a word with a unit missing too", "1mW+x", "invalid input dBm");
    numeric("a unit missing after a plain sum", "1+1+1mW", "unit missing dBm");
    incoherent("an opening bracket is missing", "1dBm)+(1dB))", "bracket missing dB", kAll);
    incoherent("a closing bracket is missing", "(1dBm", "bracket missing dBm", kAll);
    incoherent("a closing bracket is missing, with W chosen", "((1mW+1mW)", "bracket missing W",
               kAll);
    incoherent("brackets are counted before anything is read", "abc(()", "bracket missing", kAll);
    numeric("a closing bracket only is evaluated as it is", "1mW+1mW)", "invalid input dBm");
    numeric("a closing bracket only, behind a missing unit", "1mW+1+1mW)", "unit missing dBm");
    incoherent("an empty group", "1dBm+()", "invalid input dBm", kAll);
    incoherent("an empty group around all", "()", "invalid input W", kAll);
    incoherent("an empty group of blanks", "( )", "invalid input dB", kAll);
    incoherent("an empty group in a group", "(())", "invalid input", kAll);
    incoherent("an empty group at the right goes before a failing one", "(1+x)+()",
               "invalid input dBm", kAll);
    incoherent("a failing group at the right goes before an empty one", "()+(1+x)",
               "invalid input dBm");
    incoherent("brackets that do not pair", ")1mW+1mW(", "invalid input dBm", kAll);
    incoherent("brackets that do not pair, with dBW chosen", "1mW)+(1mW", "invalid input dBW",
               kAll);
    numeric("a group that is invalid", "(1mW+x)", "invalid input dBm");
    numeric("a group that is invalid in a sum", "2mW+(1mW+x)", "invalid input dBm");
    numeric("a step that failed before an invalid group", "1mW+1+(1mW+x)", "unit missing dBm");
    numeric("an invalid group leaves the groups to its left as text", "(1mW+1mW)+1+(1+x)",
            "invalid input dBm");
    numeric("a group with a missing unit in a sum", "2mW+(1mW+1)", "invalid input dBm");
    numeric("a step that failed before a group with a missing unit", "1mW+1+(1mW+1)",
            "unit missing dBm");
    numeric("a group with a missing unit around all", "(1mW+1)", "unit missing dBm");
    numeric("a missing unit handed on by a group", "((1mW+1))", "unit missing dBm");
    numeric("a missing unit with a number behind it", "((1mW+1)5)", "invalid input dBm");
    numeric("a missing unit, with dB chosen, in a group", "(1mW+1)", "unit missing dB");
    incoherent("a sum after a difference in a group", "(5mW-3mW+1mW)", "invalid input mW");
    numeric("the texts of errors are no input", "unit missing+1mW", "invalid input dBm");
}

DEZIMO_TEST_MAIN(QCoreApplication, DbmCalculatorInputTest)

#include "tst_dbmcalculatorinput.moc"
