// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "settingsfile.h"
#include "testmain.h"
#include "unitconverterprofile.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

/// State, units and storage of the unit converter.
class UnitConverterProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmptyAt50Ohm();
    void declaresItsSignalsInOrder();
    void rescales_data();
    void rescales();
    void aUnitSetterOnlyStores();
    void thePreviousUnitFollows_data();
    void thePreviousUnitFollows();
    void savesEveryKey();
    void loadsDefaults();
    void malformedKeysTakeTheirDefaults();
    void loadingNeverRewrites();
    void loadsInOrderAndSignalsEachChangeOnce();
};

namespace {

const PropertyValues &everythingChanged()
{
    static const PropertyValues values{
        {"impedance", "75"},   {"logPowerUnit", 1},   {"linPowerUnit", 1},
        {"logVoltageUnit", 2}, {"linVoltageUnit", 1}, {"logPower", "-30.00"},
        {"linPower", "0.001"}, {"logVoltage", "abc"}, {"linVoltage", "invalid input"},
        {"voltageMode", 2},
    };
    return values;
}

QStringList defaultLines()
{
    return {QStringLiteral("logPower = "),        QStringLiteral("linPower = "),
            QStringLiteral("logVoltage = "),      QStringLiteral("linVoltage = "),
            QStringLiteral("logPowerUnit = 0"),   QStringLiteral("linPowerUnit = 0"),
            QStringLiteral("logVoltageUnit = 0"), QStringLiteral("linVoltageUnit = 0"),
            QStringLiteral("impedance = 50"),     QStringLiteral("voltageMode = 0")};
}

} // namespace

void UnitConverterProfileTest::startsEmptyAt50Ohm()
{
    const UnitConverterProfile profile;
    QCOMPARE(propertyLines(profile), defaultLines());
}

void UnitConverterProfileTest::declaresItsSignalsInOrder()
{
    const QStringList expected =
        words("logPowerChanged linPowerChanged logVoltageChanged linVoltageChanged "
              "logPowerUnitChanged linPowerUnitChanged logVoltageUnitChanged "
              "linVoltageUnitChanged impedanceChanged voltageModeChanged");
    QCOMPARE(signalNames(UnitConverterProfile::staticMetaObject), expected);
}

void UnitConverterProfileTest::rescales_data()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("unit");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("changes");

    const auto row = [](const char *tag, int places, const PropertyValues &given,
                        const PropertyValue &unit, const char *slot,
                        const PropertyValues &changes) {
        QTest::newRow(tag) << places << given << PropertyValues{unit} << QByteArray(slot)
                           << changes;
    };

    row("1234.5 mW in W", 10, {{"linPower", "1234.5"}}, {"linPowerUnit", 1}, "rescaleLinPower",
        {{"linPower", "1.2345"}});
    row("1234.5 mW in W at three digits", 3, {{"linPower", "1234.5"}}, {"linPowerUnit", 1},
        "rescaleLinPower", {{"linPower", "1.23"}});
    row("1234.5 mW in W at one digit", 0, {{"linPower", "1234.5"}}, {"linPowerUnit", 1},
        "rescaleLinPower", {{"linPower", "1"}});
    row("1.5 W in mW", 10, {{"linPowerUnit", 1}, {"linPower", "1.5"}}, {"linPowerUnit", 0},
        "rescaleLinPower", {{"linPower", "1500"}});
    row("a power with a prefix: 2 mW typed in W", 3, {{"linPowerUnit", 1}, {"linPower", "2m"}},
        {"linPowerUnit", 0}, "rescaleLinPower", {{"linPower", "2"}});
    row("an empty power", 3, {{"linVoltage", "7"}}, {"linPowerUnit", 1}, "rescaleLinPower", {});
    row("a power that is a word", 3, {{"linPower", "invalid input"}}, {"linPowerUnit", 1},
        "rescaleLinPower", {});
    row("a power that grows too large is not shown", 3,
        {{"linPowerUnit", 1}, {"linPower", "1e308"}}, {"linPowerUnit", 0}, "rescaleLinPower",
        {{"linPower", ""}});

    row("500 mV in V", 3, {{"linVoltage", "500"}}, {"linVoltageUnit", 1}, "rescaleLinVoltage",
        {{"linVoltage", "0.5"}});
    row("0.0123456 V in mV", 10, {{"linVoltageUnit", 1}, {"linVoltage", "0.0123456"}},
        {"linVoltageUnit", 0}, "rescaleLinVoltage", {{"linVoltage", "12.3456"}});
    row("an empty voltage", 3, {{"linPower", "7"}}, {"linVoltageUnit", 1}, "rescaleLinVoltage", {});
    row("a voltage that is a word", 3, {{"linVoltage", "abc"}}, {"linVoltageUnit", 1},
        "rescaleLinVoltage", {});

    row("10 dBm in dBW", 3, {{"logPower", "10.00"}}, {"logPowerUnit", 1}, "rescaleLogPower",
        {{"logPower", "-20.00"}});
    row("-20 dBW in dBm", 3, {{"logPowerUnit", 1}, {"logPower", "-20"}}, {"logPowerUnit", 0},
        "rescaleLogPower", {{"logPower", "10.00"}});
    row("a power level keeps two decimals at ten digits", 10, {{"logPower", "1.2345"}},
        {"logPowerUnit", 1}, "rescaleLogPower", {{"logPower", "-28.77"}});
    // 10^400 mW is no number, but 4000 dBm is 3970 dBW
    row("a power level beyond all powers", 3, {{"logPower", "4000"}}, {"logPowerUnit", 1},
        "rescaleLogPower", {{"logPower", "3970.00"}});
    row("an empty power level", 3, {}, {"logPowerUnit", 1}, "rescaleLogPower", {});
    row("a power level that is a word", 3, {{"logPower", "abc"}}, {"logPowerUnit", 1},
        "rescaleLogPower", {});

    // 20 lg(1000 / 775) = 2.2140; 20 lg(775000) = 117.7860
    row("0 dBV in dBµV", 3, {{"logVoltage", "0"}}, {"logVoltageUnit", 1}, "rescaleLogVoltage",
        {{"logVoltage", "120.00"}});
    row("0 dBV in dBu", 10, {{"logVoltage", "0"}}, {"logVoltageUnit", 2}, "rescaleLogVoltage",
        {{"logVoltage", "2.21"}});
    row("120 dBµV in dBV", 3, {{"logVoltageUnit", 1}, {"logVoltage", "120"}}, {"logVoltageUnit", 0},
        "rescaleLogVoltage", {{"logVoltage", "0.00"}});
    row("120 dBµV in dBu", 0, {{"logVoltageUnit", 1}, {"logVoltage", "120"}}, {"logVoltageUnit", 2},
        "rescaleLogVoltage", {{"logVoltage", "2.21"}});
    row("0 dBu in dBV", 3, {{"logVoltageUnit", 2}, {"logVoltage", "0"}}, {"logVoltageUnit", 0},
        "rescaleLogVoltage", {{"logVoltage", "-2.21"}});
    row("0 dBu in dBµV", 3, {{"logVoltageUnit", 2}, {"logVoltage", "0"}}, {"logVoltageUnit", 1},
        "rescaleLogVoltage", {{"logVoltage", "117.79"}});
    row("a voltage level in an unknown unit is 0", 3, {{"logVoltage", "6"}}, {"logVoltageUnit", 7},
        "rescaleLogVoltage", {{"logVoltage", "0.00"}});
    row("a voltage level beyond all voltages is not shown", 3, {{"logVoltage", "7000"}},
        {"logVoltageUnit", 1}, "rescaleLogVoltage", {{"logVoltage", ""}});
    row("an empty voltage level", 3, {}, {"logVoltageUnit", 1}, "rescaleLogVoltage", {});
    row("a voltage level that is a word", 3, {{"logVoltage", "abc"}}, {"logVoltageUnit", 1},
        "rescaleLogVoltage", {});
}

void UnitConverterProfileTest::rescales()
{
    QFETCH(int, places);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, unit);
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, changes);

    UnitConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile, given);
    setProperties(profile, unit);
    const QStringList expected = propertyLines(profile, changes);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.constData()));
    QCOMPARE(propertyLines(profile), expected);
}

void UnitConverterProfileTest::aUnitSetterOnlyStores()
{
    UnitConverterProfile profile;
    setProperties(profile,
                  {{"logPower", "1"}, {"linPower", "2"}, {"logVoltage", "3"}, {"linVoltage", "4"}});
    const PropertyValues units{{"logPowerUnit", 1},   {"linPowerUnit", 1}, {"logVoltageUnit", 1},
                               {"linVoltageUnit", 1}, {"voltageMode", 1},  {"impedance", "75"}};
    const QStringList expected = propertyLines(profile, units);
    setProperties(profile, units);
    QCOMPARE(propertyLines(profile), expected);
}

/// The level shown at last is 120 dBµV. Whatever happened to the field before, it is rescaled from
/// dBµV and thus 0 dBV.
void UnitConverterProfileTest::thePreviousUnitFollows_data()
{
    QTest::addColumn<QString>("textBefore");
    QTest::addColumn<bool>("rescaledBefore");

    QTest::newRow("an empty field, rescaled") << QString() << true;
    QTest::newRow("an empty field, not rescaled") << QString() << false;
    QTest::newRow("a word, rescaled") << QStringLiteral("abc") << true;
    QTest::newRow("a word, not rescaled") << QStringLiteral("abc") << false;
    QTest::newRow("a number, rescaled") << QStringLiteral("0") << true;
    QTest::newRow("the same text in the unit before") << QStringLiteral("120") << false;
}

void UnitConverterProfileTest::thePreviousUnitFollows()
{
    QFETCH(QString, textBefore);
    QFETCH(bool, rescaledBefore);

    UnitConverterProfile profile;
    profile.setLogVoltage(textBefore);
    profile.setLogVoltageUnit(1);
    if (rescaledBefore)
        profile.rescaleLogVoltage();
    profile.setLogVoltage(QStringLiteral("120"));
    profile.setLogVoltageUnit(0);
    profile.rescaleLogVoltage();
    QCOMPARE(profile.logVoltage(), QStringLiteral("0.00"));
}

void UnitConverterProfileTest::savesEveryKey()
{
    UnitConverterProfile profile;
    setProperties(profile, everythingChanged());
    SettingsFile file;
    profile.saveSettings(file.settings());
    const QStringList expected{QStringLiteral("[UnitConverterProfile]"),
                               QStringLiteral("impedance=75"),
                               QStringLiteral("linPower=0.001"),
                               QStringLiteral("linPowerUnit=1"),
                               QStringLiteral("linVoltage=invalid input"),
                               QStringLiteral("linVoltageUnit=1"),
                               QStringLiteral("logPower=-30.00"),
                               QStringLiteral("logPowerUnit=1"),
                               QStringLiteral("logVoltage=abc"),
                               QStringLiteral("logVoltageUnit=2"),
                               QStringLiteral("voltageMode=2")};
    QCOMPARE(file.lines(), expected);
}

void UnitConverterProfileTest::loadsDefaults()
{
    UnitConverterProfile profile;
    setProperties(profile, everythingChanged());
    SettingsFile file;
    profile.loadSettings(file.settings());
    QCOMPARE(propertyLines(profile), defaultLines());
}

void UnitConverterProfileTest::malformedKeysTakeTheirDefaults()
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("UnitConverterProfile"));
    file.settings().setValue(QStringLiteral("logPowerUnit"), 2);
    file.settings().setValue(QStringLiteral("linPowerUnit"), -1);
    file.settings().setValue(QStringLiteral("logVoltageUnit"), 3);
    file.settings().setValue(QStringLiteral("linVoltageUnit"), QStringLiteral("V"));
    file.settings().setValue(QStringLiteral("voltageMode"), 3);
    file.settings().setValue(QStringLiteral("impedance"),
                             QStringList{QStringLiteral("7"), QStringLiteral("5")});
    file.settings().setValue(QStringLiteral("logPower"), QStringLiteral("12"));
    file.settings().endGroup();

    UnitConverterProfile profile;
    setProperties(profile, everythingChanged());
    const UnitConverterProfile untouched;
    const QStringList expected = propertyLines(untouched, {{"logPower", "12"}});
    profile.loadSettings(file.settings());
    QCOMPARE(propertyLines(profile), expected);
}

/// After a load every text is exactly the stored one, and it stands in the loaded unit.
void UnitConverterProfileTest::loadingNeverRewrites()
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("UnitConverterProfile"));
    file.settings().setValue(QStringLiteral("logVoltageUnit"), 1);
    file.settings().setValue(QStringLiteral("logVoltage"), QStringLiteral("120"));
    file.settings().setValue(QStringLiteral("voltageMode"), 1);
    file.settings().endGroup();

    UnitConverterProfile profile;
    profile.setLogVoltage(QStringLiteral("120"));
    profile.loadSettings(file.settings());
    QCOMPARE(profile.logVoltage(), QStringLiteral("120"));
    QCOMPARE(profile.linVoltage(), QString());
    profile.setLogVoltageUnit(0);
    profile.rescaleLogVoltage();
    QCOMPARE(profile.logVoltage(), QStringLiteral("0.00"));
}

void UnitConverterProfileTest::loadsInOrderAndSignalsEachChangeOnce()
{
    UnitConverterProfile saved;
    setProperties(saved, everythingChanged());
    SettingsFile file;
    saved.saveSettings(file.settings());
    UnitConverterProfile loaded;
    ChangeLog log(loaded);
    loaded.loadSettings(file.settings());
    QStringList expected;
    for (const PropertyValue &value : everythingChanged())
        expected += QString::fromLatin1(value.name);
    QCOMPARE(log.take(), expected);
    loaded.loadSettings(file.settings());
    QCOMPARE(log.take(), QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, UnitConverterProfileTest)

#include "tst_unitconverterprofile.moc"
