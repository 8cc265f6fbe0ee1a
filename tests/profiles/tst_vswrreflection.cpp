// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "vswrconverterprofile.h"
#include "words.h"

#include <QTest>

using namespace Dezimo;

/// The five calculations of the reflection group. Every other field of the group starts with a 9,
/// so that a test also sees when it is emptied.
class VswrReflectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromVswr_data();
    void fromVswr();
    void readsALongVswrAtOnce();
    void fromR_data();
    void fromR();
    void fromR2_data();
    void fromR2();
    void fromAr_data();
    void fromAr();
    void fromAm_data();
    void fromAm();
    void writesInOrder_data();
    void writesInOrder();
};

namespace {

QStringList group()
{
    return words("vswr r r2 ar am");
}

void addColumns()
{
    columns<int, QString, QString>({"places", "text", "after"});
}

/// @p after is what VSWR, reflection coefficient, its square, return loss and mismatch loss read.
void add(const char *tag, const char *text, const char *after,
         int places = ModuleProfile::kDefaultSignificantDigits)
{
    row(tag, places, text, after);
}

void fill(VswrConverterProfile &profile, const char *edited, const QString &text)
{
    setProperties(profile, values(group(), QStringLiteral("9 | 9 | 9 | 9 | 9")));
    profile.setProperty(edited, text);
    // The reflection group must leave powers and voltages alone.
    setProperties(profile,
                  values(words("pForward pReflected pAbsorbed vForward vReflected vAbsorbed"),
                         QStringLiteral("1 | 2 | 3 | 4 | 5 | 6")));
}

void check(const char *edited, void (VswrConverterProfile::*calculate)())
{
    QFETCH(int, places);
    QFETCH(QString, text);
    QFETCH(QString, after);

    VswrConverterProfile profile;
    profile.setSignificantDigits(places);
    fill(profile, edited, text);
    const QStringList expected = propertyLines(profile, values(group(), after));
    (profile.*calculate)();
    QCOMPARE(propertyLines(profile), expected);
}

} // namespace

void VswrReflectionTest::fromVswr_data()
{
    addColumns();
    // (2 - 1) / (2 + 1) = 1/3; 1/9 = 11.11 %; -10 lg(8/9) = 0.5115
    add("2 leaves the return loss empty", "2", "2 | 0.333 | 11.1 |  | 0.51");
    add("2 at ten digits", "2", "2 | 0.3333333333 | 11.11111111 |  | 0.51", 10);
    add("2 at one digit", "2", "2 | 0.3 | 1E+01 |  | 0.51", 0);
    add("2:1 is 2", "2:1", "2:1 | 0.333 | 11.1 |  | 0.51");
    add("2 : 1 is 2", "2 : 1", "2 : 1 | 0.333 | 11.1 |  | 0.51");
    add("2 :1 is 2", "2 :1", "2 :1 | 0.333 | 11.1 |  | 0.51");
    // 0.2; 4 %; -10 lg(0.96) = 0.1773
    add("1.5", "1.5", "1.5 | 0.2 | 4 |  | 0.18");
    // 999 / 1001 = 0.998001998; 99.60079880 %; -10 lg(0.003992012) = 23.988
    add("a prefix is read: 1k is 1000", "1k", "1k | 0.998001998 | 99.6007988 |  | 23.99", 10);

    add("1 is the only one with a return loss, which is infinite", "1", "1 | 0 | 0 | inf | 0.00");
    add("1:1 is a match as well", "1:1", "1:1 | 0 | 0 | inf | 0.00");
    // 1e-13 / 2 = 5e-14; -20 lg(5e-14) = 266.02, in doubles 266.03
    add("1e-13 above 1 counts as 1", "1.0000000000001",
        "1.0000000000001 | 5E-14 | 2.5E-25 | 266.03 | 0.00");
    add("1e-11 above 1 does not", "1.00000000001", "1.00000000001 | 5E-12 | 2.5E-21 |  | 0.00");
    add("an infinite VSWR has no number", "INF", "INF | NAN | NAN |  | nan");

    add("below 1 is invalid", "0.5", "invalid input |  |  |  | ");
    add("just below 1 is invalid", "0.9999999999999", "invalid input |  |  |  | ");
    add("below zero is invalid", "-2", "invalid input |  |  |  | ");
    add("a word is invalid", "abc", "invalid input |  |  |  | ");
    add("no number is invalid", "NAN", "invalid input |  |  |  | ");
    add("a lone :1 is invalid", ":1", "invalid input |  |  |  | ");
    add("a blank is not empty, but invalid", " ", "invalid input |  |  |  | ");
    add("every :1 is removed, so 2:10 is 20", "2:10", "2:10 | 0.905 | 81.9 |  | 7.41");
    add("1:2 is invalid", "1:2", "invalid input |  |  |  | ");
    add("an empty field does nothing", "", " | 9 | 9 | 9 | 9");
}

void VswrReflectionTest::fromVswr()
{
    check("vswr", &VswrConverterProfile::calculateFromVswr);
}

void VswrReflectionTest::readsALongVswrAtOnce()
{
    VswrConverterProfile profile;
    profile.setVswr(QStringLiteral("3") + QStringLiteral(" :1").repeated(300000));
    profile.calculateFromVswr();
    QCOMPARE(profile.r(), QStringLiteral("0.5"));
}

void VswrReflectionTest::fromR_data()
{
    addColumns();
    // 1.5 / 0.5 = 3; 25 %; -20 lg(0.5) = 6.0206; -10 lg(0.75) = 1.2494
    add("0.5", "0.5", "3 | 0.5 | 25 | 6.02 | 1.25");
    // 1.3 / 0.7 = 1.857142857; 9 %; 10.4576; 0.4096
    add("0.3 at ten digits", "0.3", "1.857142857 | 0.3 | 9 | 10.46 | 0.41", 10);
    add("0.3 at one digit", "0.3", "2 | 0.3 | 9 | 10.46 | 0.41", 0);
    add("a prefix is read: 300 milli", "300m", "1.86 | 300m | 9 | 10.46 | 0.41");
    add("no reflection has no return loss", "0", "1 | 0 | 0 |  | 0.00");
    add("total reflection", "1", "INF | 1 | 100 | 0.00 | inf");
    // 2.5 / -0.5 = -5; 225 %; -20 lg(1.5) = -3.5218
    add("above 1 it goes on", "1.5", "-5 | 1.5 | 225 | -3.52 | nan");
    // 51 / -49 = -1.0408; -20 lg(50) = -33.979
    add("50 is accepted", "50", "-1.040816327 | 50 | 250000 | -33.98 | nan", 10);
    // 101 / -99 = -1.0202
    add("100 is the last one accepted and has no mismatch loss", "100",
        "-1.02 | 100 | 1E+06 | -40.00 | ");

    add("101 is invalid", "101", " | invalid input |  |  | ");
    add("just above 100 is invalid", "100.0001", " | invalid input |  |  | ");
    add("below zero is invalid", "-0.1", " | invalid input |  |  | ");
    add("a word is invalid", "abc", " | invalid input |  |  | ");
    add("infinity is invalid", "INF", " | invalid input |  |  | ");
    add("no number is invalid", "NAN", " | invalid input |  |  | ");
    add("an empty field does nothing", "", "9 |  | 9 | 9 | 9");
}

void VswrReflectionTest::fromR()
{
    check("r", &VswrConverterProfile::calculateFromR);
}

void VswrReflectionTest::fromR2_data()
{
    addColumns();
    add("25 %", "25", "3 | 0.5 | 25 | 6.02 | 1.25");
    // sqrt(0.1) = 0.316227766; 1.316227766 / 0.683772234 = 1.924950591; -10 lg(0.9) = 0.4576
    add("10 % at ten digits", "10", "1.924950591 | 0.316227766 | 10 | 10.00 | 0.46", 10);
    add("10 % at three digits", "10", "1.92 | 0.316 | 10 | 10.00 | 0.46");
    add("10 % at one digit", "10", "2 | 0.3 | 10 | 10.00 | 0.46", 0);
    add("0 % has no return loss", "0", "1 | 0 | 0 |  | 0.00");
    add("100 %", "100", "INF | 1 | 100 | 0.00 | inf");

    add("above 100 % is invalid", "100.001", " |  | invalid input |  | ");
    add("below zero is invalid", "-1", " |  | invalid input |  | ");
    add("a word is invalid", "10%", " |  | invalid input |  | ");
    add("an empty field does nothing", "", "9 | 9 |  | 9 | 9");
}

void VswrReflectionTest::fromR2()
{
    check("r2", &VswrConverterProfile::calculateFromR2);
}

void VswrReflectionTest::fromAr_data()
{
    addColumns();
    // 10^-1 = 0.1; 1.1 / 0.9 = 1.2222; 1 %; -10 lg(0.99) = 0.0436
    add("20 dB", "20", "1.22 | 0.1 | 1 | 20 | 0.04");
    // 10^-0.3 = 0.5011872336; 1.5011872336 / 0.4988127664; 25.11886432 %; 1.2563
    add("6 dB at ten digits", "6", "3.009520475 | 0.5011872336 | 25.11886432 | 6 | 1.26", 10);
    add("6 dB at one digit", "6", "3 | 0.5 | 3E+01 | 6 | 1.26", 0);
    add("0 dB is total reflection", "0", "INF | 1 | 100 | 0 | inf");
    add("an infinite return loss is a match", "INF", "1 | 0 | 0 | INF | 0.00");

    add("below zero is invalid", "-0.01", " |  |  | invalid input | ");
    add("a word is invalid", "abc", " |  |  | invalid input | ");
    add("the text inf that a match shows is invalid as input", "inf", " |  |  | invalid input | ");
    add("an empty field does nothing", "", "9 | 9 | 9 |  | 9");
}

void VswrReflectionTest::fromAr()
{
    check("ar", &VswrConverterProfile::calculateFromAr);
}

void VswrReflectionTest::fromAm_data()
{
    addColumns();
    // sqrt(1 - 10^-0.1) = 0.4535104908; 1.4535104908 / 0.5464895092; 20.56717653 %; 6.8683
    add("1 dB at ten digits", "1", "2.659722586 | 0.4535104908 | 20.56717653 | 6.87 | 1", 10);
    add("1 dB at three digits", "1", "2.66 | 0.454 | 20.6 | 6.87 | 1");
    add("1 dB at one digit", "1", "3 | 0.5 | 2E+01 | 6.87 | 1", 0);
    add("0 dB is a match without a return loss", "0", "1 | 0 | 0 |  | 0");
    add("an infinite mismatch loss is total reflection", "INF", "INF | 1 | 100 | 0.00 | INF");

    add("below zero is invalid", "-1", " |  |  |  | invalid input");
    add("a word is invalid", "abc", " |  |  |  | invalid input");
    add("the text nan is invalid as input", "nan", " |  |  |  | invalid input");
    add("an empty field does nothing", "", "9 | 9 | 9 | 9 | ");
}

void VswrReflectionTest::fromAm()
{
    check("am", &VswrConverterProfile::calculateFromAm);
}

void VswrReflectionTest::writesInOrder_data()
{
    columns<QString, QString, QString>({"edited", "text", "order"});
    row("VSWR", "vswr", "2", "r ar r2 am");
    row("reflection coefficient", "r", "0.5", "vswr r2 ar am");
    row("its square", "r2", "25", "r vswr ar am");
    row("return loss", "ar", "6", "r vswr r2 am");
    row("mismatch loss", "am", "1", "r vswr r2 ar");
    row("an invalid VSWR", "vswr", "x", "vswr r r2 ar am");
    row("an invalid reflection coefficient", "r", "x", "r vswr r2 ar am");
    row("an invalid square", "r2", "x", "r2 vswr r ar am");
    row("an invalid return loss", "ar", "x", "ar vswr r r2 am");
    row("an invalid mismatch loss", "am", "x", "am vswr r r2 ar");
}

void VswrReflectionTest::writesInOrder()
{
    QFETCH(QString, edited);
    QFETCH(QString, text);
    QFETCH(QString, order);

    VswrConverterProfile profile;
    fill(profile, edited.toLatin1().constData(), text);
    ChangeLog log(profile);
    const QString slot = QStringLiteral("calculateFrom") + edited.at(0).toUpper() + edited.mid(1);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.toLatin1().constData()));
    QCOMPARE(log.take().join(QLatin1Char(' ')), order);
}

DEZIMO_TEST_MAIN(QCoreApplication, VswrReflectionTest)

#include "tst_vswrreflection.moc"
