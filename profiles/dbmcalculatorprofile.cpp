// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorprofile.h"

#include "errortexts.h"
#include "levels.h"
#include "powersteps.h"
#include "valuetext.h"

namespace {

using namespace PowerUnit;

/// The modes, as the indexes of the mode selector. The coherent one adds in phase, that is as the
/// numeric one does.
enum Mode { IncoherentPowers, CoherentPowers, NumericCalculation };

const CalculatorTable &calculatorTable()
{
    static const CalculatorTable table{
        QStringLiteral("DbmCalculatorProfile"),
        {{"input", QString()},
         {"output", ErrorText::noResult()},
         {"outputUnit", Dbm, upTo(None)},
         {"mode", IncoherentPowers, upTo(NumericCalculation)}},
        {{"DbmValid", Dbm},
         {"DbwValid", Dbw},
         {"DbValid", Db},
         {"WValid", W},
         {"MwValid", Mw},
         {"UwValid", Uw},
         {"NoneValid", None}},
        {{Dbm, QStringLiteral("dBm")},
         {Dbw, QStringLiteral("dBW")},
         {Db, QStringLiteral("dB"), true},
         {Mw, QStringLiteral("mW")},
         {Uw, QStringLiteral("\u00B5W")},
         {W, QStringLiteral("W")},
         {None, QString(), true}},
        12,
    };
    return table;
}

bool isLevelUnit(int unit)
{
    return unit == Dbm || unit == Dbw;
}

bool isPowerUnit(int unit)
{
    return isLevelUnit(unit) || unit == Mw || unit == W || unit == Uw;
}

/// @p level is in dBm and ignored unless @p unit is a level's.
QString powerText(double level, double milliwatt, int unit)
{
    switch (unit) {
    case Dbm:
        return fixedText(level);
    case Dbw:
        return fixedText(Levels::dbwFromDbm(level));
    default:
        return generalText(powerIn(unit, milliwatt));
    }
}

} // namespace

DbmCalculatorProfile::DbmCalculatorProfile(QObject *parent)
    : ExpressionProfile(calculatorTable(), parent)
{}

std::unique_ptr<StepRule> DbmCalculatorProfile::newStepRule() const
{
    return std::make_unique<PowerSteps>(mode() == IncoherentPowers);
}

ExpressionProfile::Shown DbmCalculatorProfile::shown(const Operand &result) const
{
    switch (result.unit) {
    case Db:
        return {fixedText(result.value), Db, unitsBeside(Db)};
    case None:
        return {generalText(result.value), None, unitsBeside(None)};
    default:
        return shownPower(result);
    }
}

ExpressionProfile::Shown DbmCalculatorProfile::shownPower(const Operand &power) const
{
    const double milliwatt = milliwattFrom(power);
    const bool isLevel = isLevelUnit(power.unit);
    const bool hasLevel = isLevel || milliwatt > 0.0;

    int unit = outputUnit();
    if (!isPowerUnit(unit))
        unit = isLevel ? Dbm : Mw;
    if (isLevelUnit(unit) && !hasLevel)
        unit = Mw;

    QMap<int, bool> offered = unitsBeside(unit);
    offered[Dbm] = hasLevel;
    offered[Dbw] = hasLevel;
    return {powerText(levelFrom(power), milliwatt, unit), unit, offered};
}
