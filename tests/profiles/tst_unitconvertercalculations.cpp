// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "unitconverterprofile.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

/// The four calculations of the unit converter. A row gives what stands in the fields, the decimal
/// places and the calculation, and lists everything that differs afterwards.
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

constexpr int kDbw = 1;
constexpr int kWatt = 1;
constexpr int kDbmicrovolt = 1;
constexpr int kDbu = 2;
constexpr int kVolt = 1;
constexpr int kVpp = 1;
constexpr int kVavg = 2;
constexpr int kUnknown = 7;

void addColumns()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("changes");
}

void row(const char *tag, int places, const PropertyValues &given, const PropertyValues &changes)
{
    QTest::newRow(tag) << places << given << changes;
}

void check(void (UnitConverterProfile::*calculate)())
{
    QFETCH(int, places);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, changes);

    UnitConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile, given);
    const QStringList expected = propertyLines(profile, changes);
    (profile.*calculate)();
    QCOMPARE(propertyLines(profile), expected);
}

/// Fields that hold something which a calculation has to replace.
PropertyValues filledExcept(const char *edited, const char *text)
{
    PropertyValues values;
    for (const char *name : {"logPower", "linPower", "logVoltage", "linVoltage"})
        values.push_back({name, qstrcmp(name, edited) == 0 ? text : "9"});
    return values;
}

} // namespace

void UnitConverterCalculationsTest::fromLinPower_data()
{
    addColumns();

    // V = sqrt(0.001 W * 50 ohm) = 0.22360679775 V; 20 lg(V / 1 V) = -13.0103
    row("1 mW in 50 ohm", 3, {{"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    row("0 decimal places count as one digit", 0, {{"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "2E+02"}, {"logVoltage", "-13.01"}});
    row("10 decimal places", 10, {{"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "223.6067977"}, {"logVoltage", "-13.01"}});
    row("0.001 W is 1 mW", 3, {{"linPowerUnit", kWatt}, {"linPower", "0.001"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    row("a prefix is read: 1 milliwatt in W", 3, {{"linPowerUnit", kWatt}, {"linPower", "1m"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    row("1 mW is -30 dBW", 3, {{"logPowerUnit", kDbw}, {"linPower", "1"}},
        {{"logPower", "-30.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    // -13.0103 dBV + 120 dB
    row("the voltage level in dBµV", 3, {{"logVoltageUnit", kDbmicrovolt}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "106.99"}});
    // 20 lg(223.607 / 775) = -10.796; against 774.6 mV it would be -10.79
    row("the voltage level in dBu is referred to 0.775 V", 3,
        {{"logVoltageUnit", kDbu}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-10.80"}});
    row("the voltage in V", 3, {{"linVoltageUnit", kVolt}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "0.224"}, {"logVoltage", "-13.01"}});
    // 223.60679775 * 2.82842714 = 632.4555354 (2 sqrt(2) would give 632.4555320);
    // 20 lg(0.6324555) = -3.979
    row("peak-to-peak: the level is that of the peak-to-peak value", 10,
        {{"voltageMode", kVpp}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "632.4555354"}, {"logVoltage", "-3.98"}});
    // 632.4555354 / pi = 201.3168495; 20 lg(0.2013168) = -13.922
    row("average: the level is that of the average value", 10,
        {{"voltageMode", kVavg}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "201.3168495"}, {"logVoltage", "-13.92"}});
    // sqrt(0.001 W * 75 ohm) = 0.2738612788 V; 20 lg = -11.249
    row("1 mW in 75 ohm", 10, {{"impedance", "75"}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "273.8612788"}, {"logVoltage", "-11.25"}});
    row("the impedance takes a prefix: 0.05k is 50 ohm", 3,
        {{"impedance", "0.05k"}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});

    row("a power of zero has no levels", 3, filledExcept("linPower", "0"),
        {{"logPower", ""}, {"linVoltage", "0"}, {"logVoltage", ""}});
    row("a negative power is invalid", 3, filledExcept("linPower", "-1"),
        {{"linPower", "invalid input"}, {"logPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("a word is invalid", 3, filledExcept("linPower", "abc"),
        {{"linPower", "invalid input"}, {"logPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("the error text is invalid again", 3, {{"linPower", "invalid input"}}, {});
    row("an empty field does nothing", 3, filledExcept("linPower", ""), {});
    row("infinity gives nothing to show and stays", 3, filledExcept("linPower", "INF"),
        {{"logPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});

    row("an unreadable impedance counts as 0 ohm", 3, {{"impedance", "x"}, {"linPower", "1"}},
        {{"impedance", "invalid"}, {"logPower", "0.00"}, {"linVoltage", "0"}});
    row("an empty impedance is unreadable", 3, {{"impedance", ""}, {"linPower", "1"}},
        {{"impedance", "invalid"}, {"logPower", "0.00"}, {"linVoltage", "0"}});
    row("an impedance below zero gives no voltages", 3,
        {{"impedance", "-50"}, {"linVoltage", "9"}, {"logVoltage", "9"}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("the impedance is not read where no power is", 3, {{"impedance", "x"}, {"linPower", "abc"}},
        {{"linPower", "invalid input"}});

    row("unknown units count as mW, dBm, mV and RMS", 3,
        {{"linPowerUnit", kUnknown},
         {"logPowerUnit", kUnknown},
         {"linVoltageUnit", kUnknown},
         {"voltageMode", kUnknown},
         {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    row("a voltage level in an unknown unit is 0", 3,
        {{"logVoltageUnit", kUnknown}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "0.00"}});
    row("units below zero are unknown as well", 3,
        {{"linPowerUnit", -1}, {"logVoltageUnit", -1}, {"linPower", "1"}},
        {{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "0.00"}});
}

void UnitConverterCalculationsTest::fromLinPower()
{
    check(&UnitConverterProfile::calculateFromLinPower);
}

void UnitConverterCalculationsTest::fromLinVoltage_data()
{
    addColumns();

    // 1 V^2 / 50 ohm = 20 mW = 13.0103 dBm
    row("1 V in 50 ohm", 3, {{"linVoltage", "1000"}},
        {{"linPower", "20"}, {"logPower", "13.01"}, {"logVoltage", "0.00"}});
    row("1 V typed in V", 3, {{"linVoltageUnit", kVolt}, {"linVoltage", "1"}},
        {{"linPower", "20"}, {"logPower", "13.01"}, {"logVoltage", "0.00"}});
    row("the power in W", 3, {{"linPowerUnit", kWatt}, {"linVoltage", "1000"}},
        {{"linPower", "0.02"}, {"logPower", "13.01"}, {"logVoltage", "0.00"}});
    row("the power level in dBW", 3, {{"logPowerUnit", kDbw}, {"linVoltage", "1000"}},
        {{"linPower", "20"}, {"logPower", "-16.99"}, {"logVoltage", "0.00"}});
    row("the voltage level in dBµV", 3, {{"logVoltageUnit", kDbmicrovolt}, {"linVoltage", "1000"}},
        {{"linPower", "20"}, {"logPower", "13.01"}, {"logVoltage", "120.00"}});
    // 20 lg(1000 / 775) = 2.214
    row("the voltage level in dBu", 3, {{"logVoltageUnit", kDbu}, {"linVoltage", "1000"}},
        {{"linPower", "20"}, {"logPower", "13.01"}, {"logVoltage", "2.21"}});
    // 1000 / 2.82842714 = 353.553388687 mV RMS; squared over 50 ohm 2.499999973 mW; 3.979 dBm;
    // 20 lg(0.3535534) = -9.031, while the typed value has 0 dBV
    row("peak-to-peak: the level is that of the RMS value", 10,
        {{"voltageMode", kVpp}, {"linVoltage", "1000"}},
        {{"linPower", "2.499999973"}, {"logPower", "3.98"}, {"logVoltage", "-9.03"}});
    // 1000 * pi / 2.82842714 = 1110.72072855 mV RMS; 24.67401074 mW; 13.922 dBm; 0.912 dBV
    row("average: the level is that of the RMS value", 10,
        {{"voltageMode", kVavg}, {"linVoltage", "1000"}},
        {{"linPower", "24.67401074"}, {"logPower", "13.92"}, {"logVoltage", "0.91"}});
    row("three digits of the same", 3, {{"voltageMode", kVavg}, {"linVoltage", "1000"}},
        {{"linPower", "24.7"}, {"logPower", "13.92"}, {"logVoltage", "0.91"}});
    row("one digit of the same", 0, {{"voltageMode", kVavg}, {"linVoltage", "1000"}},
        {{"linPower", "2E+01"}, {"logPower", "13.92"}, {"logVoltage", "0.91"}});

    row("a voltage of zero has no levels", 3, filledExcept("linVoltage", "0"),
        {{"linPower", "0"}, {"logPower", ""}, {"logVoltage", ""}});
    row("a negative voltage is invalid", 3, filledExcept("linVoltage", "-1"),
        {{"linVoltage", "invalid input"}, {"linPower", ""}, {"logPower", ""}, {"logVoltage", ""}});
    row("a word is invalid", 3, filledExcept("linVoltage", "1k2M"),
        {{"linVoltage", "invalid input"}, {"linPower", ""}, {"logPower", ""}, {"logVoltage", ""}});
    row("an empty field does nothing", 3, filledExcept("linVoltage", ""), {});
    row("infinity is shown nowhere", 3, filledExcept("linVoltage", "INF"),
        {{"linVoltage", ""}, {"linPower", ""}, {"logPower", ""}, {"logVoltage", ""}});

    row("an unreadable impedance gives an infinite power, which is not shown", 3,
        {{"impedance", "x"}, {"linPower", "9"}, {"logPower", "9"}, {"linVoltage", "1000"}},
        {{"impedance", "invalid"}, {"linPower", ""}, {"logPower", ""}, {"logVoltage", "0.00"}});
    row("0 V in 0 ohm has no power", 3,
        {{"impedance", "0"}, {"linPower", "9"}, {"logPower", "9"}, {"linVoltage", "0"}},
        {{"linPower", ""}, {"logPower", ""}});
    row("an impedance below zero gives a negative power without a level", 3,
        {{"impedance", "-50"}, {"logPower", "9"}, {"linVoltage", "1000"}},
        {{"linPower", "-20"}, {"logPower", ""}, {"logVoltage", "0.00"}});
}

void UnitConverterCalculationsTest::fromLinVoltage()
{
    check(&UnitConverterProfile::calculateFromLinVoltage);
}

void UnitConverterCalculationsTest::fromLogPower_data()
{
    addColumns();

    // 10^0.33 = 2.13796209 mW; sqrt(0.002138 * 50) = 0.3269527557 V; 20 lg = -9.710
    row("3.3 dBm in 50 ohm at ten digits", 10, {{"logPower", "3.3"}},
        {{"linPower", "2.13796209"}, {"linVoltage", "326.9527557"}, {"logVoltage", "-9.71"}});
    row("3.3 dBm at three digits", 3, {{"logPower", "3.3"}},
        {{"linPower", "2.14"}, {"linVoltage", "327"}, {"logVoltage", "-9.71"}});
    row("3.3 dBm at one digit", 0, {{"logPower", "3.3"}},
        {{"linPower", "2"}, {"linVoltage", "3E+02"}, {"logVoltage", "-9.71"}});
    // 1 W: sqrt(50) = 7.0710678 V; 16.990 dBV
    row("0 dBW is 1000 mW", 10, {{"logPowerUnit", kDbw}, {"logPower", "0"}},
        {{"linPower", "1000"}, {"linVoltage", "7071.067812"}, {"logVoltage", "16.99"}});
    row("the power in W and the voltage in V", 3,
        {{"linPowerUnit", kWatt}, {"linVoltageUnit", kVolt}, {"logPower", "30"}},
        {{"linPower", "1"}, {"linVoltage", "7.07"}, {"logVoltage", "16.99"}});
    // 7071.0678 * 2.82842714 = 20000.00011 mV; 26.021 dBV
    row("peak-to-peak: the level is that of the peak-to-peak value", 10,
        {{"voltageMode", kVpp}, {"logPower", "30"}},
        {{"linPower", "1000"}, {"linVoltage", "20000.00011"}, {"logVoltage", "26.02"}});
    // 20000.00011 / pi = 6366.197758 mV; 16.078 dBV
    row("average: the level is that of the average value", 10,
        {{"voltageMode", kVavg}, {"logPower", "30"}},
        {{"linPower", "1000"}, {"linVoltage", "6366.197758"}, {"logVoltage", "16.08"}});
    row("the voltage level in dBµV", 3, {{"logVoltageUnit", kDbmicrovolt}, {"logPower", "0"}},
        {{"linPower", "1"}, {"linVoltage", "224"}, {"logVoltage", "106.99"}});
    row("a level below zero is valid", 3, {{"logPower", "-30"}},
        {{"linPower", "0.001"}, {"linVoltage", "7.07"}, {"logVoltage", "-43.01"}});

    row("a word is invalid", 3, filledExcept("logPower", "abc"),
        {{"logPower", "invalid input"}, {"linPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("an empty field does nothing", 3, filledExcept("logPower", ""), {});
    row("a level too large for a number gives nothing to show", 3, filledExcept("logPower", "4000"),
        {{"linPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("a level of minus infinity is zero power and not shown", 3,
        filledExcept("logPower", "-INF"),
        {{"logPower", ""}, {"linPower", "0"}, {"linVoltage", "0"}, {"logVoltage", ""}});
    row("no number is shown nowhere", 3, filledExcept("logPower", "NAN"),
        {{"logPower", ""}, {"linPower", ""}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("an unreadable impedance counts as 0 ohm", 3, {{"impedance", "50 ohm"}, {"logPower", "0"}},
        {{"impedance", "invalid"}, {"linPower", "1"}, {"linVoltage", "0"}});
}

void UnitConverterCalculationsTest::fromLogPower()
{
    check(&UnitConverterProfile::calculateFromLogPower);
}

void UnitConverterCalculationsTest::fromLogVoltage_data()
{
    addColumns();

    // 1 V^2 / 50 ohm = 20 mW = 13.0103 dBm
    row("0 dBV in 50 ohm", 10, {{"logVoltage", "0"}},
        {{"linVoltage", "1000"}, {"linPower", "20"}, {"logPower", "13.01"}});
    row("three digits of 0 dBV", 3, {{"logVoltage", "0"}},
        {{"linVoltage", "1E+03"}, {"linPower", "20"}, {"logPower", "13.01"}});
    row("120 dBµV is 1 V", 10, {{"logVoltageUnit", kDbmicrovolt}, {"logVoltage", "120"}},
        {{"linVoltage", "1000"}, {"linPower", "20"}, {"logPower", "13.01"}});
    // 0.775^2 / 50 = 12.0125 mW = 10.796 dBm
    row("0 dBu is 0.775 V", 10, {{"logVoltageUnit", kDbu}, {"logVoltage", "0"}},
        {{"linVoltage", "775"}, {"linPower", "12.0125"}, {"logPower", "10.80"}});
    row("0 dBu at one digit", 0, {{"logVoltageUnit", kDbu}, {"logVoltage", "0"}},
        {{"linVoltage", "8E+02"}, {"linPower", "1E+01"}, {"logPower", "10.80"}});
    row("the voltage in V, the power in W and dBW", 3,
        {{"linVoltageUnit", kVolt},
         {"linPowerUnit", kWatt},
         {"logPowerUnit", kDbw},
         {"logVoltage", "0"}},
        {{"linVoltage", "1"}, {"linPower", "0.02"}, {"logPower", "-16.99"}});
    // 1000 mVpp / 2.82842714 = 353.5534 mV RMS: 2.499999973 mW, 3.979 dBm
    row("peak-to-peak: the level is one of a peak-to-peak value", 10,
        {{"voltageMode", kVpp}, {"logVoltage", "0"}},
        {{"linVoltage", "1000"}, {"linPower", "2.499999973"}, {"logPower", "3.98"}});
    // 1000 mV * pi / 2.82842714 = 1110.7207 mV RMS: 24.67401074 mW, 13.922 dBm
    row("average: the level is one of an average value", 10,
        {{"voltageMode", kVavg}, {"logVoltage", "0"}},
        {{"linVoltage", "1000"}, {"linPower", "24.67401074"}, {"logPower", "13.92"}});
    row("a level in an unknown unit is no voltage", 3,
        {{"logVoltageUnit", kUnknown}, {"logPower", "9"}, {"logVoltage", "6"}},
        {{"linVoltage", "0"}, {"linPower", "0"}, {"logPower", ""}});

    row("a word is invalid", 3, filledExcept("logVoltage", "abc"),
        {{"logVoltage", "invalid input"}, {"linVoltage", ""}, {"linPower", ""}, {"logPower", ""}});
    row("an empty field does nothing", 3, filledExcept("logVoltage", ""), {});
    // 10^350
    row("a level too large for a number gives nothing to show", 3,
        filledExcept("logVoltage", "7000"),
        {{"linVoltage", ""}, {"linPower", ""}, {"logPower", ""}});
    row("infinity is shown nowhere", 3, filledExcept("logVoltage", "INF"),
        {{"logVoltage", ""}, {"linVoltage", ""}, {"linPower", ""}, {"logPower", ""}});
    row("an unreadable impedance gives an infinite power, which is not shown", 3,
        {{"impedance", "x"}, {"linPower", "9"}, {"logPower", "9"}, {"logVoltage", "0"}},
        {{"impedance", "invalid"}, {"linVoltage", "1E+03"}, {"linPower", ""}, {"logPower", ""}});
}

void UnitConverterCalculationsTest::fromLogVoltage()
{
    check(&UnitConverterProfile::calculateFromLogVoltage);
}

void UnitConverterCalculationsTest::writesInOrder_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<QStringList>("order");

    const auto order = [](const char *tag, const char *slot, const PropertyValues &given,
                          const char *names) {
        QTest::newRow(tag) << QByteArray(slot) << given << words(names);
    };
    order("from the power", "calculateFromLinPower", filledExcept("linPower", "1"),
          "logPower linVoltage logVoltage");
    order("from the voltage", "calculateFromLinVoltage", filledExcept("linVoltage", "1"),
          "linPower logPower logVoltage");
    order("from the power level", "calculateFromLogPower", filledExcept("logPower", "1"),
          "linPower linVoltage logVoltage");
    order("from the voltage level", "calculateFromLogVoltage", filledExcept("logVoltage", "1"),
          "linVoltage linPower logPower");
    order("an invalid power", "calculateFromLinPower", filledExcept("linPower", "x"),
          "linPower logPower linVoltage logVoltage");
    order("an invalid voltage level", "calculateFromLogVoltage", filledExcept("logVoltage", "x"),
          "logVoltage linPower logPower linVoltage");
    // linVoltage is 0, the two levels are minus infinity
    order("results that are not shown are emptied last", "calculateFromLinPower",
          filledExcept("linPower", "0"), "logPower linVoltage logVoltage logPower logVoltage");
    order("the impedance is marked when it is needed", "calculateFromLinPower",
          {{"linPower", "1"}, {"logVoltage", "9"}, {"impedance", "x"}},
          "logPower impedance linVoltage logVoltage logVoltage");
    order("clearing all", "clearAll", filledExcept("", ""),
          "linPower logPower linVoltage logVoltage");
}

void UnitConverterCalculationsTest::writesInOrder()
{
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, given);
    QFETCH(QStringList, order);

    UnitConverterProfile profile;
    setProperties(profile, given);
    ChangeLog log(profile);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.constData()));
    QCOMPARE(log.take(), order);
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
