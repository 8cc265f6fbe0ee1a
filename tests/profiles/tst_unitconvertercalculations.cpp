// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterprofile.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

/// The four calculations of the unit converter. A row gives the texts of the fields before, the
/// text that is typed into one of them, and what the four fields read afterward.
class UnitConverterCalculationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromLinPower_data();
    void fromLinPower();
    void fromLinVoltage_data();
    void fromLinVoltage();
    void fromLogPower_data();
    void fromLogPower();
    void fromLogVoltage_data();
    void fromLogVoltage();
    void writesInOrder_data();
    void writesInOrder();
    void readsThePrecisionAtEveryCalculation();
};

namespace {

const char kDbw[] = "logPowerUnit=1";
const char kWatt[] = "linPowerUnit=1";
const char kDbmicrovolt[] = "logVoltageUnit=1";
const char kDbu[] = "logVoltageUnit=2";
const char kVolt[] = "linVoltageUnit=1";
const char kVpp[] = "voltageMode=1";
const char kVavg[] = "voltageMode=2";
/// Fields that hold something which a calculation has to replace.
const char kFilled[] = "logPower=9, linPower=9, logVoltage=9, linVoltage=9";

void addColumns()
{
    columns<int, QString, QString, QString>({"places", "settings", "typed", "after"});
}

/// @p after is what linear power, power level, linear voltage and voltage level read afterward, and
/// the impedance if it changes.
void add(const char *tag, const char *settings, const char *typed, const char *after,
         int places = ModuleProfile::kDefaultSignificantDigits)
{
    row(tag, places, settings, typed, after);
}

void check(const char *edited, void (UnitConverterProfile::*calculate)())
{
    QFETCH(int, places);
    QFETCH(QString, settings);
    QFETCH(QString, typed);
    QFETCH(QString, after);

    UnitConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile, values(settings));
    profile.setProperty(edited, typed);
    const QStringList names = words("linPower logPower linVoltage logVoltage impedance");
    const QStringList expected = propertyLines(profile, values(names, after));
    (profile.*calculate)();
    QCOMPARE(propertyLines(profile), expected);
}

} // namespace

void UnitConverterCalculationsTest::fromLinPower_data()
{
    addColumns();
    // V = sqrt(0.001 W * 50 ohm) = 0.22360679775 V; 20 lg(V / 1 V) = -13.0103
    add("1 mW in 50 ohm", "", "1", "1 | 0.00 | 224 | -13.01");
    add("0 decimal places count as one digit", "", "1", "1 | 0.00 | 2E+02 | -13.01", 0);
    add("10 decimal places", "", "1", "1 | 0.00 | 223.6067977 | -13.01", 10);
    add("0.001 W is 1 mW", kWatt, "0.001", "0.001 | 0.00 | 224 | -13.01");
    add("a prefix is read: 1 milliwatt in W", kWatt, "1m", "1m | 0.00 | 224 | -13.01");
    add("1 mW is -30 dBW", kDbw, "1", "1 | -30.00 | 224 | -13.01");
    // -13.0103 dBV + 120 dB
    add("the voltage level in dBµV", kDbmicrovolt, "1", "1 | 0.00 | 224 | 106.99");
    // 20 lg(223.607 / 775) = -10.796; against 774.6 mV it would be -10.79
    add("the voltage level in dBu is referred to 0.775 V", kDbu, "1", "1 | 0.00 | 224 | -10.80");
    add("the voltage in V", kVolt, "1", "1 | 0.00 | 0.224 | -13.01");
    // 223.60679775 * 2.82842714 = 632.4555354 (2 sqrt(2) would give 632.4555320);
    // 20 lg(0.6324555) = -3.979
    add("peak-to-peak: the level is that of the peak-to-peak value", kVpp, "1",
        "1 | 0.00 | 632.4555354 | -3.98", 10);
    // 632.4555354 / pi = 201.3168495; 20 lg(0.2013168) = -13.922
    add("average: the level is that of the average value", kVavg, "1",
        "1 | 0.00 | 201.3168495 | -13.92", 10);
    // sqrt(0.001 W * 75 ohm) = 0.2738612788 V; 20 lg = -11.249
    add("1 mW in 75 ohm", "impedance=75", "1", "1 | 0.00 | 273.8612788 | -11.25", 10);
    add("the impedance takes a prefix: 0.05k is 50 ohm", "impedance=0.05k", "1",
        "1 | 0.00 | 224 | -13.01");

    add("a power of zero has no levels", kFilled, "0", "0 |  | 0 | ");
    add("a negative power is invalid", kFilled, "-1", "invalid input |  |  | ");
    add("a word is invalid", kFilled, "abc", "invalid input |  |  | ");
    add("the error text is invalid again", "", "invalid input", "invalid input |  |  | ");
    add("an empty field does nothing", kFilled, "", " | 9 | 9 | 9");
    add("infinity gives nothing to show and stays", kFilled, "INF", "INF |  |  | ");

    add("an unreadable impedance counts as 0 ohm", "impedance=x", "1", "1 | 0.00 | 0 |  | invalid");
    add("an empty impedance is unreadable", "impedance=", "1", "1 | 0.00 | 0 |  | invalid");
    add("an impedance below zero gives no voltages", "impedance=-50, linVoltage=9, logVoltage=9",
        "1", "1 | 0.00 |  | ");
    add("the impedance is not read where no power is", "impedance=x", "abc",
        "invalid input |  |  | ");

    add("unknown units count as mW, dBm, mV and RMS",
        "linPowerUnit=7, logPowerUnit=7, linVoltageUnit=7, voltageMode=7", "1",
        "1 | 0.00 | 224 | -13.01");
    add("a voltage level in an unknown unit is 0", "logVoltageUnit=7", "1",
        "1 | 0.00 | 224 | 0.00");
    add("units below zero are unknown as well", "linPowerUnit=-1, logVoltageUnit=-1", "1",
        "1 | 0.00 | 224 | 0.00");
}

void UnitConverterCalculationsTest::fromLinPower()
{
    check("linPower", &UnitConverterProfile::calculateFromLinPower);
}

void UnitConverterCalculationsTest::fromLinVoltage_data()
{
    addColumns();
    // 1 V^2 / 50 ohm = 20 mW = 13.0103 dBm
    add("1 V in 50 ohm", "", "1000", "20 | 13.01 | 1000 | 0.00");
    add("1 V typed in V", kVolt, "1", "20 | 13.01 | 1 | 0.00");
    add("the power in W", kWatt, "1000", "0.02 | 13.01 | 1000 | 0.00");
    add("the power level in dBW", kDbw, "1000", "20 | -16.99 | 1000 | 0.00");
    add("the voltage level in dBµV", kDbmicrovolt, "1000", "20 | 13.01 | 1000 | 120.00");
    // 20 lg(1000 / 775) = 2.214
    add("the voltage level in dBu", kDbu, "1000", "20 | 13.01 | 1000 | 2.21");
    // 1000 / 2.82842714 = 353.553388687 mV RMS; squared over 50 ohm 2.499999973 mW; 3.979 dBm;
    // 20 lg(0.3535534) = -9.031, while the typed value has 0 dBV
    add("peak-to-peak: the level is that of the RMS value", kVpp, "1000",
        "2.499999973 | 3.98 | 1000 | -9.03", 10);
    // 1000 * pi / 2.82842714 = 1110.72072855 mV RMS; 24.67401074 mW; 13.922 dBm; 0.912 dBV
    add("average: the level is that of the RMS value", kVavg, "1000",
        "24.67401074 | 13.92 | 1000 | 0.91", 10);
    add("three digits of the same", kVavg, "1000", "24.7 | 13.92 | 1000 | 0.91");
    add("one digit of the same", kVavg, "1000", "2E+01 | 13.92 | 1000 | 0.91", 0);

    add("a voltage of zero has no levels", kFilled, "0", "0 |  | 0 | ");
    add("a negative voltage is invalid", kFilled, "-1", " |  | invalid input | ");
    add("a word is invalid", kFilled, "1k2M", " |  | invalid input | ");
    add("an empty field does nothing", kFilled, "", "9 | 9 |  | 9");
    add("infinity is shown nowhere", kFilled, "INF", " |  |  | ");

    add("an unreadable impedance gives an infinite power, which is not shown",
        "impedance=x, linPower=9, logPower=9", "1000", " |  | 1000 | 0.00 | invalid");
    add("0 V in 0 ohm has no power", "impedance=0, linPower=9, logPower=9", "0", " |  | 0 | ");
    add("an impedance below zero gives a negative power without a level",
        "impedance=-50, logPower=9", "1000", "-20 |  | 1000 | 0.00");
}

void UnitConverterCalculationsTest::fromLinVoltage()
{
    check("linVoltage", &UnitConverterProfile::calculateFromLinVoltage);
}

void UnitConverterCalculationsTest::fromLogPower_data()
{
    addColumns();
    // 10^0.33 = 2.13796209 mW; sqrt(0.002138 * 50) = 0.3269527557 V; 20 lg = -9.710
    add("3.3 dBm in 50 ohm at ten digits", "", "3.3", "2.13796209 | 3.3 | 326.9527557 | -9.71", 10);
    add("3.3 dBm at three digits", "", "3.3", "2.14 | 3.3 | 327 | -9.71");
    add("3.3 dBm at one digit", "", "3.3", "2 | 3.3 | 3E+02 | -9.71", 0);
    // 1 W: sqrt(50) = 7.0710678 V; 16.990 dBV
    add("0 dBW is 1000 mW", kDbw, "0", "1000 | 0 | 7071.067812 | 16.99", 10);
    add("the power in W and the voltage in V", "linPowerUnit=1, linVoltageUnit=1", "30",
        "1 | 30 | 7.07 | 16.99");
    // 7071.0678 * 2.82842714 = 20000.00011 mV; 26.021 dBV
    add("peak-to-peak: the level is that of the peak-to-peak value", kVpp, "30",
        "1000 | 30 | 20000.00011 | 26.02", 10);
    // 20000.00011 / pi = 6366.197758 mV; 16.078 dBV
    add("average: the level is that of the average value", kVavg, "30",
        "1000 | 30 | 6366.197758 | 16.08", 10);
    add("the voltage level in dBµV", kDbmicrovolt, "0", "1 | 0 | 224 | 106.99");
    add("a level below zero is valid", "", "-30", "0.001 | -30 | 7.07 | -43.01");

    add("a word is invalid", kFilled, "abc", " | invalid input |  | ");
    add("an empty field does nothing", kFilled, "", "9 |  | 9 | 9");
    add("a level too large for a number gives nothing to show", kFilled, "4000", " | 4000 |  | ");
    add("a level of minus infinity is zero power and not shown", kFilled, "-INF", "0 |  | 0 | ");
    add("no number is shown nowhere", kFilled, "NAN", " |  |  | ");
    add("an unreadable impedance counts as 0 ohm", "impedance=50 ohm", "0",
        "1 | 0 | 0 |  | invalid");
}

void UnitConverterCalculationsTest::fromLogPower()
{
    check("logPower", &UnitConverterProfile::calculateFromLogPower);
}

void UnitConverterCalculationsTest::fromLogVoltage_data()
{
    addColumns();
    // 1 V^2 / 50 ohm = 20 mW = 13.0103 dBm
    add("0 dBV in 50 ohm", "", "0", "20 | 13.01 | 1000 | 0", 10);
    add("three digits of 0 dBV", "", "0", "20 | 13.01 | 1E+03 | 0");
    add("120 dBµV is 1 V", kDbmicrovolt, "120", "20 | 13.01 | 1000 | 120", 10);
    // 0.775^2 / 50 = 12.0125 mW = 10.796 dBm
    add("0 dBu is 0.775 V", kDbu, "0", "12.0125 | 10.80 | 775 | 0", 10);
    add("0 dBu at one digit", kDbu, "0", "1E+01 | 10.80 | 8E+02 | 0", 0);
    add("the voltage in V, the power in W and dBW",
        "linVoltageUnit=1, linPowerUnit=1, logPowerUnit=1", "0", "0.02 | -16.99 | 1 | 0");
    // 1000 mVpp / 2.82842714 = 353.5534 mV RMS: 2.499999973 mW, 3.979 dBm
    add("peak-to-peak: the level is one of a peak-to-peak value", kVpp, "0",
        "2.499999973 | 3.98 | 1000 | 0", 10);
    // 1000 mV * pi / 2.82842714 = 1110.7207 mV RMS: 24.67401074 mW, 13.922 dBm
    add("average: the level is one of an average value", kVavg, "0",
        "24.67401074 | 13.92 | 1000 | 0", 10);
    add("a level in an unknown unit is no voltage", "logVoltageUnit=7, logPower=9", "6",
        "0 |  | 0 | 6");

    add("a word is invalid", kFilled, "abc", " |  |  | invalid input");
    add("an empty field does nothing", kFilled, "", "9 | 9 | 9 | ");
    // 10^350
    add("a level too large for a number gives nothing to show", kFilled, "7000", " |  |  | 7000");
    add("infinity is shown nowhere", kFilled, "INF", " |  |  | ");
    add("an unreadable impedance gives an infinite power, which is not shown",
        "impedance=x, linPower=9, logPower=9", "0", " |  | 1E+03 | 0 | invalid");
}

void UnitConverterCalculationsTest::fromLogVoltage()
{
    check("logVoltage", &UnitConverterProfile::calculateFromLogVoltage);
}

void UnitConverterCalculationsTest::writesInOrder_data()
{
    columns<QString, QString, QString>({"slot", "edited", "order"});
    const auto from = [](const char *tag, const char *field, const char *edited,
                         const char *order) {
        row(tag, QByteArray("calculateFrom").append(field).constData(), edited, order);
    };
    from("from the power", "LinPower", "linPower=1", "logPower linVoltage logVoltage");
    from("from the voltage", "LinVoltage", "linVoltage=1", "linPower logPower logVoltage");
    from("from the power level", "LogPower", "logPower=1", "linPower linVoltage logVoltage");
    from("from the voltage level", "LogVoltage", "logVoltage=1", "linVoltage linPower logPower");
    from("an invalid power", "LinPower", "linPower=x", "linPower logPower linVoltage logVoltage");
    from("an invalid voltage level", "LogVoltage", "logVoltage=x",
         "logVoltage linPower logPower linVoltage");
    // linVoltage is 0, the two levels are minus infinity
    from("results that are not shown are emptied last", "LinPower", "linPower=0",
         "logPower linVoltage logVoltage logPower logVoltage");
    from("the impedance is marked when it is needed", "LinPower", "impedance=x, linPower=1",
         "logPower impedance linVoltage logVoltage logVoltage");
    row("clearing all", "clearAll", "", "linPower logPower linVoltage logVoltage");
}

void UnitConverterCalculationsTest::writesInOrder()
{
    QFETCH(QString, slot);
    QFETCH(QString, edited);
    QFETCH(QString, order);

    UnitConverterProfile profile;
    setProperties(profile, values(QLatin1String(kFilled)));
    setProperties(profile, values(edited));
    ChangeLog log(profile);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.toLatin1().constData()));
    QCOMPARE(log.take().join(QLatin1Char(' ')), order);
}

void UnitConverterCalculationsTest::readsThePrecisionAtEveryCalculation()
{
    UnitConverterProfile profile;
    profile.setLinPower(QStringLiteral("1"));
    profile.calculateFromLinPower();
    profile.setSignificantDigits(10);
    QCOMPARE(profile.linVoltage(), QStringLiteral("224"));
    profile.calculateFromLinPower();
    QCOMPARE(profile.linVoltage(), QStringLiteral("223.6067977"));
}

DEZIMO_TEST_MAIN(QCoreApplication, UnitConverterCalculationsTest)

#include "tst_unitconvertercalculations.moc"
