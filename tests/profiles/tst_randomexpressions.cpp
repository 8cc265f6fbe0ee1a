// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorprofile.h"
#include "errortexts.h"
#include "naivecalculator.h"
#include "randomexpressions.h"
#include "testmain.h"
#include "voltagecalculatorprofile.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Dezimo;

/// What holds for every text. Each test compares 20,000 random texts, the same ones in every run.
class RandomExpressionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void powersAgreeWithTheNaiveCalculator();
    void voltagesAgreeWithTheNaiveCalculator();
    void garbageEndsInANumberOrANamedText_data();
    void garbageEndsInANumberOrANamedText();
};

namespace {

constexpr int kTexts = 20000;
constexpr unsigned kSeed = 20220531;
constexpr int kShownDigits = 10;

/// The expected result, and its unit in the selector.
struct Expected
{
    Approximate number;
    int unit = 0;
};

/// How the calculator shows a power if @p chosen is the output unit.
Expected shownPower(const Approximate &power, int chosen)
{
    const bool isLevel = power.unit == Quantity::Level;
    const bool hasLevel = isLevel || power.value > 0;
    int unit = chosen;
    if (unit == PowerUnit::Db || unit == PowerUnit::None)
        unit = isLevel ? PowerUnit::Dbm : PowerUnit::Mw;
    const bool isLevelChosen = unit == PowerUnit::Dbm || unit == PowerUnit::Dbw;
    if (isLevelChosen && (hasLevel || power.error >= std::abs(power.value))) {
        Approximate shown = level(power);
        shown.value -= unit == PowerUnit::Dbw ? 30 : 0;
        return {shown, unit};
    }
    if (isLevelChosen)
        unit = PowerUnit::Mw;
    const double factor = unit == PowerUnit::W ? 1e-3 : unit == PowerUnit::Uw ? 1e3 : 1;
    Approximate shown = milliwatt(power);
    shown.value *= factor;
    shown.error *= factor;
    return {shown, unit};
}

/// How the dBm calculator shows a result if @p chosen is the output unit.
Expected shownByPowers(const Approximate &result, int chosen)
{
    if (result.failure != Failure::None)
        return {result, chosen};
    switch (result.unit) {
    case Quantity::Plain:
        return {result, PowerUnit::None};
    case Quantity::Ratio:
        return {result, PowerUnit::Db};
    default:
        return shownPower(result, chosen);
    }
}

/// The same for the voltage calculator.
Expected shownByVoltages(const Approximate &result, int chosen)
{
    if (result.failure != Failure::None)
        return {result, chosen};
    if (result.unit == Quantity::Plain)
        return {result, VoltageUnit::None};
    if (chosen != VoltageUnit::V)
        return {result, VoltageUnit::Mv};
    Approximate volt = result;
    volt.value *= 1e-3;
    volt.error *= 1e-3;
    return {volt, VoltageUnit::V};
}

/// Whether @p output equals @p expected, give or take the digits that it shows and the error that
/// rounding may have added up to.
bool agrees(const QString &output, const Approximate &expected)
{
    if (expected.failure == Failure::InvalidInput)
        return output == ErrorText::kInvalidInput;
    if (expected.failure == Failure::UnitMissing)
        return output == ErrorText::kUnitMissing;
    bool ok = false;
    const double value = output.toDouble(&ok);
    if (!ok || std::isnan(expected.value))
        return ok && std::isnan(value);
    const bool isFixed = expected.unit == Quantity::Level || expected.unit == Quantity::Ratio;
    const double written =
        isFixed ? 0.005 : 5 * std::abs(expected.value) * std::pow(10.0, -kShownDigits);
    return std::abs(value - expected.value) <= expected.error + written + 1e-300;
}

/// Counts how often each kind of result was compared.
class Tally
{
public:
    void count(const Approximate &result)
    {
        ++m_texts;
        m_plain += result.failure == Failure::None && result.unit == Quantity::Plain;
        m_invalid += result.failure == Failure::InvalidInput;
        m_unitMissing += result.failure == Failure::UnitMissing;
    }
    int texts() const { return m_texts; }
    /// Whether each kind makes up more than one in a hundred.
    bool isVaried() const
    {
        const int numbers = m_texts - m_plain - m_invalid - m_unitMissing;
        return std::min({numbers, m_plain, m_invalid, m_unitMissing}) > m_texts / 100;
    }

private:
    int m_texts = 0;
    int m_plain = 0;
    int m_invalid = 0;
    int m_unitMissing = 0;
};

/// Calculates @p text and compares what is shown.
void compare(ExpressionProfile &calculator, const QString &text, const Expected &expected)
{
    calculator.setSignificantDigits(kShownDigits);
    calculator.setInput(text);
    calculator.calculate();
    QVERIFY2(
        agrees(calculator.output(), expected.number),
        qPrintable(QStringLiteral("mode %1: %2 = %3 %4, not %5")
                       .arg(calculator.mode())
                       .arg(text, calculator.output(), calculator.unitText(calculator.outputUnit()))
                       .arg(expected.number.value, 0, 'g', 15)));
    QVERIFY2(
        calculator.outputUnit() == expected.unit,
        qPrintable(text + QStringLiteral(" in ") + calculator.unitText(calculator.outputUnit())));
}

bool isNumberOrNamedText(const QString &output)
{
    bool ok = false;
    output.toDouble(&ok);
    return ok || output == ErrorText::kInvalidInput || output == ErrorText::kUnitMissing ||
           output == ErrorText::kBracketMissing;
}

} // namespace

void RandomExpressionsTest::powersAgreeWithTheNaiveCalculator()
{
    Random random(kSeed);
    Tally tally;
    while (tally.texts() < kTexts) {
        const Chain chain = randomPowers(random);
        const int mode = below(random, 3);
        const int chosen = below(random, PowerUnit::None + 1);
        const Approximate result = NaivePowers(mode == 0).value(chain);
        const Expected expected = shownByPowers(result, chosen);
        if (std::isinf(expected.number.error))
            continue;
        DbmCalculatorProfile calculator;
        calculator.setMode(mode);
        calculator.setOutputUnit(chosen);
        compare(calculator, chainText(chain), expected);
        if (QTest::currentTestFailed())
            return;
        tally.count(result);
    }
    QVERIFY(tally.isVaried());
}

void RandomExpressionsTest::voltagesAgreeWithTheNaiveCalculator()
{
    Random random(kSeed);
    Tally tally;
    while (tally.texts() < kTexts) {
        const Chain chain = randomVoltages(random);
        const int mode = below(random, 3);
        const int degrees = below(random, 721) - 360;
        const int chosen = below(random, VoltageUnit::None + 1);
        const Approximate result = NaiveVoltages(mode, degrees).value(chain);
        VoltageCalculatorProfile calculator;
        calculator.setMode(mode);
        calculator.setPhase(degrees);
        calculator.setOutputUnit(chosen);
        compare(calculator, chainText(chain), shownByVoltages(result, chosen));
        if (QTest::currentTestFailed())
            return;
        tally.count(result);
    }
    QVERIFY(tally.isVaried());
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
