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
    void brackets();
    void cleaning_data();
    void cleaning();
    void prefixes_data();
    void prefixes();
    void errors_data();
    void errors();
};

namespace {

using namespace PowerUnit;

constexpr int kDefaultDigits = 3;

constexpr int kIncoherent = 0;
constexpr int kCoherent = 1;
constexpr int kNumeric = 2;

const char kPowers[] = "dBm mW W µW dBW";
const char kLinear[] = "mW W µW";
const char kRatio[] = "dB";
const char kPlain[] = "none";
/// A defect of the brackets leaves everything offered, as it is at first.
const char kUntouched[] = "dBm mW W µW dBW dB none";

} // namespace

void DbmCalculatorInputTest::brackets_data()
{
    addCalculatorCases({
        {"a lone level in a group", "(10dBm)", kIncoherent, Dbm, "10.00", Dbm, kPowers},
        {"a lone ratio in a group", "(10dB)", kIncoherent, Dbm, "10.00", Db, kRatio},
        {"a lone plain number in a group", "(10)", kIncoherent, Dbm, "10", None, kPlain},
        {"a lone power in W: 10 lg 10000", "(10W)", kIncoherent, Dbm, "40.00", Dbm, kPowers},
        {"a lone power in W, in mW", "(10W)", kIncoherent, Mw, "1E+04", Mw, kPowers},
        {"a lone power in W, in dBW: 10 lg 10", "(10W)", kIncoherent, Dbw, "10.00", Dbw, kPowers},
        {"a lone power in W cannot be in dB: mW", "(10W)", kIncoherent, Db, "1E+04", Mw, kPowers},
        {"a lone power in W has a unit: mW", "(10W)", kIncoherent, None, "1E+04", Mw, kPowers},
        {"a lone level in dBW: 10 + 30", "(10dBW)", kIncoherent, Dbm, "40.00", Dbm, kPowers},
        {"a lone dBW in W: 10^(10/10)", "(10dBW)", kIncoherent, W, "10", W, kPowers},
        {"a lone dBW in mW: 10^(40/10)", "(10dBW)", kIncoherent, Mw, "1E+04", Mw, kPowers},
        {"a lone dBW in µW: 10^(40/10) x 1000", "(10dBW)", kIncoherent, Uw, "1E+07", Uw, kPowers},
        {"a lone dBW in dBW", "(10dBW)", kIncoherent, Dbw, "10.00", Dbw, kPowers},
        {"a lone dBW cannot be in dB: dBm", "(10dBW)", kIncoherent, Db, "40.00", Dbm, kPowers},
        {"a lone dBW has a unit: dBm", "(10dBW)", kIncoherent, None, "40.00", Dbm, kPowers},
        {"a lone power in µW, in dBm: 10 lg 0.005", "(5µW)", kIncoherent, Dbm, "-23.01", Dbm,
         kPowers},
        {"a lone power in µW, in dBW: -23.01 - 30", "(5µW)", kIncoherent, Dbw, "-53.01", Dbw,
         kPowers},
        {"a lone power in µW: 0.005 mW", "(5µW)", kIncoherent, Mw, "0.005", Mw, kPowers},
        {"a lone power in mW", "(10mW)", kIncoherent, Dbm, "10.00", Dbm, kPowers},
        {"a lone power of zero has no level", "(0W)", kIncoherent, Dbw, "0", Mw, kLinear},
        {"a lone negative power has no level", "(-5µW)", kIncoherent, Dbm, "-0.005", Mw, kLinear},
        {"a lone prefixed power: 5 kW", "(5kW)", kIncoherent, W, "5E+03", W, kPowers},
        {"a lone level with a sign", "(-3dBm)", kIncoherent, Dbm, "-3.00", Dbm, kPowers},
        {"a lone level with a plus sign", "(+3dBm)", kIncoherent, Dbm, "3.00", Dbm, kPowers},
        {"two brackets around a lone value", "((10dBm))", kIncoherent, Dbm, "10.00", Dbm, kPowers},
        {"three kinds of brackets around a lone level with a sign", "{[(-3dBm)]}", kIncoherent, Dbm,
         "-3.00", Dbm, kPowers},
        {"a lone value that is no number", "(abc)", kIncoherent, Dbm, "invalid input", Dbm,
         kPowers},
        {"a lone voltage", "(1V)", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"a lone unit", "(dBm)", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"an exponent's sign counts as an operator: no lone value", "(1e-3mW)", kIncoherent, Mw,
         "invalid input", Mw, kPowers},
        {"an exponent without a sign is a lone value", "(1e3mW)", kIncoherent, W, "1", W, kPowers},
        {"a sum in a group around all", "(1mW+2mW)", kNumeric, Mw, "3", Mw, kPowers},
        {"a sum in three groups around all", "(((1mW+2mW)))", kNumeric, Mw, "3", Mw, kPowers},
        {"a negative power from a group around a group", "((1mW-3mW))", kNumeric, Mw, "-2", Mw,
         kLinear},
        {"a small power from a group is no value for the next", "((1e-5mW+1e-5mW))", kNumeric, Mw,
         "invalid input", Mw, kPowers},
        {"the example of a level, a gain and a group: 20 mW - 3 mW, 12.30 dBm",
         "10dBm+3.0103dB-(2mW+1mW)", kNumeric, Dbm, "12.30", Dbm, kPowers},
        {"a group at the left: (10 - 4) - 1", "(10mW-4mW)-1mW", kNumeric, Mw, "5", Mw, kPowers},
        {"a group at the right: 10 - (4 - 1)", "10mW-(4mW-1mW)", kNumeric, Mw, "7", Mw, kPowers},
        {"groups at both sides: (1 + 2) - (3 + 4)", "(1mW+2mW)-(3mW+4mW)", kNumeric, Mw, "-4", Mw,
         kLinear},
        {"nested groups: 10 - (5 - (3 - 1))", "10mW-(5mW-(3mW-1mW))", kNumeric, Mw, "7", Mw,
         kPowers},
        {"a negative group after an operator: 5 + (1 - 3)", "5mW+(1mW-3mW)", kNumeric, Mw, "3", Mw,
         kPowers},
        {"a negative group after a minus: 5 - (1 - 3)", "5mW-(1mW-3mW)", kNumeric, Mw, "7", Mw,
         kPowers},
        {"a signed value in a group: 10 + (-3)", "10dBm+(-3dB)", kNumeric, Dbm, "7.00", Dbm,
         kPowers},
        {"a signed chain in a group: (-10 + 3) + 1", "(-10dBm+3dB)+1dB", kNumeric, Dbm, "-6.00",
         Dbm, kPowers},
        {"square brackets", "[1mW+2mW]-1mW", kNumeric, Mw, "2", Mw, kPowers},
        {"curly brackets", "{1mW+2mW}-1mW", kNumeric, Mw, "2", Mw, kPowers},
        {"brackets of different kinds pair", "[1mW+2mW}-1mW", kNumeric, Mw, "2", Mw, kPowers},
        {"a number in front of a group joins its text: 22 mW", "2(1mW+1mW)-2mW", kNumeric, Mw, "20",
         Mw, kPowers},
        {"a number in front of a group alone is no expression", "2(1mW+1mW)", kNumeric, Mw,
         "invalid input", Mw, kPowers},
        {"a unit behind a group of plain numbers: 5 mW + 1 mW", "(2+3)mW+1mW", kNumeric, Mw, "6",
         Mw, kPowers},
        {"a group of a number and a unit behind it: 5 mW + 1 mW", "(5)mW+1mW", kNumeric, Mw, "6",
         Mw, kPowers},
        {"a negative group behind a number reads as a difference: 5 - 2", "5mW(1mW-3mW)", kNumeric,
         Mw, "3", Mw, kPowers},
        {"two groups next to each other join: 23 + 1", "(2)(3)+1", kNumeric, None, "24", None,
         kPlain},
        {"a group with a large value keeps its exponent: 1E+12 + 1E+12", "(1e12W+1W)+1e12W",
         kNumeric, W, "2E+12", W, kPowers},
        {"a group of ratios stays a ratio: 10 + (3 + 2)", "10dBm+(3dB+2dB)", kIncoherent, Dbm,
         "15.00", Dbm, kPowers},
        {"brackets inside a number: 12 + 1", "1(2)+1", kNumeric, None, "13", None, kPlain},
    });
}

void DbmCalculatorInputTest::brackets()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorInputTest::cleaning_data()
{
    addCalculatorCases({
        {"blanks are ignored", " 3 dBm + 3 dB ", kNumeric, Dbm, "6.00", Dbm, kPowers},
        {"line feeds are ignored", "3dBm\n+3dB\n", kNumeric, Dbm, "6.00", Dbm, kPowers},
        {"tabs and carriage returns are ignored", "3dBm\t+\r3dB", kNumeric, Dbm, "6.00", Dbm,
         kPowers},
        {"no-break spaces are ignored", "3\u00A0dBm+3\u00A0dB", kNumeric, Dbm, "6.00", Dbm,
         kPowers},
        {"narrow no-break and thin spaces are ignored", "3\u202FdBm+3\u2009dB", kNumeric, Dbm,
         "6.00", Dbm, kPowers},
        {"a blank within a number is ignored: 10 + 3", "1 0dBm+3dB", kNumeric, Dbm, "13.00", Dbm,
         kPowers},
        {"a blank within a unit is ignored", "10d Bm+3dB", kNumeric, Dbm, "13.00", Dbm, kPowers},
        {"a decimal comma", "1,5dBm+1dB", kNumeric, Dbm, "2.50", Dbm, kPowers},
        {"two decimal commas in two numbers", "1,5dBm+1,25dB", kNumeric, Dbm, "2.75", Dbm, kPowers},
        {"the minus sign is a minus", "10dBm\u22123dB", kNumeric, Dbm, "7.00", Dbm, kPowers},
        {"the minus sign is a sign", "\u221210dBm+3dB", kNumeric, Dbm, "-7.00", Dbm, kPowers},
        {"the Greek mu is micro", "1\u03BCW+1\u03BCW", kNumeric, Uw, "2", Uw, kPowers},
        {"a no-break space only is an empty text", "\u00A0", kNumeric, Dbm, "invalid input", Dbm,
         kPowers},
        {"an exponent with a minus: 0.1 + 1", "1e-1mW+1mW", kNumeric, Mw, "1.1", Mw, kPowers},
        {"a capital exponent with a minus: 0.1 + 1", "1E-1mW+1mW", kNumeric, Mw, "1.1", Mw,
         kPowers},
        {"an exponent with a plus: 1000 + 1", "1e+3mW+1W", kNumeric, W, "2", W, kPowers},
        {"an exponent without a sign: 100 + 1", "1e2mW+1mW", kNumeric, Mw, "101", Mw, kPowers},
        {"an exponent in a plain number: 0.05 + 0.01", "5e-2+1e-2", kNumeric, None, "0.06", None,
         kPlain},
        {"a sign after an operator: 10 + -3", "10dBm+-3dB", kNumeric, Dbm, "7.00", Dbm, kPowers},
        {"a minus after a minus: 10 - -3", "10dBm--3dB", kNumeric, Dbm, "13.00", Dbm, kPowers},
        {"a plus after a minus: 10 - +3", "10dBm-+3dB", kNumeric, Dbm, "7.00", Dbm, kPowers},
        {"a plus sign at the start", "+10dBm+3dB", kNumeric, Dbm, "13.00", Dbm, kPowers},
        {"a minus sign at the start", "-10dBm+3dB", kIncoherent, Dbm, "-7.00", Dbm, kPowers},
        {"a point without a leading digit: .5 + .25", ".5mW+.25mW", kNumeric, Mw, "0.75", Mw,
         kPowers},
        {"a point without a following digit: 1 + 2", "1.mW+2.mW", kNumeric, Mw, "3", Mw, kPowers},
    });
}

void DbmCalculatorInputTest::cleaning()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorInputTest::prefixes_data()
{
    addCalculatorCases({
        {"k: 5 kW + 1 kW", "5kW+1kW", kNumeric, W, "6E+03", W, kPowers},
        {"M is not m: 2 MW + 1 MW", "2MW+1MW", kNumeric, W, "3E+06", W, kPowers},
        {"m in front of a W is mW", "2mW+1mW", kNumeric, W, "0.003", W, kPowers},
        {"u is micro: 470 uW + 30 uW", "470uW+30uW", kNumeric, Uw, "500", Uw, kPowers},
        {"n: 5 nW + 5 nW = 1E-05 mW", "5nW+5nW", kNumeric, Mw, "1E-05", Mw, kPowers},
        {"p: 1 pW + 1 pW = 2E-06 µW", "1pW+1pW", kNumeric, Uw, "2E-06", Uw, kPowers},
        {"G: 1 GW + 1 GW", "1GW+1GW", kNumeric, W, "2E+09", W, kPowers},
        {"a prefix of a plain number: 5000 + 1", "5k+1", kNumeric, None, "5E+03", None, kPlain},
        {"m as a prefix of a plain number: 0.005 + 0.001", "5m+1m", kNumeric, None, "0.006", None,
         kPlain},
        {"a prefix of a level: 0.01 kdBm is 10 dBm", "0.01kdBm+3dB", kNumeric, Dbm, "13.00", Dbm,
         kPowers},
        {"a prefix before the unit mW: 1 k of mW", "1kmW+1W", kNumeric, W, "2", W, kPowers},
        {"two prefixes are no number", "1kMW+1W", kNumeric, W, "invalid input", W, kPowers},
        {"a prefix in the middle: 3k5 is 35 k", "3k5W+1kW", kNumeric, W, "3.6E+04", W, kPowers},
    });
}

void DbmCalculatorInputTest::prefixes()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorInputTest::errors_data()
{
    addCalculatorCases({
        {"an empty text", "", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"a lone level without brackets", "10dBm", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"a lone negative level without brackets", "-3dBm", kIncoherent, Dbm, "invalid input", Dbm,
         kPowers},
        {"a lone plain number, with W chosen", "5", kIncoherent, W, "invalid input", W, kPowers},
        {"a lone ratio, with dB chosen", "5dB", kIncoherent, Db, "invalid input", Db, kRatio},
        {"a lone plain number, with no unit chosen", "5", kIncoherent, None, "invalid input", None,
         kPlain},
        {"a lone operator", "+", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"two operators", "+-", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"an operator without a second operand", "10dBm+", kIncoherent, Dbm, "invalid input", Dbm,
         kPowers},
        {"an operator and a sign without an operand", "10dBm+-", kIncoherent, Dbm, "invalid input",
         Dbm, kPowers},
        {"a word", "abc", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"a word as the first operand", "abc+1mW", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"a word as the second operand", "1mW+abc", kIncoherent, Dbm, "invalid input", Dbm,
         kPowers},
        {"a unit without a number", "dBm+1dB", kIncoherent, Dbm, "invalid input", Dbm, kPowers},
        {"two signs are no number: 10 - --3", "10dBm---3dB", kNumeric, Dbm, "invalid input", Dbm,
         kPowers},
        {"two points are no number", "1.2.3mW+1mW", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a decimal comma and a point are no number", "1,2.3mW+1mW", kNumeric, Dbm, "invalid input",
         Dbm, kPowers},
        {"an exponent without digits", "1e+mW+1mW", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a voltage first", "1V+1mW", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a voltage second", "1mW+1V", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a voltage with a plain number", "1V+1", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a unit missing on the left", "1+1mW", kNumeric, Dbm, "unit missing", Dbm, kPowers},
        {"a unit missing on the right", "1mW+1", kNumeric, Dbm, "unit missing", Dbm, kPowers},
        {"a unit missing in a difference", "1dBm-1", kCoherent, Dbw, "unit missing", Dbw, kPowers},
        {"a unit missing, in the incoherent mode", "1mW+1", kIncoherent, Dbm, "unit missing", Dbm,
         kPowers},
        {"a unit missing, with dB chosen", "1mW+1", kNumeric, Db, "unit missing", Db, kRatio},
        {"a unit missing, with no unit chosen", "1mW+1", kNumeric, None, "unit missing", None,
         kPlain},
        {"a failed step ends the evaluation", "1mW+1+1mW", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"a failed step ends it before a word", "1mW+1+abc", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"a word ends it before a missing unit", "abc+1mW+1", kNumeric, Dbm, "invalid input", Dbm,
         kPowers},
        {"a number that does not parse goes before a missing unit", "1mW+abc+1", kNumeric, Dbm,
         "invalid input", Dbm, kPowers},
        {"a word with a unit missing too", "1mW+x", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a unit missing after a plain sum", "1+1+1mW", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"an opening bracket is missing", "1dBm)+(1dB))", kIncoherent, Db, "bracket missing", Db,
         kUntouched},
        {"a closing bracket is missing", "(1dBm", kIncoherent, Dbm, "bracket missing", Dbm,
         kUntouched},
        {"a closing bracket is missing, with W chosen", "((1mW+1mW)", kIncoherent, W,
         "bracket missing", W, kUntouched},
        {"brackets are counted before anything is read", "abc(()", kIncoherent, None,
         "bracket missing", None, kUntouched},
        {"a closing bracket only is evaluated as it is", "1mW+1mW)", kNumeric, Dbm, "invalid input",
         Dbm, kPowers},
        {"a closing bracket only, behind a missing unit", "1mW+1+1mW)", kNumeric, Dbm,
         "unit missing", Dbm, kPowers},
        {"an empty group", "1dBm+()", kIncoherent, Dbm, "invalid input", Dbm, kUntouched},
        {"an empty group around all", "()", kIncoherent, W, "invalid input", W, kUntouched},
        {"an empty group of blanks", "( )", kIncoherent, Db, "invalid input", Db, kUntouched},
        {"an empty group in a group", "(())", kIncoherent, None, "invalid input", None, kUntouched},
        {"an empty group at the right goes before a failing one", "(1+x)+()", kIncoherent, Dbm,
         "invalid input", Dbm, kUntouched},
        {"a failing group at the right goes before an empty one", "()+(1+x)", kIncoherent, Dbm,
         "invalid input", Dbm, kPowers},
        {"brackets that do not pair", ")1mW+1mW(", kIncoherent, Dbm, "invalid input", Dbm,
         kUntouched},
        {"brackets that do not pair, with dBW chosen", "1mW)+(1mW", kIncoherent, Dbw,
         "invalid input", Dbw, kUntouched},
        {"a group that is invalid", "(1mW+x)", kNumeric, Dbm, "invalid input", Dbm, kPowers},
        {"a group that is invalid in a sum", "2mW+(1mW+x)", kNumeric, Dbm, "invalid input", Dbm,
         kPowers},
        {"a step that failed before an invalid group", "1mW+1+(1mW+x)", kNumeric, Dbm,
         "unit missing", Dbm, kPowers},
        {"an invalid group leaves the groups to its left as text", "(1mW+1mW)+1+(1+x)", kNumeric,
         Dbm, "invalid input", Dbm, kPowers},
        {"a group with a missing unit in a sum", "2mW+(1mW+1)", kNumeric, Dbm, "invalid input", Dbm,
         kPowers},
        {"a step that failed before a group with a missing unit", "1mW+1+(1mW+1)", kNumeric, Dbm,
         "unit missing", Dbm, kPowers},
        {"a group with a missing unit around all", "(1mW+1)", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"a missing unit handed on by a group", "((1mW+1))", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"a missing unit with a number behind it", "((1mW+1)5)", kNumeric, Dbm, "invalid input",
         Dbm, kPowers},
        {"a missing unit, with dB chosen, in a group", "(1mW+1)", kNumeric, Db, "unit missing", Db,
         kRatio},
        {"a sum after a difference in a group", "(5mW-3mW+1mW)", kIncoherent, Mw, "invalid input",
         Mw, kPowers},
        {"the texts of errors are no input", "unit missing+1mW", kNumeric, Dbm, "invalid input",
         Dbm, kPowers},
    });
}

void DbmCalculatorInputTest::errors()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

DEZIMO_TEST_MAIN(QCoreApplication, DbmCalculatorInputTest)

#include "tst_dbmcalculatorinput.moc"
