// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operand.h"
#include "testmain.h"

#include <QTest>

#include <cmath>

class OperandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void refuses_data();
    void refuses();
    void knowsTheTextsOfUnits();
};

namespace {

/// A calculator of lengths, in the order of the search.
const ExpressionUnits &lengths()
{
    static const ExpressionUnits units{
        {1, QStringLiteral("in")}, {0, QStringLiteral("i")}, {2, QString(), true}};
    return units;
}

} // namespace

void OperandTest::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("unit");

    const auto row = [](const char *tag, const char *text, double value, int unit) {
        QTest::newRow(tag) << QString::fromLatin1(text) << value << unit;
    };
    row("a plain number", "12.5", 12.5, 2);
    row("a number with a unit", "2i", 2, 0);
    row("the unit that is searched first wins", "2in", 2, 1);
    row("the unit may stand in front", "in2", 2, 1);
    row("a unit that stands twice goes twice", "2inin", 2, 1);
    row("a prefix in front of the unit", "2kin", 2000, 1);
    row("a prefix of a plain number", "2k", 2000, 2);
    row("a sign", "-2i", -2, 0);
    row("an exponent", "2e-3i", 0.002, 0);
    row("infinity", "INFi", HUGE_VAL, 0);
}

void OperandTest::parses()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(int, unit);

    const std::optional<Operand> operand = parseOperand(text, lengths());
    QVERIFY(operand.has_value());
    QCOMPARE(operand->value, value);
    QCOMPARE(operand->unit, unit);
}

void OperandTest::refuses_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("an empty text") << QString();
    QTest::newRow("a lone unit") << QStringLiteral("in");
    QTest::newRow("a word") << QStringLiteral("abc");
    QTest::newRow("two different units") << QStringLiteral("2ini");
    QTest::newRow("two prefixes") << QStringLiteral("2kMi");
    QTest::newRow("a bracket") << QStringLiteral("(2i");
}

void OperandTest::refuses()
{
    QFETCH(QString, text);

    QVERIFY(!parseOperand(text, lengths()));
}

void OperandTest::knowsTheTextsOfUnits()
{
    QCOMPARE(unitText(lengths(), 0), QStringLiteral("i"));
    QCOMPARE(unitText(lengths(), 1), QStringLiteral("in"));
    QCOMPARE(unitText(lengths(), 2), QString());
    QCOMPARE(unitText(lengths(), 3), QString());
    QCOMPARE(unitText(lengths(), -1), QString());
}

DEZIMO_TEST_MAIN(QCoreApplication, OperandTest)

#include "tst_operand.moc"
