// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "dbmcalculatorprofile.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class DbmCalculatorProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void powers_data();
    void powers();
    void incoherent_data();
    void incoherent();
    void ratios_data();
    void ratios();
    void units_data();
    void units();
    void zeroDigits_data();
    void zeroDigits();
    void tenDigits_data();
    void tenDigits();
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

} // namespace

void DbmCalculatorProfileTest::powers_data()
{
    addCalculatorCases({
        {"two equal incoherent powers: the mean (10+10)/2 = 10 mW", "10dBm+10dBm", kIncoherent, Dbm,
         "10.00", Dbm, kPowers},
        {"two equal coherent powers: 10+10 = 20 mW", "10dBm+10dBm", kCoherent, Dbm, "13.01", Dbm,
         kPowers},
        {"two equal powers numerically: 20 mW", "10dBm+10dBm", kNumeric, Dbm, "13.01", Dbm,
         kPowers},
        {"1 mW + 1 mW = 2 mW, 3.01 dBm", "1mW+1mW", kNumeric, Dbm, "3.01", Dbm, kPowers},
        {"2 mW + 3 mW in mW", "2mW+3mW", kNumeric, Mw, "5", Mw, kPowers},
        {"dBm and mW: 10 mW + 10 mW", "10dBm+10mW", kCoherent, Mw, "20", Mw, kPowers},
        {"mW and dBm: 1 mW + 1 mW", "1mW+0dBm", kNumeric, Mw, "2", Mw, kPowers},
        {"W and mW: 1000 mW + 500 mW", "1W+500mW", kNumeric, Mw, "1.5E+03", Mw, kPowers},
        {"µW and mW: 0.5 mW + 1 mW", "500µW+1mW", kNumeric, Mw, "1.5", Mw, kPowers},
        {"µW and µW: 2 µW + 3 µW = 0.005 mW", "2µW+3µW", kNumeric, Mw, "0.005", Mw, kPowers},
        {"W and W: 5000 mW", "2W+3W", kNumeric, Mw, "5E+03", Mw, kPowers},
        {"dBW and dBW: 1 W + 1 W = 2 W, 33.01 dBm", "0dBW+0dBW", kNumeric, Dbm, "33.01", Dbm,
         kPowers},
        {"dBW and dBm: 1 W + 1 W", "0dBW+30dBm", kNumeric, W, "2", W, kPowers},
        {"dBW and W: 1 W + 1 W", "0dBW+1W", kNumeric, W, "2", W, kPowers},
        {"dBW and µW: 1 µW + 1 µW", "-60dBW+1µW", kNumeric, Uw, "2", Uw, kPowers},
        {"two levels without a ratio give mW: 10 + 1", "10dBm+0dBm", kNumeric, Mw, "11", Mw,
         kPowers},
        {"5 mW - 3 mW", "5mW-3mW", kNumeric, Mw, "2", Mw, kPowers},
        {"a difference of levels: 100 mW - 10 mW", "20dBm-10dBm", kNumeric, Mw, "90", Mw, kPowers},
        {"a difference of W: 2 W - 500 mW", "2W-500mW", kNumeric, W, "1.5", W, kPowers},
        {"a difference in the coherent mode is plain", "5mW-3mW", kCoherent, Mw, "2", Mw, kPowers},
        {"left to right: (5 - 3) + 1", "5mW-3mW+1mW", kCoherent, Mw, "3", Mw, kPowers},
        {"left to right: ((1 + 2) - 3) + 4", "1mW+2mW-3mW+4mW", kNumeric, Mw, "4", Mw, kPowers},
        {"-30 dBm + -30 dBm = 2 µW", "-30dBm+-30dBm", kNumeric, Uw, "2", Uw, kPowers},
        {"four powers of 0 dBm: 4 mW, 6.02 dBm", "0dBm+0dBm+0dBm+0dBm", kNumeric, Dbm, "6.02", Dbm,
         kPowers},
        {"a negative power is a number: -1 + 3", "-1mW+3mW", kNumeric, Mw, "2", Mw, kPowers},
    });
}

void DbmCalculatorProfileTest::powers()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorProfileTest::incoherent_data()
{
    addCalculatorCases({
        {"mean of two: (1 + 3)/2", "1mW+3mW", kIncoherent, Mw, "2", Mw, kPowers},
        {"mean of three: (1 + 2 + 6)/3", "1mW+2mW+6mW", kIncoherent, Mw, "3", Mw, kPowers},
        {"mean of four: (1 + 2 + 6 + 3)/4", "1mW+2mW+6mW+3mW", kIncoherent, Mw, "3", Mw, kPowers},
        {"mean of five equal ones is the same", "4mW+4mW+4mW+4mW+4mW", kIncoherent, Mw, "4", Mw,
         kPowers},
        {"mean of levels: (10 + 0.1)/2", "10dBm+-10dBm", kIncoherent, Mw, "5.05", Mw, kPowers},
        {"mean of mixed units: (1000 + 500)/2", "1W+500mW", kIncoherent, Mw, "750", Mw, kPowers},
        {"a difference is plain", "5mW-3mW", kIncoherent, Mw, "2", Mw, kPowers},
        {"two differences are plain", "9mW-3mW-1mW", kIncoherent, Mw, "5", Mw, kPowers},
        {"a difference of the mean: (1 + 3)/2 - 1", "1mW+3mW-1mW", kIncoherent, Mw, "1", Mw,
         kPowers},
        {"a sum after a difference is refused", "5mW-3mW+1mW", kIncoherent, Mw, "invalid input", Mw,
         kPowers},
        {"a sum after a difference of the mean is refused", "1mW+3mW-1mW+1mW", kIncoherent, Mw,
         "invalid input", Mw, kPowers},
        {"a sum after a difference of levels is refused", "20dBm-10dBm+0dBm", kIncoherent, Dbm,
         "invalid input", Dbm, kPowers},
        {"a sum after a difference is refused behind a ratio", "5mW-3mW+1dB+1mW", kIncoherent, Dbm,
         "invalid input", Dbm, kPowers},
        {"a gain before the mean: 7 dBm + 3 dB = 10 mW, (10 + 10)/2", "7dBm+3dB+10mW", kIncoherent,
         Mw, "10", Mw, kPowers},
        {"a gain does not count as an input: the mean is over two", "10dBm-10dB+3mW", kIncoherent,
         Mw, "2", Mw, kPowers},
        {"a gain after the mean: 10 dBm + 3 dB", "10mW+10mW+3dB", kIncoherent, Dbm, "13.00", Dbm,
         kPowers},
        {"a loss after the mean: 10 dBm - 3 dB", "10mW+10mW-3dB", kIncoherent, Dbm, "7.00", Dbm,
         kPowers},
        {"a sum after a gain on the mean is refused", "10mW+10mW+3dB+1mW", kIncoherent, Mw,
         "invalid input", Mw, kPowers},
        {"a sum after a loss on the mean is refused", "10mW+10mW-3dB+1mW", kIncoherent, Mw,
         "invalid input", Mw, kPowers},
        {"a gain after a gain on the mean: 10 + 3 + 1", "10mW+10mW+3dB+1dB", kIncoherent, Dbm,
         "14.00", Dbm, kPowers},
        {"a difference after a gain on the mean: 100 mW - 1 mW", "10mW+10mW+10dB-1mW", kIncoherent,
         Mw, "99", Mw, kPowers},
        {"two gains before the mean: 10 dBm = 10 mW, (10 + 2)/2", "0dBm+3dB+7dB+2mW", kIncoherent,
         Mw, "6", Mw, kPowers},
        {"a ratio that a level is added to starts no mean: 3 dB + 7 dBm", "3dB+7dBm", kIncoherent,
         Dbm, "10.00", Dbm, kPowers},
        {"a gain after a loss is never refused: 10 - 3 + 2", "10dBm-3dB+2dB", kIncoherent, Dbm,
         "9.00", Dbm, kPowers},
        {"a gain after a difference of powers: 10 mW - 9 mW, + 2 dB", "10mW-9mW+2dB", kIncoherent,
         Dbm, "2.00", Dbm, kPowers},
        {"plain numbers have no mean: 1 + 3", "1+3", kIncoherent, Dbm, "4", None, kPlain},
        {"plain numbers may follow a difference: 5 - 3 + 2", "5-3+2", kIncoherent, Dbm, "4", None,
         kPlain},
        {"each group is an evaluation of its own: (5 - 3) + 4, the mean", "(5mW-3mW)+4mW",
         kIncoherent, Mw, "3", Mw, kPowers},
        {"a sum of groups: the mean of the means 2 and 6", "(1mW+3mW)+(5mW+7mW)", kIncoherent, Mw,
         "4", Mw, kPowers},
        {"the mean of a group counts once: ((1 + 3)/2 + 5)/2", "(1mW+3mW)+5mW", kIncoherent, Mw,
         "3.5", Mw, kPowers},
    });
}

void DbmCalculatorProfileTest::incoherent()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorProfileTest::ratios_data()
{
    addCalculatorCases({
        {"a receiver chain: -30 + 20 - 3", "-30dBm+20dB-3dB", kIncoherent, Dbm, "-13.00", Dbm,
         kPowers},
        {"the same chain in the coherent mode", "-30dBm+20dB-3dB", kCoherent, Dbm, "-13.00", Dbm,
         kPowers},
        {"a gain on a level: 10 + 3", "10dBm+3dB", kNumeric, Dbm, "13.00", Dbm, kPowers},
        {"a loss on a level: 10 - 3", "10dBm-3dB", kNumeric, Dbm, "7.00", Dbm, kPowers},
        {"a loss and a gain in the numeric mode: 10 - 3 + 2", "10dBm-3dB+2dB", kNumeric, Dbm,
         "9.00", Dbm, kPowers},
        {"a loss and a gain in the coherent mode: 10 - 3 + 2", "10dBm-3dB+2dB", kCoherent, Dbm,
         "9.00", Dbm, kPowers},
        {"a gain on dBW: 0 + 30 + 3 dBm", "0dBW+3dB", kNumeric, Dbm, "33.00", Dbm, kPowers},
        {"a gain on mW: 10 lg 100 + 3", "100mW+3dB", kNumeric, Dbm, "23.00", Dbm, kPowers},
        {"a gain on W: 10 lg 1000 + 3", "1W+3dB", kNumeric, Dbm, "33.00", Dbm, kPowers},
        {"a gain on µW: 10 lg 0.001 + 3", "1µW+3dB", kNumeric, Dbm, "-27.00", Dbm, kPowers},
        {"a ratio plus a level is a level: 3 + 10", "3dB+10dBm", kNumeric, Dbm, "13.00", Dbm,
         kPowers},
        {"a ratio minus a level is a level: 3 - 10", "3dB-10dBm", kNumeric, Dbm, "-7.00", Dbm,
         kPowers},
        {"a ratio plus mW is a level: 3 + 20", "3dB+100mW", kNumeric, Dbm, "23.00", Dbm, kPowers},
        {"a ratio minus dBW is a level: 3 - 30", "3dB-0dBW", kNumeric, Dbm, "-27.00", Dbm, kPowers},
        {"two ratios are a ratio, whatever unit was chosen: 3 + 3", "3dB+3dB", kIncoherent, Dbm,
         "6.00", Db, kRatio},
        {"a difference of ratios: 3 - 5", "3dB-5dB", kCoherent, W, "-2.00", Db, kRatio},
        {"a ratio stays a ratio where dB was chosen", "3dB+3dB", kNumeric, Db, "6.00", Db, kRatio},
        {"a ratio where no unit was chosen", "1dB+1dB", kNumeric, None, "2.00", Db, kRatio},
        {"a chain of ratios: 20 - 3 - 1.5", "20dB-3dB-1.5dB", kIncoherent, Dbw, "15.50", Db,
         kRatio},
        {"a chain that ends at a level: 20 - 3 + -30", "20dB-3dB+-30dBm", kIncoherent, Dbm,
         "-13.00", Dbm, kPowers},
        {"a gain, then a power: 0 dBm + 10 dB + 10 mW = 20 mW", "0dBm+10dB+10mW", kCoherent, Mw,
         "20", Mw, kPowers},
        {"a power without a level plus a ratio is no number", "-1mW+3dB", kNumeric, Dbm, "nan", Dbm,
         kPowers},
        {"zero power plus a ratio is minus infinity", "0mW+3dB", kNumeric, Dbm, "-inf", Dbm,
         kPowers},
        {"ratios have two decimals: 2.004", "1.004dB+1dB", kNumeric, Db, "2.00", Db, kRatio},
        {"a level with a unit missing in front of it", "3+3dB", kNumeric, Dbm, "unit missing", Dbm,
         kPowers},
        {"a ratio and a plain number", "3dB+3", kNumeric, Db, "unit missing", Db, kRatio},
    });
}

void DbmCalculatorProfileTest::ratios()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorProfileTest::units_data()
{
    addCalculatorCases({
        {"a level result in dBm", "7dBm+3dB", kNumeric, Dbm, "10.00", Dbm, kPowers},
        {"a level result in mW: 10^(10/10)", "7dBm+3dB", kNumeric, Mw, "10", Mw, kPowers},
        {"a level result in W: 10 mW", "7dBm+3dB", kNumeric, W, "0.01", W, kPowers},
        {"a level result in µW: 10 mW", "7dBm+3dB", kNumeric, Uw, "1E+04", Uw, kPowers},
        {"a level result in dBW: 10 - 30", "7dBm+3dB", kNumeric, Dbw, "-20.00", Dbw, kPowers},
        {"a level result cannot be in dB: dBm", "7dBm+3dB", kNumeric, Db, "10.00", Dbm, kPowers},
        {"a level result has a unit: dBm", "7dBm+3dB", kNumeric, None, "10.00", Dbm, kPowers},
        {"a power result in dBm: 10 lg 5", "2mW+3mW", kNumeric, Dbm, "6.99", Dbm, kPowers},
        {"a power result in W: 0.005", "2mW+3mW", kNumeric, W, "0.005", W, kPowers},
        {"a power result in µW: 5000", "2mW+3mW", kNumeric, Uw, "5E+03", Uw, kPowers},
        {"a power result in dBW: 6.99 - 30", "2mW+3mW", kNumeric, Dbw, "-23.01", Dbw, kPowers},
        {"a power result cannot be in dB: mW", "2mW+3mW", kNumeric, Db, "5", Mw, kPowers},
        {"a power result has a unit: mW", "2mW+3mW", kNumeric, None, "5", Mw, kPowers},
        {"zero power has no dBm: mW", "1mW-1mW", kNumeric, Dbm, "0", Mw, kLinear},
        {"zero power has no dBW: mW", "1mW-1mW", kNumeric, Dbw, "0", Mw, kLinear},
        {"zero power in mW", "1mW-1mW", kCoherent, Mw, "0", Mw, kLinear},
        {"zero power in W", "1mW-1mW", kCoherent, W, "0", W, kLinear},
        {"zero power in µW", "1mW-1mW", kCoherent, Uw, "0", Uw, kLinear},
        {"zero power in dB: mW", "1mW-1mW", kCoherent, Db, "0", Mw, kLinear},
        {"negative power has no dBm: mW", "1mW-2mW", kIncoherent, Dbm, "-1", Mw, kLinear},
        {"negative power has no dBW: mW", "1mW-2mW", kIncoherent, Dbw, "-1", Mw, kLinear},
        {"negative power in mW", "1mW-2mW", kIncoherent, Mw, "-1", Mw, kLinear},
        {"negative power in W", "1mW-2mW", kIncoherent, W, "-0.001", W, kLinear},
        {"negative power in µW", "1mW-2mW", kIncoherent, Uw, "-1E+03", Uw, kLinear},
        {"negative power in dB: mW", "1mW-2mW", kIncoherent, Db, "-1", Mw, kLinear},
        {"negative power without a unit: mW", "1mW-2mW", kIncoherent, None, "-1", Mw, kLinear},
        {"a plain sum in dBm: no unit", "2+3", kNumeric, Dbm, "5", None, kPlain},
        {"a plain sum in dBW: no unit", "2+3", kCoherent, Dbw, "5", None, kPlain},
        {"a plain sum in dB: no unit", "2+3", kNumeric, Db, "5", None, kPlain},
        {"a plain sum without a unit", "2+3", kNumeric, None, "5", None, kPlain},
        {"a negative plain number: 2 - 3", "2-3", kIncoherent, W, "-1", None, kPlain},
        {"a plain chain: 1 - 2 + 3 - 4", "1-2+3-4", kNumeric, Dbm, "-2", None, kPlain},
        {"a power too large for a number is infinite", "9999dBm+1mW", kNumeric, Mw, "INF", Mw,
         kPowers},
        {"an infinite power in dBm", "9999dBm+1mW", kNumeric, Dbm, "inf", Dbm, kPowers},
        {"infinity minus infinity is no number, in mW", "9999dBm-9999dBm", kNumeric, Dbm, "NAN", Mw,
         kLinear},
    });
}

void DbmCalculatorProfileTest::units()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, kDefaultDigits);
}

void DbmCalculatorProfileTest::zeroDigits_data()
{
    addCalculatorCases({
        {"0 digits count as one: 1 + 2", "1mW+2mW", kNumeric, Mw, "3", Mw, kPowers},
        {"0 digits of 1234: 1E+03", "1234mW+0mW", kNumeric, Mw, "1E+03", Mw, kPowers},
        {"0 digits do not touch a level", "10.25dBm+3dB", kNumeric, Dbm, "13.25", Dbm, kPowers},
        {"0 digits do not touch a ratio", "1.25dB+1dB", kNumeric, Db, "2.25", Db, kRatio},
        {"0 digits of a plain number: 16", "15+1", kNumeric, None, "2E+01", None, kPlain},
        {"0 digits in µW: 4400", "2mW+2.4mW", kNumeric, Uw, "4E+03", Uw, kPowers},
    });
}

void DbmCalculatorProfileTest::zeroDigits()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, 0);
}

void DbmCalculatorProfileTest::tenDigits_data()
{
    addCalculatorCases({
        {"10 digits: 1 + 1/1000000", "1mW+1µW", kNumeric, Mw, "1.001", Mw, kPowers},
        {"10 digits in W: 0.3333333333", "333.3333333333mW+0mW", kNumeric, W, "0.3333333333", W,
         kPowers},
        {"10 digits of a level in mW: 10^0.3", "0dBm+3dB", kNumeric, Mw, "1.995262315", Mw,
         kPowers},
        {"10 digits in µW: 10^0.3 x 1000", "0dBm+3dB", kNumeric, Uw, "1995.262315", Uw, kPowers},
        {"10 digits do not touch a level: 13.25 - 30", "10.25dBm+3dB", kNumeric, Dbw, "-16.75", Dbw,
         kPowers},
        {"10 digits of the mean of three: 10/3", "1mW+2mW+7mW", kIncoherent, Mw, "3.333333333", Mw,
         kPowers},
        {"10 digits of a plain number", "1.23456789012+1", kNumeric, None, "2.23456789", None,
         kPlain},
        {"a step keeps 12 digits: 1 mW vanishes beside 1E12 W", "1e12W+1mW-1e12W", kNumeric, Mw,
         "0", Mw, kLinear},
        {"a step keeps 12 digits: 1 mW remains beside 1E8 W", "1e8W+1mW-1e8W", kNumeric, Mw, "1",
         Mw, kPowers},
        {"a group keeps 12 digits: a third", "(1mW+0mW+0mW)-0.333333333333mW", kIncoherent, Mw, "0",
         Mw, kLinear},
        {"exact whole numbers stay exact: 123456789 + 1", "123456789mW+1mW", kNumeric, Mw,
         "123456790", Mw, kPowers},
    });
}

void DbmCalculatorProfileTest::tenDigits()
{
    DbmCalculatorProfile calculator;
    checkCalculatorCase(calculator, 10);
}

DEZIMO_TEST_MAIN(QCoreApplication, DbmCalculatorProfileTest)

#include "tst_dbmcalculatorprofile.moc"
