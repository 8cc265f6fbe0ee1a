// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "table.h"
#include "testmain.h"
#include "valuetext.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Dezimo;

class ValueTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void general_data();
    void general();
    void fixed_data();
    void fixed();
    void writesAPointInEveryLocale();
};

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

} // namespace

void ValueTextTest::general_data()
{
    columns<double, int, QString>({"value", "digits", "text"});
    row("three digits of a large number need an exponent", 1234.5678, 3, "1.23E+03");
    row("three digits of a small number", 0.012345, 3, "0.0123");
    row("trailing zeros are dropped", 1.5, 10, "1.5");
    row("a whole number has no point", 10.0, 3, "10");
    row("zero digits count as one", 1234.0, 0, "1E+03");
    row("ten digits of a third", 1.0 / 3, 10, "0.3333333333");
    row("exponent -4 is written plainly", 0.00012, 3, "0.00012");
    row("exponent -5 is written as such", 0.00001, 3, "1E-05");
    row("an exponent below the precision is written plainly", 999.0, 3, "999");
    row("rounding up may reach the exponent form", 999.9, 3, "1E+03");
    row("zero", 0.0, 3, "0");
    row("a negative number", -2.5, 3, "-2.5");
    row("infinity is written in capitals", kInfinity, 3, "INF");
    row("negative infinity is written in capitals", -kInfinity, 3, "-INF");
    row("no number is written in capitals", kNan, 3, "NAN");
}

void ValueTextTest::general()
{
    QFETCH(double, value);
    QFETCH(int, digits);
    QFETCH(QString, text);

    QCOMPARE(generalText(value, digits), text);
}

void ValueTextTest::fixed_data()
{
    columns<double, QString>({"value", "text"});
    row("two digits after the point", 3.0, "3.00");
    row("rounded to two digits", -6.0206, "-6.02");
    row("a large level has no exponent", 123456.0, "123456.00");
    row("zero", 0.0, "0.00");
    row("infinity is written in small letters", kInfinity, "inf");
    row("negative infinity is written in small letters", -kInfinity, "-inf");
    row("no number is written in small letters", kNan, "nan");
}

void ValueTextTest::fixed()
{
    QFETCH(double, value);
    QFETCH(QString, text);

    QCOMPARE(fixedText(value), text);
}

void ValueTextTest::writesAPointInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(generalText(0.5, 3), QStringLiteral("0.5"));
    QCOMPARE(fixedText(1234.5), QStringLiteral("1234.50"));
    QLocale::setDefault(before);
}

DEZIMO_TEST_MAIN(QCoreApplication, ValueTextTest)

#include "tst_valuetext.moc"
