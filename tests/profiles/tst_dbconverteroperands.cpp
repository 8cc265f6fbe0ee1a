// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconvertercase.h"
#include "testmain.h"

#include <QTest>

/// What finishing an operand of the dB converter does. Every row runs on the powers and on the
/// voltages. Only the decibels differ, 10 lg of a power ratio and 20 lg of a voltage ratio.
class DbConverterOperandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromFirst_data();
    void fromFirst();
    void derivesTheSecond_data();
    void derivesTheSecond();
    void fromSecond_data();
    void fromSecond();
    void derivesTheFirst_data();
    void derivesTheFirst();
};

namespace {

struct Operands
{
    const char *first;
    const char *second;
};

struct Results
{
    const char *ratio;
    const char *powerDb;
    const char *voltageDb;
};

/// Two operands above an old ratio and old decibels.
void operands(const char *tag, const Operands &given, const Results &expected, int places = 3)
{
    addDbCase(tag, {given.first, given.second, "7", "8"},
              {given.first, given.second, expected.ratio, expected.powerDb},
              {given.first, given.second, expected.ratio, expected.voltageDb}, places);
}

/// These give the same results whichever operand is finished.
void addCommonOperands()
{
    // 10 lg 1.5 = 1.7609, 20 lg 1.5 = 3.5218
    operands("plain numbers", {"3", "2"}, {"1.5", "1.76", "3.52"});
    operands("watts", {"1W", "2W"}, {"0.5", "-3.01", "-6.02"});
    // 10^(10/10) mW = 10 mW over 1 mW
    operands("dBm", {"10dBm", "0dBm"}, {"10", "10.00", "20.00"});
    // 10^((3 + 30)/10) mW = 1.995262 W over 1 W
    operands("dBW", {"3dBW", "0dBW"}, {"2", "3.00", "6.00"});
    operands("dBW over W", {"0dBW", "1W"}, {"1", "0.00", "0.00"});
    // 1000 mW over 1 mW
    operands("dBW over dBm", {"0dBW", "0dBm"}, {"1E+03", "30.00", "60.00"});
    // 1 W over 1.995262 W = 0.501187
    operands("dBm over dBW", {"30dBm", "3dBW"}, {"0.501", "-3.00", "-6.00"});
    // 1 W over 0.1 W
    operands("W over dBm", {"1W", "20dBm"}, {"10", "10.00", "20.00"});
    operands("W over dBW", {"2W", "0dBW"}, {"2", "3.01", "6.02"});
    operands("dBm over W", {"20dBm", "1W"}, {"0.1", "-10.00", "-20.00"});
    operands("prefixes on watts", {"1mW", "1uW"}, {"1E+03", "30.00", "60.00"});
    operands("prefixes on plain numbers", {"4k", "2k"}, {"2", "3.01", "6.02"});
    // 10^0.003 = 1.006932, 10 lg of it 0.03
    operands("a prefix on a level", {"30mdBm", "0dBm"}, {"1.01", "0.03", "0.06"});
    operands("blanks around a number", {" 3 ", "2 "}, {"1.5", "1.76", "3.52"});
    operands("a blank before the unit", {"10 dBm", "0 dBm"}, {"10", "10.00", "20.00"});
    operands("a number with an exponent", {"1e3", "1E2"}, {"10", "10.00", "20.00"});
    operands("a unit word stands anywhere", {"dBm10", "0dBm"}, {"10", "10.00", "20.00"});
    operands("a unit word may repeat", {"10dBmdBm", "WW1W"}, {"0.01", "-20.00", "-40.00"});
    operands("dBm wins over dBW", {"10dBWdBm", "0dBm"}, {"10", "10.00", "20.00"});
    operands("dBm wins over W", {"10WdBm", "0dBm"}, {"10", "10.00", "20.00"});
    // 20 W; as a level it would be 100 W
    operands("W wins over dBW", {"20dBWW", "1W"}, {"20", "13.01", "26.02"});
    operands("removing dBW leaves dBm", {"10dBdBWm", "0dBm"}, {"10", "10.00", "20.00"});
    operands("a negative ratio has no decibels", {"-2", "1"}, {"-2", "", ""});
    operands("a ratio of zero has no decibels", {"0", "1"}, {"0", "", ""});
    operands("two negative numbers", {"-2", "-1"}, {"2", "3.01", "6.02"});
    // 10^400 mW is beyond all doubles
    operands("an infinite ratio", {"4000dBm", "0dBm"}, {"INF", "inf", "inf"});
    operands("0 decimal places count as one digit", {"100", "3"}, {"3E+01", "15.23", "30.46"}, 0);
    operands("10 decimal places", {"100", "3"}, {"33.33333333", "15.23", "30.46"}, 10);
    addDbCase("both empty", {"", "", "7", "8"}, {"", "", "", ""});
}

} // namespace

void DbConverterOperandsTest::fromFirst_data()
{
    addDbColumns();
    addCommonOperands();

    operands("zero below", {"1", "0"}, {"NAN", "", ""});
    operands("zero watts below", {"1W", "0W"}, {"NAN", "", ""});
    operands("1e-12 below counts as zero", {"1", "1e-12"}, {"NAN", "", ""});
    operands("1 pico below counts as zero", {"1", "1p"}, {"NAN", "", ""});
    operands("-1 pico below counts as zero", {"1", "-1p"}, {"NAN", "", ""});
    operands("-90 dBm below, that is 1e-12 W, count as zero", {"1W", "-90dBm"}, {"NAN", "", ""});
    operands("NAN below counts as zero", {"1", "NAN"}, {"NAN", "", ""});
    // 10 lg 9.0909e11 = 119.586
    operands("1.1 pico below is a number", {"1", "1.1p"}, {"9.09E+11", "119.59", "239.17"});
    operands("-1.1 pico below is a number", {"1", "-1.1p"}, {"-9.09E+11", "", ""});
    operands("a word below counts as zero", {"1", "abc"}, {"NAN", "", ""});
    // not as 0 dBm, which would be a ratio
    operands("a word in dBm below counts as zero", {"1dBm", "abcdBm"}, {"NAN", "", ""});
    operands("a zero below comes before the mismatch", {"1W", "0"}, {"NAN", "", ""});
    operands("a word below comes before the mismatch", {"1W", "abc"}, {"NAN", "", ""});

    const auto rejected = [](const char *tag, const char *first, const char *second,
                             const char *text) {
        addDbCase(tag, {first, second, "7", "8"}, {text, second, "7", "8"});
    };
    rejected("a unit above, none below", "1W", "2", "unit mismatch");
    rejected("none above, dBm below", "1", "2dBm", "unit mismatch");
    rejected("dBW above, none below", "1dBW", "2", "unit mismatch");
    rejected("a word", "abc", "2", "invalid input");
    rejected("a word above nothing", "abc", "", "invalid input");
    rejected("a word above zero", "abc", "0", "invalid input");
    rejected("a word comes before the mismatch", "abcW", "2", "invalid input");
    rejected("a unit without a number", "dBm", "2dBm", "invalid input");
    rejected("a small w is no unit", "1w", "1W", "invalid input");
    rejected("two prefixes", "1k2M", "1", "invalid input");
    rejected("a decimal comma", "1,5", "1", "invalid input");
    rejected("an error text", "unit mismatch", "1", "invalid input");

    addDbCase("emptied above a number", {"", "2", "7", "8"}, {"", "2", "", ""});
}

void DbConverterOperandsTest::fromFirst()
{
    checkDbCase(&DbFields::first, &DbHalf::operandRun);
}

void DbConverterOperandsTest::derivesTheSecond_data()
{
    addDbColumns();

    const auto derived = [](const char *tag, const char *first, const char *ratio,
                            const char *second, int places = 3) {
        addDbCase(tag, {first, "", ratio, "8"}, {first, second, ratio, "8"}, places);
    };
    derived("a plain number", "8", "4", "2");
    derived("watts", "8W", "4", "2W");
    derived("dBm", "16dBm", "10", "6dBm");
    derived("dBW", "3dBW", "10", "-7dBW");
    derived("a prefix is written out", "8m", "4", "0.002");
    derived("a ratio with a prefix", "8", "2k", "0.004");
    derived("a negative ratio", "8", "-4", "-2");
    derived("a negative power has no level", "10dBm", "-1", "NANdBm");
    // 8 / 1.1e-12 = 7.2727e12
    derived("a ratio just above zero", "8", "1.1p", "7.27E+12");
    derived("10 decimal places", "1W", "3", "0.3333333333W", 10);
    derived("0 decimal places count as one digit", "1W", "3", "0.3W", 0);
    derived("no ratio", "8", "", "");
    derived("a ratio that is a word", "8", "abc", "");
    derived("a ratio of zero", "8", "0", "");
    derived("a ratio of 1e-12 counts as zero", "8", "1e-12", "");
    derived("a ratio of -1 pico counts as zero", "8", "-1p", "");
    derived("a ratio of NAN counts as zero", "8", "NAN", "");
}

void DbConverterOperandsTest::derivesTheSecond()
{
    checkDbCase(&DbFields::first, &DbHalf::operandRun);
}

void DbConverterOperandsTest::fromSecond_data()
{
    addDbColumns();
    addCommonOperands();

    operands("zero", {"1", "0"}, {"NAN", "", ""});
    operands("minus zero", {"1", "-0"}, {"NAN", "", ""});
    operands("zero watts", {"1W", "0W"}, {"NAN", "", ""});
    // the test is for exact zero
    operands("1 pico is a number", {"1", "1p"}, {"1E+12", "120.00", "240.00"});
    operands("-1 pico is a number", {"1", "-1p"}, {"-1E+12", "", ""});
    operands("1e-300 is a number", {"1", "1e-300"}, {"1E+300", "3000.00", "6000.00"});
    // 1 W over 1e-12 W
    operands("-90 dBm are a number", {"1W", "-90dBm"}, {"1E+12", "120.00", "240.00"});
    operands("NAN is passed on", {"1", "NAN"}, {"NAN", "nan", "nan"});
    operands("a word above counts as zero", {"abc", "2"}, {"0", "", ""});
    // not as 0 dBm, which would be a ratio
    operands("a word in dBm above counts as zero", {"abcdBm", "0dBm"}, {"0", "", ""});
    operands("zero comes before the mismatch", {"1W", "0"}, {"NAN", "", ""});

    const auto rejected = [](const char *tag, const char *first, const char *second,
                             const char *text) {
        addDbCase(tag, {first, second, "7", "8"}, {first, text, "7", "8"});
    };
    rejected("a unit above, none below", "1W", "2", "unit mismatch");
    rejected("none above, dBm below", "1", "2dBm", "unit mismatch");
    rejected("none above, dBW below", "1", "2dBW", "unit mismatch");
    rejected("a word above is without a unit", "abc", "2W", "unit mismatch");
    rejected("a word", "1", "abc", "invalid input");
    rejected("a word below nothing", "", "abc", "invalid input");
    rejected("a word comes before the mismatch", "1W", "abc", "invalid input");
    rejected("a unit without a number", "1W", "W", "invalid input");
    rejected("two prefixes", "1", "1k2M", "invalid input");

    addDbCase("emptied below a number", {"2", "", "7", "8"}, {"2", "", "", ""});
}

void DbConverterOperandsTest::fromSecond()
{
    checkDbCase(&DbFields::second, &DbHalf::operandRun);
}

void DbConverterOperandsTest::derivesTheFirst_data()
{
    addDbColumns();

    const auto derived = [](const char *tag, const char *second, const char *ratio,
                            const char *first, int places = 3) {
        addDbCase(tag, {"", second, ratio, "8"}, {first, second, ratio, "8"}, places);
    };
    derived("a plain number", "2", "4", "8");
    derived("watts", "2W", "4", "8W");
    derived("dBm", "6dBm", "10", "16dBm");
    derived("dBW", "-7dBW", "10", "3dBW");
    derived("a ratio with a prefix", "2", "2k", "4E+03");
    derived("a negative ratio", "2", "-4", "-8");
    derived("a ratio below the tolerance", "2", "1p", "2E-12");
    derived("a ratio of zero", "2", "0", "0");
    derived("a power of zero has an infinite level", "2dBm", "0", "-INFdBm");
    // 1.23456 * 2 = 2.46912
    derived("10 decimal places", "2W", "1.23456", "2.46912W", 10);
    derived("0 decimal places count as one digit", "2W", "1.23456", "2W", 0);
    derived("no ratio", "2", "", "");
    derived("a ratio that is a word", "2", "abc", "");

    addDbCase("zero below nothing", {"", "0", "4", "8"}, {"", "0", "NAN", ""});
    addDbCase("zero below nothing and without a ratio", {"", "0", "", ""}, {"", "0", "NAN", ""});
}

void DbConverterOperandsTest::derivesTheFirst()
{
    checkDbCase(&DbFields::second, &DbHalf::operandRun);
}

DEZIMO_TEST_MAIN(QCoreApplication, DbConverterOperandsTest)

#include "tst_dbconverteroperands.moc"
