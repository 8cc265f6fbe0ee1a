// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "voltagecalculatorprofile.h"

#include "errortexts.h"
#include "valuetext.h"
#include "voltagesteps.h"

namespace {

using namespace VoltageUnit;

const CalculatorTable &calculatorTable()
{
    static const CalculatorTable table{
        QStringLiteral("VoltageCalculatorProfile"),
        {{"input", QString()},
         {"output", ErrorText::noResult()},
         {"outputUnit", Mv, upTo(None)},
         {"mode", VoltageMode::Uncorrelated, upTo(VoltageMode::Peak)},
         {"phase",
          0.0,
          {VoltageCalculatorProfile::kMinimumPhase, VoltageCalculatorProfile::kMaximumPhase}}},
        {{"MvValid", Mv}, {"VValid", V}, {"NoneValid", None}},
        {{Mv, QStringLiteral("mV")}, {V, QStringLiteral("V")}, {None, QString(), true}},
        10,
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
    if (result.unit == None)
        return {generalText(result.value), None, unitsBeside(None)};
    const int unit = outputUnit() == V ? V : Mv;
    return {generalText(voltageIn(unit, millivoltFrom(result))), unit, unitsBeside(unit)};
}
