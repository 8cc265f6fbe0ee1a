// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterprofile.h"

#include "errortexts.h"
#include "levels.h"
#include "prefixedvalue.h"
#include "storedkeys.h"
#include "units.h"
#include "valuetext.h"

#include <cmath>
#include <optional>

using namespace Dezimo;

namespace {

const StoredKeys &converterKeys()
{
    static const StoredKeys rows{
        {"p1", QString()},     {"p2", QString()},  {"v1", QString()},           {"v2", QString()},
        {"pRatio", QString()}, {"pDb", QString()}, {"vRatio", QString()},       {"vDb", QString()},
        {"pLatestRun", 0},     {"vLatestRun", 0},  {"currentMode", 0, upTo(1)},
    };
    return rows;
}

/// A denominator or a ratio up to this is taken for zero. In watts it is the power of -90 dBm.
/// Only finishing the second operand tests for exact zero.
constexpr double kZeroTolerance = 1e-12;

/// One operand as it was read. A derived partner is written in the same unit.
struct ComparedOperand
{
    const Unit &unit;
    bool isNumber;
    /// 0 where it is no number.
    double watt;

    bool isPlain() const { return &unit == &Units::kNone; }
};

/// Looks for the unit words in the order dBW, W, dBm and removes them all; the last one found is
/// the unit.
const Unit &takeUnit(QString &text)
{
    const Unit *unit = &Units::kNone;
    for (const Unit *word : {&Units::kDbw, &Units::kWatt, &Units::kDbm}) {
        if (!text.contains(word->symbol))
            continue;
        unit = word;
        text.remove(word->symbol);
    }
    return *unit;
}

/// Operands are compared in watts, and so are plain numbers. A detour over milliwatts would cost
/// the last digit.
bool isInWatts(const Unit &unit)
{
    return &unit == &Units::kWatt || &unit == &Units::kNone;
}

ComparedOperand readCompared(QString text)
{
    const Unit &unit = takeUnit(text);
    const std::optional<double> value = readPrefixedValue(text);
    if (!value)
        return {unit, false, 0.0};
    return {unit, true, isInWatts(unit) ? *value : Units::kWatt.fromBase(unit.toBase(*value))};
}

bool isUnitMismatch(const ComparedOperand &first, const ComparedOperand &second)
{
    return first.isPlain() != second.isPlain();
}

/// Neither a ratio nor an operand can be made of zero, nor of what is not a number.
bool isZero(double value)
{
    return !(std::abs(value) > kZeroTolerance);
}

} // namespace

/// What tells powers from voltages. A calculation writes its run code and skips when it finds it.
/// None writes the guard of the second operand, so finishing that one always calculates; it then
/// leaves the code of the first.
struct DbConverterProfile::Rule
{
    double (*dbFromRatio)(double);
    double (*ratioFromDb)(double);
    int operandRun;
    int secondGuard;
    int ratioRun;
    int dbRun;
};

const DbConverterProfile::Rule DbConverterProfile::kPowers = {
    Levels::dbFromPowerRatio, Levels::powerRatioFromDb, 1, 2, 5, 6};
const DbConverterProfile::Rule DbConverterProfile::kVoltages = {
    Levels::dbFromVoltageRatio, Levels::voltageRatioFromDb, 3, 4, 7, 8};

void DbConverterProfile::saveSettings(QSettings &settings)
{
    saveGroup(*this, settings, group(), converterKeys());
}

void DbConverterProfile::loadSettings(QSettings &settings)
{
    loadGroup(*this, settings, group(), converterKeys());
}

void DbConverterProfile::Half::run(void (Half::*finish)(), int guard, int code)
{
    if (latestRun.get() == guard)
        return;
    (this->*finish)();
    latestRun.set(code);
}

void DbConverterProfile::Half::calculateFromFirst()
{
    run(&Half::finishFirst, rule.operandRun, rule.operandRun);
}

void DbConverterProfile::Half::calculateFromSecond()
{
    run(&Half::finishSecond, rule.secondGuard, rule.operandRun);
}

void DbConverterProfile::Half::calculateFromRatio()
{
    run(&Half::finishRatio, rule.ratioRun, rule.ratioRun);
}

void DbConverterProfile::Half::calculateFromDb()
{
    run(&Half::finishDb, rule.dbRun, rule.dbRun);
}

void DbConverterProfile::Half::finishFirst()
{
    if (first.get().isEmpty())
        return clearResults();
    const ComparedOperand numerator = readCompared(first.get());
    if (!numerator.isNumber)
        return first.set(ErrorText::kInvalidInput);
    if (second.get().isEmpty()) {
        if (const std::optional<double> known = readPrefixedValue(ratio.get()))
            deriveSecond(*known);
        return;
    }
    const ComparedOperand denominator = readCompared(second.get());
    if (isZero(denominator.watt))
        return clearResults(ErrorText::kNotANumber);
    if (isUnitMismatch(numerator, denominator))
        return first.set(ErrorText::kUnitMismatch);
    showRatio(numerator.watt / denominator.watt);
}

void DbConverterProfile::Half::finishSecond()
{
    if (second.get().isEmpty())
        return clearResults();
    const ComparedOperand denominator = readCompared(second.get());
    if (!denominator.isNumber)
        return second.set(ErrorText::kInvalidInput);
    if (denominator.watt == 0.0)
        return clearResults(ErrorText::kNotANumber);
    if (first.get().isEmpty()) {
        if (const std::optional<double> known = readPrefixedValue(ratio.get()))
            deriveFirst(*known);
        return;
    }
    const ComparedOperand numerator = readCompared(first.get());
    if (isUnitMismatch(numerator, denominator))
        return second.set(ErrorText::kUnitMismatch);
    showRatio(numerator.watt / denominator.watt);
}

void DbConverterProfile::Half::finishRatio()
{
    if (ratio.get().isEmpty())
        return db.set(QString());
    const std::optional<double> linear = readPrefixedValue(ratio.get());
    if (!linear)
        return db.set(ErrorText::kInvalidInput);
    showDbOf(*linear);
    deriveMissingOperand(*linear);
}

void DbConverterProfile::Half::finishDb()
{
    if (db.get().isEmpty())
        return ratio.set(QString());
    const std::optional<double> decibels = readPrefixedValue(db.get());
    if (!decibels)
        return ratio.set(ErrorText::kInvalid);
    const double linear = rule.ratioFromDb(*decibels);
    ratio.set(generalText(linear, model.significantDigits()));
    deriveMissingOperand(linear);
}

QString DbConverterProfile::Half::operandText(double watt, const Unit &unit) const
{
    const double value = isInWatts(unit) ? watt : unit.fromBase(Units::kWatt.toBase(watt));
    return generalText(value, model.significantDigits()) + unit.symbol;
}

void DbConverterProfile::Half::showRatio(double linear)
{
    ratio.set(generalText(linear, model.significantDigits()));
    showDbOf(linear);
}

/// A ratio of zero or below has no value in dB.
void DbConverterProfile::Half::showDbOf(double linear)
{
    db.set(linear <= 0.0 ? QString() : fixedText(rule.dbFromRatio(linear)));
}

void DbConverterProfile::Half::clearResults(const QString &ratioText)
{
    ratio.set(ratioText);
    db.set(QString());
}

/// A derived operand gets the unit of the one that is there.
void DbConverterProfile::Half::deriveFirst(double linear)
{
    const ComparedOperand denominator = readCompared(second.get());
    if (denominator.isNumber)
        first.set(operandText(linear * denominator.watt, denominator.unit));
}

void DbConverterProfile::Half::deriveSecond(double linear)
{
    const ComparedOperand numerator = readCompared(first.get());
    if (numerator.isNumber && !isZero(linear))
        second.set(operandText(numerator.watt / linear, numerator.unit));
}

void DbConverterProfile::Half::deriveMissingOperand(double linear)
{
    const bool firstMissing = first.get().isEmpty();
    const bool secondMissing = second.get().isEmpty();
    if (firstMissing && !secondMissing)
        deriveFirst(linear);
    else if (secondMissing && !firstMissing)
        deriveSecond(linear);
}
