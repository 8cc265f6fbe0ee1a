// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// What finishing a field of the dB converter computes: one procedure for powers and voltages.

#include "dbconverterprofile.h"
#include "errortexts.h"
#include "levels.h"
#include "prefixedvalue.h"
#include "valuetext.h"

#include <cmath>
#include <optional>

namespace {

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

struct DbConverterProfile::Field
{
    QString (DbConverterProfile::*get)() const;
    void (DbConverterProfile::*set)(const QString &);
};

/// What tells the power half from the voltage half. A run code is written by its calculation and
/// makes it skip; the second operand's guard is written by none, so finishing the second operand
/// always calculates and then reads as if the first one had been finished.
struct DbConverterProfile::Half
{
    Field first;
    Field second;
    Field ratio;
    Field db;
    int (DbConverterProfile::*latestRun)() const;
    void (DbConverterProfile::*setLatestRun)(int);
    double (*dbFromRatio)(double);
    double (*ratioFromDb)(double);
    int operandRun;
    int secondGuard;
    int ratioRun;
    int dbRun;
};

using Self = DbConverterProfile;

const Self::Half Self::kPowers = {
    {&Self::p1, &Self::setP1},
    {&Self::p2, &Self::setP2},
    {&Self::pRatio, &Self::setPRatio},
    {&Self::pDb, &Self::setPDb},
    &Self::pLatestRun,
    &Self::setPLatestRun,
    Levels::dbFromPowerRatio,
    Levels::powerRatioFromDb,
    1,
    2,
    5,
    6,
};

const Self::Half Self::kVoltages = {
    {&Self::v1, &Self::setV1},
    {&Self::v2, &Self::setV2},
    {&Self::vRatio, &Self::setVRatio},
    {&Self::vDb, &Self::setVDb},
    &Self::vLatestRun,
    &Self::setVLatestRun,
    Levels::dbFromVoltageRatio,
    Levels::voltageRatioFromDb,
    3,
    4,
    7,
    8,
};

void DbConverterProfile::calculateFromP1()
{
    run(kPowers, &DbConverterProfile::finishFirst, kPowers.operandRun, kPowers.operandRun);
}

void DbConverterProfile::calculateFromP2()
{
    run(kPowers, &DbConverterProfile::finishSecond, kPowers.secondGuard, kPowers.operandRun);
}

void DbConverterProfile::calculateFromPRatio()
{
    run(kPowers, &DbConverterProfile::finishRatio, kPowers.ratioRun, kPowers.ratioRun);
}

void DbConverterProfile::calculateFromPDb()
{
    run(kPowers, &DbConverterProfile::finishDb, kPowers.dbRun, kPowers.dbRun);
}

void DbConverterProfile::calculateFromV1()
{
    run(kVoltages, &DbConverterProfile::finishFirst, kVoltages.operandRun, kVoltages.operandRun);
}

void DbConverterProfile::calculateFromV2()
{
    run(kVoltages, &DbConverterProfile::finishSecond, kVoltages.secondGuard, kVoltages.operandRun);
}

void DbConverterProfile::calculateFromVRatio()
{
    run(kVoltages, &DbConverterProfile::finishRatio, kVoltages.ratioRun, kVoltages.ratioRun);
}

void DbConverterProfile::calculateFromVDb()
{
    run(kVoltages, &DbConverterProfile::finishDb, kVoltages.dbRun, kVoltages.dbRun);
}

QString DbConverterProfile::text(const Field &field) const
{
    return (this->*field.get)();
}

void DbConverterProfile::setText(const Field &field, const QString &text)
{
    (this->*field.set)(text);
}

void DbConverterProfile::run(const Half &half, Step step, int guard, int code)
{
    if ((this->*half.latestRun)() == guard)
        return;
    (this->*step)(half);
    (this->*half.setLatestRun)(code);
}

void DbConverterProfile::finishFirst(const Half &half)
{
    if (text(half.first).isEmpty())
        return clearResults(half);
    const Operand first = parseOperand(text(half.first));
    if (!first.isNumber)
        return setText(half.first, ErrorText::invalidInput());
    if (text(half.second).isEmpty()) {
        const std::optional<double> ratio = readPrefixedValue(text(half.ratio));
        if (ratio)
            deriveSecond(half, *ratio);
        return;
    }
    const Operand second = parseOperand(text(half.second));
    if (isZero(second.watt))
        return clearResults(half, ErrorText::notANumber());
    if (isUnitMismatch(first, second))
        return setText(half.first, ErrorText::unitMismatch());
    showRatio(half, first.watt / second.watt);
}

void DbConverterProfile::finishSecond(const Half &half)
{
    if (text(half.second).isEmpty())
        return clearResults(half);
    const Operand second = parseOperand(text(half.second));
    if (!second.isNumber)
        return setText(half.second, ErrorText::invalidInput());
    if (second.watt == 0.0)
        return clearResults(half, ErrorText::notANumber());
    if (text(half.first).isEmpty()) {
        const std::optional<double> ratio = readPrefixedValue(text(half.ratio));
        if (ratio)
            deriveFirst(half, *ratio);
        return;
    }
    const Operand first = parseOperand(text(half.first));
    if (isUnitMismatch(first, second))
        return setText(half.second, ErrorText::unitMismatch());
    showRatio(half, first.watt / second.watt);
}

void DbConverterProfile::finishRatio(const Half &half)
{
    if (text(half.ratio).isEmpty())
        return setText(half.db, QString());
    const std::optional<double> ratio = readPrefixedValue(text(half.ratio));
    if (!ratio)
        return setText(half.db, ErrorText::invalidInput());
    showDbOf(half, *ratio);
    deriveMissingOperand(half, *ratio);
}

void DbConverterProfile::finishDb(const Half &half)
{
    if (text(half.db).isEmpty())
        return setText(half.ratio, QString());
    const std::optional<double> db = readPrefixedValue(text(half.db));
    if (!db)
        return setText(half.ratio, ErrorText::invalid());
    const double ratio = half.ratioFromDb(*db);
    setText(half.ratio, generalText(ratio));
    deriveMissingOperand(half, ratio);
}

void DbConverterProfile::showRatio(const Half &half, double ratio)
{
    setText(half.ratio, generalText(ratio));
    showDbOf(half, ratio);
}

/// A ratio of zero or below has no value in dB.
void DbConverterProfile::showDbOf(const Half &half, double ratio)
{
    setText(half.db, ratio <= 0.0 ? QString() : fixedText(half.dbFromRatio(ratio)));
}

void DbConverterProfile::clearResults(const Half &half, const QString &ratioText)
{
    setText(half.ratio, ratioText);
    setText(half.db, QString());
}

/// The present operand's unit is the derived one's as well.
void DbConverterProfile::deriveFirst(const Half &half, double ratio)
{
    const Operand second = parseOperand(text(half.second));
    if (second.isNumber)
        setText(half.first, operandText(ratio * second.watt, second.unit));
}

void DbConverterProfile::deriveSecond(const Half &half, double ratio)
{
    const Operand first = parseOperand(text(half.first));
    if (first.isNumber && !isZero(ratio))
        setText(half.second, operandText(first.watt / ratio, first.unit));
}

void DbConverterProfile::deriveMissingOperand(const Half &half, double ratio)
{
    const bool firstMissing = text(half.first).isEmpty();
    const bool secondMissing = text(half.second).isEmpty();
    if (firstMissing && !secondMissing)
        deriveFirst(half, ratio);
    else if (secondMissing && !firstMissing)
        deriveSecond(half, ratio);
}
