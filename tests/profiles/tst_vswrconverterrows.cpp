// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "testmain.h"
#include "vswrconverterprofile.h"

#include <QTest>

using namespace Dezimo;

/// The forward, reflected and absorbed rows. In mW and mV the powers and the voltages have the same
/// numbers, so one table of cases serves both; the other units have tables of their own.
class VswrConverterRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void solves_data();
    void solves();
    void writesInOrder_data();
    void writesInOrder();
    void converts_data();
    void converts();
    void solvesInMixedUnits_data();
    void solvesInMixedUnits();
};

namespace {

constexpr int kDbm = 0;
constexpr int kDbw = 1;
constexpr int kWatt = 2;
constexpr int kMilliwatt = 3;
constexpr int kDbv = 0;
constexpr int kDbmicrovolt = 1;
constexpr int kVolt = 2;
constexpr int kMillivolt = 3;
constexpr int kUnknown = 4;

/// What the three rows of one half read.
struct Rows
{
    const char *forward;
    const char *reflected;
    const char *absorbed;
};

struct Half
{
    const char *forward;
    const char *reflected;
    const char *absorbed;
    const char *forwardUnit;
    const char *reflectedUnit;
    const char *absorbedUnit;
    QString initial;
};

const Half &powers()
{
    static const Half half{"pForward",       "pReflected",    "pAbsorbed",        "pForwardUnit",
                           "pReflectedUnit", "pAbsorbedUnit", QStringLiteral("P")};
    return half;
}

const Half &voltages()
{
    static const Half half{"vForward",       "vReflected",    "vAbsorbed",        "vForwardUnit",
                           "vReflectedUnit", "vAbsorbedUnit", QStringLiteral("V")};
    return half;
}

PropertyValues valuesOf(const Half &half, const Rows &rows)
{
    return {{half.forward, rows.forward},
            {half.reflected, rows.reflected},
            {half.absorbed, rows.absorbed}};
}

/// All rows in mW or mV.
PropertyValues givenIn(const Half &half, const char *r2, const Rows &rows)
{
    PropertyValues values{{half.forwardUnit, kMilliwatt},
                          {half.reflectedUnit, kMilliwatt},
                          {half.absorbedUnit, kMilliwatt},
                          {"r2", r2}};
    for (const PropertyValue &value : valuesOf(half, rows))
        values.push_back(value);
    return values;
}

QByteArray slotOf(const Half &half, const char *row)
{
    return QByteArray("calculateFrom") + half.initial.toLatin1() + row;
}

void calculate(VswrConverterProfile &profile, const QByteArray &slot)
{
    QVERIFY2(QMetaObject::invokeMethod(&profile, slot.constData()), slot.constData());
}

} // namespace

void VswrConverterRowsTest::solves_data()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("changes");

    const auto row = [](const char *tag, const char *edited, const char *r2, const Rows &given,
                        const Rows &after, int places = ModuleProfile::kDefaultSignificantDigits) {
        for (const Half *half : {&powers(), &voltages()}) {
            const QString name = half->initial + QStringLiteral(": ") + QString::fromUtf8(tag);
            QTest::newRow(name.toUtf8().constData())
                << places << slotOf(*half, edited) << givenIn(*half, r2, given)
                << valuesOf(*half, after);
        }
    };

    // case a of each row, with 25 %: 8 * 0.25 = 2, 8 - 2 = 6
    row("forward with the square known", "Forward", "25", {"8", "", ""}, {"8", "2", "6"});
    row("forward replaces what stood there", "Forward", "25", {"8", "5", "5"}, {"8", "2", "6"});
    // 1 * 0.1111111111 and the rest
    row("forward at ten digits", "Forward", "11.11111111", {"1", "", ""},
        {"1", "0.1111111111", "0.8888888889"}, 10);
    row("forward at three digits", "Forward", "11.11111111", {"1", "", ""},
        {"1", "0.111", "0.889"});
    row("forward at one digit", "Forward", "11.11111111", {"1", "", ""}, {"1", "0.1", "0.9"}, 0);
    row("forward with a square of 0 %", "Forward", "0", {"8", "", ""}, {"8", "0", "8"});
    row("forward with a square that is a word, which is 0", "Forward", "invalid input",
        {"8", "5", "5"}, {"8", "0", "8"});
    row("a negative forward value is accepted", "Forward", "25", {"-8", "", ""},
        {"-8", "-2", "-6"});
    // 2 / 0.25 = 8, 8 - 2 = 6
    row("reflected with the square known", "Reflected", "25", {"", "2", ""}, {"8", "2", "6"});
    row("reflected replaces what stood there", "Reflected", "25", {"5", "2", "5"}, {"8", "2", "6"});
    row("reflected at one digit: 1 / 0.09 = 11.1", "Reflected", "9", {"", "1", ""},
        {"1E+01", "1", "1E+01"}, 0);
    row("reflected at ten digits: 1 / 0.09 = 11.1", "Reflected", "9", {"", "1", ""},
        {"11.11111111", "1", "10.11111111"}, 10);
    row("reflected with a square of 0 % is infinite", "Reflected", "0", {"", "2", ""},
        {"INF", "2", "INF"});
    row("nothing reflected with a square of 0 % is no number", "Reflected", "0", {"", "0", ""},
        {"NAN", "0", "NAN"});
    row("absorbed with the square known empties itself and forward", "Absorbed", "25",
        {"8", "2", "6"}, {"", "2", ""});
    row("absorbed with a square of 0 % does the same", "Absorbed", "0", {"8", "2", "6"},
        {"", "2", ""});

    // case b: the square is not known, the next row is
    row("forward and reflected give absorbed", "Forward", "", {"8", "2", ""}, {"8", "2", "6"});
    row("forward prefers reflected over absorbed", "Forward", "", {"8", "2", "1"}, {"8", "2", "6"});
    row("reflected and forward give absorbed", "Reflected", "", {"8", "2", ""}, {"8", "2", "6"});
    row("reflected prefers forward over absorbed", "Reflected", "", {"8", "2", "1"},
        {"8", "2", "6"});
    row("absorbed and forward give reflected", "Absorbed", "", {"8", "", "6"}, {"8", "2", "6"});
    row("absorbed prefers forward over reflected", "Absorbed", "", {"8", "1", "6"},
        {"8", "2", "6"});
    row("more reflected than forward absorbs a negative value", "Forward", "", {"2", "8", ""},
        {"2", "8", "-6"});
    row("a partner that is a word counts as 0", "Forward", "", {"8", "invalid input", ""},
        {"8", "invalid input", "8"});
    row("a partner with a prefix is read", "Forward", "", {"8", "2k", ""}, {"8", "2k", "-1992"},
        10);

    // case c: only the last row is known
    row("forward and absorbed give reflected", "Forward", "", {"8", "", "6"}, {"8", "2", "6"});
    row("reflected and absorbed give forward", "Reflected", "", {"", "2", "6"}, {"8", "2", "6"});
    row("absorbed and reflected give forward", "Absorbed", "", {"", "2", "6"}, {"8", "2", "6"});

    // case d: nothing else is known
    row("forward alone", "Forward", "", {"8", "", ""}, {"8", "", ""});
    row("reflected alone", "Reflected", "", {"", "2", ""}, {"", "2", ""});
    row("absorbed alone", "Absorbed", "", {"", "", "6"}, {"", "", "6"});

    // invalid and empty input
    row("an invalid forward value", "Forward", "25", {"x", "2", "6"}, {"invalid input", "2", "6"});
    row("an invalid reflected value", "Reflected", "25", {"8", "1k2M", "6"},
        {"8", "invalid input", "6"});
    row("an invalid absorbed value", "Absorbed", "25", {"8", "2", "x"},
        {"8", "2", "invalid input"});
    row("an empty forward row", "Forward", "25", {"", "2", "6"}, {"", "2", "6"});
    row("an empty reflected row", "Reflected", "25", {"8", "", "6"}, {"8", "", "6"});
    row("an empty absorbed row", "Absorbed", "25", {"8", "2", ""}, {"8", "2", ""});
}

void VswrConverterRowsTest::solves()
{
    QFETCH(int, places);
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, changes);

    VswrConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile, given);
    const QStringList expected = propertyLines(profile, changes);
    calculate(profile, slot);
    QCOMPARE(propertyLines(profile), expected);
}

void VswrConverterRowsTest::writesInOrder_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<QStringList>("order");

    for (const Half *half : {&powers(), &voltages()}) {
        const auto row = [half](const char *edited, const char *first, const char *second) {
            QTest::newRow(slotOf(*half, edited).constData())
                << slotOf(*half, edited) << givenIn(*half, "50", {"9", "9", "9"})
                << QStringList{QString::fromLatin1(first), QString::fromLatin1(second)};
        };
        row("Forward", half->reflected, half->absorbed);
        row("Absorbed", half->forward, half->absorbed);
    }
    // of 25 %, as 9 / 0.5 - 9 would be the same 9 that stands there
    QTest::newRow("calculateFromPReflected")
        << slotOf(powers(), "Reflected") << givenIn(powers(), "25", {"9", "9", "9"})
        << QStringList{QStringLiteral("pForward"), QStringLiteral("pAbsorbed")};
    QTest::newRow("calculateFromVReflected")
        << slotOf(voltages(), "Reflected") << givenIn(voltages(), "25", {"9", "9", "9"})
        << QStringList{QStringLiteral("vForward"), QStringLiteral("vAbsorbed")};
}

void VswrConverterRowsTest::writesInOrder()
{
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, given);
    QFETCH(QStringList, order);

    VswrConverterProfile profile;
    setProperties(profile, given);
    ChangeLog log(profile);
    calculate(profile, slot);
    QCOMPARE(log.take(), order);
}

void VswrConverterRowsTest::converts_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("changes");

    const auto row = [](const char *tag, const char *slot, const PropertyValues &given,
                        const PropertyValues &changes) {
        QTest::newRow(tag) << QByteArray(slot) << given << changes;
    };

    // 10 mW: 2.5 mW = 3.97940 dBm are reflected, 7.5 mW = 8.75061 dBm absorbed
    row("10 dBm in dBm", "calculateFromPForward", {{"r2", "25"}, {"pForward", "10"}},
        {{"pReflected", "3.979400087"}, {"pAbsorbed", "8.750612634"}});
    row("every power row in a unit of its own", "calculateFromPForward",
        {{"pForwardUnit", kDbw},
         {"pReflectedUnit", kWatt},
         {"pAbsorbedUnit", kMilliwatt},
         {"r2", "25"},
         {"pForward", "-20"}},
        {{"pReflected", "0.0025"}, {"pAbsorbed", "7.5"}});
    row("0.01 W gives dBW and dBm", "calculateFromPForward",
        {{"pForwardUnit", kWatt}, {"pReflectedUnit", kDbw}, {"r2", "25"}, {"pForward", "0.01"}},
        {{"pReflected", "-26.02059991"}, {"pAbsorbed", "8.750612634"}});
    row("nothing reflected is minus infinity in dBm", "calculateFromPForward",
        {{"r2", "0"}, {"pForward", "10"}}, {{"pReflected", "-INF"}, {"pAbsorbed", "10"}});
    row("a negative rest has no level", "calculateFromPForward",
        {{"pReflected", "20"}, {"pForward", "10"}}, {{"pAbsorbed", "NAN"}});
    // 0 dBm is 1 mW, and 10 mW less 1 mW are 9 mW = 9.54243 dBm
    row("a word in dBm counts as 0 dBm, which is 1 mW", "calculateFromPForward",
        {{"pReflected", "x"}, {"pForward", "10"}}, {{"pAbsorbed", "9.542425094"}});
    row("a power in an unknown unit is taken as mW", "calculateFromPForward",
        {{"pForwardUnit", kUnknown},
         {"pReflectedUnit", -1},
         {"pAbsorbedUnit", kUnknown},
         {"r2", "25"},
         {"pForward", "8"}},
        {{"pReflected", "2"}, {"pAbsorbed", "6"}});

    // 1000 mV * 0.25 = 250 mV = -12.04120 dBV; 750 mV = -2.49877 dBV: the square links voltages too
    row("0 dBV in dBV", "calculateFromVForward", {{"r2", "25"}, {"vForward", "0"}},
        {{"vReflected", "-12.04119983"}, {"vAbsorbed", "-2.498774732"}});
    row("every voltage row in a unit of its own", "calculateFromVForward",
        {{"vForwardUnit", kDbmicrovolt},
         {"vReflectedUnit", kVolt},
         {"vAbsorbedUnit", kMillivolt},
         {"r2", "25"},
         {"vForward", "120"}},
        {{"vReflected", "0.25"}, {"vAbsorbed", "750"}});
    row("1 V gives dBµV and dBV", "calculateFromVForward",
        {{"vForwardUnit", kVolt},
         {"vReflectedUnit", kDbmicrovolt},
         {"r2", "25"},
         {"vForward", "1"}},
        {{"vReflected", "107.9588002"}, {"vAbsorbed", "-2.498774732"}});
    row("a word in dBV counts as 0 dBV, which is 1 V", "calculateFromVForward",
        {{"vForwardUnit", kVolt}, {"vAbsorbedUnit", kVolt}, {"vReflected", "x"}, {"vForward", "3"}},
        {{"vAbsorbed", "2"}});
    row("a voltage in an unknown unit is taken as mV", "calculateFromVReflected",
        {{"vForwardUnit", kUnknown},
         {"vReflectedUnit", kUnknown},
         {"vAbsorbedUnit", -1},
         {"r2", "25"},
         {"vReflected", "2"}},
        {{"vForward", "8"}, {"vAbsorbed", "6"}});
}

void VswrConverterRowsTest::converts()
{
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, changes);

    VswrConverterProfile profile;
    profile.setSignificantDigits(10);
    setProperties(profile, given);
    const QStringList expected = propertyLines(profile, changes);
    calculate(profile, slot);
    QCOMPARE(propertyLines(profile), expected);
}

/// Every row in a unit of its own, with 10 mW forward, 2.5 mW reflected and 7.5 mW absorbed, or
/// 1000 mV, 250 mV and 750 mV: two of the texts are given and the third is found.
void VswrConverterRowsTest::solvesInMixedUnits_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("changes");

    struct Row
    {
        const char *text;
        int unit;
    };
    enum Name { Forward, Reflected, Absorbed };
    const auto row = [](const char *tag, const Half &half, Name edited, Name found,
                        const Row(&rows)[3]) {
        static const char *const kNames[] = {"Forward", "Reflected", "Absorbed"};
        const char *const fields[] = {half.forward, half.reflected, half.absorbed};
        const char *const units[] = {half.forwardUnit, half.reflectedUnit, half.absorbedUnit};
        PropertyValues given;
        for (const Name name : {Forward, Reflected, Absorbed}) {
            given.push_back({units[name], rows[name].unit});
            given.push_back({fields[name], name == found ? "" : rows[name].text});
        }
        QTest::newRow(tag) << slotOf(half, kNames[edited]) << given
                           << PropertyValues{{fields[found], rows[found].text}};
    };

    // the square is not known, the next row is
    row("dBm less W in mW", powers(), Forward, Absorbed,
        {{"10", kDbm}, {"0.0025", kWatt}, {"7.5", kMilliwatt}});
    row("reflected mW, forward dBW: absorbed W", powers(), Reflected, Absorbed,
        {{"-20", kDbw}, {"2.5", kMilliwatt}, {"0.0075", kWatt}});
    row("absorbed W, forward dBW: reflected mW", powers(), Absorbed, Reflected,
        {{"-20", kDbw}, {"2.5", kMilliwatt}, {"0.0075", kWatt}});
    row("dBµV less V in mV", voltages(), Forward, Absorbed,
        {{"120", kDbmicrovolt}, {"0.25", kVolt}, {"750", kMillivolt}});
    row("reflected mV, forward dBV: absorbed V", voltages(), Reflected, Absorbed,
        {{"0", kDbv}, {"250", kMillivolt}, {"0.75", kVolt}});
    row("absorbed V, forward dBµV: reflected mV", voltages(), Absorbed, Reflected,
        {{"120", kDbmicrovolt}, {"250", kMillivolt}, {"0.75", kVolt}});

    // only the last row is known
    row("forward mW, absorbed W: reflected dBm", powers(), Forward, Reflected,
        {{"10", kMilliwatt}, {"3.979400087", kDbm}, {"0.0075", kWatt}});
    row("reflected W, absorbed mW: forward dBm", powers(), Reflected, Forward,
        {{"10", kDbm}, {"0.0025", kWatt}, {"7.5", kMilliwatt}});
    row("absorbed mW, reflected W: forward dBW", powers(), Absorbed, Forward,
        {{"-20", kDbw}, {"0.0025", kWatt}, {"7.5", kMilliwatt}});
    row("forward mV, absorbed V: reflected dBµV", voltages(), Forward, Reflected,
        {{"1000", kMillivolt}, {"107.9588002", kDbmicrovolt}, {"0.75", kVolt}});
    row("reflected V, absorbed mV: forward dBV", voltages(), Reflected, Forward,
        {{"0", kDbv}, {"0.25", kVolt}, {"750", kMillivolt}});
    row("absorbed V, reflected mV: forward dBµV", voltages(), Absorbed, Forward,
        {{"120", kDbmicrovolt}, {"250", kMillivolt}, {"0.75", kVolt}});
}

void VswrConverterRowsTest::solvesInMixedUnits()
{
    converts();
}

DEZIMO_TEST_MAIN(QCoreApplication, VswrConverterRowsTest)

#include "tst_vswrconverterrows.moc"
