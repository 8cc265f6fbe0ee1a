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
    void powers() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void incoherent_data();
    void incoherent() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void ratios_data();
    void ratios() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void units_data();
    void units() { checkCalculatorCase<DbmCalculatorProfile>(); }
    void zeroDigits_data();
    void zeroDigits() { checkCalculatorCase<DbmCalculatorProfile>(0); }
    void tenDigits_data();
    void tenDigits() { checkCalculatorCase<DbmCalculatorProfile>(10); }
};

namespace {

using namespace PowerUnit;

constexpr int kIncoherent = 0;
constexpr int kCoherent = 1;
constexpr int kNumeric = 2;

const char kLinear[] = "mW W µW";

} // namespace

void DbmCalculatorProfileTest::powers_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows coherent(kCoherent);
    const CalculatorRows numeric(kNumeric);

    incoherent("two equal incoherent powers: the mean (10+10)/2 = 10 mW", "10dBm+10dBm",
               "10.00 dBm");
    coherent("two equal coherent powers: 10+10 = 20 mW", "10dBm+10dBm", "13.01 dBm");
    numeric("two equal powers numerically: 20 mW", "10dBm+10dBm", "13.01 dBm");
    numeric("1 mW + 1 mW = 2 mW, 3.01 dBm", "1mW+1mW", "3.01 dBm");
    numeric("2 mW + 3 mW in mW", "2mW+3mW", "5 mW");
    coherent("dBm and mW: 10 mW + 10 mW", "10dBm+10mW", "20 mW");
    numeric("mW and dBm: 1 mW + 1 mW", "1mW+0dBm", "2 mW");
    numeric("W and mW: 1000 mW + 500 mW", "1W+500mW", "1.5E+03 mW");
    numeric("µW and mW: 0.5 mW + 1 mW", "500µW+1mW", "1.5 mW");
    numeric("µW and µW: 2 µW + 3 µW = 0.005 mW", "2µW+3µW", "0.005 mW");
    numeric("W and W: 5000 mW", "2W+3W", "5E+03 mW");
    numeric("dBW and dBW: 1 W + 1 W = 2 W, 33.01 dBm", "0dBW+0dBW", "33.01 dBm");
    numeric("dBW and dBm: 1 W + 1 W", "0dBW+30dBm", "2 W");
    numeric("dBW and W: 1 W + 1 W", "0dBW+1W", "2 W");
    numeric("dBW and µW: 1 µW + 1 µW", "-60dBW+1µW", "2 µW");
    numeric("two levels without a ratio give mW: 10 + 1", "10dBm+0dBm", "11 mW");
    numeric("5 mW - 3 mW", "5mW-3mW", "2 mW");
    numeric("a difference of levels: 100 mW - 10 mW", "20dBm-10dBm", "90 mW");
    numeric("a difference of W: 2 W - 500 mW", "2W-500mW", "1.5 W");
    coherent("a difference in the coherent mode is plain", "5mW-3mW", "2 mW");
    coherent("left to right: (5 - 3) + 1", "5mW-3mW+1mW", "3 mW");
    numeric("left to right: ((1 + 2) - 3) + 4", "1mW+2mW-3mW+4mW", "4 mW");
    numeric("-30 dBm + -30 dBm = 2 µW", "-30dBm+-30dBm", "2 µW");
    numeric("four powers of 0 dBm: 4 mW, 6.02 dBm", "0dBm+0dBm+0dBm+0dBm", "6.02 dBm");
    numeric("a negative power is a number: -1 + 3", "-1mW+3mW", "2 mW");
}

void DbmCalculatorProfileTest::incoherent_data()
{
    addCalculatorColumns();
    const CalculatorRows row(kIncoherent);

    row("mean of two: (1 + 3)/2", "1mW+3mW", "2 mW");
    row("mean of three: (1 + 2 + 6)/3", "1mW+2mW+6mW", "3 mW");
    row("mean of four: (1 + 2 + 6 + 3)/4", "1mW+2mW+6mW+3mW", "3 mW");
    row("mean of five equal ones is the same", "4mW+4mW+4mW+4mW+4mW", "4 mW");
    row("mean of levels: (10 + 0.1)/2", "10dBm+-10dBm", "5.05 mW");
    row("mean of mixed units: (1000 + 500)/2", "1W+500mW", "750 mW");
    row("a difference is plain", "5mW-3mW", "2 mW");
    row("two differences are plain", "9mW-3mW-1mW", "5 mW");
    row("a difference of the mean: (1 + 3)/2 - 1", "1mW+3mW-1mW", "1 mW");
    row("a sum after a difference is refused", "5mW-3mW+1mW", "invalid input mW");
    row("a sum after a difference of the mean is refused", "1mW+3mW-1mW+1mW", "invalid input mW");
    row("a sum after a difference of levels is refused", "20dBm-10dBm+0dBm", "invalid input dBm");
    row("a sum after a difference is refused behind a ratio", "5mW-3mW+1dB+1mW",
        "invalid input dBm");
    row("a gain before the mean: 7 dBm + 3 dB = 10 mW, (10 + 10)/2", "7dBm+3dB+10mW", "10 mW");
    row("a gain does not count as an input: the mean is over two", "10dBm-10dB+3mW", "2 mW");
    row("a gain after the mean: 10 dBm + 3 dB", "10mW+10mW+3dB", "13.00 dBm");
    row("a loss after the mean: 10 dBm - 3 dB", "10mW+10mW-3dB", "7.00 dBm");
    row("a sum after a gain on the mean is refused", "10mW+10mW+3dB+1mW", "invalid input mW");
    row("a sum after a loss on the mean is refused", "10mW+10mW-3dB+1mW", "invalid input mW");
    row("a gain after a gain on the mean: 10 + 3 + 1", "10mW+10mW+3dB+1dB", "14.00 dBm");
    row("a difference after a gain on the mean: 100 mW - 1 mW", "10mW+10mW+10dB-1mW", "99 mW");
    row("two gains before the mean: 10 dBm = 10 mW, (10 + 2)/2", "0dBm+3dB+7dB+2mW", "6 mW");
    row("a ratio that a level is added to starts no mean: 3 dB + 7 dBm", "3dB+7dBm", "10.00 dBm");
    row("a gain after a loss is never refused: 10 - 3 + 2", "10dBm-3dB+2dB", "9.00 dBm");
    row("a gain after a difference of powers: 10 mW - 9 mW, + 2 dB", "10mW-9mW+2dB", "2.00 dBm");
    row("plain numbers have no mean: 1 + 3", "1+3", "4", Dbm);
    row("plain numbers may follow a difference: 5 - 3 + 2", "5-3+2", "4", Dbm);
    row("each group is an evaluation of its own: (5 - 3) + 4, the mean", "(5mW-3mW)+4mW", "3 mW");
    row("a sum of groups: the mean of the means 2 and 6", "(1mW+3mW)+(5mW+7mW)", "4 mW");
    row("the mean of a group counts once: ((1 + 3)/2 + 5)/2", "(1mW+3mW)+5mW", "3.5 mW");
}

void DbmCalculatorProfileTest::ratios_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows coherent(kCoherent);
    const CalculatorRows numeric(kNumeric);

    incoherent("a receiver chain: -30 + 20 - 3", "-30dBm+20dB-3dB", "-13.00 dBm");
    coherent("the same chain in the coherent mode", "-30dBm+20dB-3dB", "-13.00 dBm");
    numeric("a gain on a level: 10 + 3", "10dBm+3dB", "13.00 dBm");
    numeric("a loss on a level: 10 - 3", "10dBm-3dB", "7.00 dBm");
    numeric("a loss and a gain in the numeric mode: 10 - 3 + 2", "10dBm-3dB+2dB", "9.00 dBm");
    coherent("a loss and a gain in the coherent mode: 10 - 3 + 2", "10dBm-3dB+2dB", "9.00 dBm");
    numeric("a gain on dBW: 0 + 30 + 3 dBm", "0dBW+3dB", "33.00 dBm");
    numeric("a gain on mW: 10 lg 100 + 3", "100mW+3dB", "23.00 dBm");
    numeric("a gain on W: 10 lg 1000 + 3", "1W+3dB", "33.00 dBm");
    numeric("a gain on µW: 10 lg 0.001 + 3", "1µW+3dB", "-27.00 dBm");
    numeric("a ratio plus a level is a level: 3 + 10", "3dB+10dBm", "13.00 dBm");
    numeric("a ratio minus a level is a level: 3 - 10", "3dB-10dBm", "-7.00 dBm");
    numeric("a ratio plus mW is a level: 3 + 20", "3dB+100mW", "23.00 dBm");
    numeric("a ratio minus dBW is a level: 3 - 30", "3dB-0dBW", "-27.00 dBm");
    incoherent("two ratios are a ratio, whatever unit was chosen: 3 + 3", "3dB+3dB", "6.00 dB",
               Dbm);
    coherent("a difference of ratios: 3 - 5", "3dB-5dB", "-2.00 dB", W);
    numeric("a ratio stays a ratio where dB was chosen", "3dB+3dB", "6.00 dB");
    numeric("a ratio where no unit was chosen", "1dB+1dB", "2.00 dB", None);
    incoherent("a chain of ratios: 20 - 3 - 1.5", "20dB-3dB-1.5dB", "15.50 dB", Dbw);
    incoherent("a chain that ends at a level: 20 - 3 + -30", "20dB-3dB+-30dBm", "-13.00 dBm");
    coherent("a gain, then a power: 0 dBm + 10 dB + 10 mW = 20 mW", "0dBm+10dB+10mW", "20 mW");
    numeric("a power without a level plus a ratio is no number", "-1mW+3dB", "nan dBm");
    numeric("zero power plus a ratio is minus infinity", "0mW+3dB", "-inf dBm");
    numeric("ratios have two decimals: 2.004", "1.004dB+1dB", "2.00 dB");
    numeric("a level with a unit missing in front of it", "3+3dB", "unit missing dBm");
    numeric("a ratio and a plain number", "3dB+3", "unit missing dB");
}

void DbmCalculatorProfileTest::units_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows coherent(kCoherent);
    const CalculatorRows numeric(kNumeric);

    numeric("a level result in dBm", "7dBm+3dB", "10.00 dBm");
    numeric("a level result in mW: 10^(10/10)", "7dBm+3dB", "10 mW");
    numeric("a level result in W: 10 mW", "7dBm+3dB", "0.01 W");
    numeric("a level result in µW: 10 mW", "7dBm+3dB", "1E+04 µW");
    numeric("a level result in dBW: 10 - 30", "7dBm+3dB", "-20.00 dBW");
    numeric("a level result cannot be in dB: dBm", "7dBm+3dB", "10.00 dBm", Db);
    numeric("a level result has a unit: dBm", "7dBm+3dB", "10.00 dBm", None);
    numeric("a power result in dBm: 10 lg 5", "2mW+3mW", "6.99 dBm");
    numeric("a power result in W: 0.005", "2mW+3mW", "0.005 W");
    numeric("a power result in µW: 5000", "2mW+3mW", "5E+03 µW");
    numeric("a power result in dBW: 6.99 - 30", "2mW+3mW", "-23.01 dBW");
    numeric("a power result cannot be in dB: mW", "2mW+3mW", "5 mW", Db);
    numeric("a power result has a unit: mW", "2mW+3mW", "5 mW", None);
    numeric("zero power has no dBm: mW", "1mW-1mW", "0 mW", Dbm, kLinear);
    numeric("zero power has no dBW: mW", "1mW-1mW", "0 mW", Dbw, kLinear);
    coherent("zero power in mW", "1mW-1mW", "0 mW", kLinear);
    coherent("zero power in W", "1mW-1mW", "0 W", kLinear);
    coherent("zero power in µW", "1mW-1mW", "0 µW", kLinear);
    coherent("zero power in dB: mW", "1mW-1mW", "0 mW", Db, kLinear);
    incoherent("negative power has no dBm: mW", "1mW-2mW", "-1 mW", Dbm, kLinear);
    incoherent("negative power has no dBW: mW", "1mW-2mW", "-1 mW", Dbw, kLinear);
    incoherent("negative power in mW", "1mW-2mW", "-1 mW", kLinear);
    incoherent("negative power in W", "1mW-2mW", "-0.001 W", kLinear);
    incoherent("negative power in µW", "1mW-2mW", "-1E+03 µW", kLinear);
    incoherent("negative power in dB: mW", "1mW-2mW", "-1 mW", Db, kLinear);
    incoherent("negative power without a unit: mW", "1mW-2mW", "-1 mW", None, kLinear);
    numeric("a plain sum in dBm: no unit", "2+3", "5", Dbm);
    coherent("a plain sum in dBW: no unit", "2+3", "5", Dbw);
    numeric("a plain sum in dB: no unit", "2+3", "5", Db);
    numeric("a plain sum without a unit", "2+3", "5");
    incoherent("a negative plain number: 2 - 3", "2-3", "-1", W);
    numeric("a plain chain: 1 - 2 + 3 - 4", "1-2+3-4", "-2", Dbm);
    numeric("a power too large for a number is infinite", "9999dBm+1mW", "INF mW");
    numeric("an infinite power in dBm", "9999dBm+1mW", "inf dBm");
    numeric("infinity minus infinity is no number, in mW", "9999dBm-9999dBm", "NAN mW", Dbm,
            kLinear);
}

void DbmCalculatorProfileTest::zeroDigits_data()
{
    addCalculatorColumns();
    const CalculatorRows row(kNumeric);

    row("0 digits count as one: 1 + 2", "1mW+2mW", "3 mW");
    row("0 digits of 1234: 1E+03", "1234mW+0mW", "1E+03 mW");
    row("0 digits do not touch a level", "10.25dBm+3dB", "13.25 dBm");
    row("0 digits do not touch a ratio", "1.25dB+1dB", "2.25 dB");
    row("0 digits of a plain number: 16", "15+1", "2E+01");
    row("0 digits in µW: 4400", "2mW+2.4mW", "4E+03 µW");
}

void DbmCalculatorProfileTest::tenDigits_data()
{
    addCalculatorColumns();
    const CalculatorRows incoherent(kIncoherent);
    const CalculatorRows numeric(kNumeric);

    numeric("10 digits: 1 + 1/1000000", "1mW+1µW", "1.001 mW");
    numeric("10 digits in W: 0.3333333333", "333.3333333333mW+0mW", "0.3333333333 W");
    numeric("10 digits of a level in mW: 10^0.3", "0dBm+3dB", "1.995262315 mW");
    numeric("10 digits in µW: 10^0.3 x 1000", "0dBm+3dB", "1995.262315 µW");
    numeric("10 digits do not touch a level: 13.25 - 30", "10.25dBm+3dB", "-16.75 dBW");
    incoherent("10 digits of the mean of three: 10/3", "1mW+2mW+7mW", "3.333333333 mW");
    numeric("10 digits of a plain number", "1.23456789012+1", "2.23456789");
    numeric("a step keeps 12 digits: 1 mW vanishes beside 1E12 W", "1e12W+1mW-1e12W", "0 mW",
            kLinear);
    numeric("a step keeps 12 digits: 1 mW remains beside 1E8 W", "1e8W+1mW-1e8W", "1 mW");
    incoherent("a group keeps 12 digits: a third", "(1mW+0mW+0mW)-0.333333333333mW", "0 mW",
               kLinear);
    numeric("exact whole numbers stay exact: 123456789 + 1", "123456789mW+1mW", "123456790 mW");
}

DEZIMO_TEST_MAIN(QCoreApplication, DbmCalculatorProfileTest)

#include "tst_dbmcalculatorprofile.moc"
