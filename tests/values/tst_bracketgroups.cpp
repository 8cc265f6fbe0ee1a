// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "bracketgroups.h"
#include "dbmcalculatorprofile.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

#include <random>

using namespace Dezimo;

class BracketGroupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void evaluatesInOrder_data();
    void evaluatesInOrder();
    void defects_data();
    void defects();
    void replacesAsOneGroupAfterAnother();
    void holdsAnyDepth();
};

namespace {

/// Finds the innermost group, replaces it by its value, and starts again with the new text. This is
/// slow but simple, and the single pass must give the same.
BracketedResult replacedOneByOne(QString text, const Evaluator &evaluate)
{
    const QLatin1Char opening('(');
    const QLatin1Char closing(')');
    bool spansAll = false;
    for (int rest = int(text.count(opening)); rest > 0; --rest) {
        const int begin = int(text.lastIndexOf(opening));
        const int end = int(text.indexOf(closing, begin));
        const QString inner = text.mid(begin + 1, end - begin - 1);
        if (inner.isEmpty())
            return {{QStringLiteral("invalid input")}, true};
        const auto operators = inner.count(QLatin1Char('+')) + inner.count(QLatin1Char('-'));
        const bool isSigned =
            inner.startsWith(QLatin1Char('+')) || inner.startsWith(QLatin1Char('-'));
        const bool isOwnValue = operators == 0 || (operators == 1 && isSigned);
        const QString value = isOwnValue ? inner : evaluate(inner).text;
        if (value == QLatin1String("invalid input"))
            break;
        spansAll = begin == 0 && end == text.size() - 1;
        text.replace(begin, end - begin + 1, value);
    }
    return {spansAll ? Evaluation{text} : evaluate(text)};
}

/// A random text of up to @p terms terms with matching brackets.
QString randomText(std::mt19937 &random, int terms)
{
    static const char *const kTerms[] = {
        "1", "2mW", "3dBm", "4dB", "1e-9mW", "x", "-", "+", "-", "+", "mW", "+", "-5W", "E",
    };
    const auto below = [&random](std::size_t limit) {
        return random() % limit;
    };
    QString text;
    int depth = 0;
    for (std::size_t rest = below(std::size_t(terms)); rest > 0; --rest) {
        const std::size_t choice = below(6);
        if (choice == 0) {
            text += QLatin1Char('(');
            ++depth;
        } else if (choice == 1 && depth > 0) {
            text += QLatin1Char(')');
            --depth;
        } else {
            text += QLatin1String(kTerms[below(std::size(kTerms))]);
        }
    }
    return text + QString(depth, QLatin1Char(')'));
}

QString nested(int depth, const char *opening, const char *value)
{
    return QString::fromLatin1(opening).repeated(depth) + QLatin1String(value) +
           QString(depth, QLatin1Char(')'));
}

} // namespace

void BracketGroupsTest::evaluatesInOrder_data()
{
    columns<QString, QStringList, QString>({"text", "evaluated", "result"});

    const auto row = [](const char *tag, const char *text, const QStringList &evaluated,
                        const char *result) {
        QTest::newRow(tag) << QString::fromLatin1(text) << evaluated << QString::fromLatin1(result);
    };
    const auto s = [](const char *text) {
        return QString::fromLatin1(text);
    };
    row("no brackets", "1+2", {s("1+2")}, "v");
    row("a closing bracket only", "1+2)", {s("1+2)")}, "v");
    row("a group around all is the result", "(1+2)", {s("1+2")}, "v");
    row("a lone value around all is not evaluated", "(12)", {}, "12");
    row("a signed value around all is not evaluated", "(-12)", {}, "-12");
    row("a lone value in brackets in brackets", "((-12))", {}, "-12");
    row("a sign within a value is evaluated", "(1e-2)", {s("1e-2")}, "v");
    row("two signs are evaluated", "(--2)", {s("--2")}, "v");
    row("the group at the right comes first", "(1+2)-(3+4)", {s("3+4"), s("1+2"), s("v-v")}, "v");
    row("the innermost group comes first", "(1+(2+3))", {s("2+3"), s("1+v")}, "v");
    row("a value takes the place of its group", "2(3+4)5", {s("3+4"), s("2v5")}, "v");
    row("a lone value joins the text around it", "2(3)5+1", {s("235+1")}, "v");
    row("a sign within a group joins the text around it", "2(-3)", {s("2-3")}, "v");
    row("the sign of an inner group counts in the outer one", "(2(-3))", {s("2-3")}, "v");
    row("an inner group at the start of the outer one", "((1+2)-3)+4",
        {s("1+2"), s("v-3"), s("v+4")}, "v");
    row("after a failing group the whole text is evaluated", "(1+2)-(x+4)-(5+6)",
        {s("5+6"), s("x+4"), s("(1+2)-(x+4)-(5+6)")}, "v");
    row("groups around a failing one are not evaluated", "(1+(2+(x+3)))",
        {s("x+3"), s("(1+(2+(x+3)))")}, "v");
}

void BracketGroupsTest::evaluatesInOrder()
{
    QFETCH(QString, text);
    QFETCH(QStringList, evaluated);
    QFETCH(QString, result);

    QStringList asked;
    const BracketedResult found = evaluateBracketed(text, [&asked](const QString &part) {
        asked += part;
        const bool fails = part.startsWith(QLatin1Char('x'));
        return Evaluation{QString::fromLatin1(fails ? "invalid input" : "v")};
    });
    QCOMPARE(asked, evaluated);
    QCOMPARE(found.evaluation.text, result);
    QVERIFY(!found.isDefect);
}

void BracketGroupsTest::defects_data()
{
    columns<QString, QString>({"text", "error"});

    const auto row = [](const char *tag, const char *text, const char *error) {
        QTest::newRow(tag) << QString::fromLatin1(text) << QString::fromLatin1(error);
    };
    row("no closing bracket", "(1dBm", "bracket missing");
    row("more opening brackets", "((1)", "bracket missing");
    row("more closing brackets", "(1))", "bracket missing");
    row("a missing bracket and an empty group", "()(", "bracket missing");
    row("brackets the wrong way round", ")1(", "invalid input");
    row("brackets that close too early", "(1))((2)", "invalid input");
    row("an empty group", "1+()", "invalid input");
    row("an empty group within a group", "(())", "invalid input");
    row("an empty group behind a failing one", "(1+x)+()", "invalid input");
}

void BracketGroupsTest::defects()
{
    QFETCH(QString, text);
    QFETCH(QString, error);

    int evaluations = 0;
    const BracketedResult found = evaluateBracketed(text, [&evaluations](const QString &) {
        ++evaluations;
        return Evaluation();
    });
    QCOMPARE(found.evaluation.text, error);
    QVERIFY(found.isDefect);
    QCOMPARE(evaluations, 0);
}

void BracketGroupsTest::replacesAsOneGroupAfterAnother()
{
    DbmCalculatorProfile calculator;
    calculator.setMode(2);
    const Evaluator evaluate = [&calculator](const QString &text) {
        return Evaluation{calculator.evaluate(text)};
    };
    std::mt19937 random(20220531);
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random, 24);
        const BracketedResult expected = replacedOneByOne(text, evaluate);
        const BracketedResult found = evaluateBracketed(text, evaluate);
        QVERIFY2(found.evaluation.text == expected.evaluation.text &&
                     found.isDefect == expected.isDefect,
                 qPrintable(text + QLatin1String(" gives ") + found.evaluation.text +
                            QLatin1String(", not ") + expected.evaluation.text));
    }
}

void BracketGroupsTest::holdsAnyDepth()
{
    const int depth = 200000;
    DbmCalculatorProfile calculator;
    const Evaluator evaluate = [&calculator](const QString &text) {
        return Evaluation{calculator.evaluate(text)};
    };
    QCOMPARE(evaluateBracketed(nested(depth, "(", "7"), evaluate).evaluation.text,
             QStringLiteral("7"));
    QCOMPARE(evaluateBracketed(nested(depth, "(1+", "0"), evaluate).evaluation.text,
             QString::number(depth));
    QCOMPARE(evaluateBracketed(nested(depth, "(", "()"), evaluate).evaluation.text,
             QStringLiteral("invalid input"));
}

DEZIMO_TEST_MAIN(QCoreApplication, BracketGroupsTest)

#include "tst_bracketgroups.moc"
