// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "words.h"

#include <QSettings>
#include <QTest>

#include <limits>
#include <utility>

using namespace Dezimo;

/// How the application's settings and files keep the state of the whole program.
class MainProfileStorageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesEveryKey();
    void encodesTheWindow();
    void keepsEverything();
    void loadsTheProfilesInOrder();
    void loadingTheSameAgainSignalsNothing();
    void aModuleLoadLeavesTheWindowAlone();
    void theDefaultsStoreResetsTheModules();
    void whatIsNoStoreReadsAsDefaults_data();
    void whatIsNoStoreReadsAsDefaults();
    void oneUnusableKeyTakesItsDefaultAlone_data();
    void oneUnusableKeyTakesItsDefaultAlone();
    void aSelectorWithoutTheStoredRowTakesItsDefault_data();
    void aSelectorWithoutTheStoredRowTakesItsDefault();
    void readsTheWindowGroup_data();
    void readsTheWindowGroup();
    void longTextsAreKeptWhileAFieldHoldsThem_data();
    void longTextsAreKeptWhileAFieldHoldsThem();
};

namespace {

const QStringList &windowProperties()
{
    static const QStringList names =
        words("MainProfile.windowPosition MainProfile.windowSize MainProfile.windowMode "
              "MainProfile.currentModule MainProfile.decimalPlaces");
    return names;
}

/// The bytes of a file with the state of @p root. A store that reads them does not know the types
/// of the values.
QByteArray savedText(MainProfile &root)
{
    SettingsFile file;
    root.saveSettings(file.settings());
    return file.text();
}

const QByteArray &savedChanges()
{
    static const QByteArray text = [] {
        MainProfile changed;
        changeEverything(changed);
        return savedText(changed);
    }();
    return text;
}

/// The text of a file with @p replacement for the line of "group/key".
QByteArray withLine(const QByteArray &text, const QString &key, const QByteArray &replacement)
{
    const QByteArray group = '[' + key.section(QLatin1Char('/'), 0, 0).toLatin1() + ']';
    const QByteArray start = key.section(QLatin1Char('/'), 1).toLatin1() + '=';
    QByteArray result;
    QByteArray currentGroup;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith('['))
            currentGroup = line;
        const bool isReplaced = currentGroup == group && line.startsWith(start);
        result += (isReplaced ? replacement : line) + '\n';
    }
    return result;
}

/// The property that a missing key changes. The keys of the units' validity share one property. In
/// a changed profile only the first unit's validity differs from the default.
QStringList propertyOf(const QString &key)
{
    const QString group = key.section(QLatin1Char('/'), 0, 0) + QLatin1Char('.');
    const QString name = key.section(QLatin1Char('/'), 1);
    if (name == QLatin1String("DbmValid") || name == QLatin1String("MvValid"))
        return {group + QLatin1String("validUnits")};
    if (name.endsWith(QLatin1String("Valid")))
        return {};
    return {group + name};
}

} // namespace

/// Every file that was ever saved relies on these names.
void MainProfileStorageTest::savesEveryKey()
{
    struct Group
    {
        const char *name;
        const char *keys;
    };
    const Group groups[] = {
        {"DbConverterProfile",
         "currentMode p1 p2 pDb pLatestRun pRatio v1 v2 vDb vLatestRun vRatio"},
        {"DbmCalculatorProfile",
         "DbValid DbmValid DbwValid MwValid NoneValid UwValid WValid input mode output outputUnit"},
        {"MainProfile", "currentModule decimalPlaces windowMode windowPosition windowSize"},
        {"UnitConverterProfile",
         "impedance linPower linPowerUnit linVoltage linVoltageUnit logPower logPowerUnit "
         "logVoltage logVoltageUnit voltageMode"},
        {"VoltageCalculatorProfile", "MvValid NoneValid VValid input mode output outputUnit phase"},
        {"VswrConverterProfile",
         "am ar currentMode pAbsorbed pAbsorbedUnit pForward pForwardUnit pReflected "
         "pReflectedUnit r r2 vAbsorbed vAbsorbedUnit vForward vForwardUnit vReflected "
         "vReflectedUnit vswr"},
    };
    QStringList expected;
    for (const Group &group : groups) {
        const QStringList keys = words(group.keys);
        for (const QString &key : keys)
            expected += QLatin1String(group.name) + QLatin1Char('/') + key;
    }

    MainProfile profile;
    SettingsFile file(savedText(profile));
    QStringList saved = file.settings().allKeys();
    saved.sort();
    QCOMPARE(saved, expected);
}

void MainProfileStorageTest::encodesTheWindow()
{
    MainProfile profile;
    QVERIFY(savedText(profile).contains("[MainProfile]\n"
                                        "currentModule=0\n"
                                        "decimalPlaces=3\n"
                                        "windowMode=0\n"
                                        "windowPosition=@Point(0 0)\n"
                                        "windowSize=@Size(-1 -1)\n"));
    profile.setCurrentModule(4);
    profile.setDecimalPlaces(10);
    profile.setWindowMode(1);
    profile.setWindowPosition({120, -30});
    profile.setWindowSize({958, 605});
    QVERIFY(savedText(profile).contains("[MainProfile]\n"
                                        "currentModule=4\n"
                                        "decimalPlaces=10\n"
                                        "windowMode=1\n"
                                        "windowPosition=@Point(120 -30)\n"
                                        "windowSize=@Size(958 605)\n"));
}

void MainProfileStorageTest::keepsEverything()
{
    MainProfile saved;
    changeEverything(saved);
    MainProfile loaded;
    QCOMPARE(differences(loaded, saved), everyPropertyName(saved));
    SettingsFile file(savedText(saved));
    loaded.loadSettings(file.settings());
    QCOMPARE(differences(loaded, saved), QStringList());
}

void MainProfileStorageTest::loadsTheProfilesInOrder()
{
    SettingsFile file(savedChanges());
    MainProfile loaded;
    QStringList order;
    const auto note = [&order](const char *name) {
        return [&order, name] {
            order += QString::fromLatin1(name);
        };
    };
    connect(&loaded, &MainProfile::decimalPlacesChanged, this, note("window"));
    connect(&loaded.dbmCalculator(), &DbmCalculatorProfile::inputChanged, this, note("dBm"));
    connect(&loaded.voltageCalculator(), &VoltageCalculatorProfile::inputChanged, this,
            note("voltage"));
    connect(&loaded.dbConverter(), &DbConverterProfile::p1Changed, this, note("dB"));
    connect(&loaded.unitConverter(), &UnitConverterProfile::logPowerChanged, this, note("unit"));
    connect(&loaded.vswrConverter(), &VswrConverterProfile::vswrChanged, this, note("VSWR"));
    loaded.loadSettings(file.settings());
    QCOMPARE(order, words("window dBm voltage dB unit VSWR"));
}

void MainProfileStorageTest::loadingTheSameAgainSignalsNothing()
{
    SettingsFile file(savedChanges());
    MainProfile loaded;
    loaded.loadSettings(file.settings());
    for (Profile *profile : everyProfile(loaded)) {
        ChangeLog log(*profile);
        profile->loadSettings(file.settings());
        QCOMPARE(log.take(), QStringList());
    }
}

void MainProfileStorageTest::aModuleLoadLeavesTheWindowAlone()
{
    MainProfile saved;
    changeEverything(saved);
    SettingsFile file(savedText(saved));
    MainProfile loaded;
    ChangeLog log(loaded);
    loaded.loadModuleSettings(file.settings());
    QCOMPARE(differences(loaded, saved), windowProperties());
    QCOMPARE(log.take(), QStringList());
}

void MainProfileStorageTest::theDefaultsStoreResetsTheModules()
{
    QSettings defaults(QStringLiteral("none"), QString());
    MainProfile changed;
    changeEverything(changed);
    changed.setDecimalPlaces(7);
    changed.loadModuleSettings(defaults);
    MainProfile untouched;
    QCOMPARE(differences(changed, untouched), windowProperties());
    QCOMPARE(changed.decimalPlaces(), 7);
}

void MainProfileStorageTest::whatIsNoStoreReadsAsDefaults_data()
{
    columns<QByteArray>({"text"});
    row("an empty file", QByteArray());
    row("prose", QByteArray("It was a dark and stormy night.\n"));
    row("bytes", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe[[[===", 24));
    row("another program's groups", QByteArray("[General]\np1=5\n[Other]\ninput=7\n"));
}

void MainProfileStorageTest::whatIsNoStoreReadsAsDefaults()
{
    QFETCH(QByteArray, text);

    SettingsFile file(text);
    MainProfile changed;
    changeEverything(changed);
    changed.loadSettings(file.settings());
    MainProfile untouched;
    QCOMPARE(differences(changed, untouched), QStringList());
}

void MainProfileStorageTest::oneUnusableKeyTakesItsDefaultAlone_data()
{
    columns<QString, QByteArray>({"key", "line"});

    SettingsFile file(savedChanges());
    const QStringList keys = file.settings().allKeys();
    for (const QString &key : keys) {
        QTest::addRow("%s is missing", qPrintable(key)) << key << QByteArray();
        QTest::addRow("%s is a list", qPrintable(key))
            << key << key.section(QLatin1Char('/'), 1).toLatin1() + "=1, 2";
    }
}

void MainProfileStorageTest::oneUnusableKeyTakesItsDefaultAlone()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, line);

    SettingsFile file(withLine(savedChanges(), key, line));
    MainProfile saved;
    changeEverything(saved);
    MainProfile loaded;
    loaded.loadSettings(file.settings());
    const QStringList unusable = propertyOf(key);
    QCOMPARE(differences(loaded, saved), unusable);

    MainProfile untouched;
    QStringList changed = everyPropertyName(saved);
    for (const QString &property : unusable)
        changed.removeOne(property);
    QCOMPARE(differences(loaded, untouched), changed);
}

/// Every selector of every module, with the index of its last row. A calculator's result may also
/// have no unit, which comes after the units that the selector shows.
void MainProfileStorageTest::aSelectorWithoutTheStoredRowTakesItsDefault_data()
{
    columns<QString, int, int>({"key", "stored", "expected"});

    const std::pair<const char *, int> selectors[] = {
        {"DbmCalculatorProfile/outputUnit", 6},     {"DbmCalculatorProfile/mode", 2},
        {"VoltageCalculatorProfile/outputUnit", 2}, {"VoltageCalculatorProfile/mode", 2},
        {"UnitConverterProfile/logPowerUnit", 1},   {"UnitConverterProfile/linPowerUnit", 1},
        {"UnitConverterProfile/logVoltageUnit", 2}, {"UnitConverterProfile/linVoltageUnit", 1},
        {"UnitConverterProfile/voltageMode", 2},    {"DbConverterProfile/currentMode", 1},
        {"VswrConverterProfile/currentMode", 1},    {"VswrConverterProfile/pForwardUnit", 3},
        {"VswrConverterProfile/pReflectedUnit", 3}, {"VswrConverterProfile/pAbsorbedUnit", 3},
        {"VswrConverterProfile/vForwardUnit", 3},   {"VswrConverterProfile/vReflectedUnit", 3},
        {"VswrConverterProfile/vAbsorbedUnit", 3},
    };
    for (const auto &[key, last] : selectors) {
        const QString name = QString::fromLatin1(key);
        QTest::addRow("the first row of %s is kept", key) << name << 0 << 0;
        QTest::addRow("the last row of %s is kept", key) << name << last << last;
        QTest::addRow("one row too many of %s", key) << name << last + 1 << 0;
        QTest::addRow("one row too few of %s", key) << name << -1 << 0;
        QTest::addRow("no selector has that many rows, %s", key)
            << name << std::numeric_limits<int>::max() << 0;
    }
}

void MainProfileStorageTest::aSelectorWithoutTheStoredRowTakesItsDefault()
{
    QFETCH(QString, key);
    QFETCH(int, stored);
    QFETCH(int, expected);

    const QByteArray property = key.section(QLatin1Char('/'), 1).toLatin1();
    SettingsFile file(withLine(savedChanges(), key, property + '=' + QByteArray::number(stored)));
    MainProfile loaded;
    changeEverything(loaded);
    loaded.loadSettings(file.settings());
    for (const Profile *profile : everyProfile(loaded)) {
        if (key.startsWith(profile->group()))
            QCOMPARE(profile->property(property.constData()).toInt(), expected);
    }
}

void MainProfileStorageTest::readsTheWindowGroup_data()
{
    columns<QByteArray, QByteArray, QVariant>({"line", "property", "expected"});

    const auto row = [](const char *tag, const char *line, const QVariant &expected) {
        QTest::newRow(tag) << QByteArray(line) << QByteArray(line).split('=').first() << expected;
    };
    row("no decimal places", "decimalPlaces=0", 0);
    row("the most decimal places", "decimalPlaces=10", 10);
    row("too many decimal places", "decimalPlaces=11", 3);
    row("negative decimal places", "decimalPlaces=-1", 3);
    row("decimal places that are a word", "decimalPlaces=many", 3);
    row("decimal places that are empty", "decimalPlaces=", 3);
    row("decimal places with a fraction", "decimalPlaces=4.5", 3);
    row("decimal places beyond all integers", "decimalPlaces=4294967300", 3);
    row("any module is kept", "currentModule=7", 7);
    row("a module that is a word", "currentModule=dB", 0);
    row("any mode is kept", "windowMode=-2", -2);
    row("a mode that is a word", "windowMode=true", 0);
    row("a position", "windowPosition=@Point(-5 7)", QPoint(-5, 7));
    row("a position that is a size", "windowPosition=@Size(5 7)", QPoint(0, 0));
    row("a position that is a text", "windowPosition=5 7", QPoint(0, 0));
    row("a size", "windowSize=@Size(5 7)", QSize(5, 7));
    row("the largest size", "windowSize=@Size(16384 16384)", QSize(16384, 16384));
    row("a size too wide by a pixel", "windowSize=@Size(16385 605)", QSize());
    row("a size too high by a pixel", "windowSize=@Size(958 16385)", QSize());
    row("a size at the end of the number range", "windowSize=@Size(2147483647 2147483647)",
        QSize());
    row("a size that is a point", "windowSize=@Point(5 7)", QSize());
    row("a size that is a text", "windowSize=big", QSize());
}

/// A malformed key takes its default, and the module's group after it is read normally.
void MainProfileStorageTest::readsTheWindowGroup()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, expected);

    SettingsFile file("[MainProfile]\n" + line + "\n[DbConverterProfile]\np1=12\n");
    MainProfile profile;
    changeEverything(profile);
    profile.loadSettings(file.settings());
    QCOMPARE(profile.property(property.constData()), expected);
    QCOMPARE(profile.dbConverter().p1(), QStringLiteral("12"));
}

void MainProfileStorageTest::longTextsAreKeptWhileAFieldHoldsThem_data()
{
    columns<int, bool>({"length", "isKept"});
    row("what a line edit holds", 32767, true);
    row("one character more", 32768, false);
}

void MainProfileStorageTest::longTextsAreKeptWhileAFieldHoldsThem()
{
    QFETCH(int, length);
    QFETCH(bool, isKept);

    MainProfile saved;
    for (Profile *profile : everyProfile(saved)) {
        for (const QMetaProperty &property : declaredProperties(*profile)) {
            if (property.userType() == QMetaType::QString)
                property.write(profile, QString(length, QLatin1Char('a')));
        }
    }
    SettingsFile file(savedText(saved));
    MainProfile loaded;
    changeEverything(loaded);
    loaded.loadSettings(file.settings());
    MainProfile untouched;
    QCOMPARE(differences(loaded, isKept ? saved : untouched), QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileStorageTest)

#include "tst_mainprofilestorage.moc"
