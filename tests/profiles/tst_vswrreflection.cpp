// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "testmain.h"
#include "vswrconverterprofile.h"

#include <QTest>

using namespace Dezimo;

/// The five calculations of the reflection group. Every row starts with a 9 in each other field of
/// the group and lists everything that differs afterwards, so an emptied field is seen as well.
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

const char *const kGroup[] = {"vswr", "r", "r2", "ar", "am"};

void addColumns()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<QString>("text");
    QTest::addColumn<PropertyValues>("changes");
}

void row(const char *tag, int places, const char *text, const PropertyValues &changes)
{
    QTest::newRow(tag) << places << QString::fromUtf8(text) << changes;
}

/// The edited field reads "invalid input" and the rest of the group is empty.
PropertyValues rejected(const char *edited)
{
    PropertyValues changes;
    for (const char *name : kGroup)
        changes.push_back({name, qstrcmp(name, edited) == 0 ? "invalid input" : ""});
    return changes;
}

void fill(VswrConverterProfile &profile, const char *edited, const QString &text)
{
    for (const char *name : kGroup)
        profile.setProperty(name, QStringLiteral("9"));
    profile.setProperty(edited, text);
    // Powers and voltages are no business of the reflection group.
    setProperties(profile, {{"pForward", "1"},
                            {"pReflected", "2"},
                            {"pAbsorbed", "3"},
                            {"vForward", "4"},
                            {"vReflected", "5"},
                            {"vAbsorbed", "6"}});
}

void check(const char *edited, void (VswrConverterProfile::*calculate)())
{
    QFETCH(int, places);
    QFETCH(QString, text);
    QFETCH(PropertyValues, changes);

    VswrConverterProfile profile;
    profile.setSignificantDigits(places);
    fill(profile, edited, text);
    const QStringList expected = propertyLines(profile, changes);
    (profile.*calculate)();
    QCOMPARE(propertyLines(profile), expected);
}

} // namespace

void VswrReflectionTest::fromVswr_data()
{
    addColumns();

    // (2 - 1) / (2 + 1) = 1/3; 1/9 = 11.11 %; -10 lg(8/9) = 0.5115
    row("2 leaves the return loss empty", 3, "2",
        {{"r", "0.333"}, {"r2", "11.1"}, {"ar", ""}, {"am", "0.51"}});
    row("2 at ten digits", 10, "2",
        {{"r", "0.3333333333"}, {"r2", "11.11111111"}, {"ar", ""}, {"am", "0.51"}});
    row("2 at one digit", 0, "2", {{"r", "0.3"}, {"r2", "1E+01"}, {"ar", ""}, {"am", "0.51"}});
    row("2:1 is 2", 3, "2:1", {{"r", "0.333"}, {"r2", "11.1"}, {"ar", ""}, {"am", "0.51"}});
    row("2 : 1 is 2", 3, "2 : 1", {{"r", "0.333"}, {"r2", "11.1"}, {"ar", ""}, {"am", "0.51"}});
    row("2 :1 is 2", 3, "2 :1", {{"r", "0.333"}, {"r2", "11.1"}, {"ar", ""}, {"am", "0.51"}});
    // 0.2; 4 %; -10 lg(0.96) = 0.1773
    row("1.5", 3, "1.5", {{"r", "0.2"}, {"r2", "4"}, {"ar", ""}, {"am", "0.18"}});
    // 999 / 1001 = 0.998001998; 99.60079880 %; -10 lg(0.003992012) = 23.988
    row("a prefix is read: 1k is 1000", 10, "1k",
        {{"r", "0.998001998"}, {"r2", "99.6007988"}, {"ar", ""}, {"am", "23.99"}});

    row("1 is the only one with a return loss, which is infinite", 3, "1",
        {{"r", "0"}, {"r2", "0"}, {"ar", "inf"}, {"am", "0.00"}});
    row("1:1 is a match as well", 3, "1:1",
        {{"r", "0"}, {"r2", "0"}, {"ar", "inf"}, {"am", "0.00"}});
    // 1e-13 / 2 = 5e-14; -20 lg(5e-14) = 266.02, in doubles 266.03
    row("1e-13 above 1 counts as 1", 3, "1.0000000000001",
        {{"r", "5E-14"}, {"r2", "2.5E-25"}, {"ar", "266.03"}, {"am", "0.00"}});
    row("1e-11 above 1 does not", 3, "1.00000000001",
        {{"r", "5E-12"}, {"r2", "2.5E-21"}, {"ar", ""}, {"am", "0.00"}});
    row("an infinite VSWR has no number", 3, "INF",
        {{"r", "NAN"}, {"r2", "NAN"}, {"ar", ""}, {"am", "nan"}});

    row("below 1 is invalid", 3, "0.5", rejected("vswr"));
    row("just below 1 is invalid", 3, "0.9999999999999", rejected("vswr"));
    row("below zero is invalid", 3, "-2", rejected("vswr"));
    row("a word is invalid", 3, "abc", rejected("vswr"));
    row("no number is invalid", 3, "NAN", rejected("vswr"));
    row("a lone :1 is invalid", 3, ":1", rejected("vswr"));
    row("a blank is not empty, but invalid", 3, " ", rejected("vswr"));
    row("every :1 is removed, so 2:10 is 20", 3, "2:10",
        {{"r", "0.905"}, {"r2", "81.9"}, {"ar", ""}, {"am", "7.41"}});
    row("1:2 is invalid", 3, "1:2", rejected("vswr"));
    row("an empty field does nothing", 3, "", {});
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
    row("0.5", 3, "0.5", {{"vswr", "3"}, {"r2", "25"}, {"ar", "6.02"}, {"am", "1.25"}});
    // 1.3 / 0.7 = 1.857142857; 9 %; 10.4576; 0.4096
    row("0.3 at ten digits", 10, "0.3",
        {{"vswr", "1.857142857"}, {"r2", "9"}, {"ar", "10.46"}, {"am", "0.41"}});
    row("0.3 at one digit", 0, "0.3",
        {{"vswr", "2"}, {"r2", "9"}, {"ar", "10.46"}, {"am", "0.41"}});
    row("a prefix is read: 300 milli", 3, "300m",
        {{"vswr", "1.86"}, {"r2", "9"}, {"ar", "10.46"}, {"am", "0.41"}});
    row("no reflection has no return loss", 3, "0",
        {{"vswr", "1"}, {"r2", "0"}, {"ar", ""}, {"am", "0.00"}});
    row("total reflection", 3, "1",
        {{"vswr", "INF"}, {"r2", "100"}, {"ar", "0.00"}, {"am", "inf"}});
    // 2.5 / -0.5 = -5; 225 %; -20 lg(1.5) = -3.5218
    row("above 1 it goes on", 3, "1.5",
        {{"vswr", "-5"}, {"r2", "225"}, {"ar", "-3.52"}, {"am", "nan"}});
    // 51 / -49 = -1.0408; -20 lg(50) = -33.979
    row("50 is accepted", 10, "50",
        {{"vswr", "-1.040816327"}, {"r2", "250000"}, {"ar", "-33.98"}, {"am", "nan"}});
    // 101 / -99 = -1.0202
    row("100 is the last one accepted and has no mismatch loss", 3, "100",
        {{"vswr", "-1.02"}, {"r2", "1E+06"}, {"ar", "-40.00"}, {"am", ""}});

    row("101 is invalid", 3, "101", rejected("r"));
    row("just above 100 is invalid", 3, "100.0001", rejected("r"));
    row("below zero is invalid", 3, "-0.1", rejected("r"));
    row("a word is invalid", 3, "abc", rejected("r"));
    row("infinity is invalid", 3, "INF", rejected("r"));
    row("no number is invalid", 3, "NAN", rejected("r"));
    row("an empty field does nothing", 3, "", {});
}

void VswrReflectionTest::fromR()
{
    check("r", &VswrConverterProfile::calculateFromR);
}

void VswrReflectionTest::fromR2_data()
{
    addColumns();

    row("25 %", 3, "25", {{"r", "0.5"}, {"vswr", "3"}, {"ar", "6.02"}, {"am", "1.25"}});
    // sqrt(0.1) = 0.316227766; 1.316227766 / 0.683772234 = 1.924950591; -10 lg(0.9) = 0.4576
    row("10 % at ten digits", 10, "10",
        {{"r", "0.316227766"}, {"vswr", "1.924950591"}, {"ar", "10.00"}, {"am", "0.46"}});
    row("10 % at three digits", 3, "10",
        {{"r", "0.316"}, {"vswr", "1.92"}, {"ar", "10.00"}, {"am", "0.46"}});
    row("10 % at one digit", 0, "10",
        {{"r", "0.3"}, {"vswr", "2"}, {"ar", "10.00"}, {"am", "0.46"}});
    row("0 % has no return loss", 3, "0", {{"r", "0"}, {"vswr", "1"}, {"ar", ""}, {"am", "0.00"}});
    row("100 %", 3, "100", {{"r", "1"}, {"vswr", "INF"}, {"ar", "0.00"}, {"am", "inf"}});

    row("above 100 % is invalid", 3, "100.001", rejected("r2"));
    row("below zero is invalid", 3, "-1", rejected("r2"));
    row("a word is invalid", 3, "10%", rejected("r2"));
    row("an empty field does nothing", 3, "", {});
}

void VswrReflectionTest::fromR2()
{
    check("r2", &VswrConverterProfile::calculateFromR2);
}

void VswrReflectionTest::fromAr_data()
{
    addColumns();

    // 10^-1 = 0.1; 1.1 / 0.9 = 1.2222; 1 %; -10 lg(0.99) = 0.0436
    row("20 dB", 3, "20", {{"r", "0.1"}, {"vswr", "1.22"}, {"r2", "1"}, {"am", "0.04"}});
    // 10^-0.3 = 0.5011872336; 1.5011872336 / 0.4988127664; 25.11886432 %; 1.2563
    row("6 dB at ten digits", 10, "6",
        {{"r", "0.5011872336"}, {"vswr", "3.009520475"}, {"r2", "25.11886432"}, {"am", "1.26"}});
    row("6 dB at one digit", 0, "6",
        {{"r", "0.5"}, {"vswr", "3"}, {"r2", "3E+01"}, {"am", "1.26"}});
    row("0 dB is total reflection", 3, "0",
        {{"r", "1"}, {"vswr", "INF"}, {"r2", "100"}, {"am", "inf"}});
    row("an infinite return loss is a match", 3, "INF",
        {{"r", "0"}, {"vswr", "1"}, {"r2", "0"}, {"am", "0.00"}});

    row("below zero is invalid", 3, "-0.01", rejected("ar"));
    row("a word is invalid", 3, "abc", rejected("ar"));
    row("the text inf that a match shows is invalid as input", 3, "inf", rejected("ar"));
    row("an empty field does nothing", 3, "", {});
}

void VswrReflectionTest::fromAr()
{
    check("ar", &VswrConverterProfile::calculateFromAr);
}

void VswrReflectionTest::fromAm_data()
{
    addColumns();

    // sqrt(1 - 10^-0.1) = 0.4535104908; 1.4535104908 / 0.5464895092; 20.56717653 %; 6.8683
    row("1 dB at ten digits", 10, "1",
        {{"r", "0.4535104908"}, {"vswr", "2.659722586"}, {"r2", "20.56717653"}, {"ar", "6.87"}});
    row("1 dB at three digits", 3, "1",
        {{"r", "0.454"}, {"vswr", "2.66"}, {"r2", "20.6"}, {"ar", "6.87"}});
    row("1 dB at one digit", 0, "1",
        {{"r", "0.5"}, {"vswr", "3"}, {"r2", "2E+01"}, {"ar", "6.87"}});
    row("0 dB is a match without a return loss", 3, "0",
        {{"r", "0"}, {"vswr", "1"}, {"r2", "0"}, {"ar", ""}});
    row("an infinite mismatch loss is total reflection", 3, "INF",
        {{"r", "1"}, {"vswr", "INF"}, {"r2", "100"}, {"ar", "0.00"}});

    row("below zero is invalid", 3, "-1", rejected("am"));
    row("a word is invalid", 3, "abc", rejected("am"));
    row("the text nan is invalid as input", 3, "nan", rejected("am"));
    row("an empty field does nothing", 3, "", {});
}

void VswrReflectionTest::fromAm()
{
    check("am", &VswrConverterProfile::calculateFromAm);
}

void VswrReflectionTest::writesInOrder_data()
{
    QTest::addColumn<QString>("edited");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("order");

    const auto order = [](const char *tag, const char *edited, const char *text,
                          const char *names) {
        QTest::newRow(tag) << QString::fromLatin1(edited) << QString::fromLatin1(text)
                           << QString::fromLatin1(names);
    };
    order("VSWR", "vswr", "2", "r ar r2 am");
    order("reflection coefficient", "r", "0.5", "vswr r2 ar am");
    order("its square", "r2", "25", "r vswr ar am");
    order("return loss", "ar", "6", "r vswr r2 am");
    order("mismatch loss", "am", "1", "r vswr r2 ar");
    order("an invalid VSWR", "vswr", "x", "vswr r r2 ar am");
    order("an invalid reflection coefficient", "r", "x", "r vswr r2 ar am");
    order("an invalid square", "r2", "x", "r2 vswr r ar am");
    order("an invalid return loss", "ar", "x", "ar vswr r r2 am");
    order("an invalid mismatch loss", "am", "x", "am vswr r r2 ar");
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
