// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"

#include <QSettings>
#include <QTest>

#include <limits>
#include <utility>

using namespace Dezimo;

/// What the program makes of files that it did not write itself, or not like this.
class UnusableKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

void UnusableKeysTest::whatIsNoStoreReadsAsDefaults_data()
{
    columns<QByteArray>({"text"});
    row("an empty file", QByteArray());
    row("prose", QByteArray("It was a dark and stormy night.\n"));
    row("bytes", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe[[[===", 24));
    row("another program's groups", QByteArray("[General]\np1=5\n[Other]\ninput=7\n"));
}

void UnusableKeysTest::whatIsNoStoreReadsAsDefaults()
{
    QFETCH(QByteArray, text);

    SettingsFile file(text);
    MainProfile changed;
    changeEverything(changed);
    changed.loadSettings(file.settings());
    MainProfile untouched;
    QCOMPARE(differences(changed, untouched), QStringList());
}

void UnusableKeysTest::oneUnusableKeyTakesItsDefaultAlone_data()
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

void UnusableKeysTest::oneUnusableKeyTakesItsDefaultAlone()
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
void UnusableKeysTest::aSelectorWithoutTheStoredRowTakesItsDefault_data()
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

void UnusableKeysTest::aSelectorWithoutTheStoredRowTakesItsDefault()
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

void UnusableKeysTest::readsTheWindowGroup_data()
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
void UnusableKeysTest::readsTheWindowGroup()
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

void UnusableKeysTest::longTextsAreKeptWhileAFieldHoldsThem_data()
{
    columns<int, bool>({"length", "isKept"});
    row("what a line edit holds", 32767, true);
    row("one character more", 32768, false);
}

void UnusableKeysTest::longTextsAreKeptWhileAFieldHoldsThem()
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

DEZIMO_TEST_MAIN(QCoreApplication, UnusableKeysTest)

#include "tst_unusablekeys.moc"
