// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressiontext.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class ExpressionTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleaned_data();
    void cleaned();
    void operatorPositions_data();
    void operatorPositions();
    void cleansAnyCharacter();
};

void ExpressionTextTest::cleaned_data()
{
    columns<QString, QString>({"typed", "text"});

    const auto row = [](const char *tag, const char *typed, const char *text) {
        QTest::newRow(tag) << QString::fromUtf8(typed) << QString::fromUtf8(text);
    };
    row("an empty text stays empty", "", "");
    row("a clean text stays", "10dBm+(3dB-1.5dB)", "10dBm+(3dB-1.5dB)");
    row("blanks go", " 1 0 dBm ", "10dBm");
    row("a line feed goes", "1\n2", "12");
    row("a carriage return goes", "1\r2", "12");
    row("a tab goes", "1\t2", "12");
    row("a no-break space goes", "1\u00A0W", "1W");
    row("a narrow no-break space goes", "1\u202FW", "1W");
    row("a thin space goes", "1\u2009W", "1W");
    row("an em space stays", "1\u2003W", "1\u2003W");
    row("every comma is a point", "1,5+2,5", "1.5+2.5");
    row("square brackets are round", "[1]", "(1)");
    row("curly brackets are round", "{1}", "(1)");
    row("the minus sign is a minus", "\u22121\u22122", "-1-2");
    row("a dash stays", "1\u20132", "1\u20132");
    row("the Greek mu is the micro sign", "1\u03BCW", "1\u00B5W");
    row("the micro sign stays", "1\u00B5W", "1\u00B5W");
}

void ExpressionTextTest::cleaned()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);

    QCOMPARE(ExpressionText::cleaned(typed), text);
}

void ExpressionTextTest::operatorPositions_data()
{
    columns<QString, QVector<int>>({"text", "positions"});

    const auto row = [](const char *tag, const char *text, const QVector<int> &positions) {
        QTest::newRow(tag) << QString::fromLatin1(text) << positions;
    };
    row("an empty text", "", {});
    row("a lone value", "10dBm", {});
    row("a plus", "1+2", {1});
    row("a minus", "1-2", {1});
    row("several in rising order", "1+2-3+4", {1, 3, 5});
    row("a sign at the start is none", "-1+2", {2});
    row("a sign after an operator is none", "1--2", {1});
    row("a second sign after an operator is none", "1-+-2", {1});
    row("two signs at the start are none", "--1+2", {3});
    row("a sign after a small exponent letter is none", "1e-3+2", {4});
    row("a sign after a capital exponent letter is none", "1E+3-2", {4});
    row("a sign after an exponent's sign is none", "1e--3", {});
    row("an operator at the end is one", "1+", {1});
    row("only operators are none", "+-+", {});
    row("an operator after a unit", "1dBm-2dB", {4});
}

void ExpressionTextTest::operatorPositions()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, positions);

    const std::vector<int> found = ExpressionText::operatorPositions(text);
    QCOMPARE(QVector<int>(found.begin(), found.end()), positions);
}

void ExpressionTextTest::cleansAnyCharacter()
{
    // Cleaning drops 7 of the 65536 code units. It keeps each of the others or replaces it by one.
    QString every;
    for (uint code = 0; code <= 0xFFFF; ++code)
        every += QChar(code);
    QCOMPARE(ExpressionText::cleaned(every).size(), every.size() - 7);
}

DEZIMO_TEST_MAIN(QCoreApplication, ExpressionTextTest)

#include "tst_expressiontext.moc"
