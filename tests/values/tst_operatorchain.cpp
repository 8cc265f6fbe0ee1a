// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operatorchain.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class OperatorChainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reduces_data();
    void reduces();
    void roundsEachStep();
    void isEmptyWithoutAnOperator();
    void tellsItsOperands();
};

namespace {

constexpr Unit kYard{latin1("y"), Units::times<1>, Units::over<1>};

const ExpressionUnits &lengths()
{
    static const ExpressionUnits units{{0, &kYard}, {1, &Units::kNone, true}};
    return units;
}

/// Adds lengths, and refuses to subtract them.
class SumsOnly final : public StepRule
{
public:
    std::optional<Operand> combine(const Operand &left, Operator operation,
                                   const Operand &right) override
    {
        ++steps;
        if (operation == Operator::Minus)
            return std::nullopt;
        return Operand{left.value + right.value, &kYard};
    }

    int steps = 0;
};

} // namespace

void OperatorChainTest::reduces_data()
{
    columns<QString, QString, int>({"text", "result", "steps"});

    const auto row = [](const char *tag, const char *text, const char *result, int steps) {
        QTest::newRow(tag) << QString::fromLatin1(text) << QString::fromLatin1(result) << steps;
    };
    row("the rule combines operands with units", "1y+2y", "3y", 1);
    row("every step is the rule's", "1y+2y+3y+4y", "10y", 3);
    row("plain numbers are added without the rule", "1+2", "3", 0);
    row("plain numbers are subtracted without the rule", "1-2-3", "-4", 0);
    row("a step that the rule refuses ends the chain", "1y-2y+3y", "invalid input", 1);
    row("a unit is missing on the left", "1+2y", "unit missing", 0);
    row("a unit is missing on the right", "1y-2", "unit missing", 0);
    row("a unit is missing after plain numbers", "1+2+3y", "unit missing", 0);
    row("the first step that fails decides", "1y+2+x", "unit missing", 0);
    row("a word on the left", "x+2y", "invalid input", 0);
    row("a word on the right, with its unit missing too", "1y+x", "invalid input", 0);
    row("an operand is missing at the end", "1y+", "invalid input", 0);
    row("a bracket ends the chain", "1y+2y+(3y", "invalid input", 1);
}

void OperatorChainTest::reduces()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    QFETCH(int, steps);

    SumsOnly rule;
    const Evaluation found = OperatorChain(text, lengths(), 12).result(rule);
    QCOMPARE(found.text, result);
    const std::optional<Operand> number = parseOperand(result, lengths());
    QCOMPARE(found.number.has_value(), number.has_value());
    if (number) {
        QCOMPARE(found.number->value, number->value);
        QCOMPARE(found.number->unit, number->unit);
    }
    QCOMPARE(rule.steps, steps);
}

void OperatorChainTest::roundsEachStep()
{
    // With 2 digits, 10 + 0.4 is 10, and so is the next sum. Without rounding in between, the
    // result would be 10.8, which rounds to 11.
    SumsOnly rule;
    const QString text = QStringLiteral("10y+0.4y+0.4y");
    QCOMPARE(OperatorChain(text, lengths(), 2).result(rule).text, QStringLiteral("10y"));
    QCOMPARE(OperatorChain(text, lengths(), 3).result(rule).text, QStringLiteral("10.8y"));
    QCOMPARE(OperatorChain(QStringLiteral("10+0.4+0.4"), lengths(), 2).result(rule).text,
             QStringLiteral("10"));
    QCOMPARE(OperatorChain(QStringLiteral("99y+1y"), lengths(), 2).result(rule).text,
             QStringLiteral("1E+02y"));
}

void OperatorChainTest::isEmptyWithoutAnOperator()
{
    QVERIFY(OperatorChain(QString(), lengths(), 12).isEmpty());
    QVERIFY(OperatorChain(QStringLiteral("-1y"), lengths(), 12).isEmpty());
    QVERIFY(!OperatorChain(QStringLiteral("1y+2y"), lengths(), 12).isEmpty());
}

void OperatorChainTest::tellsItsOperands()
{
    const OperatorChain chain(QStringLiteral("-1y+x--3"), lengths(), 12);
    QStringList texts;
    QStringList before;
    for (std::size_t i = 0; i < chain.operandCount(); ++i) {
        texts += chain.operandText(i);
        before += chain.textBefore(i);
    }
    QCOMPARE(texts,
             QStringList({QStringLiteral("-1y"), QStringLiteral("x"), QStringLiteral("-3")}));
    QCOMPARE(before, QStringList({QString(), QStringLiteral("-1y"), QStringLiteral("-1y+x")}));
    QCOMPARE(chain.textBefore(3), QStringLiteral("-1y+x--3"));

    const OperatorChain lone(QStringLiteral("1y"), lengths(), 12);
    QCOMPARE(lone.operandCount(), std::size_t(1));
    QCOMPARE(lone.operandText(0), QStringLiteral("1y"));
}

DEZIMO_TEST_MAIN(QCoreApplication, OperatorChainTest)

#include "tst_operatorchain.moc"
