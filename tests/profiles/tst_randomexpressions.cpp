// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorprofile.h"
#include "errortexts.h"
#include "mainprofile.h"
#include "naivecalculator.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"

#include <QTest>

#include <cmath>
#include <random>

/// What holds for every text: each test walks the same 20,000 of them in every run.
class RandomExpressionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void powersAgreeWithTheNaiveCalculator();
    void voltagesAgreeWithTheNaiveCalculator();
    void garbageEndsInANumberOrANamedText_data();
    void garbageEndsInANumberOrANamedText();
};

namespace {

constexpr int kTexts = 20000;
constexpr unsigned kSeed = 20220531;
constexpr int kShownDigits = 10;

using Random = std::mt19937;

int below(Random &random, int limit)
{
    return int(random() % unsigned(limit));
}

template <std::size_t N>
QString oneOf(Random &random, const char *const (&texts)[N])
{
    return QString::fromUtf8(texts[below(random, int(N))]);
}

/// A number from 0.001 to 999, now and then with an exponent, a prefix or a sign.
QString randomNumber(Random &random)
{
    static const char *const kSigns[] = {"", "", "", "", "-", "+"};
    static const char *const kEndings[] = {"", "", "", "", "e-1", "E+1", "e1", "k", "m"};
    const double value = below(random, 999) + 0.001 * (1 + below(random, 999));
    const double scale = std::pow(10.0, -below(random, 3));
    return oneOf(random, kSigns) + QString::number(value * scale, 'f', 6) + oneOf(random, kEndings);
}

/// Levels and ratios stay small, so that powers stay numbers.
QString randomPower(Random &random)
{
    static const char *const kLevels[] = {"dBm", "dBW", "dB"};
    static const char *const kLinears[] = {"mW", "W", "µW"};
    if (below(random, 2) == 0)
        return randomNumber(random) + oneOf(random, kLinears);
    return QString::number(below(random, 601) / 10.0 - 30.0) + oneOf(random, kLevels);
}

QString randomVoltage(Random &random)
{
    static const char *const kUnits[] = {"mV", "V"};
    return randomNumber(random) + oneOf(random, kUnits);
}

using Operands = QString (*)(Random &);

/// Two to five operands, some of which are groups down to a depth of three.
Chain randomChain(Random &random, Operands operand, int depth)
{
    Chain chain;
    for (int rest = 2 + below(random, 4); rest > 0; --rest) {
        Term term;
        term.isSubtracted = below(random, 3) == 0;
        if (depth > 0 && below(random, 4) == 0)
            term.group = randomChain(random, operand, depth - 1);
        else
            term.operand = operand(random);
        chain.push_back(term);
    }
    return chain;
}

/// Whether @p output is @p expected within the digits that it is written with and the error that
/// rounding may have added up to.
bool agrees(const QString &output, const Approximate &expected)
{
    if (expected.isRefused)
        return output == ErrorText::invalidInput();
    bool ok = false;
    const double value = output.toDouble(&ok);
    if (!ok || std::isnan(expected.value))
        return ok && std::isnan(value);
    const double written = expected.unit == Quantity::Ratio
                               ? 0.005
                               : 5 * std::abs(expected.value) * std::pow(10.0, -kShownDigits);
    return std::abs(value - expected.value) <= expected.error + written + 1e-300;
}

/// A word that may stand somewhere in an expression, or should not.
QString randomWord(Random &random)
{
    static const char *const kWords[] = {
        "1",      "2.5",   "1,5",
        "1e-3",   "9E+99", "1e",
        "INF",    "inf",   "NAN",
        "nan",    "dBm",   "dBW",
        "dB",     "mW",    "W",
        "µW",     "V",     "mV",
        "k",      "MG",    "(",
        "(",      "[",     "{",
        ")",      ")",     "]",
        "}",      "()",    "(-",
        "+",      "+",     "+",
        "-",      "-",     "-",
        "\u2212", "--",    "unit missing",
        "---",    "10dBm", "3dB",
        "(1mW)",  "5mV",   "2V",
        "\u03BC", " ",     "\u00A0",
        "\n",     "x",
    };
    if (below(random, 20) == 0)
        return QString(QChar(ushort(below(random, 0x10000))));
    return oneOf(random, kWords);
}

QString randomGarbage(Random &random)
{
    QString text;
    for (int rest = below(random, 30); rest > 0; --rest)
        text += randomWord(random);
    return text;
}

bool isNumberOrNamedText(const QString &output)
{
    bool ok = false;
    output.toDouble(&ok);
    return ok || output == ErrorText::invalidInput() || output == ErrorText::unitMissing() ||
           output == ErrorText::bracketMissing();
}

} // namespace

void RandomExpressionsTest::init()
{
    MainProfile::instance().setDecimalPlaces(kShownDigits);
}

void RandomExpressionsTest::powersAgreeWithTheNaiveCalculator()
{
    Random random(kSeed);
    int compared = 0;
    for (int i = 0; i < kTexts; ++i) {
        const Chain chain = randomChain(random, randomPower, 3);
        const QString text = chainText(chain);
        const int mode = below(random, 3);
        const Approximate expected = NaivePowers(mode == 0).value(chain);
        if (std::isinf(expected.error))
            continue;
        DbmCalculatorProfile calculator;
        calculator.setMode(mode);
        calculator.setOutputUnit(1);
        calculator.setInput(text);
        calculator.calculate();
        QVERIFY2(agrees(calculator.output(), expected),
                 qPrintable(QStringLiteral("mode %1: %2 = %3, not %4")
                                .arg(mode)
                                .arg(text, calculator.output())
                                .arg(expected.value, 0, 'g', 15)));
        ++compared;
    }
    QVERIFY2(compared > kTexts * 9 / 10, qPrintable(QString::number(compared)));
}

void RandomExpressionsTest::voltagesAgreeWithTheNaiveCalculator()
{
    Random random(kSeed);
    for (int i = 0; i < kTexts; ++i) {
        const Chain chain = randomChain(random, randomVoltage, 3);
        const QString text = chainText(chain);
        const int mode = below(random, 3);
        const int degrees = below(random, 721) - 360;
        const Approximate expected = NaiveVoltages(mode, degrees).value(chain);
        VoltageCalculatorProfile calculator;
        calculator.setMode(mode);
        calculator.setPhase(degrees);
        calculator.setInput(text);
        calculator.calculate();
        QVERIFY2(agrees(calculator.output(), expected),
                 qPrintable(QStringLiteral("mode %1, %2 degrees: %3 = %4, not %5")
                                .arg(mode)
                                .arg(degrees)
                                .arg(text, calculator.output())
                                .arg(expected.value, 0, 'g', 15)));
    }
}

void RandomExpressionsTest::garbageEndsInANumberOrANamedText_data()
{
    QTest::addColumn<bool>("isVoltage");

    QTest::newRow("the dBm calculator") << false;
    QTest::newRow("the voltage calculator") << true;
}

void RandomExpressionsTest::garbageEndsInANumberOrANamedText()
{
    QFETCH(bool, isVoltage);

    DbmCalculatorProfile dbm;
    VoltageCalculatorProfile voltage;
    ExpressionProfile &calculator = isVoltage ? static_cast<ExpressionProfile &>(voltage) : dbm;
    Random random(kSeed);
    for (int i = 0; i < kTexts; ++i) {
        const QString text = randomGarbage(random);
        calculator.setMode(below(random, 3));
        calculator.setOutputUnit(below(random, calculator.plainUnit() + 1));
        calculator.setInput(text);
        calculator.calculate();
        QVERIFY2(isNumberOrNamedText(calculator.output()),
                 qPrintable(text + QLatin1String(" = ") + calculator.output()));
        QVERIFY2(calculator.outputUnit() <= calculator.plainUnit(), qPrintable(text));
    }
}

DEZIMO_TEST_MAIN(QCoreApplication, RandomExpressionsTest)

#include "tst_randomexpressions.moc"
