// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "settingsfile.h"
#include "testmain.h"
#include "vswrconverterprofile.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

/// State, units and storage of the VSWR converter.
class VswrConverterProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void declaresItsSignalsInOrder();
    void unitSetterRewrites_data();
    void unitSetterRewrites();
    void unitSetterWritesTheTextFirst();
    void savesEveryKey();
    void loadsDefaults();
    void malformedKeysTakeTheirDefaults();
    void loadsSelectionsBeforeTexts();
    void loadedTextsAreTheStoredOnes();
};

namespace {

constexpr int kDbm = 0;
constexpr int kDbw = 1;
constexpr int kWatt = 2;
constexpr int kMilliwatt = 3;
constexpr int kDbv = 0;
constexpr int kDbmicrovolt = 1;
constexpr int kVolt = 2;
constexpr int kMillivolt = 3;
constexpr int kUnknown = 4;

/// In the order of loading. No calculation would write these texts.
const PropertyValues &everythingChanged()
{
    static const PropertyValues values{
        {"currentMode", 1},   {"pForwardUnit", 1},   {"pReflectedUnit", 2},
        {"pAbsorbedUnit", 3}, {"vForwardUnit", 1},   {"vReflectedUnit", 2},
        {"vAbsorbedUnit", 3}, {"vswr", "2:1"},       {"r", "0.3330"},
        {"r2", "11.10"},      {"ar", "9.5"},         {"am", "invalid input"},
        {"pForward", "1.0"},  {"pReflected", "2.0"}, {"pAbsorbed", "3.0"},
        {"vForward", "4.0"},  {"vReflected", "5.0"}, {"vAbsorbed", "6.0"},
    };
    return values;
}

QStringList namesOf(const PropertyValues &values)
{
    QStringList names;
    for (const PropertyValue &value : values)
        names += QString::fromLatin1(value.name);
    return names;
}

} // namespace

void VswrConverterProfileTest::startsEmpty()
{
    const VswrConverterProfile profile;
    const QStringList expected =
        QStringLiteral(
            "vswr = |r = |r2 = |ar = |am = |pForward = |pReflected = |pAbsorbed = |vForward = |"
            "vReflected = |vAbsorbed = |currentMode = 0|pForwardUnit = 0|pReflectedUnit = 0|"
            "pAbsorbedUnit = 0|vForwardUnit = 0|vReflectedUnit = 0|vAbsorbedUnit = 0")
            .split(QLatin1Char('|'));
    QCOMPARE(propertyLines(profile), expected);
}

void VswrConverterProfileTest::declaresItsSignalsInOrder()
{
    const QStringList expected = words(
        "vswrChanged rChanged r2Changed arChanged amChanged pForwardChanged pReflectedChanged "
        "pAbsorbedChanged pForwardUnitChanged pReflectedUnitChanged pAbsorbedUnitChanged "
        "vForwardChanged vReflectedChanged vAbsorbedChanged vForwardUnitChanged "
        "vReflectedUnitChanged vAbsorbedUnitChanged currentModeChanged");
    QCOMPARE(signalNames(VswrConverterProfile::staticMetaObject), expected);
}

void VswrConverterProfileTest::unitSetterRewrites_data()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("unit");
    QTest::addColumn<QString>("text");

    const auto row = [](const QByteArray &tag, const QByteArray &field, int from,
                        const char *before, int to, const char *after, int places = 10) {
        QTest::newRow(tag.constData())
            << places << PropertyValues{{field + "Unit", from}, {field, before}}
            << PropertyValues{{field + "Unit", to}} << QString::fromLatin1(after);
    };

    row("10 dBm in dBW", "pForward", kDbm, "10", kDbw, "-20");
    row("10 dBm in W", "pForward", kDbm, "10", kWatt, "0.01");
    row("10 dBm in mW", "pForward", kDbm, "10", kMilliwatt, "10");
    row("-20 dBW in dBm", "pReflected", kDbw, "-20", kDbm, "10");
    row("-20 dBW in W", "pReflected", kDbw, "-20", kWatt, "0.01");
    row("-20 dBW in mW", "pReflected", kDbw, "-20", kMilliwatt, "10");
    row("2 W in dBm: 10 lg 2000", "pAbsorbed", kWatt, "2", kDbm, "33.01029996");
    row("2 W in dBW: 10 lg 2", "pAbsorbed", kWatt, "2", kDbw, "3.010299957");
    row("2 W in mW", "pAbsorbed", kWatt, "2", kMilliwatt, "2000");
    row("2 mW in dBm: 10 lg 2", "pForward", kMilliwatt, "2", kDbm, "3.010299957");
    row("2 mW in dBW", "pReflected", kMilliwatt, "2", kDbw, "-26.98970004");
    row("2 mW in W", "pAbsorbed", kMilliwatt, "2", kWatt, "0.002");

    row("0 dBV in dBµV", "vForward", kDbv, "0", kDbmicrovolt, "120");
    row("6 dBV in V: 10^0.3", "vForward", kDbv, "6", kVolt, "1.995262315");
    row("6 dBV in mV", "vForward", kDbv, "6", kMillivolt, "1995.262315");
    row("120 dBµV in dBV", "vReflected", kDbmicrovolt, "120", kDbv, "0");
    row("120 dBµV in V", "vReflected", kDbmicrovolt, "120", kVolt, "1");
    row("120 dBµV in mV", "vReflected", kDbmicrovolt, "120", kMillivolt, "1000");
    row("2 V in dBV: 20 lg 2", "vAbsorbed", kVolt, "2", kDbv, "6.020599913");
    row("2 V in dBµV", "vAbsorbed", kVolt, "2", kDbmicrovolt, "126.0205999");
    row("2 V in mV", "vAbsorbed", kVolt, "2", kMillivolt, "2000");
    row("2 mV in dBV", "vForward", kMillivolt, "2", kDbv, "-53.97940009");
    row("2 mV in dBµV", "vReflected", kMillivolt, "2", kDbmicrovolt, "66.02059991");
    row("2 mV in V", "vAbsorbed", kMillivolt, "2", kVolt, "0.002");

    row("a rewritten level is in the general form", "pForward", kMilliwatt, "2", kDbm, "3.01", 3);
    row("a rewritten voltage at one digit", "vForward", kDbv, "6", kMillivolt, "2E+03", 0);
    row("a prefix is read", "pForward", kWatt, "2m", kMilliwatt, "2");
    row("0 mW in dBm", "pForward", kMilliwatt, "0", kDbm, "-INF");
    row("-1 mW in dBm", "pForward", kMilliwatt, "-1", kDbm, "NAN");
    row("an unknown unit is taken as mW", "pForward", kDbm, "10", kUnknown, "10");
    row("and as mV", "vForward", kUnknown, "1000", kDbv, "0");

    // Each setter gets an empty text, and a word, which reads as 0: 0 dBm = 1 mW, 0 dBV = 1000 mV.
    const auto oddTexts = [&row](const QByteArray &field, const char *zeroLevel) {
        row("nothing in " + field, field, 0, "", 3, "");
        row("a word in " + field, field, 0, "invalid input", 3, zeroLevel);
        row("the same unit in " + field, field, 0, "abc", 0, "abc");
    };
    for (const char *field : {"pForward", "pReflected", "pAbsorbed"})
        oddTexts(field, "1");
    for (const char *field : {"vForward", "vReflected", "vAbsorbed"})
        oddTexts(field, "1000");
}

/// The square and the other rows are filled, so a recalculation would show.
void VswrConverterProfileTest::unitSetterRewrites()
{
    QFETCH(int, places);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, unit);
    QFETCH(QString, text);

    VswrConverterProfile profile;
    profile.setSignificantDigits(places);
    for (const char *name :
         {"r2", "pForward", "pReflected", "pAbsorbed", "vForward", "vReflected", "vAbsorbed"})
        profile.setProperty(name, QStringLiteral("7"));
    setProperties(profile, given);
    const QByteArray rewritten = text.toLatin1();
    const QStringList expected =
        propertyLines(profile, {unit.front(), {given.back().name, rewritten.constData()}});
    setProperties(profile, unit);
    QCOMPARE(propertyLines(profile), expected);
}

void VswrConverterProfileTest::unitSetterWritesTheTextFirst()
{
    VswrConverterProfile profile;
    profile.setPAbsorbed(QStringLiteral("10"));
    ChangeLog log(profile);
    profile.setPAbsorbedUnit(kWatt);
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("pAbsorbed"), QStringLiteral("pAbsorbedUnit")}));
    profile.setPAbsorbedUnit(kWatt);
    QCOMPARE(log.take(), QStringList());
}

void VswrConverterProfileTest::savesEveryKey()
{
    VswrConverterProfile profile;
    setProperties(profile, everythingChanged());
    SettingsFile file;
    profile.saveSettings(file.settings());
    QStringList expected =
        QStringLiteral(
            "[VswrConverterProfile]|vswr=2:1|r=0.3330|r2=11.10|ar=9.5|am=invalid "
            "input|pForward=1.0|"
            "pReflected=2.0|pAbsorbed=3.0|vForward=4.0|vReflected=5.0|vAbsorbed=6.0|currentMode=1|"
            "pForwardUnit=1|pReflectedUnit=2|pAbsorbedUnit=3|vForwardUnit=1|vReflectedUnit=2|"
            "vAbsorbedUnit=3")
            .split(QLatin1Char('|'));
    expected.sort();
    QCOMPARE(file.lines(), expected);
}

void VswrConverterProfileTest::loadsDefaults()
{
    VswrConverterProfile profile;
    setProperties(profile, everythingChanged());
    SettingsFile file;
    profile.loadSettings(file.settings());
    QCOMPARE(propertyLines(profile), propertyLines(VswrConverterProfile()));
}

void VswrConverterProfileTest::malformedKeysTakeTheirDefaults()
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("VswrConverterProfile"));
    file.settings().setValue(QStringLiteral("currentMode"), 2);
    file.settings().setValue(QStringLiteral("pForwardUnit"), 4);
    file.settings().setValue(QStringLiteral("pReflectedUnit"), -1);
    file.settings().setValue(QStringLiteral("pAbsorbedUnit"), QStringLiteral("mW"));
    file.settings().setValue(QStringLiteral("vForwardUnit"), 4);
    file.settings().setValue(QStringLiteral("vReflectedUnit"), 3);
    file.settings().setValue(QStringLiteral("vswr"),
                             QStringList{QStringLiteral("1"), QStringLiteral("2")});
    file.settings().setValue(QStringLiteral("r"), QStringLiteral("0.5"));
    file.settings().endGroup();

    VswrConverterProfile profile;
    setProperties(profile, everythingChanged());
    const QStringList expected =
        propertyLines(VswrConverterProfile(), {{"vReflectedUnit", 3}, {"r", "0.5"}});
    profile.loadSettings(file.settings());
    QCOMPARE(propertyLines(profile), expected);
}

void VswrConverterProfileTest::loadsSelectionsBeforeTexts()
{
    VswrConverterProfile saved;
    setProperties(saved, everythingChanged());
    SettingsFile file;
    saved.saveSettings(file.settings());
    VswrConverterProfile loaded;
    ChangeLog log(loaded);
    loaded.loadSettings(file.settings());
    QCOMPARE(log.take(), namesOf(everythingChanged()));
    loaded.loadSettings(file.settings());
    QCOMPARE(log.take(), QStringList());
}

/// Loading the unit first rewrites the text that is still there. Then the stored text replaces it,
/// character by character.
void VswrConverterProfileTest::loadedTextsAreTheStoredOnes()
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("VswrConverterProfile"));
    file.settings().setValue(QStringLiteral("pForwardUnit"), kWatt);
    file.settings().setValue(QStringLiteral("pForward"), QStringLiteral("0.0100"));
    file.settings().endGroup();

    VswrConverterProfile profile;
    profile.setPForward(QStringLiteral("10"));
    QStringList seen;
    connect(&profile, &VswrConverterProfile::pForwardChanged, this,
            [&] { seen += profile.pForward(); });
    profile.loadSettings(file.settings());
    QCOMPARE(seen, (QStringList{QStringLiteral("0.01"), QStringLiteral("0.0100")}));
}

DEZIMO_TEST_MAIN(QCoreApplication, VswrConverterProfileTest)

#include "tst_vswrconverterprofile.moc"
