// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "vswrconverterprofile.h"
#include "words.h"

#include <QRegularExpression>
#include <QTest>

using namespace Dezimo;

namespace {

constexpr int kManyPlaces = 10;

void addColumns()
{
    columns<int, QString, QString, QString, QString, QString>(
        {"places", "edited", "units", "r2", "before", "after"});
}

/// @p edited begins with a P for powers or a V for voltages. Units and texts are those of the
/// forward, the reflected and the absorbed row. Without units all rows have their first one. The
/// calculated texts stand in parentheses.
void add(const char *tag, const char *edited, const char *units, const char *texts,
         const char *r2 = "")
{
    static const QRegularExpression calculated(QStringLiteral("\\([^)]*\\)"));
    static const QRegularExpression parentheses(QStringLiteral("[()]"));
    const QString both = QString::fromUtf8(texts);
    row(tag, kManyPlaces, edited, units, r2, QString(both).remove(calculated),
        QString(both).remove(parentheses));
}

/// The rows of one half, with @p end behind their names.
QStringList rowsOf(QChar half, const char *end = "")
{
    QStringList names = words("Forward Reflected Absorbed");
    for (QString &name : names)
        name = half.toLower() + name + QLatin1String(end);
    return names;
}

/// The number of @p unit in its selector. A number stands for itself, so that a test can name units
/// that do not exist.
int unitNumber(QChar half, const QString &unit)
{
    bool isNumber = false;
    int number = unit.toInt(&isNumber);
    if (!isNumber) {
        const bool isPower = half == QLatin1Char('P');
        number = int(words(isPower ? "dBm dBW W mW" : "dBV dBµV V mV").indexOf(unit));
        if (number < 0)
            qFatal("no such unit: %s", qPrintable(unit));
    }
    return number;
}

void calculate(VswrConverterProfile &profile, const QString &edited)
{
    const QByteArray slot = "calculateFrom" + edited.toLatin1();
    QVERIFY2(QMetaObject::invokeMethod(&profile, slot.constData()), slot.constData());
}

/// A row for the powers in mW and one for the voltages in mV.
void both(const char *tag, const char *edited, const char *r2, const char *before,
          const char *after, int places = ModuleProfile::kDefaultSignificantDigits)
{
    for (const char *half : {"P", "V"}) {
        const char *const units = half[0] == 'P' ? "mW mW mW" : "mV mV mV";
        row(QByteArray(half).append(": ").append(tag).constData(), places,
            QByteArray(half).append(edited).constData(), units, r2, before, after);
    }
}

void check()
{
    QFETCH(int, places);
    QFETCH(QString, edited);
    QFETCH(QString, units);
    QFETCH(QString, r2);
    QFETCH(QString, before);
    QFETCH(QString, after);

    const QChar half = edited.at(0);
    VswrConverterProfile profile;
    profile.setSignificantDigits(places);
    const QStringList unitNames = units.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < unitNames.size(); ++i)
        setProperties(profile,
                      {{rowsOf(half, "Unit").at(i).toLatin1(), unitNumber(half, unitNames.at(i))}});
    profile.setR2(r2);
    setProperties(profile, values(rowsOf(half), before));
    const QStringList expected = propertyLines(profile, values(rowsOf(half), after));
    calculate(profile, edited);
    QCOMPARE(propertyLines(profile), expected);
}

} // namespace

/// The forward, reflected and absorbed rows. In mW and mV the powers and the voltages have the same
/// numbers, so one table of cases serves both; the other units have tables of their own.
class VswrConverterRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void solves_data();
    void solves() { check(); }
    void writesInOrder_data();
    void writesInOrder();
    void converts_data();
    void converts() { check(); }
    void solvesInMixedUnits_data();
    void solvesInMixedUnits() { check(); }
};

void VswrConverterRowsTest::solves_data()
{
    addColumns();
    // case a of each row, with 25 %: 8 * 0.25 = 2, 8 - 2 = 6
    both("forward with the square known", "Forward", "25", "8 |  | ", "8 | 2 | 6");
    both("forward replaces what stood there", "Forward", "25", "8 | 5 | 5", "8 | 2 | 6");
    // 1 * 0.1111111111 and the rest
    both("forward at ten digits", "Forward", "11.11111111", "1 |  | ",
         "1 | 0.1111111111 | 0.8888888889", 10);
    both("forward at three digits", "Forward", "11.11111111", "1 |  | ", "1 | 0.111 | 0.889");
    both("forward at one digit", "Forward", "11.11111111", "1 |  | ", "1 | 0.1 | 0.9", 0);
    both("forward with a square of 0 %", "Forward", "0", "8 |  | ", "8 | 0 | 8");
    both("forward with a square that is a word, which is 0", "Forward", "invalid input",
         "8 | 5 | 5", "8 | 0 | 8");
    both("a negative forward value is accepted", "Forward", "25", "-8 |  | ", "-8 | -2 | -6");
    // 2 / 0.25 = 8, 8 - 2 = 6
    both("reflected with the square known", "Reflected", "25", " | 2 | ", "8 | 2 | 6");
    both("reflected replaces what stood there", "Reflected", "25", "5 | 2 | 5", "8 | 2 | 6");
    both("reflected at one digit: 1 / 0.09 = 11.1", "Reflected", "9", " | 1 | ",
         "1E+01 | 1 | 1E+01", 0);
    both("reflected at ten digits: 1 / 0.09 = 11.1", "Reflected", "9", " | 1 | ",
         "11.11111111 | 1 | 10.11111111", 10);
    both("reflected with a square of 0 % is infinite", "Reflected", "0", " | 2 | ",
         "INF | 2 | INF");
    both("nothing reflected with a square of 0 % is no number", "Reflected", "0", " | 0 | ",
         "NAN | 0 | NAN");
    both("absorbed with the square known empties itself and forward", "Absorbed", "25", "8 | 2 | 6",
         " | 2 | ");
    both("absorbed with a square of 0 % does the same", "Absorbed", "0", "8 | 2 | 6", " | 2 | ");

    // case b: the square is not known, the next row is
    both("forward and reflected give absorbed", "Forward", "", "8 | 2 | ", "8 | 2 | 6");
    both("forward prefers reflected over absorbed", "Forward", "", "8 | 2 | 1", "8 | 2 | 6");
    both("reflected and forward give absorbed", "Reflected", "", "8 | 2 | ", "8 | 2 | 6");
    both("reflected prefers forward over absorbed", "Reflected", "", "8 | 2 | 1", "8 | 2 | 6");
    both("absorbed and forward give reflected", "Absorbed", "", "8 |  | 6", "8 | 2 | 6");
    both("absorbed prefers forward over reflected", "Absorbed", "", "8 | 1 | 6", "8 | 2 | 6");
    both("more reflected than forward absorbs a negative value", "Forward", "", "2 | 8 | ",
         "2 | 8 | -6");
    both("a partner that is a word counts as 0", "Forward", "", "8 | invalid input | ",
         "8 | invalid input | 8");
    both("a partner with a prefix is read", "Forward", "", "8 | 2k | ", "8 | 2k | -1992", 10);

    // case c: only the last row is known
    both("forward and absorbed give reflected", "Forward", "", "8 |  | 6", "8 | 2 | 6");
    both("reflected and absorbed give forward", "Reflected", "", " | 2 | 6", "8 | 2 | 6");
    both("absorbed and reflected give forward", "Absorbed", "", " | 2 | 6", "8 | 2 | 6");

    // case d: nothing else is known
    both("forward alone", "Forward", "", "8 |  | ", "8 |  | ");
    both("reflected alone", "Reflected", "", " | 2 | ", " | 2 | ");
    both("absorbed alone", "Absorbed", "", " |  | 6", " |  | 6");

    // invalid and empty input
    both("an invalid forward value", "Forward", "25", "x | 2 | 6", "invalid input | 2 | 6");
    both("an invalid reflected value", "Reflected", "25", "8 | 1k2M | 6", "8 | invalid input | 6");
    both("an invalid absorbed value", "Absorbed", "25", "8 | 2 | x", "8 | 2 | invalid input");
    both("an empty forward row", "Forward", "25", " | 2 | 6", " | 2 | 6");
    both("an empty reflected row", "Reflected", "25", "8 |  | 6", "8 |  | 6");
    both("an empty absorbed row", "Absorbed", "25", "8 | 2 | ", "8 | 2 | ");
}

void VswrConverterRowsTest::writesInOrder_data()
{
    columns<QString, QString, QString>({"edited", "r2", "order"});
    row("calculateFromPForward", "PForward", "50", "pReflected pAbsorbed");
    row("calculateFromPAbsorbed", "PAbsorbed", "50", "pForward pAbsorbed");
    row("calculateFromVForward", "VForward", "50", "vReflected vAbsorbed");
    row("calculateFromVAbsorbed", "VAbsorbed", "50", "vForward vAbsorbed");
    // With 50 % the result would be 9 / 0.5 - 9 = 9, which the field holds already, so this takes
    // 25 %.
    row("calculateFromPReflected", "PReflected", "25", "pForward pAbsorbed");
    row("calculateFromVReflected", "VReflected", "25", "vForward vAbsorbed");
}

void VswrConverterRowsTest::writesInOrder()
{
    QFETCH(QString, edited);
    QFETCH(QString, r2);
    QFETCH(QString, order);

    const QChar half = edited.at(0);
    VswrConverterProfile profile;
    setProperties(profile, values(rowsOf(half, "Unit"), QStringLiteral("3 | 3 | 3")));
    profile.setR2(r2);
    setProperties(profile, values(rowsOf(half), QStringLiteral("9 | 9 | 9")));
    ChangeLog log(profile);
    calculate(profile, edited);
    QCOMPARE(log.take().join(QLatin1Char(' ')), order);
}

void VswrConverterRowsTest::converts_data()
{
    addColumns();
    // 10 mW: 2.5 mW = 3.97940 dBm are reflected, 7.5 mW = 8.75061 dBm absorbed
    add("10 dBm in dBm", "PForward", "", "10 | (3.979400087) | (8.750612634)", "25");
    add("every power row in a unit of its own", "PForward", "dBW W mW", "-20 | (0.0025) | (7.5)",
        "25");
    add("0.01 W gives dBW and dBm", "PForward", "W dBW dBm",
        "0.01 | (-26.02059991) | (8.750612634)", "25");
    add("nothing reflected is minus infinity in dBm", "PForward", "", "10 | (-INF) | (10)", "0");
    add("a negative rest has no level", "PForward", "", "10 | 20 | (NAN)");
    // 0 dBm is 1 mW, and 10 mW less 1 mW are 9 mW = 9.54243 dBm
    add("a word in dBm counts as 0 dBm, which is 1 mW", "PForward", "", "10 | x | (9.542425094)");
    add("a power in an unknown unit is taken as mW", "PForward", "4 -1 4", "8 | (2) | (6)", "25");

    // 1000 mV * 0.25 = 250 mV = -12.04120 dBV; 750 mV = -2.49877 dBV: the square links voltages too
    add("0 dBV in dBV", "VForward", "", "0 | (-12.04119983) | (-2.498774732)", "25");
    add("every voltage row in a unit of its own", "VForward", "dBµV V mV", "120 | (0.25) | (750)",
        "25");
    add("1 V gives dBµV and dBV", "VForward", "V dBµV dBV", "1 | (107.9588002) | (-2.498774732)",
        "25");
    add("a word in dBV counts as 0 dBV, which is 1 V", "VForward", "V dBV V", "3 | x | (2)");
    add("a voltage in an unknown unit is taken as mV", "VReflected", "4 4 -1", "(8) | 2 | (6)",
        "25");
}

/// Every row has a unit of its own. The powers are 10 mW forward, 2.5 mW reflected and 7.5 mW
/// absorbed, the voltages 1000 mV, 250 mV and 750 mV. Two texts are given, and the third is
/// calculated.
void VswrConverterRowsTest::solvesInMixedUnits_data()
{
    addColumns();
    // the square is not known, the next row is
    add("dBm less W in mW", "PForward", "dBm W mW", "10 | 0.0025 | (7.5)");
    add("reflected mW, forward dBW: absorbed W", "PReflected", "dBW mW W", "-20 | 2.5 | (0.0075)");
    add("absorbed W, forward dBW: reflected mW", "PAbsorbed", "dBW mW W", "-20 | (2.5) | 0.0075");
    add("dBµV less V in mV", "VForward", "dBµV V mV", "120 | 0.25 | (750)");
    add("reflected mV, forward dBV: absorbed V", "VReflected", "dBV mV V", "0 | 250 | (0.75)");
    add("absorbed V, forward dBµV: reflected mV", "VAbsorbed", "dBµV mV V", "120 | (250) | 0.75");

    // only the last row is known
    add("forward mW, absorbed W: reflected dBm", "PForward", "mW dBm W",
        "10 | (3.979400087) | 0.0075");
    add("reflected W, absorbed mW: forward dBm", "PReflected", "dBm W mW", "(10) | 0.0025 | 7.5");
    add("absorbed mW, reflected W: forward dBW", "PAbsorbed", "dBW W mW", "(-20) | 0.0025 | 7.5");
    add("forward mV, absorbed V: reflected dBµV", "VForward", "mV dBµV V",
        "1000 | (107.9588002) | 0.75");
    add("reflected V, absorbed mV: forward dBV", "VReflected", "dBV V mV", "(0) | 0.25 | 750");
    add("absorbed V, reflected mV: forward dBµV", "VAbsorbed", "dBµV mV V", "(120) | 250 | 0.75");
}

DEZIMO_TEST_MAIN(QCoreApplication, VswrConverterRowsTest)

#include "tst_vswrconverterrows.moc"
