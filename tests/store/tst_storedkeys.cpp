// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"
#include "storedkeys.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

#include <limits>

using namespace Dezimo;

/// Which stored values the program takes, and which are malformed and give the default.
class StoredKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsFiles_data();
    void readsFiles();
    void readsTypedStores_data();
    void readsTypedStores();
    void aMissingKeyIsTheDefault();
    void textsComeBackUnchanged_data();
    void textsComeBackUnchanged();
    void numbersComeBackUnchanged_data();
    void numbersComeBackUnchanged();
    void theLongestText();
    void savesPropertiesUnderTheirNames();
    void loadsRowsInOrder();
    void aNumberOutsideTheRangeIsMalformed_data();
    void aNumberOutsideTheRangeIsMalformed();
    void aSizeWithASideOutsideTheRangeIsMalformed_data();
    void aSizeWithASideOutsideTheRangeIsMalformed();
    void aSelectorBeginsAtZero();
};

namespace {

/// The name that QSettings gives the group of all keys without a group.
const QLatin1String kGroup("");
const QLatin1String kText("default");
constexpr int kInteger = 42;
constexpr double kDouble = 4.25;
constexpr bool kTrue = true;
constexpr bool kFalse = false;
constexpr QPoint kPoint(3, 4);
constexpr QSize kSize(3, 4);

QVariant text(const char *value)
{
    return QString::fromUtf8(value);
}

void addColumns()
{
    columns<QVariant, QVariant, QVariant>({"stored", "defaultValue", "expected"});
}

} // namespace

void StoredKeysTest::readsFiles_data()
{
    addColumns();

    // In an INI file, "stored" is the text after "key=".
    const auto row = [](const char *tag, const char *stored, const QVariant &defaultValue,
                        const QVariant &expected) {
        QTest::newRow(tag) << QVariant(QByteArray(stored)) << defaultValue << expected;
    };
    const auto malformed = [&row](const char *tag, const char *stored,
                                  const QVariant &defaultValue) {
        row(tag, stored, defaultValue, defaultValue);
    };

    row("text: a word", "abc", kText, text("abc"));
    row("text: nothing", "", kText, text(""));
    row("text: a number", "12", kText, text("12"));
    row("text: a word that means a bool elsewhere", "true", kText, text("true"));
    row("text: a quoted comma", "\"1,5\"", kText, text("1,5"));
    row("text: quoted blanks", "\" 1 \"", kText, text(" 1 "));
    row("text: an escaped letter", "\\x3a9", kText, text("Ω"));
    row("text: an escaped at sign", "@@Point(1 2)", kText, text("@Point(1 2)"));
    malformed("text: a comma makes a list", "1,5", kText);
    malformed("text: a point", "@Point(1 2)", kText);
    malformed("text: a size", "@Size(1 2)", kText);
    malformed("text: a rectangle", "@Rect(1 2 3 4)", kText);
    malformed("text: bytes", "@ByteArray(abc)", kText);
    malformed("text: no value", "@Invalid()", kText);
    malformed("text: a packed integer", "@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)", kText);

    row("integer: digits", "7", kInteger, 7);
    row("integer: zero", "0", kInteger, 0);
    row("integer: a sign", "-7", kInteger, -7);
    row("integer: blanks around", "  7  ", kInteger, 7);
    row("integer: blanks beyond ASCII around", "\\x2009\\x37\\xa0", kInteger, 7);
    row("integer: the largest", "2147483647", kInteger, std::numeric_limits<int>::max());
    row("integer: the smallest", "-2147483648", kInteger, std::numeric_limits<int>::min());
    row("integer: packed", "@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)", kInteger, 5);
    malformed("integer: beyond the largest", "2147483648", kInteger);
    malformed("integer: below the smallest", "-2147483649", kInteger);
    malformed("integer: nothing", "", kInteger);
    malformed("integer: a zero character behind", "7\\0", kInteger);
    malformed("integer: a comma between digits", "\"1,000\"", kInteger);
    malformed("integer: a word", "seven", kInteger);
    malformed("integer: a bool", "true", kInteger);
    malformed("integer: a fraction", "7.0", kInteger);
    malformed("integer: an exponent", "7e0", kInteger);
    malformed("integer: another base", "0x7", kInteger);
    malformed("integer: infinite", "inf", kInteger);
    malformed("integer: a list", "7,8", kInteger);
    malformed("integer: a point", "@Point(7 8)", kInteger);
    malformed("integer: bytes", "@ByteArray(7)", kInteger);
    malformed("integer: no value", "@Invalid()", kInteger);

    row("number: digits", "7", kDouble, 7.0);
    row("number: a fraction", "-22.5", kDouble, -22.5);
    row("number: an exponent", "1e-3", kDouble, 0.001);
    malformed("number: infinite", "inf", kDouble);
    malformed("number: minus infinite", "-INF", kDouble);
    malformed("number: none", "nan", kDouble);
    malformed("number: beyond all doubles", "1e400", kDouble);
    malformed("number: nothing", "", kDouble);
    malformed("number: a word", "abc", kDouble);
    malformed("number: a decimal comma", "22,5", kDouble);
    malformed("number: a quoted decimal comma", "\"22,5\"", kDouble);
    malformed("number: a point", "@Point(7 8)", kDouble);

    row("bool: true", "true", kFalse, true);
    row("bool: false", "false", kTrue, false);
    row("bool: 1", "1", kFalse, true);
    row("bool: 0", "0", kTrue, false);
    malformed("bool: capital letters are not true", "TRUE", kFalse);
    malformed("bool: capital letters are not false", "FALSE", kTrue);
    malformed("bool: yes", "yes", kFalse);
    malformed("bool: no", "no", kTrue);
    malformed("bool: 2", "2", kFalse);
    malformed("bool: nothing", "", kTrue);
    malformed("bool: a list", "true,true", kFalse);

    row("point: a point", "@Point(-5 7)", kPoint, QPoint(-5, 7));
    malformed("point: half of one", "@Point(5)", kPoint);
    malformed("point: a size", "@Size(5 7)", kPoint);
    malformed("point: two numbers", "5 7", kPoint);
    malformed("point: nothing", "", kPoint);
    row("size: a size", "@Size(5 7)", kSize, QSize(5, 7));
    row("size: an invalid size is one", "@Size(-1 -1)", kSize, QSize());
    malformed("size: half of one", "@Size(5)", kSize);
    malformed("size: a point", "@Point(5 7)", kSize);
    malformed("size: a list", "5,7", kSize);
}

void StoredKeysTest::readsFiles()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, defaultValue);
    QFETCH(QVariant, expected);

    SettingsFile file("[General]\nbefore=1\nkey=" + stored.toByteArray() + "\nafter=2\n");
    const QVariant value = storedValue(file.settings(), "key", defaultValue);
    QCOMPARE(value.userType(), expected.userType());
    QCOMPARE(value, expected);
    QCOMPARE(storedValue(file.settings(), "after", kInteger), QVariant(2));
}

/// Some platforms' stores keep the type of a number.
void StoredKeysTest::readsTypedStores_data()
{
    addColumns();

    const auto row = [](const char *tag, const QVariant &stored, const QVariant &defaultValue,
                        const QVariant &expected) {
        QTest::newRow(tag) << stored << defaultValue << expected;
    };
    row("integer: an unsigned one", 7U, kInteger, 7);
    row("integer: a long one", qlonglong(-7), kInteger, -7);
    row("integer: an unsigned one beyond the largest", 4294967295U, kInteger, kInteger);
    // Its lower half alone would be 2.
    row("integer: a long one beyond the largest", qlonglong(4294967298), kInteger, kInteger);
    row("integer: an unsigned long one beyond the largest", qulonglong(4294967298), kInteger,
        kInteger);
    row("integer: a whole double", 7.0, kInteger, 7);
    row("integer: a double with a fraction", 7.5, kInteger, kInteger);
    row("integer: a double beyond the largest", 1e10, kInteger, kInteger);
    row("integer: an infinite double", std::numeric_limits<double>::infinity(), kInteger, kInteger);
    row("integer: a bool", true, kInteger, kInteger);
    row("number: an integer", 7, kDouble, 7.0);
    row("number: an infinite double", std::numeric_limits<double>::infinity(), kDouble, kDouble);
    row("number: a bool", true, kDouble, kDouble);
    row("bool: an integer", 1, kFalse, true);
    row("bool: another integer", 2, kFalse, kFalse);
    row("text: an integer", 7, kText, kText);
    row("text: a bool", true, kText, kText);
}

void StoredKeysTest::readsTypedStores()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, defaultValue);
    QFETCH(QVariant, expected);

    SettingsFile file;
    file.settings().setValue(QStringLiteral("key"), stored);
    const QVariant value = storedValue(file.settings(), "key", defaultValue);
    QCOMPARE(value.userType(), expected.userType());
    QCOMPARE(value, expected);
}

void StoredKeysTest::aMissingKeyIsTheDefault()
{
    // Stores on Windows ignore case.
#ifdef Q_OS_WIN
    SettingsFile file("[General]\nkeys=2\n");
#else
    SettingsFile file("[General]\nKey=1\nkeys=2\n");
#endif
    QCOMPARE(storedValue(file.settings(), "key", kInteger), QVariant(kInteger));
    QCOMPARE(storedValue(file.settings(), "key", kText), QVariant(kText));
    QCOMPARE(storedValue(file.settings(), "key", kSize), QVariant(kSize));
}

void StoredKeysTest::textsComeBackUnchanged_data()
{
    columns<QString>({"typed"});
    row("nothing", QString());
    row("blanks", "  ");
    row("a comma", "1,5");
    row("a semicolon and a sharp", "1;5 #");
    row("quotes and backslashes", "\"1\\x35\\");
    row("an equals sign and brackets", "[a]=b");
    row("a point in words", "@Point(1 2)");
    row("no value in words", "@Invalid()");
    row("line breaks and tabs", "1\r\n\t2");
    row("letters beyond Latin-1", "1mW\u22122\u00B5W \u03A9 \U0001F600");
    row("a zero character", QStringLiteral("1") + QChar(QChar::Null) + QLatin1Char('2'));
    row("percent signs", "%1 %20");
}

void StoredKeysTest::textsComeBackUnchanged()
{
    QFETCH(QString, typed);

    MainProfile saved;
    saved.dbConverter().setP1(typed);
    SettingsFile file;
    saved.saveSettings(file.settings());
    SettingsFile copy(file.text());
    QCOMPARE(storedValue(copy.settings(), "DbConverterProfile/p1", kText), QVariant(typed));
}

void StoredKeysTest::numbersComeBackUnchanged_data()
{
    columns<double>({"degrees"});
    row("a third", 1.0 / 3.0);
    row("the last digit", 359.99999999999994);
    row("a tiny one", -4.9406564584124654e-324);
    row("zero", 0.0);
}

void StoredKeysTest::numbersComeBackUnchanged()
{
    QFETCH(double, degrees);

    VoltageCalculatorProfile saved;
    saved.setPhase(degrees);
    SettingsFile file;
    saved.saveSettings(file.settings());
    SettingsFile copy(file.text());
    VoltageCalculatorProfile loaded;
    loaded.setPhase(1.0);
    loaded.loadSettings(copy.settings());
    QVERIFY(!(loaded.phase() < degrees) && !(loaded.phase() > degrees));
}

void StoredKeysTest::theLongestText()
{
    const QByteArray longest(32767, 'a');
    SettingsFile file("[General]\nkept=" + longest + "\nmalformed=" + longest + "a\n");
    QCOMPARE(storedValue(file.settings(), "kept", kText), QVariant(QString::fromLatin1(longest)));
    QCOMPARE(storedValue(file.settings(), "malformed", kText), QVariant(kText));
}

void StoredKeysTest::savesPropertiesUnderTheirNames()
{
    const StoredKeys rows{{"windowMode", 0}, {"currentModule", 0}};
    MainProfile profile;
    profile.setWindowMode(1);
    profile.setCurrentModule(4);
    SettingsFile file;
    saveGroup(profile, file.settings(), kGroup, rows);
    QCOMPARE(file.text(), QByteArray("[General]\ncurrentModule=4\nwindowMode=1\n"));
}

void StoredKeysTest::loadsRowsInOrder()
{
    const StoredKeys rows{{"windowMode", 8}, {"currentModule", 0}, {"windowSize", QSize(5, 6)}};
    SettingsFile file("[General]\ncurrentModule=4\nwindowMode=x\n");
    MainProfile profile;
    ChangeLog log(profile);
    loadGroup(profile, file.settings(), kGroup, rows);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("windowMode"), QStringLiteral("currentModule"),
                                      QStringLiteral("windowSize")}));
    QCOMPARE(profile.windowMode(), 8);
    QCOMPARE(profile.currentModule(), 4);
    QCOMPARE(profile.windowSize(), QSize(5, 6));
}

void StoredKeysTest::aNumberOutsideTheRangeIsMalformed_data()
{
    columns<QByteArray, int>({"stored", "expected"});
    row("below the range", QByteArray("-3"), 1);
    row("the lower end", QByteArray("-2"), -2);
    row("the upper end", QByteArray("5"), 5);
    row("beyond the range", QByteArray("6"), 1);
}

void StoredKeysTest::aNumberOutsideTheRangeIsMalformed()
{
    QFETCH(QByteArray, stored);
    QFETCH(int, expected);

    const StoredKeys rows{{"windowMode", 1, {-2, 5}}};
    SettingsFile file("[General]\nwindowMode=" + stored + "\n");
    MainProfile profile;
    profile.setWindowMode(4);
    loadGroup(profile, file.settings(), kGroup, rows);
    QCOMPARE(profile.windowMode(), expected);
}

void StoredKeysTest::aSizeWithASideOutsideTheRangeIsMalformed_data()
{
    columns<QByteArray, QSize>({"stored", "expected"});
    row("both sides at the upper end", QByteArray("@Size(9 9)"), QSize(9, 9));
    row("both sides at the lower end", QByteArray("@Size(2 2)"), QSize(2, 2));
    row("too wide", QByteArray("@Size(10 5)"), QSize(3, 4));
    row("too high", QByteArray("@Size(5 10)"), QSize(3, 4));
    row("too narrow", QByteArray("@Size(1 5)"), QSize(3, 4));
    row("too low", QByteArray("@Size(5 1)"), QSize(3, 4));
}

void StoredKeysTest::aSizeWithASideOutsideTheRangeIsMalformed()
{
    QFETCH(QByteArray, stored);
    QFETCH(QSize, expected);

    const StoredKeys rows{{"windowSize", kSize, {2, 9}}};
    SettingsFile file("[General]\nwindowSize=" + stored + "\n");
    MainProfile profile;
    profile.setWindowSize({7, 7});
    loadGroup(profile, file.settings(), kGroup, rows);
    QCOMPARE(profile.windowSize(), expected);
}

void StoredKeysTest::aSelectorBeginsAtZero()
{
    QCOMPARE(upTo(5).minimum, 0);
    QCOMPARE(upTo(5).maximum, 5);
}

DEZIMO_TEST_MAIN(QCoreApplication, StoredKeysTest)

#include "tst_storedkeys.moc"
