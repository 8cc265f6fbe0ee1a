// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterprofile.h"

#include "errortexts.h"
#include "levels.h"
#include "prefixedvalue.h"
#include "storedkeys.h"
#include "valuetext.h"

#include <QSettings>

#include <cmath>
#include <optional>

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

enum class Unit { None, W, Dbm, Dbw };

/// One operand as it was read: its value in watts (0 where it is no number) and the unit it was
/// typed in, in which a derived partner is written.
struct Operand
{
    Unit unit;
    bool isNumber;
    double watt;
};

/// Up to this a denominator or a ratio counts as zero. In watts it is the power of -90 dBm, which
/// is meant: only finishing the second operand tests for exact zero.
constexpr double kZeroTolerance = 1e-12;

/// Looks for the unit words in the order dBW, W, dBm and removes them all; the last one found is
/// the unit.
Unit takeUnit(QString &text)
{
    struct Word
    {
        QLatin1String text;
        Unit unit;
    };
    const Word words[] = {{QLatin1String("dBW"), Unit::Dbw},
                          {QLatin1String("W"), Unit::W},
                          {QLatin1String("dBm"), Unit::Dbm}};
    Unit unit = Unit::None;
    for (const Word &word : words) {
        if (!text.contains(word.text))
            continue;
        unit = word.unit;
        text.remove(word.text);
    }
    return unit;
}

double wattFrom(double value, Unit unit)
{
    switch (unit) {
    case Unit::Dbm:
        return Levels::wattFromMilliwatt(Levels::milliwattFromDbm(value));
    case Unit::Dbw:
        return Levels::wattFromMilliwatt(Levels::milliwattFromDbw(value));
    case Unit::W:
    case Unit::None:
        break;
    }
    return value;
}

Operand parseOperand(QString text)
{
    const Unit unit = takeUnit(text);
    const std::optional<double> value = readPrefixedValue(text);
    return {unit, value.has_value(), value ? wattFrom(*value, unit) : 0.0};
}

QString operandText(double watt, Unit unit)
{
    const double milliwatt = Levels::milliwattFromWatt(watt);
    switch (unit) {
    case Unit::W:
        return generalText(watt) + QLatin1Char('W');
    case Unit::Dbm:
        return generalText(Levels::dbmFromMilliwatt(milliwatt)) + QLatin1String("dBm");
    case Unit::Dbw:
        return generalText(Levels::dbwFromMilliwatt(milliwatt)) + QLatin1String("dBW");
    case Unit::None:
        break;
    }
    return generalText(watt);
}

bool isUnitMismatch(const Operand &first, const Operand &second)
{
    return (first.unit == Unit::None) != (second.unit == Unit::None);
}

/// What is no number counts as zero too, so that neither a ratio nor an operand is made of it.
bool isZero(double value)
{
    return !(std::abs(value) > kZeroTolerance);
}

} // namespace

/// What tells powers from voltages. A run code is written by its calculation and makes it skip; the
/// second operand's guard is written by none, so finishing the second operand always calculates and
/// then reads as if the first one had been finished.
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

DbConverterProfile::DbConverterProfile(QObject *parent) : Profile(parent) {}

void DbConverterProfile::saveSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("DbConverterProfile"));
    saveKeys(*this, settings, converterKeys());
    settings.endGroup();
}

void DbConverterProfile::loadSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("DbConverterProfile"));
    loadKeys(*this, settings, converterKeys());
    settings.endGroup();
}

void DbConverterProfile::calculateFromP1()
{
    m_powers.run(&Half::finishFirst, kPowers.operandRun, kPowers.operandRun);
}

void DbConverterProfile::calculateFromP2()
{
    m_powers.run(&Half::finishSecond, kPowers.secondGuard, kPowers.operandRun);
}

void DbConverterProfile::calculateFromPRatio()
{
    m_powers.run(&Half::finishRatio, kPowers.ratioRun, kPowers.ratioRun);
}

void DbConverterProfile::calculateFromPDb()
{
    m_powers.run(&Half::finishDb, kPowers.dbRun, kPowers.dbRun);
}

void DbConverterProfile::calculateFromV1()
{
    m_voltages.run(&Half::finishFirst, kVoltages.operandRun, kVoltages.operandRun);
}

void DbConverterProfile::calculateFromV2()
{
    m_voltages.run(&Half::finishSecond, kVoltages.secondGuard, kVoltages.operandRun);
}

void DbConverterProfile::calculateFromVRatio()
{
    m_voltages.run(&Half::finishRatio, kVoltages.ratioRun, kVoltages.ratioRun);
}

void DbConverterProfile::calculateFromVDb()
{
    m_voltages.run(&Half::finishDb, kVoltages.dbRun, kVoltages.dbRun);
}

void DbConverterProfile::Half::run(void (Half::*finish)(), int guard, int code)
{
    if (latestRun.get() == guard)
        return;
    (this->*finish)();
    latestRun.set(code);
}

void DbConverterProfile::Half::finishFirst()
{
    if (first.get().isEmpty())
        return clearResults();
    const Operand numerator = parseOperand(first.get());
    if (!numerator.isNumber)
        return first.set(ErrorText::invalidInput());
    if (second.get().isEmpty()) {
        if (const std::optional<double> known = readPrefixedValue(ratio.get()))
            deriveSecond(*known);
        return;
    }
    const Operand denominator = parseOperand(second.get());
    if (isZero(denominator.watt))
        return clearResults(ErrorText::notANumber());
    if (isUnitMismatch(numerator, denominator))
        return first.set(ErrorText::unitMismatch());
    showRatio(numerator.watt / denominator.watt);
}

void DbConverterProfile::Half::finishSecond()
{
    if (second.get().isEmpty())
        return clearResults();
    const Operand denominator = parseOperand(second.get());
    if (!denominator.isNumber)
        return second.set(ErrorText::invalidInput());
    if (denominator.watt == 0.0)
        return clearResults(ErrorText::notANumber());
    if (first.get().isEmpty()) {
        if (const std::optional<double> known = readPrefixedValue(ratio.get()))
            deriveFirst(*known);
        return;
    }
    const Operand numerator = parseOperand(first.get());
    if (isUnitMismatch(numerator, denominator))
        return second.set(ErrorText::unitMismatch());
    showRatio(numerator.watt / denominator.watt);
}

void DbConverterProfile::Half::finishRatio()
{
    if (ratio.get().isEmpty())
        return db.set(QString());
    const std::optional<double> linear = readPrefixedValue(ratio.get());
    if (!linear)
        return db.set(ErrorText::invalidInput());
    showDbOf(*linear);
    deriveMissingOperand(*linear);
}

void DbConverterProfile::Half::finishDb()
{
    if (db.get().isEmpty())
        return ratio.set(QString());
    const std::optional<double> decibels = readPrefixedValue(db.get());
    if (!decibels)
        return ratio.set(ErrorText::invalid());
    const double linear = rule.ratioFromDb(*decibels);
    ratio.set(generalText(linear));
    deriveMissingOperand(linear);
}

void DbConverterProfile::Half::showRatio(double linear)
{
    ratio.set(generalText(linear));
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

/// The present operand's unit is the derived one's as well.
void DbConverterProfile::Half::deriveFirst(double linear)
{
    const Operand denominator = parseOperand(second.get());
    if (denominator.isNumber)
        first.set(operandText(linear * denominator.watt, denominator.unit));
}

void DbConverterProfile::Half::deriveSecond(double linear)
{
    const Operand numerator = parseOperand(first.get());
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
