// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operand.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

#include <cmath>

using namespace Dezimo;

class OperandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void refuses_data();
    void refuses();
    void isKnownInItsBaseUnit();
};

namespace {

/// Two units, one of which begins with the other.
constexpr Unit kI{latin1("i"), Units::times<1>, Units::over<1>};
constexpr Unit kIn{latin1("in"), Units::times<1>, Units::over<1>};

/// The units of a calculator of lengths, in the order in which it searches them.
const ExpressionUnits &lengths()
{
    static const ExpressionUnits units{{1, &kIn}, {0, &kI}, {2, &Units::kNone, true}};
    return units;
}

} // namespace

void OperandTest::parses_data()
{
    columns<QString, double, QString>({"text", "value", "unit"});

    const auto row = [](const char *tag, const char *text, double value, const char *unit) {
        QTest::newRow(tag) << QString::fromLatin1(text) << value << QString::fromLatin1(unit);
    };
    row("a plain number", "12.5", 12.5, "");
    row("a number with a unit", "2i", 2, "i");
    row("the unit that is searched first wins", "2in", 2, "in");
    row("the unit may stand in front", "in2", 2, "in");
    row("a unit that stands twice goes twice", "2inin", 2, "in");
    row("a prefix in front of the unit", "2kin", 2000, "in");
    row("a prefix of a plain number", "2k", 2000, "");
    row("a sign", "-2i", -2, "i");
    row("an exponent", "2e-3i", 0.002, "i");
    row("infinity", "INFi", HUGE_VAL, "i");
}

void OperandTest::parses()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(QString, unit);

    const std::optional<Operand> operand = parseOperand(text, lengths());
    QVERIFY(operand.has_value());
    QCOMPARE(operand->value, value);
    QCOMPARE(QString(operand->unit->symbol), unit);
}

void OperandTest::refuses_data()
{
    columns<QString>({"text"});
    row("an empty text", QString());
    row("a lone unit", "in");
    row("a word", "abc");
    row("two different units", "2ini");
    row("two prefixes", "2kMi");
    row("a bracket", "(2i");
}

void OperandTest::refuses()
{
    QFETCH(QString, text);

    QVERIFY(!parseOperand(text, lengths()));
}

void OperandTest::isKnownInItsBaseUnit()
{
    QCOMPARE((Operand{2, &Units::kVolt}.inBaseUnit()), 2000.0);
    QCOMPARE((Operand{20, &Units::kDbm}.inBaseUnit()), 100.0);
    QCOMPARE((Operand{2, &Units::kNone}.inBaseUnit()), 2.0);
}

DEZIMO_TEST_MAIN(QCoreApplication, OperandTest)

#include "tst_operand.moc"
