// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorcase.h"
#include "dbmcalculatorprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"
#include "voltagesteps.h"
#include "words.h"

#include <QTest>

#include <memory>

using namespace Dezimo;

/// How a settings store keeps the expression calculators.
class ExpressionStorageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void keepsTheDbmCalculator();
    void keepsTheVoltageCalculator();
    void writesTheKeysOfTheGroups();
    void missingKeysAreDefaults();
    void malformedKeysAreDefaults_data();
    void malformedKeysAreDefaults();
    void loadsInOrderAndSignalsEachChangeOnce_data();
    void loadsInOrderAndSignalsEachChangeOnce();
};

void ExpressionStorageTest::initTestCase()
{
    // In Qt 5, two variants with the same map are not equal without this comparator.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QMetaType::registerEqualsComparator<QMap<int, bool>>();
#endif
}

void ExpressionStorageTest::keepsTheDbmCalculator()
{
    DbmCalculatorProfile written;
    written.setMode(2);
    written.setOutputUnit(PowerUnit::Uw);
    calculate(written, " 1mW\u22122mW");
    SettingsFile file;
    written.saveSettings(file.settings());

    SettingsFile copy(file.text());
    DbmCalculatorProfile read;
    read.loadSettings(copy.settings());
    QCOMPARE(read.input(), QStringLiteral(" 1mW\u22122mW"));
    QCOMPARE(read.output(), QStringLiteral("-1E+03"));
    QCOMPARE(read.outputUnit(), int(PowerUnit::Uw));
    QCOMPARE(read.mode(), 2);
    QCOMPARE(read.validUnits(), written.validUnits());
    QCOMPARE(read.validUnits().keys(true),
             (QList<int>{PowerUnit::Mw, PowerUnit::W, PowerUnit::Uw}));
}

void ExpressionStorageTest::keepsTheVoltageCalculator()
{
    VoltageCalculatorProfile written;
    written.setMode(VoltageMode::Correlated);
    written.setPhase(-22.5);
    written.setOutputUnit(VoltageUnit::V);
    calculate(written, "1V+1V");
    SettingsFile file;
    written.saveSettings(file.settings());

    SettingsFile copy(file.text());
    VoltageCalculatorProfile read;
    read.loadSettings(copy.settings());
    QCOMPARE(read.input(), QStringLiteral("1V+1V"));
    QCOMPARE(read.output(), QStringLiteral("1.96")); // sqrt(2 + 2 cos 22.5)
    QCOMPARE(read.outputUnit(), int(VoltageUnit::V));
    QCOMPARE(read.mode(), int(VoltageMode::Correlated));
    QCOMPARE(read.phase(), -22.5);
    QCOMPARE(read.validUnits().keys(true), (QList<int>{VoltageUnit::Mv, VoltageUnit::V}));
}

void ExpressionStorageTest::writesTheKeysOfTheGroups()
{
    SettingsFile file;
    DbmCalculatorProfile dbm;
    calculate(dbm, "3dB+3dB"); // a ratio: dB only
    dbm.saveSettings(file.settings());
    VoltageCalculatorProfile voltage;
    calculate(voltage, "1+2"); // a plain number: no unit only
    voltage.saveSettings(file.settings());

    SettingsFile copy(file.text());
    QCOMPARE(copy.settings().childGroups(),
             (QStringList{QStringLiteral("DbmCalculatorProfile"),
                          QStringLiteral("VoltageCalculatorProfile")}));
    QStringList entries;
    const QStringList keys = copy.settings().allKeys();
    for (const QString &key : keys)
        entries += key.section(QLatin1Char('/'), 1) + QLatin1Char('=') +
                   copy.settings().value(key).toString();
    QCOMPARE(entries.join(QLatin1Char(' ')),
             QStringLiteral("DbValid=true DbmValid=false DbwValid=false MwValid=false "
                            "NoneValid=false UwValid=false WValid=false "
                            "input=3dB+3dB mode=0 output=6.00 outputUnit=5 "
                            "MvValid=false NoneValid=true VValid=false "
                            "input=1+2 mode=0 output=3 outputUnit=2 phase=0"));
}

void ExpressionStorageTest::missingKeysAreDefaults()
{
    SettingsFile file;
    VoltageCalculatorProfile voltage;
    voltage.setMode(VoltageMode::Peak);
    voltage.setPhase(90);
    calculate(voltage, "1+2");
    voltage.loadSettings(file.settings());
    QCOMPARE(voltage.input(), QString());
    QCOMPARE(voltage.output(), QStringLiteral("---"));
    QCOMPARE(voltage.outputUnit(), 0);
    QCOMPARE(voltage.mode(), 0);
    QCOMPARE(voltage.phase(), 0.0);
    QCOMPARE(voltage.validUnits(), allVoltageUnits());

    DbmCalculatorProfile dbm;
    calculate(dbm, "3dB+3dB");
    dbm.loadSettings(file.settings());
    QCOMPARE(dbm.output(), QStringLiteral("---"));
    QCOMPARE(dbm.outputUnit(), 0);
    QCOMPARE(dbm.validUnits(), DbmCalculatorProfile().validUnits());
}

void ExpressionStorageTest::malformedKeysAreDefaults_data()
{
    columns<QString, QVariant, QString, QVariant>({"key", "stored", "property", "value"});

    const auto row = [](const char *tag, const char *key, const QVariant &stored,
                        const char *property, const QVariant &value) {
        QTest::newRow(tag) << QString::fromLatin1(key) << stored << QString::fromLatin1(property)
                           << value;
    };
    const QVariant all = QVariant::fromValue(allVoltageUnits());
    row("a unit that is none", "outputUnit", 3, "outputUnit", 0);
    row("a unit below the first", "outputUnit", -1, "outputUnit", 0);
    row("the last unit is one", "outputUnit", 2, "outputUnit", 2);
    row("a unit that is a word", "outputUnit", QStringLiteral("V"), "outputUnit", 0);
    row("a mode that is none", "mode", 3, "mode", 0);
    row("the last mode is one", "mode", 2, "mode", 2);
    row("a phase that is a word", "phase", QStringLiteral("x"), "phase", 0.0);
    row("a phase that is infinite", "phase", QStringLiteral("inf"), "phase", 0.0);
    row("a phase beyond a turn", "phase", 360.5, "phase", 0.0);
    row("a phase beyond a turn backwards", "phase", -361, "phase", 0.0);
    row("a phase of a turn is one", "phase", 360, "phase", 360.0);
    row("a phase of a turn backwards is one", "phase", -360, "phase", -360.0);
    row("a list as the input", "input", QStringList{QString(), QString()}, "input", QString());
    row("a list as the output", "output", QStringList{QString(), QString()}, "output",
        QStringLiteral("---"));
    row("an empty output is one", "output", QString(), "output", QString());
    row("a validity that is a word", "VValid", QStringLiteral("maybe"), "validUnits", all);
}

void ExpressionStorageTest::malformedKeysAreDefaults()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(QString, property);
    QFETCH(QVariant, value);

    SettingsFile file;
    file.settings().setValue(QLatin1String("VoltageCalculatorProfile/") + key, stored);
    VoltageCalculatorProfile calculator;
    calculator.loadSettings(file.settings());
    QCOMPARE(calculator.property(property.toLatin1().constData()), value);
}

void ExpressionStorageTest::loadsInOrderAndSignalsEachChangeOnce_data()
{
    columns<bool, QStringList>({"isVoltage", "order"});
    row("the dBm calculator", false, words("input output outputUnit mode validUnits"));
    row("the voltage calculator", true, words("input output outputUnit mode phase validUnits"));
}

/// Each valid unit has a key of its own, but one signal announces them all, after the others.
void ExpressionStorageTest::loadsInOrderAndSignalsEachChangeOnce()
{
    QFETCH(bool, isVoltage);
    QFETCH(QStringList, order);

    const auto newCalculator = [isVoltage]() -> std::unique_ptr<ExpressionProfile> {
        if (isVoltage)
            return std::make_unique<VoltageCalculatorProfile>();
        return std::make_unique<DbmCalculatorProfile>();
    };
    const auto written = newCalculator();
    written->setMode(2);
    written->setProperty("phase", 90.0);
    calculate(*written, "1+2"); // a plain number: no unit only
    SettingsFile file;
    written->saveSettings(file.settings());

    const auto read = newCalculator();
    ChangeLog log(*read);
    read->loadSettings(file.settings());
    QCOMPARE(log.take(), order);
    read->loadSettings(file.settings());
    QCOMPARE(log.take(), QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, ExpressionStorageTest)

#include "tst_expressionstorage.moc"
