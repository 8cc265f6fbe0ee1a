// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// The forward, reflected and absorbed rows of the VSWR converter: one procedure for powers and
// voltages.

#include "errortexts.h"
#include "prefixedvalue.h"
#include "reflection.h"
#include "units.h"
#include "valuetext.h"
#include "vswrconverterprofile.h"

using namespace Dezimo;

namespace {

/// The value of a field that the person has not just finished: a word is 0, without a message.
double uncheckedValue(QString text)
{
    return parsePrefixedValue(text);
}

} // namespace

/// In mW or mV.
double VswrConverterProfile::Row::value() const
{
    return units.at(unit.get()).toBase(uncheckedValue(text.get()));
}

/// The value of the row that was finished, in mW or mV; nothing if there is none to calculate with.
std::optional<double> VswrConverterProfile::Row::readEdited()
{
    if (!isFilled())
        return std::nullopt;
    const std::optional<double> typed = readPrefixedValue(text.get());
    if (typed)
        return units.at(unit.get()).toBase(*typed);
    text.set(ErrorText::kInvalidInput);
    return std::nullopt;
}

void VswrConverterProfile::Row::show(double baseValue, int unitIndex)
{
    const double value = units.at(unitIndex).fromBase(baseValue);
    text.set(generalText(value, model.significantDigits()));
}

/// Rewrites the text before it stores the unit, and calculates no other row.
void VswrConverterProfile::Row::setUnit(int newUnit)
{
    if (newUnit == unit.get())
        return;
    if (isFilled())
        show(value(), newUnit);
    unit.set(newUnit);
}

void VswrConverterProfile::finishForward(Rows &rows)
{
    const std::optional<double> forward = rows.forward.readEdited();
    if (!forward)
        return;
    if (!r2().isEmpty()) {
        const double reflected = *forward * reflectedShare();
        rows.reflected.show(reflected);
        rows.absorbed.show(*forward - reflected);
    } else if (rows.reflected.isFilled()) {
        rows.absorbed.show(*forward - rows.reflected.value());
    } else if (rows.absorbed.isFilled()) {
        rows.reflected.show(*forward - rows.absorbed.value());
    }
}

void VswrConverterProfile::finishReflected(Rows &rows)
{
    const std::optional<double> reflected = rows.reflected.readEdited();
    if (!reflected)
        return;
    if (!r2().isEmpty()) {
        const double forward = *reflected / reflectedShare();
        rows.forward.show(forward);
        rows.absorbed.show(forward - *reflected);
    } else if (rows.forward.isFilled()) {
        rows.absorbed.show(rows.forward.value() - *reflected);
    } else if (rows.absorbed.isFilled()) {
        rows.forward.show(rows.absorbed.value() + *reflected);
    }
}

/// A known reflection empties two rows on purpose, instead of solving them from the absorbed one.
void VswrConverterProfile::finishAbsorbed(Rows &rows)
{
    const std::optional<double> absorbed = rows.absorbed.readEdited();
    if (!absorbed)
        return;
    if (!r2().isEmpty()) {
        rows.forward.text.set(QString());
        rows.absorbed.text.set(QString());
    } else if (rows.forward.isFilled()) {
        rows.reflected.show(rows.forward.value() - *absorbed);
    } else if (rows.reflected.isFilled()) {
        rows.forward.show(rows.reflected.value() + *absorbed);
    }
}

/// Reflected over forward, of powers and of voltages.
double VswrConverterProfile::reflectedShare() const
{
    return uncheckedValue(r2()) / Reflection::kPercent;
}
