// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "prefixedvalue.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

#include <cmath>

using namespace Dezimo;

class PrefixedValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void consumesTheText_data();
    void consumesTheText();
    void theFlagIsOptional();
    void readsWithoutConsuming();
    void readsALongTextAtOnce();
    void knowsItsPrefixes();
};

void PrefixedValueTest::reads_data()
{
    columns<QString, bool, double>({"text", "ok", "value"});

    const auto row = [](const char *tag, const char *text, bool ok, double value) {
        QTest::newRow(tag) << QString::fromUtf8(text) << ok << value;
    };
    row("a plain number has no factor", "12.5", true, 12.5);
    row("f is 1e-15", "2f", true, 2e-15);
    row("p is 1e-12", "2p", true, 2e-12);
    row("n is 1e-9", "2n", true, 2e-9);
    row("u is 1e-6", "470u", true, 0.00047);
    row("m is 1e-3", "2m", true, 0.002);
    row("k is 1e3", "1.5k", true, 1500);
    row("M is 1e6", "2M", true, 2e6);
    row("G is 1e9", "2G", true, 2e9);
    row("T is 1e12", "2T", true, 2e12);
    row("P is 1e15", "2P", true, 2e15);
    row("a capital exponent letter is no prefix", "1E3", true, 1000);
    row("a small exponent letter is no prefix", "1e3", true, 1000);
    row("an exponent and a prefix multiply", "1e3k", true, 1e6);
    row("a prefix in the middle is removed: 3m5 is 35 milli", "3m5", true, 0.035);
    row("a prefix in front is read as well", "m7", true, 0.007);
    row("a prefix that stands twice counts once", "1mm", true, 0.001);
    row("a negative number keeps its sign", "-2k", true, -2000);
    row("a plus sign is read", "+2", true, 2);
    row("blanks around the number are ignored", " 2 ", true, 2);
    row("a blank before the prefix is ignored", "2 k", true, 2000);
    row("infinity in capitals is read", "INF", true, HUGE_VAL);
    row("two prefixes fail", "1k2M", false, 0);
    row("two prefixes fail in either order", "1M2k", false, 0);
    row("three prefixes fail", "1fpn", false, 0);
    row("the n of inf is taken as nano, and the rest fails", "inf", false, 0);
    row("capital K is no prefix", "1K", false, 0);
    row("the micro sign is no prefix", "1µ", false, 0);
    row("a decimal comma is refused", "1,5", false, 0);
    row("a blank within the number is refused", "1 2", false, 0);
    row("an empty text is no number", "", false, 0);
    row("a lone prefix is no number", "k", false, 0);
    row("a word is no number", "abc", false, 0);
    row("hexadecimal is refused", "0x10", false, 0);
}

void PrefixedValueTest::reads()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, value);

    bool isNumber = !ok;
    QCOMPARE(parsePrefixedValue(text, &isNumber), value);
    QCOMPARE(isNumber, ok);
}

void PrefixedValueTest::consumesTheText_data()
{
    columns<QString, QString>({"text", "left"});
    row("a plain number stays", "12.5", "12.5");
    row("every occurrence of the prefix goes", "3m5m", "35");
    row("of two prefixes nothing usable is left", "1k2M", "trash");
}

void PrefixedValueTest::consumesTheText()
{
    QFETCH(QString, text);
    QFETCH(QString, left);

    parsePrefixedValue(text);
    QCOMPARE(text, left);
}

void PrefixedValueTest::theFlagIsOptional()
{
    QString number = QStringLiteral("2k");
    QCOMPARE(parsePrefixedValue(number), 2000.0);
    QString word = QStringLiteral("x");
    QCOMPARE(parsePrefixedValue(word), 0.0);
}

void PrefixedValueTest::readsWithoutConsuming()
{
    const QString number = QStringLiteral("2k");
    QCOMPARE(readPrefixedValue(number).value_or(-1), 2000.0);
    QCOMPARE(number, QStringLiteral("2k"));
    QVERIFY(!readPrefixedValue(QStringLiteral("1k2M")));
    QVERIFY(!readPrefixedValue(QString()));
}

void PrefixedValueTest::readsALongTextAtOnce()
{
    QString text(1000000, QLatin1Char('k'));
    text.prepend(QLatin1Char('1'));
    bool ok = false;
    QCOMPARE(parsePrefixedValue(text, &ok), 1000.0);
    QVERIFY(ok);
}

void PrefixedValueTest::knowsItsPrefixes()
{
    QString prefixes;
    for (ushort code = 0; code < 0x100; ++code) {
        if (isPrefix(QChar(code)))
            prefixes += QChar(code);
    }
    QCOMPARE(prefixes, QStringLiteral("GMPTfkmnpu"));
}

DEZIMO_TEST_MAIN(QCoreApplication, PrefixedValueTest)

#include "tst_prefixedvalue.moc"
