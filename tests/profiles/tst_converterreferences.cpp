// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "shownnumber.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterprofile.h"
#include "vswrconverterprofile.h"

#include <QTest>

#include <cmath>

using namespace Dezimo;

/// What the fields show at ten digits against reference values. The literals were computed with
/// Python's mpmath 1.3 at 50 digits from the definitions (P = 10^(L/10), V = sqrt(P R),
/// VSWR = (1 + r) / (1 - r), return loss -20 lg r, mismatch loss -10 lg(1 - r^2)) and are rounded
/// to 12 digits.
class ConverterReferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reflection_data();
    void reflection();
    void levels_data();
    void levels();
};

namespace {

constexpr int kDigits = 10;
constexpr double kLevelRounding = 0.005;
/// The most by which one unit of an input's 12th digit can move a result, relative to that result.
constexpr double kInputRounding = 1e-11;
/// The same where the input is a level of 12 digits: 5e-10 dB.
constexpr double kLevelInputRounding = 2e-10;

/// Half a unit of the last digit that is shown.
double displayRounding(double value)
{
    return 0.5 * std::pow(10.0, std::floor(std::log10(std::abs(value))) - (kDigits - 1));
}

bool showsLinear(const QString &text, double reference, double inputRounding = kInputRounding)
{
    const double tolerance = displayRounding(reference) + inputRounding * reference;
    return std::abs(shownNumber(text) - reference) <= tolerance;
}

bool showsLevel(const QString &text, double reference)
{
    return std::abs(shownNumber(text) - reference) <= kLevelRounding + 1e-9;
}

QString typed(double reference)
{
    return QString::number(reference, 'g', 12);
}

struct Levels
{
    double dbm;
    double milliwatt;
    double millivolt;
    double dbmicrovolt;
};

void compare(const UnitConverterProfile &profile, const Levels &reference, double inputRounding)
{
    QVERIFY2(showsLevel(profile.logPower(), reference.dbm), qPrintable(profile.logPower()));
    QVERIFY2(showsLinear(profile.linPower(), reference.milliwatt, inputRounding),
             qPrintable(profile.linPower()));
    QVERIFY2(showsLinear(profile.linVoltage(), reference.millivolt, inputRounding),
             qPrintable(profile.linVoltage()));
    QVERIFY2(showsLevel(profile.logVoltage(), reference.dbmicrovolt),
             qPrintable(profile.logVoltage()));
}

/// Starts from each of the four fields.
void compareAtImpedance(const char *ohm, const Levels &reference)
{
    UnitConverterProfile profile;
    profile.setSignificantDigits(kDigits);
    profile.setLogVoltageUnit(1);
    profile.setImpedance(QString::fromLatin1(ohm));
    profile.setLogPower(typed(reference.dbm));
    profile.calculateFromLogPower();
    compare(profile, reference, kInputRounding);
    profile.clearAll();
    profile.setLinPower(typed(reference.milliwatt));
    profile.calculateFromLinPower();
    compare(profile, reference, kInputRounding);
    profile.clearAll();
    profile.setLinVoltage(typed(reference.millivolt));
    profile.calculateFromLinVoltage();
    compare(profile, reference, kInputRounding);
    profile.clearAll();
    profile.setLogVoltage(typed(reference.dbmicrovolt));
    profile.calculateFromLogVoltage();
    compare(profile, reference, kLevelInputRounding);
}

} // namespace

void ConverterReferencesTest::reflection_data()
{
    columns<QByteArray, QString, double, double, double, double, double>(
        {"edited", "text", "r", "vswr", "percent", "returnLoss", "mismatchLoss"});

    const auto row = [](const char *edited, const char *text, double r, double vswr, double percent,
                        double returnLoss, double mismatchLoss) {
        const QByteArray tag = QByteArray("from ") + edited + ' ' + text;
        QTest::newRow(tag.constData()) << QByteArray(edited) << QString::fromLatin1(text) << r
                                       << vswr << percent << returnLoss << mismatchLoss;
    };

    row("r", "0.001", 0.001, 1.002002002, 0.0001, 60, 4.34294699051e-6);
    row("r", "0.01", 0.01, 1.0202020202, 0.01, 40, 0.000434316198075);
    row("r", "0.0316", 0.0316, 1.06526228831, 0.099856, 30.0062583476, 0.00433885764405);
    row("r", "0.05", 0.05, 1.10526315789, 0.25, 26.0205999133, 0.0108709564121);
    row("r", "0.1", 0.1, 1.22222222222, 1, 20, 0.0436480540245);
    row("r", "0.2", 0.2, 1.5, 4, 13.9794000867, 0.177287669604);
    row("r", "0.3", 0.3, 1.85714285714, 9, 10.4575749056, 0.409586076789);
    row("r", "0.45", 0.45, 2.63636363636, 20.25, 6.93574972449, 0.982693082708);
    row("r", "0.6", 0.6, 4, 36, 4.43697499233, 1.93820026016);
    row("r", "0.75", 0.75, 7, 56.25, 2.49877473217, 3.59021942642);
    row("r", "0.9", 0.9, 19, 81, 0.915149811214, 7.21246399047);
    row("r", "0.99", 0.99, 199, 98.01, 0.087296108049, 17.0114692359);

    row("ar", "0.1", 0.988553094657, 173.719711578, 97.7237220956, 0.1, 16.4277471724);
    row("ar", "0.5", 0.944060876286, 34.753152127, 89.1250938134, 0.5, 9.63574480838);
    row("ar", "1", 0.891250938134, 17.3909632477, 79.4328234724, 1, 6.8682532438);
    row("ar", "2.5", 0.749894209332, 6.99661613057, 56.234132519, 2.5, 3.58864458983);
    row("ar", "3", 0.707945784384, 5.84804359281, 50.1187233627, 3, 3.02062439928);
    row("ar", "6", 0.501187233627, 3.00952047507, 25.1188643151, 6, 1.25627577492);
    row("ar", "9.54", 0.333426412763, 2.00041891592, 11.1173172728, 9.54, 0.51182845651);
    row("ar", "14", 0.199526231497, 1.49852034969, 3.98107170553, 14, 0.176431456736);
    row("ar", "20", 0.1, 1.22222222222, 1, 20, 0.0436480540245);
    row("ar", "26.5", 0.0473151258961, 1.09933006639, 0.223872113857, 26.5, 0.0097335417827);
    row("ar", "32", 0.0251188643151, 1.05153215791, 0.063095734448, 32, 0.00274107777278);
    row("ar", "40", 0.01, 1.0202020202, 0.01, 40, 0.000434316198075);

    row("am", "0.01", 0.0479576498324, 1.10074688342, 0.229993617745, 26.3828421536, 0.01);
    row("am", "0.05", 0.106990211436, 1.23961710791, 1.14469053431, 19.4131190844, 0.05);
    row("am", "0.1", 0.150873387462, 1.35536134478, 2.27627790442, 16.4277471724, 0.1);
    row("am", "0.25", 0.236514531719, 1.61956524792, 5.59391237141, 12.5228434113, 0.25);
    row("am", "0.5", 0.329771226559, 1.9840557124, 10.8749061866, 9.63574480838, 0.5);
    row("am", "1", 0.453510490811, 2.65972258638, 20.5671765276, 6.8682532438, 1);
    row("am", "1.5", 0.540420406365, 3.35180331699, 29.2054215616, 5.34536520616, 1.5);
    row("am", "3", 0.706266781303, 5.80889961604, 49.8812766373, 3.02062439928, 3);
    row("am", "4.7", 0.813114902004, 9.7017628556, 66.1155843861, 1.79696159045, 4.7);
    row("am", "6", 0.865338868218, 13.852095579, 74.8811356849, 1.25627577492, 6);
    row("am", "10", 0.948683298051, 37.973665961, 90, 0.457574905607, 10);
    row("am", "20", 0.994987437107, 397.997487421, 99, 0.0436480540245, 20);
}

void ConverterReferencesTest::reflection()
{
    QFETCH(QByteArray, edited);
    QFETCH(QString, text);
    QFETCH(double, r);
    QFETCH(double, vswr);
    QFETCH(double, percent);
    QFETCH(double, returnLoss);
    QFETCH(double, mismatchLoss);

    VswrConverterProfile profile;
    profile.setSignificantDigits(kDigits);
    profile.setProperty(edited.constData(), text);
    const QByteArray slot = "calculateFrom" + edited.left(1).toUpper() + edited.mid(1);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.constData()));
    QVERIFY2(showsLinear(profile.r(), r), qPrintable(profile.r()));
    QVERIFY2(showsLinear(profile.vswr(), vswr), qPrintable(profile.vswr()));
    QVERIFY2(showsLinear(profile.r2(), percent), qPrintable(profile.r2()));
    QVERIFY2(showsLevel(profile.ar(), returnLoss), qPrintable(profile.ar()));
    QVERIFY2(showsLevel(profile.am(), mismatchLoss), qPrintable(profile.am()));
}

void ConverterReferencesTest::levels_data()
{
    columns<double, double, double, double, double, double>({"dbm", "milliwatt", "millivoltAt50",
                                                             "dbmicrovoltAt50", "millivoltAt75",
                                                             "dbmicrovoltAt75"});

    const auto row = [](const char *dbm, double milliwatt, double millivoltAt50,
                        double dbmicrovoltAt50, double millivoltAt75, double dbmicrovoltAt75) {
        const QByteArray tag = QByteArray(dbm) + " dBm";
        QTest::newRow(tag.constData()) << QByteArray(dbm).toDouble() << milliwatt << millivoltAt50
                                       << dbmicrovoltAt50 << millivoltAt75 << dbmicrovoltAt75;
    };

    row("-120", 1.0e-12, 0.00022360679775, -13.0102999566, 0.000273861278753, -11.2493873661);
    row("-107", 1.99526231497e-11, 0.000998814876483, -0.0102999566398, 0.00122329339744,
        1.75061263392);
    row("-99.5", 1.1220184543e-10, 0.00236856333492, 7.48970004336, 0.002900885797, 9.25061263392);
    row("-80", 1.0e-8, 0.022360679775, 26.9897000434, 0.0273861278753, 28.7506126339);
    row("-73", 5.01187233627e-8, 0.050059326485, 33.9897000434, 0.0613099033779, 35.7506126339);
    row("-60", 1.0e-6, 0.22360679775, 46.9897000434, 0.273861278753, 48.7506126339);
    row("-47.3", 0.0000186208713666, 0.964905989375, 59.6897000434, 1.18176366186, 61.4506126339);
    row("-33", 0.000501187233627, 5.0059326485, 73.9897000434, 6.13099033779, 75.7506126339);
    row("-20", 0.01, 22.360679775, 86.9897000434, 27.3861278753, 88.7506126339);
    row("-13", 0.0501187233627, 50.059326485, 93.9897000434, 61.3099033779, 95.7506126339);
    row("-6", 0.251188643151, 112.068872385, 100.989700043, 137.255776696, 102.750612634);
    row("-3", 0.501187233627, 158.301489827, 103.989700043, 193.878937799, 105.750612634);
    row("0", 1, 223.60679775, 106.989700043, 273.861278753, 108.750612634);
    row("3", 1.99526231497, 315.852997055, 109.989700043, 386.839338256, 111.750612634);
    row("7", 5.01187233627, 500.59326485, 113.989700043, 613.099033779, 115.750612634);
    row("10.5", 11.220184543, 749.00549207, 117.489700043, 917.340635057, 119.250612634);
    row("13", 19.9526231497, 998.814876483, 119.989700043, 1223.29339744, 121.750612634);
    row("20", 100, 2236.0679775, 126.989700043, 2738.61278753, 128.750612634);
    row("30", 1000, 7071.06781187, 136.989700043, 8660.25403784, 138.750612634);
    row("46.9", 48977.8819368, 49486.3021132, 153.889700043, 60608.0947173, 155.650612634);
}

void ConverterReferencesTest::levels()
{
    QFETCH(double, dbm);
    QFETCH(double, milliwatt);
    QFETCH(double, millivoltAt50);
    QFETCH(double, dbmicrovoltAt50);
    QFETCH(double, millivoltAt75);
    QFETCH(double, dbmicrovoltAt75);

    compareAtImpedance("50", {dbm, milliwatt, millivoltAt50, dbmicrovoltAt50});
    compareAtImpedance("75", {dbm, milliwatt, millivoltAt75, dbmicrovoltAt75});
}

DEZIMO_TEST_MAIN(QCoreApplication, ConverterReferencesTest)

#include "tst_converterreferences.moc"
