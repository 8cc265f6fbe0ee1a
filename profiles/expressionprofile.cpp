// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressionprofile.h"

#include "bracketgroups.h"
#include "calculatortable.h"
#include "errortexts.h"
#include "expressionreason.h"
#include "expressiontext.h"
#include "operatorchain.h"

#include <QSettings>

#include <algorithm>

using namespace Dezimo;

namespace {

bool isErrorText(const QString &result)
{
    return result == ErrorText::kInvalidInput || result == ErrorText::kUnitMissing;
}

QMap<int, bool> allOf(const ExpressionUnits &units)
{
    QMap<int, bool> valid;
    for (const ExpressionUnit &unit : units)
        valid.insert(unit.index, true);
    return valid;
}

} // namespace

ExpressionProfile::ExpressionProfile(const CalculatorTable &table, QObject *parent)
    : ModuleProfile(parent),
      m_table(table),
      m_output(this, &Self::outputChanged, ErrorText::kNoResult),
      m_validUnits(this, &Self::validUnitsChanged, allOf(table.units))
{}

int ExpressionProfile::plainUnit() const
{
    return m_table.units.back().index;
}

QString ExpressionProfile::unitText(int unit) const
{
    return unitAt(unit).symbol;
}

QString ExpressionProfile::reason() const
{
    return expressionReason(m_input.get(), {m_table.units, m_table.stepDigits, m_table.example,
                                            [this] { return newStepRule(); }, m_table.refusal});
}

QString ExpressionProfile::evaluate(const QString &text)
{
    return evaluated(text).text;
}

void ExpressionProfile::saveSettings(QSettings &settings)
{
    saveGroup(*this, settings, group(), m_table.keys);
    settings.beginGroup(group());
    for (const ValidityKey &row : m_table.validityKeys)
        settings.setValue(QLatin1String(row.key), m_validUnits.get().value(row.unit));
    settings.endGroup();
}

void ExpressionProfile::loadSettings(QSettings &settings)
{
    loadGroup(*this, settings, group(), m_table.keys);
    settings.beginGroup(group());
    QMap<int, bool> validUnits;
    for (const ValidityKey &row : m_table.validityKeys)
        validUnits.insert(row.unit, storedValue(settings, row.key, true).toBool());
    settings.endGroup();
    setValidUnits(validUnits);
}

void ExpressionProfile::calculate()
{
    const BracketedResult result =
        evaluateBracketed(ExpressionText::cleaned(m_input.get()),
                          [this](const QString &text) { return evaluated(text); });
    if (result.isDefect)
        setOutput(result.evaluation.text);
    else
        publish(result.evaluation);
}

const Unit &ExpressionProfile::unitAt(int index) const
{
    for (const ExpressionUnit &row : m_table.units) {
        if (row.index == index)
            return *row.unit;
    }
    return Units::kNone;
}

QMap<int, bool> ExpressionProfile::unitsBeside(int unit) const
{
    const auto alone =
        std::find_if(m_table.units.begin(), m_table.units.end(), [unit](const ExpressionUnit &row) {
            return row.isAlone && row.index == unit;
        });
    QMap<int, bool> offered;
    for (const ExpressionUnit &row : m_table.units)
        offered.insert(row.index, alone == m_table.units.end() ? !row.isAlone : row.index == unit);
    return offered;
}

Evaluation ExpressionProfile::evaluated(const QString &text)
{
    const OperatorChain chain(text, m_table.units, m_table.stepDigits);
    if (!chain.isEmpty())
        return chain.result(*newStepRule());
    setOutput(ErrorText::kInvalidInput);
    return {ErrorText::kInvalidInput};
}

/// A lone value from a group around the whole text is first read here, and may be no number.
void ExpressionProfile::publish(const Evaluation &result)
{
    if (isErrorText(result.text))
        return show(shownError(result.text));
    const std::optional<Operand> number =
        result.number ? result.number : parseOperand(result.text, m_table.units);
    show(number ? shown(*number) : shownError(ErrorText::kInvalidInput));
}

/// An error text keeps the output unit and offers what goes with it.
ExpressionProfile::Shown ExpressionProfile::shownError(const QString &errorText) const
{
    return {errorText, m_outputUnit.get(), unitsBeside(m_outputUnit.get())};
}

void ExpressionProfile::show(const Shown &result)
{
    setOutputUnit(result.outputUnit);
    setOutput(result.output);
    setValidUnits(result.validUnits);
}
