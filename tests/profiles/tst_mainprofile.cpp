// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "words.h"

#include <QTest>

#include <memory>

/// The root profile as an object; how it is kept is another test's.
class MainProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithDefaults();
    void declaresItsSignalsInOrder();
    void instanceIsOneObject();
    void ownsTheModulesInOrder();
    void destroysTheModulesInReverseOrder();

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
    const std::vector<Profile *> expected{&profile.dbmCalculator(), &profile.voltageCalculator(),
                                          &profile.dbConverter(), &profile.unitConverter(),
                                          &profile.vswrConverter()};
    QCOMPARE(profile.modules(), expected);
    for (const Profile *module : profile.modules())
        QVERIFY(!module->parent());
}

void MainProfileTest::destroysTheModulesInReverseOrder()
{
    auto profile = std::make_unique<MainProfile>();
    for (const Profile *module : profile->modules()) {
        const QString name = QString::fromLatin1(module->metaObject()->className());
        connect(module, &QObject::destroyed, this, [this, name] { m_destroyed += name; });
    }
    profile.reset();
    QCOMPARE(m_destroyed, words("VswrConverterProfile UnitConverterProfile DbConverterProfile "
                                "VoltageCalculatorProfile DbmCalculatorProfile"));
}

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileTest)

#include "tst_mainprofile.moc"
