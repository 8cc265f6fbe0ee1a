// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "quotedtext.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class QuotedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quotes_data();
    void quotes();
    void tellsWhatIsShort_data();
    void tellsWhatIsShort();
};

void QuotedTextTest::quotes_data()
{
    columns<QString, QString, QString>({"text", "beginning", "end"});

    const auto add = [](const char *tag, const char *text, const char *beginning, const char *end) {
        row(tag, QString::fromUtf8(text), QString::fromUtf8(beginning), QString::fromUtf8(end));
    };
    add("a short text", "10dBm", "'10dBm'", "'10dBm'");
    add("an empty text", "", "''", "''");
    add("20 characters", "abcdefghijklmnopqrst", "'abcdefghijklmnopqrst'",
        "'abcdefghijklmnopqrst'");
    add("21 characters", "abcdefghijklmnopqrstu", "'abcdefghijklmnopqrs…'",
        "'…cdefghijklmnopqrstu'");
    add("a quote", "a'b", "'a'b'", "'a'b'");
    add("a line end, a mark of direction and a separator of paragraphs", "a\nb\u202Ec\u2029",
        "'a\uFFFDb\uFFFDc\uFFFD'", "'a\uFFFDb\uFFFDc\uFFFD'");
    add("a character of two places", "\U0001F600", "'\U0001F600'", "'\U0001F600'");
    add("a character of two places that does not fit as a whole",
        "\U0001F600abcdefghijklmnopq\U0001F600b", "'\U0001F600abcdefghijklmnopq…'",
        "'…bcdefghijklmnopq\U0001F600b'");
    add("a character of two places at the cut of the end", "a\U0001F600bcdefghijklmnopqrs",
        "'a\U0001F600bcdefghijklmnopq…'", "'…bcdefghijklmnopqrs'");
}

void QuotedTextTest::quotes()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    QFETCH(QString, end);

    QCOMPARE(QuotedText::beginning(text), beginning);
    QCOMPARE(QuotedText::end(text), end);
}

void QuotedTextTest::tellsWhatIsShort_data()
{
    columns<QString, int, bool>({"text", "length", "isShort"});

    row("as long as may be", QStringLiteral("abc"), 3, true);
    row("one character more", QStringLiteral("abcd"), 3, false);
    row("a tab would not show", QStringLiteral("a\tb"), 3, false);
    row("a separator of lines would break the line", QStringLiteral("a\u2028"), 3, false);
}

void QuotedTextTest::tellsWhatIsShort()
{
    QFETCH(QString, text);
    QFETCH(int, length);
    QFETCH(bool, isShort);

    QCOMPARE(QuotedText::isShort(text, length), isShort);
}

DEZIMO_TEST_MAIN(QCoreApplication, QuotedTextTest)

#include "tst_quotedtext.moc"
