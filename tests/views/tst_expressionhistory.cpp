// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressionhistory.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QCoreApplication>
#include <QTest>

class ExpressionHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recalls_data();
    void recalls();
    void aBlankExpressionIsNotHeld_data();
    void aBlankExpressionIsNotHeld();
    void theOldestOfMoreThanAThousandIsForgotten();
};

void ExpressionHistoryTest::recalls_data()
{
    columns<QString, QString>({"steps", "line"});

    // In the steps, "take:A" takes A over, which makes its result "=A" the line that is being
    // typed. "up" and "down" recall. Any other word is typed in place of the whole line.
    row("nothing, before anything was taken over", "up", "-");
    row("what is being typed, before anything was taken over", "x up down up", "x");
    row("the newest expression first", "take:A take:B up", "B");
    row("an older one after it", "take:A take:B up up", "A");
    row("nothing beyond the oldest", "take:A take:B up up up", "A");
    row("the newer ones on the way back", "take:A take:B up up down", "B");
    row("at the end the result that was being looked at", "take:A take:B up up down down", "=B");
    row("nothing beyond the end", "take:A up down down", "=A");

    row("what was being typed", "take:A x up down", "x");
    row("what was being typed, from the oldest expression", "take:A take:B x up up down down", "x");
    row("what was typed last, of two lines typed at the end", "take:A x y up down", "y");
    row("an empty line that was being typed", "take:A - up down", "-");

    row("the expression that was typed over", "take:A up x up", "A");
    row("what was typed over it", "take:A up x up down", "x");
    row("what was being typed before that", "take:A w up x down", "w");
    row("what was typed over it, from the end", "take:A w up x down up", "x");
    row("the expression behind what was typed over it, from the end", "take:A w up x down up up",
        "A");
    row("what was typed over what was typed over it", "take:A w up x y down up", "y");
    row("the next older one, past what was typed", "take:A take:B w up x up up", "A");
    row("what was typed over an older one", "take:A take:B w up up x up down", "x");
    row("the newer one after that", "take:A take:B w up up x down", "B");
    row("an emptied line only once", "take:A w up - up - up - down down", "w");
    row("the line at the end, where that is what was typed", "take:A w up w down", "w");

    row("no line that was typed before the last one was taken over", "take:A up x take:B up up",
        "A");
    row("the result of what was typed in the middle", "take:A take:B up up take:x down", "=x");
    row("an expression that was taken over again in its newest place", "take:A take:B take:A up up",
        "B");
    row("an expression that was taken over again once", "take:A take:B take:A up up up", "B");
}

void ExpressionHistoryTest::recalls()
{
    QFETCH(QString, steps);
    QFETCH(QString, line);

    ExpressionHistory history;
    QString shown;
    const QStringList all = words(qPrintable(steps));
    for (const QString &step : all) {
        if (step.startsWith(QStringLiteral("take:"))) {
            history.add(step.mid(5));
            shown = QLatin1Char('=') + step.mid(5);
        } else if (step == QStringLiteral("up")) {
            shown = history.older(shown);
        } else if (step == QStringLiteral("down")) {
            shown = history.newer(shown);
        } else {
            shown = step == QStringLiteral("-") ? QString() : step;
        }
    }
    QCOMPARE(shown.isEmpty() ? QStringLiteral("-") : shown, line);
}

void ExpressionHistoryTest::aBlankExpressionIsNotHeld_data()
{
    columns<QString>({"blank"});
    row("no text", "");
    row("a blank", " ");
}

void ExpressionHistoryTest::aBlankExpressionIsNotHeld()
{
    QFETCH(QString, blank);

    ExpressionHistory history;
    history.add(QStringLiteral("A"));
    history.add(blank);
    QCOMPARE(history.older(QStringLiteral("x")), QStringLiteral("A"));
    QCOMPARE(history.newer(QStringLiteral("A")), QStringLiteral("x"));
}

void ExpressionHistoryTest::theOldestOfMoreThanAThousandIsForgotten()
{
    ExpressionHistory history;
    for (int i = 0; i <= 1000; ++i)
        history.add(QString::number(i));
    QString line;
    for (int i = 0; i < 2000; ++i)
        line = history.older(line);
    QCOMPARE(line, QStringLiteral("1"));
}

DEZIMO_TEST_MAIN(QCoreApplication, ExpressionHistoryTest)
#include "tst_expressionhistory.moc"
