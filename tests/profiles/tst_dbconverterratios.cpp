// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconvertercase.h"
#include "testmain.h"

#include <QTest>

/// What finishing the ratio or the decibels of the dB converter does. Every row runs on the powers
/// and on the voltages.
class DbConverterRatiosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromRatio_data();
    void fromRatio();
    void fromDb_data();
    void fromDb();
};

void DbConverterRatiosTest::fromRatio_data()
{
    addDbColumns();

    const auto decibels = [](const char *tag, const char *first, const char *second,
                             const char *ratio, const char *powerDb, const char *voltageDb) {
        addDbCase(tag, {first, second, ratio, "8"}, {first, second, ratio, powerDb},
                  {first, second, ratio, voltageDb});
    };
    decibels("without operands", "", "", "2", "3.01", "6.02");
    // 10 lg 2000 = 33.0103
    decibels("a prefix", "", "", "2k", "33.01", "66.02");
    decibels("both operands stay", "1", "3", "2", "3.01", "6.02");
    decibels("zero has no decibels", "", "", "0", "", "");
    decibels("a negative ratio has no decibels", "", "", "-2", "", "");
    decibels("a word derives no first operand", "", "2W", "abc", "invalid input", "invalid input");
    decibels("a word derives no second operand", "2W", "", "abc", "invalid input", "invalid input");
    decibels("a unit is no ratio", "", "", "2W", "invalid input", "invalid input");
    decibels("nothing derives no first operand", "", "2W", "", "", "");
    decibels("nothing derives no second operand", "2W", "", "", "", "");
    decibels("a word as the second operand derives nothing", "", "abc", "2", "3.01", "6.02");
    decibels("a word as the first operand derives nothing", "abc", "", "2", "3.01", "6.02");
    decibels("zero derives no second operand", "1", "", "0", "", "");
    decibels("1 pico counts as zero", "1", "", "1p", "-120.00", "-240.00");
    decibels("NAN counts as zero", "1", "", "NAN", "nan", "nan");

    const auto first = [](const char *tag, const char *present, const char *ratio,
                          const char *powerDb, const char *voltageDb, const char *derived,
                          int places = 3) {
        addDbCase(tag, {"", present, ratio, "8"}, {derived, present, ratio, powerDb},
                  {derived, present, ratio, voltageDb}, places);
    };
    first("first: a plain number", "2", "4", "6.02", "12.04", "8");
    first("first: watts", "2W", "4", "6.02", "12.04", "8W");
    first("first: dBm", "0dBm", "10", "10.00", "20.00", "10dBm");
    first("first: dBW", "-7dBW", "10", "10.00", "20.00", "3dBW");
    first("first: of zero", "2", "0", "", "", "0");
    first("first: of a negative ratio", "2W", "-2", "", "", "-4W");
    first("first: the tolerance is the second's", "1", "1p", "-120.00", "-240.00", "1E-12");
    // 1.4 * 2.4 = 3.36; of a ratio rounded to 1 it would be 2
    first("first: at 0 decimal places", "2.4", "1.4", "1.46", "2.92", "3", 0);
    first("first: at 10 decimal places", "3", "1.23456789012", "0.92", "1.83", "3.70370367", 10);

    const auto second = [](const char *tag, const char *present, const char *ratio,
                           const char *powerDb, const char *voltageDb, const char *derived,
                           int places = 3) {
        addDbCase(tag, {present, "", ratio, "8"}, {present, derived, ratio, powerDb},
                  {present, derived, ratio, voltageDb}, places);
    };
    second("second: a plain number", "8", "4", "6.02", "12.04", "2");
    second("second: watts", "8W", "4", "6.02", "12.04", "2W");
    second("second: dBm", "10dBm", "10", "10.00", "20.00", "0dBm");
    second("second: dBW", "3dBW", "10", "10.00", "20.00", "-7dBW");
    second("second: of a negative ratio", "8", "-4", "", "", "-2");
    // 10 lg 2e-12 = -116.9897
    second("second: of 2 pico", "1", "2p", "-116.99", "-233.98", "5E+11");
    // 4 / 1.4 = 2.857
    second("second: at 0 decimal places", "4", "1.4", "1.46", "2.92", "3", 0);
}

void DbConverterRatiosTest::fromRatio()
{
    checkDbCase(&DbFields::ratio, &DbHalf::ratioRun);
}

void DbConverterRatiosTest::fromDb_data()
{
    addDbColumns();

    const auto ratios = [](const char *tag, const char *first, const char *second, const char *db,
                           const char *powerRatio, const char *voltageRatio, int places = 3) {
        addDbCase(tag, {first, second, "7", db}, {first, second, powerRatio, db},
                  {first, second, voltageRatio, db}, places);
    };
    // 10^(3/10) = 1.99526231497, 10^(3/20) = 1.41253754462
    ratios("3 dB", "", "", "3", "2", "1.41");
    ratios("3 dB at 0 decimal places", "", "", "3", "2", "1", 0);
    ratios("3 dB at 10 decimal places", "", "", "3", "1.995262315", "1.412537545", 10);
    ratios("-20 dB", "", "", "-20", "0.01", "0.1");
    ratios("0 dB", "", "", "0", "1", "1");
    // 10^(33/20) = 44.668
    ratios("33 dB", "", "", "33", "2E+03", "44.7");
    ratios("a prefix", "", "", "20m", "1", "1");
    ratios("8000 dB are beyond all doubles", "", "", "8000", "INF", "INF");
    ratios("both operands stay", "1", "3", "3", "2", "1.41");
    ratios("a word derives no first operand", "", "2W", "abc", "invalid", "invalid");
    ratios("a word derives no second operand", "2W", "", "abc", "invalid", "invalid");
    ratios("the unit is no part of the text", "", "", "3dB", "invalid", "invalid");
    ratios("nothing derives no first operand", "", "2W", "", "", "");
    ratios("nothing derives no second operand", "2W", "", "", "", "");
    ratios("a word as the second operand derives nothing", "", "abc", "3", "2", "1.41");
    ratios("a word as the first operand derives nothing", "abc", "", "3", "2", "1.41");
    ratios("NAN derives no second operand", "1", "", "NAN", "NAN", "NAN");
    // 10^(-240/20) = 1e-12, and 10^(-240/10) = 1e-24
    ratios("-240 dB count as a ratio of zero", "1", "", "-240", "1E-24", "1E-12");

    // The calculation uses the unrounded ratio. The shown ratios 2 and 1.41 would give 6.67 and
    // 4.70. The ratios 1.995262315 and 1.412537545 would give a power that ends in 936.
    addDbCase("first: a plain number", {"", "3.333", "7", "3"}, {"6.65", "3.333", "2", "3"},
              {"4.71", "3.333", "1.41", "3"});
    addDbCase("first: watts, 10 decimal places", {"", "0.017W", "7", "3"},
              {"0.03391945935W", "0.017W", "1.995262315", "3"},
              {"0.02401313826W", "0.017W", "1.412537545", "3"}, 10);
    addDbCase("first: 0 decimal places", {"", "0.225", "7", "3"}, {"0.4", "0.225", "2", "3"},
              {"0.3", "0.225", "1", "3"}, 0);
    addDbCase("first: dBm", {"", "0dBm", "7", "20"}, {"20dBm", "0dBm", "100", "20"},
              {"10dBm", "0dBm", "10", "20"});
    addDbCase("first: dBW", {"", "-7dBW", "7", "20"}, {"13dBW", "-7dBW", "100", "20"},
              {"3dBW", "-7dBW", "10", "20"});
    addDbCase("first: the tolerance is the second's", {"", "1", "7", "-240"},
              {"1E-24", "1", "1E-24", "-240"}, {"1E-12", "1", "1E-12", "-240"});

    addDbCase("second: a plain number", {"0.001", "", "7", "3"}, {"0.001", "0.000501", "2", "3"},
              {"0.001", "0.000708", "1.41", "3"});
    addDbCase("second: watts, 10 decimal places", {"0.004W", "", "7", "3"},
              {"0.004W", "0.002004748935W", "1.995262315", "3"},
              {"0.004W", "0.002831783138W", "1.412537545", "3"}, 10);
    addDbCase("second: 0 decimal places", {"0.009", "", "7", "3"}, {"0.009", "0.005", "2", "3"},
              {"0.009", "0.006", "1", "3"}, 0);
    addDbCase("second: dBm", {"0dBm", "", "7", "20"}, {"0dBm", "-20dBm", "100", "20"},
              {"0dBm", "-10dBm", "10", "20"});
    addDbCase("second: dBW", {"3dBW", "", "7", "20"}, {"3dBW", "-17dBW", "100", "20"},
              {"3dBW", "-7dBW", "10", "20"});
    // 1 / 10^(-110/10) = 1e11, 1 / 10^(-110/20) = 316227.766
    addDbCase("second: of a ratio just above zero", {"1", "", "7", "-110"},
              {"1", "1E+11", "1E-11", "-110"}, {"1", "3.16E+05", "3.16E-06", "-110"});
}

void DbConverterRatiosTest::fromDb()
{
    checkDbCase(&DbFields::db, &DbHalf::dbRun);
}

DEZIMO_TEST_MAIN(QCoreApplication, DbConverterRatiosTest)

#include "tst_dbconverterratios.moc"
