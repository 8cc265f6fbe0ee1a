// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbmcalculatorprofile.h"

#include "calculatortable.h"
#include "errortexts.h"
#include "levels.h"
#include "powersteps.h"
#include "valuetext.h"

using namespace Dezimo;
using namespace Dezimo::PowerUnit;

namespace {

/// The modes, as the indexes of the mode selector. The coherent one adds in phase, that is as the
/// numeric one does.
enum Mode { IncoherentPowers, CoherentPowers, NumericCalculation };

/// They are seen in results: those of ten digits show that 0.3mW-0.2mW-0.1mW is 0, although binary
/// fractions leave a rest.
constexpr int kStepDigits = 12;

/// Only the incoherent mode refuses a step.
QString refusal(const RefusedStep &step)
{
    const QString reason = step.isAfterDifference
                               ? QStringLiteral("A combiner takes no + after a difference")
                               : QStringLiteral("A combiner takes no + after a ratio in dB");
    if (step.regrouped.isEmpty())
        return reason + QLatin1String("; put what is before it in brackets");
    return reason + QLatin1String("; write ") + step.regrouped;
}

const CalculatorTable &calculatorTable()
{
    static const CalculatorTable table{
        {{"input", QString()},
         {"output", ErrorText::kNoResult},
         {"outputUnit", Dbm, upTo(None)},
         {"mode", IncoherentPowers, upTo(NumericCalculation)}},
        {{"DbmValid", Dbm},
         {"DbwValid", Dbw},
         {"DbValid", Db},
         {"WValid", W},
         {"MwValid", Mw},
         {"UwValid", Uw},
         {"NoneValid", None}},
        {{Dbm, &Units::kDbm},
         {Dbw, &Units::kDbw},
         {Db, &Units::kDb, true},
         {Mw, &Units::kMilliwatt},
         {Uw, &Units::kMicrowatt},
         {W, &Units::kWatt},
         {None, &Units::kNone, true}},
        kStepDigits,
        QStringLiteral("10dBm+3dB"),
        refusal,
    };
    return table;
}

bool isLevelUnit(int unit)
{
    return unit == Dbm || unit == Dbw;
}

bool isPowerUnit(int unit)
{
    return unit >= Dbm && unit <= Dbw;
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
    if (result.unit == &Units::kDb)
        return {fixedText(result.value), Db, unitsBeside(Db)};
    if (result.unit == &Units::kNone)
        return {generalText(result.value, significantDigits()), None, unitsBeside(None)};
    return shownPower(result);
}

ExpressionProfile::Shown DbmCalculatorProfile::shownPower(const Operand &power) const
{
    const bool isLevel = power.unit == &Units::kDbm || power.unit == &Units::kDbw;
    const bool hasLevel = isLevel || power.inBaseUnit() > 0.0;

    int unit = outputUnit();
    if (!isPowerUnit(unit))
        unit = isLevel ? Dbm : Mw;
    if (isLevelUnit(unit) && !hasLevel)
        unit = Mw;

    QMap<int, bool> offered = unitsBeside(unit);
    offered[Dbm] = hasLevel;
    offered[Dbw] = hasLevel;
    return {powerText(power, unit), unit, offered};
}

/// A level keeps to decibels on its way to another one, so that it arrives unchanged.
QString DbmCalculatorProfile::powerText(const Operand &power, int unit) const
{
    switch (unit) {
    case Dbm:
        return fixedText(levelFrom(power));
    case Dbw:
        return fixedText(Levels::dbwFromDbm(levelFrom(power)));
    default:
        return generalText(unitAt(unit).fromBase(power.inBaseUnit()), significantDigits());
    }
}
