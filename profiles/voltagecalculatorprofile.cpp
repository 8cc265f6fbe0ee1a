// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "voltagecalculatorprofile.h"

#include "calculatortable.h"
#include "errortexts.h"
#include "valuetext.h"
#include "voltagesteps.h"

using namespace Dezimo;
using namespace Dezimo::VoltageUnit;

namespace {

/// Two fewer than the dBm calculator keeps, on purpose; results of ten digits show all of them.
constexpr int kStepDigits = 10;

/// Only the uncorrelated mode refuses a step.
QString refusal(const RefusedStep &)
{
    return QStringLiteral("Uncorrelated voltages have no difference; choose another mode for -");
}

const CalculatorTable &calculatorTable()
{
    static const CalculatorTable table{
        {{"input", QString()},
         {"output", ErrorText::kNoResult},
         {"outputUnit", Mv, upTo(None)},
         {"mode", VoltageMode::Uncorrelated, upTo(VoltageMode::Peak)},
         {"phase",
          0.0,
          {VoltageCalculatorProfile::kMinimumPhase, VoltageCalculatorProfile::kMaximumPhase}}},
        {{"MvValid", Mv}, {"VValid", V}, {"NoneValid", None}},
        {{Mv, &Units::kMillivolt}, {V, &Units::kVolt}, {None, &Units::kNone, true}},
        kStepDigits,
        QStringLiteral("1V+20mV"),
        refusal,
    };
    return table;
}

} // namespace

VoltageCalculatorProfile::VoltageCalculatorProfile(QObject *parent)
    : ExpressionProfile(calculatorTable(), parent)
{}

std::unique_ptr<StepRule> VoltageCalculatorProfile::newStepRule() const
{
    return std::make_unique<VoltageSteps>(mode(), phase());
}

ExpressionProfile::Shown VoltageCalculatorProfile::shown(const Operand &result) const
{
    if (result.unit == &Units::kNone)
        return {generalText(result.value, significantDigits()), None, unitsBeside(None)};
    const int unit = outputUnit() == V ? V : Mv;
    return {generalText(unitAt(unit).fromBase(result.inBaseUnit()), significantDigits()), unit,
            unitsBeside(unit)};
}
