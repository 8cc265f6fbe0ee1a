// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "words.h"

#include <QTest>

#include <memory>

using namespace Dezimo;

/// The root profile as an object. Another test covers its storage.
class MainProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithDefaults();
    void declaresItsSignalsInOrder();
    void instanceIsOneObject();
    void ownsTheModulesInOrder();
    void destroysTheModulesInReverseOrder();
    void handsItsDecimalPlacesToTheModules();
    void namesTheGroupsThatItStores();

private:
    QStringList m_destroyed;
};

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
    const std::vector<ModuleProfile *> expected{
        &profile.dbmCalculator(), &profile.voltageCalculator(), &profile.dbConverter(),
        &profile.unitConverter(), &profile.vswrConverter()};
    QCOMPARE(profile.modules(), expected);
    for (const Profile *module : profile.modules())
        QVERIFY(!module->parent());
}

void MainProfileTest::destroysTheModulesInReverseOrder()
{
    auto profile = std::make_unique<MainProfile>();
    for (const Profile *module : profile->modules()) {
        const QString name = module->group();
        connect(module, &QObject::destroyed, this, [this, name] { m_destroyed += name; });
    }
    profile.reset();
    QCOMPARE(m_destroyed, words("VswrConverterProfile UnitConverterProfile DbConverterProfile "
                                "VoltageCalculatorProfile DbmCalculatorProfile"));
}

/// A slot may calculate as soon as it hears of the change, so the modules must know it by then.
void MainProfileTest::handsItsDecimalPlacesToTheModules()
{
    MainProfile profile;
    UnitConverterProfile &converter = profile.unitConverter();
    connect(&profile, &MainProfile::decimalPlacesChanged, &converter,
            &UnitConverterProfile::calculateFromLogPower);
    converter.setLogPower(QStringLiteral("5"));
    converter.calculateFromLogPower();
    QCOMPARE(converter.linPower(), QStringLiteral("3.16"));
    profile.setDecimalPlaces(5);
    QCOMPARE(converter.linPower(), QStringLiteral("3.1623"));
    for (const ModuleProfile *module : profile.modules())
        QCOMPARE(module->significantDigits(), 5);
}

void MainProfileTest::namesTheGroupsThatItStores()
{
    QCOMPARE(QString::fromLatin1(MainProfile().storedGroups().join(' ')),
             QStringLiteral("MainProfile DbmCalculatorProfile VoltageCalculatorProfile "
                            "DbConverterProfile UnitConverterProfile VswrConverterProfile"));
}

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileTest)

#include "tst_mainprofile.moc"
