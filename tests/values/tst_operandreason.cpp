// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operandreason.h"
#include "table.h"
#include "testmain.h"

#include <QTest>

using namespace Dezimo;

class OperandReasonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheCulprit_data();
    void namesTheCulprit();
    void knowsEachUnitInAnyCase();
};

namespace {

constexpr Unit kInch{latin1("In"), Units::times<1>, Units::over<1>};

/// A calculator of lengths that can also do volts.
const ExpressionUnits &lengths()
{
    static const ExpressionUnits units{{0, &kInch}, {1, &Units::kVolt}, {2, &Units::kNone, true}};
    return units;
}

} // namespace

void OperandReasonTest::namesTheCulprit_data()
{
    columns<QString, QString, QString>({"operand", "culprit", "reason"});

    const auto add = [](const char *tag, const char *operand, const char *culprit,
                        const char *reason) {
        row(tag, QString::fromUtf8(operand), QString::fromUtf8(culprit), QString::fromUtf8(reason));
    };
    add("a number that is none", "1.2.3In", "1.2.3", "'1.2.3' is no number");
    add("a number that is none, with a sign", "-1.2.3", "-1.2.3", "'-1.2.3' is no number");
    add("a sign at the end of a number", "1.2-", "1.2-", "'1.2-' is no number");
    add("a word", "abc", "abc", "'abc' is no number");
    add("a word that begins as an exponent does", "eight", "eight", "'eight' is no number");
    add("digits behind the unit", "1x2In", "1x2In", "'1x2In' is no number");
    add("an exponent without a number", "e5In", "e5", "'e5' is no number");
    add("a number too large", "1E+999In", "1E+999", "'1E+999' is too large a number");
    add("a negative number too large", "-1e999In", "-1e999", "'-1e999' is too large a number");
    add("a number too small", "-1e-999", "-1e-999", "'-1e-999' is too small a number");
    add("an exponent with a fraction", "1e-9.5", "1e-9.5", "'1e-9.5' is no number");
    add("an exponent of a number that is none", "1.2.3e5", "1.2.3e5", "'1.2.3e5' is no number");
    add("a second sign", "-+1In", "-+", "'-+1In' has more than one sign");
    add("a unit alone", "In", "In", "A number is missing before 'In'");
    add("a prefix alone", "-k", "k", "A number is missing before 'k'");
    add("a point before a unit", ".In", "In", "A number is missing before 'In'");
    add("another operator", "2\u00D73", "\u00D7", "Only + and - are calculated here, not '\u00D7'");
    add("the first of other operators", "2/3*4", "/", "Only + and - are calculated here, not '/'");
    add("a wide minus sign", "2\uFF0D3", "\uFF0D", "'\uFF0D' is no minus sign here; write -");
    add("a unit that there is not", "2ft", "ft", "'ft' is no unit here; use In or V");
    add("a word before the unit", "2xIn", "xIn", "'xIn' is no unit here; use In or V");
    add("the prefix that suits better", "2MIN", "MIN", "'MIN' is no unit; it is written MIn");
    add("a prefix in the other case", "2Kin", "Kin", "'Kin' is no unit; it is written kIn");
    add("a letter that is no prefix in either case", "2xin", "xin",
        "'xin' is no unit here; use In or V");
    add("two letters before the unit", "2kkin", "kkin", "'kkin' is no unit here; use In or V");
    add("a unit as a word", "2milliVOLT", "milliVOLT", "'milliVOLT' is no unit here; use In or V");
    add("a unit as a word with a prefix", "2kVOLTS", "kVOLTS",
        "'kVOLTS' is no unit; it is written kV");
    add("the word for a unit that there is not", "2watt", "watt",
        "'watt' is no unit here; use In or V");
    add("two prefixes", "2kMIn", "kMIn", "'kMIn' has more than one prefix");
    add("two prefixes alone", "2km", "km", "'km' has more than one prefix");
    add("a micro sign", "2\u00B5In", "\u00B5In", "'\u00B5In' is no unit here; write 2uIn");
    add("a micro sign before another prefix", "2\u00B5kIn", "\u00B5kIn",
        "'\u00B5kIn' is no unit here; use In or V");
}

void OperandReasonTest::namesTheCulprit()
{
    QFETCH(QString, operand);
    QFETCH(QString, culprit);
    QFETCH(QString, reason);

    QVERIFY(!parseOperand(operand, lengths()));
    const OperandReason found = operandReason(operand, lengths());
    QCOMPARE(found.text, reason);
    QCOMPARE(found.culprit, culprit);
}

void OperandReasonTest::knowsEachUnitInAnyCase()
{
    const ExpressionUnits powers{
        {0, &Units::kDbm},       {1, &Units::kDbw},  {2, &Units::kDb},  {3, &Units::kMilliwatt},
        {4, &Units::kMicrowatt}, {5, &Units::kWatt}, {6, &Units::kNone}};
    for (const ExpressionUnit &each : powers) {
        const QString typed = each.text.toLower();
        if (!typed.isEmpty()) {
            QCOMPARE(operandReason(QLatin1Char('2') + typed, powers).text,
                     QStringLiteral("'%1' is no unit; it is written %2").arg(typed, each.text));
        }
    }
}

DEZIMO_TEST_MAIN(QCoreApplication, OperandReasonTest)

#include "tst_operandreason.moc"
