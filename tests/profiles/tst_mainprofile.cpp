// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "testmain.h"
#include "words.h"

#include <QSettings>
#include <QTest>

#include <memory>

/// The root profile, and how the state of the whole program is kept.
class MainProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithDefaults();
    void declaresItsSignalsInOrder();
    void instanceIsOneObject();
    void ownsTheModulesInOrder();
    void destroysTheModulesInReverseOrder();
    void savesEveryKey();
    void encodesTheWindow();
    void keepsEverything();
    void loadsTheProfilesInOrder();
    void loadingTheSameAgainSignalsNothing();
    void aModuleLoadLeavesTheWindowAlone();
    void theDefaultsStoreResetsTheModules();
    void whatIsNoStoreReadsAsDefaults_data();
    void whatIsNoStoreReadsAsDefaults();
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

QStringList classNames(MainProfile &root)
{
    QStringList names;
    for (const Profile *profile : everyProfile(root))
        names += QString::fromLatin1(profile->metaObject()->className());
    return names;
}

/// The bytes of a file that @p root was saved in. A store that is made of them knows nothing of the
/// types that were written.
QByteArray savedText(MainProfile &root)
{
    SettingsFile file;
    root.saveSettings(file.settings());
    return file.text();
}

QByteArray savedChanges()
{
    MainProfile changed;
    changeEverything(changed);
    return savedText(changed);
}

} // namespace

void MainProfileTest::startsWithDefaults()
{
    const MainProfile profile;
    QCOMPARE(profile.windowPosition(), QPoint(0, 0));
    QCOMPARE(profile.windowSize(), QSize());
    QVERIFY(!profile.windowSize().isValid());
    QCOMPARE(profile.windowMode(), 0);
    QCOMPARE(profile.currentModule(), 0);
    QCOMPARE(profile.decimalPlaces(), 3);
}

void MainProfileTest::declaresItsSignalsInOrder()
{
    QCOMPARE(signalNames(MainProfile::staticMetaObject),
             words("windowPositionChanged windowSizeChanged windowModeChanged "
                   "currentModuleChanged decimalPlacesChanged"));
}

void MainProfileTest::instanceIsOneObject()
{
    QCOMPARE(&MainProfile::instance(), &MainProfile::instance());
    MainProfile::instance().setWindowMode(1);
    QCOMPARE(MainProfile::instance().windowMode(), 1);
}

void MainProfileTest::ownsTheModulesInOrder()
{
    MainProfile profile;
    QCOMPARE(classNames(profile),
             words("MainProfile DbmCalculatorProfile VoltageCalculatorProfile DbConverterProfile "
                   "UnitConverterProfile VswrConverterProfile"));
    const std::vector<Profile *> expected{&profile.dbmCalculator(), &profile.voltageCalculator(),
                                          &profile.dbConverter(), &profile.unitConverter(),
                                          &profile.vswrConverter()};
    QCOMPARE(profile.modules(), expected);
    for (const Profile *module : profile.modules())
        QVERIFY(!module->parent());
}

void MainProfileTest::destroysTheModulesInReverseOrder()
{
    QStringList destroyed;
    auto profile = std::make_unique<MainProfile>();
    for (const Profile *module : profile->modules()) {
        const QString name = QString::fromLatin1(module->metaObject()->className());
        connect(module, &QObject::destroyed, this, [&destroyed, name] { destroyed += name; });
    }
    profile.reset();
    QCOMPARE(destroyed, words("VswrConverterProfile UnitConverterProfile DbConverterProfile "
                              "VoltageCalculatorProfile DbmCalculatorProfile"));
}

/// The names are a promise to every file that was ever saved.
void MainProfileTest::savesEveryKey()
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
        for (const QString &key : words(group.keys))
            expected += QLatin1String(group.name) + QLatin1Char('/') + key;
    }

    MainProfile profile;
    SettingsFile file(savedText(profile));
    QStringList keys = file.settings().allKeys();
    keys.sort();
    QCOMPARE(keys, expected);
}

void MainProfileTest::encodesTheWindow()
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

void MainProfileTest::keepsEverything()
{
    MainProfile saved;
    changeEverything(saved);
    MainProfile loaded;
    QCOMPARE(differences(loaded, saved), everyPropertyName(saved));
    SettingsFile file(savedText(saved));
    loaded.loadSettings(file.settings());
    QCOMPARE(differences(loaded, saved), QStringList());
}

void MainProfileTest::loadsTheProfilesInOrder()
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

void MainProfileTest::loadingTheSameAgainSignalsNothing()
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

void MainProfileTest::aModuleLoadLeavesTheWindowAlone()
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

void MainProfileTest::theDefaultsStoreResetsTheModules()
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

void MainProfileTest::whatIsNoStoreReadsAsDefaults_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("prose") << QByteArray("It was a dark and stormy night.\n");
    QTest::newRow("bytes") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe[[[===", 24);
    QTest::newRow("another program's groups") << QByteArray("[General]\np1=5\n[Other]\ninput=7\n");
}

void MainProfileTest::whatIsNoStoreReadsAsDefaults()
{
    QFETCH(QByteArray, text);

    SettingsFile file(text);
    MainProfile changed;
    changeEverything(changed);
    changed.loadSettings(file.settings());
    MainProfile untouched;
    QCOMPARE(differences(changed, untouched), QStringList());
}

void MainProfileTest::readsTheWindowGroup_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("expected");

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
    row("a size that is a point", "windowSize=@Point(5 7)", QSize());
    row("a size that is a text", "windowSize=big", QSize());
}

/// A malformed key takes its default, and the module's group after it is read normally.
void MainProfileTest::readsTheWindowGroup()
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

void MainProfileTest::longTextsAreKeptWhileAFieldHoldsThem_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isKept");

    QTest::newRow("what a line edit holds") << 32767 << true;
    QTest::newRow("one character more") << 32768 << false;
}

void MainProfileTest::longTextsAreKeptWhileAFieldHoldsThem()
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

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileTest)

#include "tst_mainprofile.moc"
