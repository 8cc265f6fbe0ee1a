// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconvertercase.h"
#include "dbconverterprofile.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QRegularExpression>
#include <QTest>

using namespace Dezimo;

/// State, run codes, order of writing and storage of the dB converter.
class DbConverterProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void declaresItsSignalsInOrder();
    void skipsAfterItsOwnRun_data();
    void skipsAfterItsOwnRun();
    void calculatesTwice_data();
    void calculatesTwice();
    void writesInOrder_data();
    void writesInOrder();
    void savesEveryKey();
    void loadsInOrderAndSignalsEachChangeOnce();
    void malformedKeysTakeTheirDefaults();
};

namespace {

const PropertyValues &everythingChanged()
{
    static const PropertyValues values{
        {"p1", "10dBm"},   {"p2", "0dBm"},    {"v1", "1k"},       {"v2", "unit mismatch"},
        {"pRatio", "10"},  {"pDb", "10.00"},  {"vRatio", "NAN"},  {"vDb", "invalid input"},
        {"pLatestRun", 1}, {"vLatestRun", 3}, {"currentMode", 1},
    };
    return values;
}

/// Adds one row for each field of both halves.
template <typename AddRow>
void forEachField(const AddRow &addRow)
{
    for (const DbHalf &half : {kPowerHalf, kVoltageHalf}) {
        addRow(half, &DbFields::first, half.operandRun, half.operandRun);
        addRow(half, &DbFields::second, half.secondGuard, half.operandRun);
        addRow(half, &DbFields::ratio, half.ratioRun, half.ratioRun);
        addRow(half, &DbFields::db, half.dbRun, half.dbRun);
    }
}

} // namespace

void DbConverterProfileTest::startsEmpty()
{
    const DbConverterProfile profile;
    QCOMPARE(propertyLines(profile),
             (QStringList{QStringLiteral("p1 = "), QStringLiteral("p2 = "), QStringLiteral("v1 = "),
                          QStringLiteral("v2 = "), QStringLiteral("pRatio = "),
                          QStringLiteral("pDb = "), QStringLiteral("vRatio = "),
                          QStringLiteral("vDb = "), QStringLiteral("currentMode = 0"),
                          QStringLiteral("pLatestRun = 0"), QStringLiteral("vLatestRun = 0")}));
}

void DbConverterProfileTest::declaresItsSignalsInOrder()
{
    QCOMPARE(signalNames(DbConverterProfile::staticMetaObject),
             words("p1Changed p2Changed v1Changed v2Changed pRatioChanged pDbChanged vRatioChanged "
                   "vDbChanged currentModeChanged pLatestRunChanged vLatestRunChanged"));
}

/// Tries every code from 0 to 9, to see that a calculation skips after its own code only.
void DbConverterProfileTest::skipsAfterItsOwnRun_data()
{
    columns<bool, QByteArray, int, bool, int>(
        {"isPower", "calculation", "latestRun", "skips", "writtenRun"});

    forEachField([](const DbHalf &half, const char *DbFields::*field, int guard, int written) {
        for (int code = 0; code <= 9; ++code)
            QTest::addRow("%s after run %d", half.calculations.*field, code)
                << (half.operandRun == kPowerHalf.operandRun)
                << QByteArray(half.calculations.*field) << code << (code == guard) << written;
    });
}

/// Every calculation changes at least one of these four texts: a new ratio is 4, and new decibels
/// are not 1.
void DbConverterProfileTest::skipsAfterItsOwnRun()
{
    QFETCH(bool, isPower);
    QFETCH(QByteArray, calculation);
    QFETCH(int, latestRun);
    QFETCH(bool, skips);
    QFETCH(int, writtenRun);

    const DbHalf &half = isPower ? kPowerHalf : kVoltageHalf;
    const DbHalf &other = isPower ? kVoltageHalf : kPowerHalf;
    DbConverterProfile profile;
    // what the other half calculated last does not matter
    setProperties(profile, {{other.latestRun, latestRun}});
    setProperties(profile, valuesOf(half, {"8", "2", "7", "1"}));
    setProperties(profile, {{half.latestRun, latestRun}});
    const QStringList before = propertyLines(profile);
    const QStringList unchangedButRun = propertyLines(profile, {{half.latestRun, writtenRun}});
    QVERIFY(QMetaObject::invokeMethod(&profile, calculation.constData()));
    if (skips) {
        QCOMPARE(propertyLines(profile), before);
    } else {
        QCOMPARE(profile.property(half.latestRun).toInt(), writtenRun);
        QVERIFY(propertyLines(profile) != unchangedButRun);
    }
}

void DbConverterProfileTest::calculatesTwice_data()
{
    columns<bool, QByteArray, bool>({"isPower", "calculation", "calculatesAgain"});

    forEachField([](const DbHalf &half, const char *DbFields::*field, int guard, int written) {
        row(half.calculations.*field, half.operandRun == kPowerHalf.operandRun,
            QByteArray(half.calculations.*field), guard != written);
    });
}

/// Finishing a field again without typing does nothing, except for the second operand, which
/// calculates again. The test replaces all four texts in between, so a second calculation shows.
void DbConverterProfileTest::calculatesTwice()
{
    QFETCH(bool, isPower);
    QFETCH(QByteArray, calculation);
    QFETCH(bool, calculatesAgain);

    const DbHalf &half = isPower ? kPowerHalf : kVoltageHalf;
    DbConverterProfile profile;
    setProperties(profile, valuesOf(half, {"8", "2", "7", "1"}));
    QVERIFY(QMetaObject::invokeMethod(&profile, calculation.constData()));
    setProperties(profile, valuesOf(half, {"9", "3", "7", "1"}));
    ChangeLog log(profile);
    QVERIFY(QMetaObject::invokeMethod(&profile, calculation.constData()));
    const QStringList expected = {QString::fromLatin1(half.properties.ratio),
                                  QString::fromLatin1(half.properties.db)};
    QCOMPARE(log.take(), calculatesAgain ? expected : QStringList());
}

void DbConverterProfileTest::writesInOrder_data()
{
    columns<PropertyValues, QByteArray, QString>({"given", "calculation", "announced"});
    const auto both = [](const char *tag, const char *DbFields::*field, const DbFields &given,
                         const char *names) {
        QTest::addRow("powers: %s", tag)
            << valuesOf(kPowerHalf, given) << QByteArray(kPowerHalf.calculations.*field) << names;
        static const QRegularExpression power(QStringLiteral("\\bp"));
        QTest::addRow("voltages: %s", tag)
            << valuesOf(kVoltageHalf, given) << QByteArray(kVoltageHalf.calculations.*field)
            << QString::fromLatin1(names).replace(power, QStringLiteral("v"));
    };
    both("first", &DbFields::first, {"8", "2", "7", "1"}, "pRatio pDb pLatestRun");
    both("first: the same ratio is not announced", &DbFields::first, {"8", "2", "4", "1"},
         "pDb pLatestRun");
    both("first, emptied", &DbFields::first, {"", "2", "7", "1"}, "pRatio pDb pLatestRun");
    both("first, a word", &DbFields::first, {"x", "2", "7", "1"}, "p1 pLatestRun");
    both("first, a mismatch", &DbFields::first, {"1W", "2", "7", "1"}, "p1 pLatestRun");
    both("first derives the second", &DbFields::first, {"8", "", "4", "1"}, "p2 pLatestRun");
    both("first without anything else", &DbFields::first, {"8", "", "", ""}, "pLatestRun");
    both("second", &DbFields::second, {"8", "2", "7", "1"}, "pRatio pDb pLatestRun");
    both("second, zero", &DbFields::second, {"8", "0", "7", "1"}, "pRatio pDb pLatestRun");
    both("second, a word", &DbFields::second, {"8", "x", "7", "1"}, "p2 pLatestRun");
    both("second derives the first", &DbFields::second, {"", "2", "4", "1"}, "p1 pLatestRun");
    both("ratio", &DbFields::ratio, {"", "2", "7", "1"}, "pDb p1 pLatestRun");
    both("ratio, emptied", &DbFields::ratio, {"", "2", "", "1"}, "pDb pLatestRun");
    both("dB", &DbFields::db, {"8", "", "7", "1"}, "pRatio p2 pLatestRun");
    both("dB, a word", &DbFields::db, {"8", "", "7", "x"}, "pRatio pLatestRun");
    both("nothing in any field", &DbFields::first, {"", "", "", ""}, "pLatestRun");
}

void DbConverterProfileTest::writesInOrder()
{
    QFETCH(PropertyValues, given);
    QFETCH(QByteArray, calculation);
    QFETCH(QString, announced);

    DbConverterProfile profile;
    setProperties(profile, given);
    ChangeLog log(profile);
    QVERIFY(QMetaObject::invokeMethod(&profile, calculation.constData()));
    QCOMPARE(log.take().join(QLatin1Char(' ')), announced);
}

void DbConverterProfileTest::savesEveryKey()
{
    DbConverterProfile profile;
    setProperties(profile, everythingChanged());
    SettingsFile file;
    profile.saveSettings(file.settings());
    const QStringList expected{
        QStringLiteral("[DbConverterProfile]"),
        QStringLiteral("currentMode=1"),
        QStringLiteral("p1=10dBm"),
        QStringLiteral("p2=0dBm"),
        QStringLiteral("pDb=10.00"),
        QStringLiteral("pLatestRun=1"),
        QStringLiteral("pRatio=10"),
        QStringLiteral("v1=1k"),
        QStringLiteral("v2=unit mismatch"),
        QStringLiteral("vDb=invalid input"),
        QStringLiteral("vLatestRun=3"),
        QStringLiteral("vRatio=NAN"),
    };
    QCOMPARE(file.lines(), expected);
}

void DbConverterProfileTest::loadsInOrderAndSignalsEachChangeOnce()
{
    DbConverterProfile saved;
    setProperties(saved, everythingChanged());
    SettingsFile file;
    saved.saveSettings(file.settings());
    DbConverterProfile loaded;
    ChangeLog log(loaded);
    loaded.loadSettings(file.settings());
    QCOMPARE(propertyLines(loaded), propertyLines(saved));
    QCOMPARE(log.take(), words("p1 p2 v1 v2 pRatio pDb vRatio vDb pLatestRun vLatestRun "
                               "currentMode"));
    loaded.loadSettings(file.settings());
    QCOMPARE(log.take(), QStringList());
}

void DbConverterProfileTest::malformedKeysTakeTheirDefaults()
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("DbConverterProfile"));
    file.settings().setValue(QStringLiteral("p1"), QStringLiteral("12"));
    file.settings().setValue(QStringLiteral("p2"),
                             QStringList{QStringLiteral("1"), QStringLiteral("5")});
    file.settings().setValue(QStringLiteral("pLatestRun"), QStringLiteral("one"));
    file.settings().setValue(QStringLiteral("vLatestRun"), QString());
    file.settings().setValue(QStringLiteral("currentMode"), QStringLiteral("1.5"));
    file.settings().endGroup();

    DbConverterProfile profile;
    setProperties(profile, everythingChanged());
    const DbConverterProfile untouched;
    const QStringList expected = propertyLines(untouched, {{"p1", "12"}});
    profile.loadSettings(file.settings());
    QCOMPARE(propertyLines(profile), expected);
}

DEZIMO_TEST_MAIN(QCoreApplication, DbConverterProfileTest)

#include "tst_dbconverterprofile.moc"
