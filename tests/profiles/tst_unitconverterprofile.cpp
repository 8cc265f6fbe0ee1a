// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "settingsfile.h"
#include "table.h"
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
    columns<int, QByteArray, int, QString, int, QString>(
        {"places", "quantity", "from", "before", "to", "after"});
    const auto add = [](const char *tag, const char *quantity, int from, const char *before, int to,
                        const char *after, int places = ModuleProfile::kDefaultSignificantDigits) {
        row(tag, places, QByteArray(quantity), from, before, to, after);
    };

    add("1234.5 mW in W", "linPower", 0, "1234.5", 1, "1.2345", 10);
    add("1234.5 mW in W at three digits", "linPower", 0, "1234.5", 1, "1.23");
    add("1234.5 mW in W at one digit", "linPower", 0, "1234.5", 1, "1", 0);
    add("1.5 W in mW", "linPower", 1, "1.5", 0, "1500", 10);
    add("a power with a prefix: 2 mW typed in W", "linPower", 1, "2m", 0, "2");
    add("an empty power", "linPower", 0, "", 1, "");
    add("a power that is a word", "linPower", 0, "invalid input", 1, "invalid input");
    add("a power that grows too large is not shown", "linPower", 1, "1e308", 0, "");

    add("500 mV in V", "linVoltage", 0, "500", 1, "0.5");
    add("0.0123456 V in mV", "linVoltage", 1, "0.0123456", 0, "12.3456", 10);
    add("an empty voltage", "linVoltage", 0, "", 1, "");
    add("a voltage that is a word", "linVoltage", 0, "abc", 1, "abc");

    add("10 dBm in dBW", "logPower", 0, "10.00", 1, "-20.00");
    add("-20 dBW in dBm", "logPower", 1, "-20", 0, "10.00");
    add("a power level keeps two decimals at ten digits", "logPower", 0, "1.2345", 1, "-28.77", 10);
    // 10^400 mW is too large for a number, but 4000 dBm is 3970 dBW
    add("a power level beyond all powers", "logPower", 0, "4000", 1, "3970.00");
    add("an empty power level", "logPower", 0, "", 1, "");
    add("a power level that is a word", "logPower", 0, "abc", 1, "abc");

    // 20 lg(1000 / 775) = 2.2140; 20 lg(775000) = 117.7860
    add("0 dBV in dBµV", "logVoltage", 0, "0", 1, "120.00");
    add("0 dBV in dBu", "logVoltage", 0, "0", 2, "2.21", 10);
    add("120 dBµV in dBV", "logVoltage", 1, "120", 0, "0.00");
    add("120 dBµV in dBu", "logVoltage", 1, "120", 2, "2.21", 0);
    add("0 dBu in dBV", "logVoltage", 2, "0", 0, "-2.21");
    add("0 dBu in dBµV", "logVoltage", 2, "0", 1, "117.79");
    add("a voltage level in an unknown unit is 0", "logVoltage", 0, "6", 7, "0.00");
    add("a voltage level beyond all voltages is not shown", "logVoltage", 0, "7000", 1, "");
    add("an empty voltage level", "logVoltage", 0, "", 1, "");
    add("a voltage level that is a word", "logVoltage", 0, "abc", 1, "abc");
}

void UnitConverterProfileTest::rescales()
{
    QFETCH(int, places);
    QFETCH(QByteArray, quantity);
    QFETCH(int, from);
    QFETCH(QString, before);
    QFETCH(int, to);
    QFETCH(QString, after);

    UnitConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile,
                  values(QStringLiteral("logPower=7, linPower=7, logVoltage=7, linVoltage=7")));
    const QByteArray unit = quantity + "Unit";
    setProperties(profile, {{unit, from}, {quantity, before.toUtf8().constData()}, {unit, to}});
    const QStringList expected = propertyLines(profile, {{quantity, after.toUtf8().constData()}});
    const QByteArray slot = "rescale" + quantity.left(1).toUpper() + quantity.mid(1);
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

/// The field last shows a level of 120 dBµV. Whatever it held before, it rescales from dBµV, so the
/// result is 0 dBV.
void UnitConverterProfileTest::thePreviousUnitFollows_data()
{
    columns<QString, bool>({"textBefore", "rescaledBefore"});
    row("an empty field, rescaled", QString(), true);
    row("an empty field, not rescaled", QString(), false);
    row("a word, rescaled", "abc", true);
    row("a word, not rescaled", "abc", false);
    row("a number, rescaled", "0", true);
    row("the same text in the unit before", "120", false);
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
    QCOMPARE(file.lines(), lines(R"(
        [UnitConverterProfile]
        impedance=75
        linPower=0.001
        linPowerUnit=1
        linVoltage=invalid input
        linVoltageUnit=1
        logPower=-30.00
        logPowerUnit=1
        logVoltage=abc
        logVoltageUnit=2
        voltageMode=2)"));
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

/// After a load every text is exactly the stored one, in the loaded unit.
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
