// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "words.h"

#include <QSettings>
#include <QTest>

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
};

namespace {

const QStringList &windowProperties()
{
    static const QStringList names =
        words("MainProfile.windowPosition MainProfile.windowSize MainProfile.windowMode "
              "MainProfile.currentModule MainProfile.decimalPlaces");
    return names;
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

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileStorageTest)

#include "tst_mainprofilestorage.moc"
