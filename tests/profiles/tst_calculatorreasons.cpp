// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorprofile.h"
#include "errortexts.h"
#include "randomexpressions.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"

#include <QTest>

using namespace Dezimo;

/// Why a calculator shows an error text, and that what it says to write has a result.
class CalculatorReasonsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dbmLoneValues_data();
    void dbmLoneValues() { checkReason<DbmCalculatorProfile>(); }
    void dbmOperands_data();
    void dbmOperands() { checkReason<DbmCalculatorProfile>(); }
    void dbmUnits_data();
    void dbmUnits() { checkReason<DbmCalculatorProfile>(); }
    void dbmMissingUnits_data();
    void dbmMissingUnits() { checkReason<DbmCalculatorProfile>(); }
    void dbmBrackets_data();
    void dbmBrackets() { checkReason<DbmCalculatorProfile>(); }
    void dbmSteps_data();
    void dbmSteps() { checkReason<DbmCalculatorProfile>(); }
    void dbmQuotes_data();
    void dbmQuotes() { checkReason<DbmCalculatorProfile>(); }
    void voltages_data();
    void voltages() { checkReason<VoltageCalculatorProfile>(); }
    void followsInputAndModeWithoutACalculation();
    void reasonsExactlyForErrors_data();
    void reasonsExactlyForErrors();
    void holdsAnyDepthAndLength_data();
    void holdsAnyDepthAndLength();

private:
    template <typename Calculator>
    static void checkReason();
};

namespace {

constexpr int kIncoherent = 0;
constexpr int kCoherent = 1;
constexpr int kNumeric = 2;
constexpr int kUncorrelated = 0;
constexpr int kCorrelated = 1;
constexpr int kPeak = 2;

constexpr int kModes = 3;
constexpr int kMaximumLength = 100;
constexpr int kTexts = 800;

/// Begins a table of checkReason().
void addColumns()
{
    columns<QString, int, QString>({"text", "mode", "reason"});
}

/// Rows of one mode: row("a lone level", "10dBm", "One value alone needs brackets: (10dBm)").
class ReasonRows
{
public:
    explicit ReasonRows(int mode) : m_mode(mode) {}

    void operator()(const char *tag, const char *text, const char *reason) const
    {
        row(tag, QString::fromUtf8(text), m_mode, QString::fromUtf8(reason));
    }

private:
    int m_mode;
};

QString outputFor(ExpressionProfile &calculator, const QString &input)
{
    calculator.setInput(input);
    calculator.calculate();
    return calculator.output();
}

/// NAN is a result of these calculators: infinity minus infinity.
bool isErrorText(const QString &output)
{
    return output == ErrorText::kInvalidInput || output == ErrorText::kUnitMissing ||
           output == ErrorText::kBracketMissing;
}

/// What @p reason says behind the words @p before, in the form in which a person would type it.
struct Suggestion
{
    const char *before;
    const char *form;
};

/// An expression with what @p reason says to write. Empty if it says nothing of that kind.
QString expressionFrom(const QString &reason)
{
    static constexpr Suggestion kSuggestions[] = {
        {"it is written ", "(1%1)"},
        {" sign here; write ", "1%1 1"},
        {" unit here; write ", "%1+%1"},
        {"brackets: ", "%1"},
        {": write ", "%1"},
        {"; write (", "(%1"},
        {"such as ", "%1"},
    };
    for (const Suggestion &each : kSuggestions) {
        const int begin = int(reason.indexOf(QLatin1String(each.before)));
        const int length = int(qstrlen(each.before));
        if (begin >= 0)
            return QString::fromLatin1(each.form).arg(reason.mid(begin + length));
    }
    return {};
}

/// What must hold of every reason: @p calculator has just calculated.
QString brokenRule(ExpressionProfile &calculator)
{
    const QString reason = calculator.reason();
    if (reason.isEmpty() == isErrorText(calculator.output()))
        return QStringLiteral("there is a reason exactly for an error text");
    if (reason.size() > kMaximumLength)
        return QStringLiteral("a reason is short");
    for (const QChar character : reason) {
        if ((!character.isPrint() && !character.isSurrogate()) || character == QChar(0x2028))
            return QStringLiteral("a reason is one line that can be shown");
    }
    if (reason.endsWith(QLatin1Char(' ')) || reason.endsWith(QLatin1Char(':')))
        return QStringLiteral("a reason is a whole sentence");
    const QString expression = expressionFrom(reason);
    const QString input = calculator.input();
    const bool isBroken = !expression.isEmpty() && isErrorText(outputFor(calculator, expression));
    calculator.setInput(input);
    return isBroken ? QStringLiteral("what it says to write has a result") : QString();
}

void checkRules(ExpressionProfile &calculator, const QString &text)
{
    for (int mode = 0; mode < kModes; ++mode) {
        calculator.setMode(mode);
        const QString output = outputFor(calculator, text);
        const QString reason = calculator.reason();
        const QString rule = brokenRule(calculator);
        QVERIFY2(rule.isEmpty(), qPrintable(QStringLiteral("%1: mode %2, '%3' is %4: %5")
                                                .arg(rule)
                                                .arg(mode)
                                                .arg(text, output, reason)));
    }
}

/// A random expression in which a few characters are missing or too much.
QString mistyped(Random &random, QString text)
{
    static const QString characters =
        QStringLiteral("()[+-+-.,eE0 mkMuWVdBbw\u00B5\u2013*") + QChar(0x2028);
    for (int rest = 1 + below(random, 3); rest > 0 && !text.isEmpty(); --rest) {
        const int place = below(random, int(text.size()));
        if (below(random, 2) == 0)
            text.remove(place, 1 + below(random, 2));
        else
            text.insert(place, characters.at(below(random, int(characters.size()))));
    }
    return text;
}

QString randomPowerText(Random &random)
{
    return chainText(randomPowers(random));
}

QString randomVoltageText(Random &random)
{
    return chainText(randomVoltages(random));
}

QString mistypedText(Random &random)
{
    return mistyped(random,
                    below(random, 2) == 0 ? randomPowerText(random) : randomVoltageText(random));
}

using Texts = QString (*)(Random &);

} // namespace

Q_DECLARE_METATYPE(Texts)

template <typename Calculator>
void CalculatorReasonsTest::checkReason()
{
    QFETCH(QString, text);
    QFETCH(int, mode);
    QFETCH(QString, reason);

    Calculator calculator;
    calculator.setMode(mode);
    calculator.setInput(text);
    QCOMPARE(calculator.reason(), reason);
    QCOMPARE(calculator.output(), ErrorText::kNoResult);
    calculator.calculate();
    QCOMPARE(brokenRule(calculator), QString());
}

void CalculatorReasonsTest::dbmLoneValues_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);
    const ReasonRows numeric(kNumeric);

    incoherent("a sum needs no reason", "10dBm+3dB", "");
    incoherent("a lone value in brackets needs no reason", "(10dBm)", "");
    numeric("infinity is a result", "9e307W+9e307W", "");
    numeric("no number is a result, too: infinity minus infinity", "9e307W+9e307W-INFW", "");
    incoherent("an empty text", "", "Type an expression, such as 10dBm+3dB");
    incoherent("a text of blanks", " \n\u00A0", "Type an expression, such as 10dBm+3dB");
    incoherent("a lone level", "10dBm", "One value alone needs brackets: (10dBm)");
    incoherent("a lone level with a sign", "-3 dBm", "One value alone needs brackets: (-3dBm)");
    incoherent("a lone number with a comma", "1,5", "One value alone needs brackets: (1.5)");
    incoherent("a lone value that is written in brackets otherwise", "1e-3mW",
               "One value alone needs brackets: (0.001mW)");
    incoherent("a lone value too long to repeat", "12345.678901234567890dBm",
               "One value alone needs brackets around it");
    incoherent("a lone value too small to write without an exponent", "1e-30mW",
               "One value alone needs brackets around it");
    incoherent("a negative group alone", "-(10dBm)", "One value alone needs brackets: (-10dBm)");
    numeric("a negative sum alone", "-(1mW+1mW)", "One value alone needs brackets: (-2mW)");
    incoherent("the sign of an exponent in a group", "(1e-3mW)",
               "A lone value in brackets takes no sign in its exponent: write (0.001mW)");
    incoherent("the plus sign of an exponent in a group", "2mW+(-1E+3mW)",
               "A lone value in brackets takes no sign in its exponent: write (-1000mW)");
    incoherent("the sign of an exponent in a group, with a prefix", "(1e-3kW)",
               "A lone value in brackets takes no sign in its exponent: write (0.001kW)");
    incoherent("the sign of a far exponent in a group", "(1e-30mW)",
               "A lone value in brackets takes no sign in its exponent");
    incoherent("a prefix in the exponent: 3 kW is another value", "(1e-k3W)",
               "A lone value in brackets takes no sign in its exponent");
    numeric("a small sum in two pairs of brackets", "((1e-5mW+1e-5mW))",
            "One pair of brackets is too many around '2E-05mW'");
    numeric("a small negative sum in brackets", "(-(1e-5mW+1e-5mW))",
            "A lone value in brackets takes no sign in its exponent: write (-0.00002mW)");
}

void CalculatorReasonsTest::dbmOperands_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);
    const ReasonRows numeric(kNumeric);

    incoherent("two points", "1.2.3mW+1mW", "'1.2.3' is no number");
    incoherent("two points alone", "1.2.3", "'1.2.3' is no number");
    incoherent("a point and a comma", "1.000,5mW+1mW", "'1.000.5' is no number");
    incoherent("a word", "abc+1mW", "'abc' is no number");
    incoherent("a word alone in brackets", "(abc)", "'abc' is no number");
    incoherent("a word as the second operand", "1mW+abc", "'abc' is no number");
    incoherent("a letter before a number", "x5mW+1mW", "'x5mW' is no number");
    incoherent("a letter between digits", "10x5+1", "'10x5' is no number");
    incoherent("an exponent without digits", "1e+mW+1mW", "'1e+' is no number");
    incoherent("an exponent that is not there yet", "1e", "'1e' is no number");
    incoherent("a point alone", ".", "'.' is no number");
    incoherent("a number too large", "1mW+1e999mW", "'1e999' is too large a number");
    incoherent("a number too small", "1e-999mW+1mW", "'1e-999' is too small a number");
    incoherent("two signs", "10dBm---3dB", "'--3dB' has more than one sign");
    incoherent("two signs alone", "--3dBm", "'--3dBm' has more than one sign");
    incoherent("two signs by brackets", "(-(-2mW))", "'--2mW' has more than one sign");
    numeric("a sign before a negative group", "1mW+-(1mW-3mW)", "'--2mW' has more than one sign");
    incoherent("a unit without a number", "dBm+1dB", "A number is missing before 'dBm'");
    incoherent("a unit with a prefix and a sign but no number", "1W-+kW",
               "A number is missing before 'kW'");
    incoherent("an operator at the end", "10dBm+", "A value is missing after '+'");
    incoherent("an operator and a sign at the end", "10dBm+-", "A value is missing after '+-'");
    incoherent("an operator alone", "-", "A value is missing after '-'");
    incoherent("two operators alone", "+-", "A value is missing after '+-'");
    incoherent("an operator alone in brackets", "1dBm+(-)", "A value is missing after '+-'");
    incoherent("the words of errors are no input", "unit missing+1mW",
               "'unitmissing' is no number");
    incoherent("multiplication", "10dBm*2", "Only + and - are calculated here, not '*'");
    incoherent("division in brackets", "1W+(1W/2)", "Only + and - are calculated here, not '/'");
    incoherent("a dash", "10dBm\u20133dB", "'\u2013' is no minus sign here; write -");
}

void CalculatorReasonsTest::dbmUnits_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);

    incoherent("a unit in small letters", "10dbm+3dB", "'dbm' is no unit; it is written dBm");
    incoherent("a unit in small letters alone", "10dbm", "'dbm' is no unit; it is written dBm");
    incoherent("a unit in capital letters", "10DBW+3dB", "'DBW' is no unit; it is written dBW");
    incoherent("a ratio in small letters", "10dBm+3db", "'db' is no unit; it is written dB");
    incoherent("a capital prefix", "5KW+1W", "'KW' is no unit; it is written kW");
    incoherent("a small watt", "5mw+1W", "'mw' is no unit; it is written mW");
    incoherent("a small watt with mega", "5Mw+1W", "'Mw' is no unit; it is written MW");
    incoherent("a small watt with the micro sign", "5\u00B5w+1W",
               "'\u00B5w' is no unit; it is written \u00B5W");
    incoherent("a watt as a word", "5 Watts+1W", "'Watts' is no unit; it is written W");
    incoherent("a watt as a word, with a prefix", "5 mWatt+1W",
               "'mWatt' is no unit; it is written mW");
    incoherent("a level with its watt", "5dBmW+1W", "'dBmW' is no unit; it is written dBm");
    incoherent("a micro sign without a unit", "5\u00B5+1", "'\u00B5' is no unit here; write 5u");
    incoherent("a unit behind a group", "(1+1)dbm+1dB", "'dbm' is no unit; it is written dBm");
    incoherent("two prefixes", "1kMW+1W", "'kMW' has more than one prefix");
    incoherent("two prefixes of a plain number", "1kM+1", "'kM' has more than one prefix");
    incoherent("a unit of antennas", "10dBi+3dB",
               "'dBi' is no unit here; use dBm, dBW, dB, mW, \u00B5W or W");
    incoherent("a voltage", "1mW+1V", "'V' is no unit here; use dBm, dBW, dB, mW, \u00B5W or W");
}

void CalculatorReasonsTest::dbmMissingUnits_data()
{
    addColumns();
    const ReasonRows numeric(kNumeric);

    numeric("a unit missing on the left", "1+1mW", "'1' has no unit, but '1mW' has one");
    numeric("a unit missing on the right", "10dBm+3", "'3' has no unit, but '10dBm' has one");
    numeric("a unit missing after plain numbers", "1+2+3mW", "'1' has no unit, but '3mW' has one");
    numeric("a unit missing before a word", "1mW+1+x", "'1' has no unit, but '1mW' has one");
    numeric("a unit missing in a group", "2mW+(1mW+1)", "'1' has no unit, but '1mW' has one");
    numeric("a unit missing in a group around all", "(1mW+7)",
            "'7' has no unit, but '1mW' has one");
    numeric("a unit missing in a group that is joined", "((1mW+1)5)",
            "'1' has no unit, but '1mW' has one");
    numeric("the group at the left of two without a unit", "(5+1mW)+(2mW+3)",
            "'5' has no unit, but '1mW' has one");
    numeric("a step that fails before a group does", "1mW+1+(1mW+x)",
            "'1' has no unit, but '1mW' has one");
    numeric("a group that fails behind others", "(1mW+1mW)+1+(1+x)", "'x' is no number");
    numeric("the unit of a group's value", "(1+1)+1mW", "'2' has no unit, but '1mW' has one");
}

void CalculatorReasonsTest::dbmBrackets_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);
    const ReasonRows numeric(kNumeric);

    incoherent("a closing bracket", "(1dBm", "A closing bracket is missing for '(1dBm'");
    incoherent("a closing bracket of another kind", "[1dBm+(1dB)",
               "A closing bracket is missing for '(1dBm+(1dB)'");
    incoherent("two closing brackets: the inner one comes first", "(3dB+(1dB",
               "A closing bracket is missing for '(1dB'");
    incoherent("an opening bracket", "(1dBm))+1dB", "An opening bracket is missing for '(1dBm))'");
    incoherent("an opening bracket without any", "10dBm+3dB)",
               "An opening bracket is missing for '10dBm+3dB)'");
    incoherent("an opening bracket far away", "10dBm+3dB+3dB+3dB+3dB)",
               "An opening bracket is missing for '\u2026Bm+3dB+3dB+3dB+3dB)'");
    incoherent("an opening bracket of a lone value", "10dBm)",
               "An opening bracket is missing for '10dBm)'");
    incoherent("a step that fails before a bracket", "1mW+1+1mW)",
               "'1' has no unit, but '1mW' has one");
    incoherent("brackets the wrong way round", "1mW)+(1mW",
               "An opening bracket is missing for '1mW)'");
    incoherent("empty brackets", "1dBm+( )", "The brackets () are empty; put a value between them");
    incoherent("empty brackets behind a wrong operand", "x+()",
               "The brackets () are empty; put a value between them");
    incoherent("empty brackets before a wrong group", "()+(1+x)", "'x' is no number");
    numeric("a number beside a bracket", "2(1mW+1mW)",
            "A + or - is missing beside a bracket, which makes '22mW'");
    numeric("two groups side by side", "(2)(3)",
            "A + or - is missing beside a bracket, which makes '23'");
    numeric("a value beside a bracket", "(1mW+1mW)5dBm+1mW",
            "A + or - is missing beside a bracket, which makes '2mW5dBm'");
}

void CalculatorReasonsTest::dbmSteps_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);
    const ReasonRows coherent(kCoherent);
    const ReasonRows numeric(kNumeric);

    incoherent("a sum after a difference", "5mW-3mW+1mW",
               "A combiner takes no + after a difference; write (5mW-3mW)+1mW");
    coherent("a coherent sum after a difference", "5mW-3mW+1mW", "");
    numeric("a numeric sum after a difference", "5mW-3mW+1mW", "");
    incoherent("a sum after a difference that is long", "5.123456789mW-3.123456789mW+1.123456789mW",
               "A combiner takes no + after a difference; put what is before it in brackets");
    incoherent("a sum after a difference in a group", "1W+(5mW-3mW+1mW-2mW)",
               "A combiner takes no + after a difference; write (5mW-3mW)+1mW");
    incoherent("a sum after a difference, before a missing unit", "5mW-3mW+1mW+1",
               "A combiner takes no + after a difference; write (5mW-3mW)+1mW");
    incoherent("a sum after a mean with a ratio", "10mW+2mW+3dB+1mW",
               "A combiner takes no + after a ratio in dB; write (10mW+2mW+3dB)+1mW");
    incoherent("a sum after a mean with a loss", "10mW+2mW-3dB+1mW",
               "A combiner takes no + after a ratio in dB; write (10mW+2mW-3dB)+1mW");
    incoherent("a sum after a mean without a ratio", "10mW+3dB+1mW", "");
    incoherent("a result too large, before a missing unit", "1.797693134862315e308-0-0+1mW",
               "'1.797693134862315e3\u2026' has no unit, but '1mW' has one");
}

void CalculatorReasonsTest::dbmQuotes_data()
{
    addColumns();
    const ReasonRows incoherent(kIncoherent);

    incoherent("a long word is cut", "abcdefghijklmnopqrstu+1",
               "'abcdefghijklmnopqrs\u2026' is no number");
    incoherent("a word that just fits", "abcdefghijklmnopqrst+1",
               "'abcdefghijklmnopqrst' is no number");
    incoherent("an opening bracket with a long text behind it", "(1dBm+1dB+1dB+1dB+1dB+1dB",
               "A closing bracket is missing for '(1dBm+1dB+1dB+1dB+1\u2026'");
    incoherent("what breaks a line is not repeated", "a\u2028b\u202Ec\x0B+1",
               "'a\uFFFDb\uFFFDc\uFFFD' is no number");
    incoherent("markup is repeated as it is", "<b>+1", "'<b>' is no number");
    incoherent("a place marker is repeated as it is", "%1+1mW",
               "Only + and - are calculated here, not '%'");
}

void CalculatorReasonsTest::voltages_data()
{
    addColumns();
    const ReasonRows uncorrelated(kUncorrelated);
    const ReasonRows correlated(kCorrelated);
    const ReasonRows peak(kPeak);

    uncorrelated("a sum needs no reason", "3mV+4mV", "");
    peak("no number is a result: infinity minus infinity", "1e308V-1e308V", "");
    uncorrelated("an empty text", "", "Type an expression, such as 1V+20mV");
    uncorrelated("a lone voltage", "1V", "One value alone needs brackets: (1V)");
    uncorrelated("a difference", "3mV-4mV",
                 "Uncorrelated voltages have no difference; choose another mode for -");
    uncorrelated("a difference in a group", "1V+(3mV-4mV)",
                 "Uncorrelated voltages have no difference; choose another mode for -");
    uncorrelated("a difference of plain numbers needs no reason", "3-4", "");
    correlated("a correlated difference needs no reason", "3mV-4mV", "");
    peak("a difference of peaks needs no reason", "3mV-4mV", "");
    uncorrelated("microvolts with the micro sign", "1.2\u00B5V+1mV",
                 "'\u00B5V' is no unit here; write 1.2uV");
    uncorrelated("microvolts with the Greek mu", "-1.2\u03BCV+1mV",
                 "'\u00B5V' is no unit here; write -1.2uV");
    uncorrelated("microvolts with the micro sign, alone", "1.2\u00B5V",
                 "'\u00B5V' is no unit here; write 1.2uV");
    uncorrelated("microvolts with a long number", "1.234567890123456789\u00B5V+1mV",
                 "'\u00B5V' is no unit; it is written uV");
    uncorrelated("microvolts with a number that is none", "1.2.3\u00B5V+1mV",
                 "'\u00B5V' is no unit; it is written uV");
    uncorrelated("small microvolts with the micro sign", "1.2\u00B5v+1mV",
                 "'\u00B5v' is no unit; it is written uV");
    uncorrelated("small volts", "1v+1V", "'v' is no unit; it is written V");
    uncorrelated("small millivolts", "1mv+1V", "'mv' is no unit; it is written mV");
    uncorrelated("volts as a word", "10 volts+1V", "'volts' is no unit; it is written V");
    uncorrelated("a level", "10dBm+1V", "'dBm' is no unit here; use mV or V");
    uncorrelated("a level of a voltage", "10dB\u00B5V+1V",
                 "'dB\u00B5V' is no unit here; use mV or V");
    uncorrelated("a unit missing", "1V+1", "'1' has no unit, but '1V' has one");
    uncorrelated("a closing bracket", "(1V+1mV", "A closing bracket is missing for '(1V+1mV'");
    // 10 digits round it to 1.797693135E+308, which no double holds
    peak("a voltage that is rounded beyond all numbers", "1.7976931348623157e308mV+0mV+x",
         "The result is too large to calculate with");
    peak("a number that is rounded beyond all numbers", "1.7976931348623157e308+0",
         "The result is too large to calculate with");
}

void CalculatorReasonsTest::followsInputAndModeWithoutACalculation()
{
    DbmCalculatorProfile calculator;
    calculator.setInput(QStringLiteral("5mW-3mW+1mW"));
    QVERIFY(!calculator.reason().isEmpty());
    calculator.setMode(kNumeric);
    QCOMPARE(calculator.reason(), QString());
    calculator.setInput(QStringLiteral("5mW"));
    QCOMPARE(calculator.reason(), QStringLiteral("One value alone needs brackets: (5mW)"));
    QCOMPARE(calculator.output(), ErrorText::kNoResult);
}

void CalculatorReasonsTest::reasonsExactlyForErrors_data()
{
    columns<Texts>({"texts"});

    row("expressions of powers", Texts(randomPowerText));
    row("expressions of voltages", Texts(randomVoltageText));
    row("expressions that are mistyped", Texts(mistypedText));
    row("words in any order", Texts(randomGarbage));
}

/// The same texts in every run, in all modes of both calculators.
void CalculatorReasonsTest::reasonsExactlyForErrors()
{
    QFETCH(Texts, texts);

    Random random(20220531);
    DbmCalculatorProfile powers;
    VoltageCalculatorProfile voltages;
    for (int i = 0; i < kTexts; ++i) {
        const QString text = texts(random);
        checkRules(powers, text);
        voltages.setPhase(below(random, 721) - 360);
        checkRules(voltages, text);
        if (QTest::currentTestFailed())
            return;
    }
}

void CalculatorReasonsTest::holdsAnyDepthAndLength_data()
{
    columns<QString, QString>({"text", "reason"});

    const auto repeated = [](const char *text) {
        return QString::fromLatin1(text).repeated(16000);
    };
    const QLatin1String closing("A closing bracket is missing for ");
    row("opening brackets", repeated("("), closing + QLatin1String("'('"));
    row("closing brackets", repeated(")"), QStringLiteral("An opening bracket is missing for ')'"));
    row("opening brackets with values", repeated("(1+"), closing + QLatin1String("'(1+'"));
    row("groups around an empty one", repeated("(") + repeated(")"),
        QStringLiteral("The brackets () are empty; put a value between them"));
    row("groups around a word", repeated("(") + QLatin1Char('x') + repeated(")"),
        QStringLiteral("'x' is no number"));
    row("groups that lack a unit", repeated("(1+") + QLatin1String("1mW") + repeated(")"),
        QStringLiteral("'1' has no unit, but '1mW' has one"));
    row("a sum with a word at its end", repeated("1mW+") + QLatin1Char('x'),
        QStringLiteral("'x' is no number"));
    row("a sum without its last value", repeated("1mW+"),
        QStringLiteral("A value is missing after '+'"));
    row("groups side by side that lack a unit", repeated("(1mW+1)"),
        QStringLiteral("'1' has no unit, but '1mW' has one"));
    row("signs", repeated("-"),
        QStringLiteral("A value is missing after '-------------------\u2026'"));
    row("digits", repeated("1"),
        QStringLiteral("'1111111111111111111\u2026' is too large a number"));
    row("points", repeated("."), QStringLiteral("'...................\u2026' is no number"));
    row("letters", repeated("x"), QStringLiteral("'xxxxxxxxxxxxxxxxxxx\u2026' is no number"));
    row("prefixes behind a number", QLatin1Char('1') + repeated("kM"),
        QStringLiteral("'kMkMkMkMkMkMkMkMkMk\u2026' has more than one prefix"));
}

void CalculatorReasonsTest::holdsAnyDepthAndLength()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);

    DbmCalculatorProfile calculator;
    calculator.setInput(text);
    QCOMPARE(calculator.reason(), reason);
}

DEZIMO_TEST_MAIN(QCoreApplication, CalculatorReasonsTest)

#include "tst_calculatorreasons.moc"
