// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// The forward, reflected and absorbed rows of the VSWR converter: one procedure for powers and
// voltages.

#include "errortexts.h"
#include "prefixedvalue.h"
#include "reflection.h"
#include "unittable.h"
#include "valuetext.h"
#include "vswrconverterprofile.h"

namespace {

constexpr UnitConversion kPowerRows[] = {Units::kDbm, Units::kDbw, Units::kWatt, Units::kBase};
constexpr UnitConversion kVoltageRows[] = {Units::kDbv, Units::kDbmicrovolt, Units::kVolt,
                                           Units::kBase};
constexpr UnitTable kPowerUnits(kPowerRows, Units::kBase);
constexpr UnitTable kVoltageUnits(kVoltageRows, Units::kBase);

/// A field that is read but was not the one finished: no message, 0 if it is a word.
double uncheckedValue(QString text)
{
    return parsePrefixedValue(text);
}

} // namespace

using Self = VswrConverterProfile;

const Self::Rows Self::kPowers = {
    {{&Self::pForward, &Self::setPForward},
     &Self::m_pForwardUnit,
     &Self::pForwardUnitChanged,
     kPowerUnits},
    {{&Self::pReflected, &Self::setPReflected},
     &Self::m_pReflectedUnit,
     &Self::pReflectedUnitChanged,
     kPowerUnits},
    {{&Self::pAbsorbed, &Self::setPAbsorbed},
     &Self::m_pAbsorbedUnit,
     &Self::pAbsorbedUnitChanged,
     kPowerUnits},
};

const Self::Rows Self::kVoltages = {
    {{&Self::vForward, &Self::setVForward},
     &Self::m_vForwardUnit,
     &Self::vForwardUnitChanged,
     kVoltageUnits},
    {{&Self::vReflected, &Self::setVReflected},
     &Self::m_vReflectedUnit,
     &Self::vReflectedUnitChanged,
     kVoltageUnits},
    {{&Self::vAbsorbed, &Self::setVAbsorbed},
     &Self::m_vAbsorbedUnit,
     &Self::vAbsorbedUnitChanged,
     kVoltageUnits},
};

void VswrConverterProfile::setPForwardUnit(int unit)
{
    setUnit(kPowers.forward, unit);
}

void VswrConverterProfile::setPReflectedUnit(int unit)
{
    setUnit(kPowers.reflected, unit);
}

void VswrConverterProfile::setPAbsorbedUnit(int unit)
{
    setUnit(kPowers.absorbed, unit);
}

void VswrConverterProfile::setVForwardUnit(int unit)
{
    setUnit(kVoltages.forward, unit);
}

void VswrConverterProfile::setVReflectedUnit(int unit)
{
    setUnit(kVoltages.reflected, unit);
}

void VswrConverterProfile::setVAbsorbedUnit(int unit)
{
    setUnit(kVoltages.absorbed, unit);
}

void VswrConverterProfile::calculateFromPForward()
{
    finishForward(kPowers);
}

void VswrConverterProfile::calculateFromPReflected()
{
    finishReflected(kPowers);
}

void VswrConverterProfile::calculateFromPAbsorbed()
{
    finishAbsorbed(kPowers);
}

void VswrConverterProfile::calculateFromVForward()
{
    finishForward(kVoltages);
}

void VswrConverterProfile::calculateFromVReflected()
{
    finishReflected(kVoltages);
}

void VswrConverterProfile::calculateFromVAbsorbed()
{
    finishAbsorbed(kVoltages);
}

void VswrConverterProfile::finishForward(const Rows &rows)
{
    const std::optional<double> forward = readEdited(rows.forward);
    if (!forward)
        return;
    if (!m_r2.isEmpty()) {
        const double reflected = *forward * reflectedShare();
        show(rows.reflected, reflected);
        show(rows.absorbed, *forward - reflected);
    } else if (isFilled(rows.reflected)) {
        show(rows.absorbed, *forward - valueOf(rows.reflected));
    } else if (isFilled(rows.absorbed)) {
        show(rows.reflected, *forward - valueOf(rows.absorbed));
    }
}

void VswrConverterProfile::finishReflected(const Rows &rows)
{
    const std::optional<double> reflected = readEdited(rows.reflected);
    if (!reflected)
        return;
    if (!m_r2.isEmpty()) {
        const double forward = *reflected / reflectedShare();
        show(rows.forward, forward);
        show(rows.absorbed, forward - *reflected);
    } else if (isFilled(rows.forward)) {
        show(rows.absorbed, valueOf(rows.forward) - *reflected);
    } else if (isFilled(rows.absorbed)) {
        show(rows.forward, valueOf(rows.absorbed) + *reflected);
    }
}

/// That a known reflection empties two rows, instead of solving them from the absorbed one, is
/// meant.
void VswrConverterProfile::finishAbsorbed(const Rows &rows)
{
    const std::optional<double> absorbed = readEdited(rows.absorbed);
    if (!absorbed)
        return;
    if (!m_r2.isEmpty()) {
        setText(rows.forward.field, QString());
        setText(rows.absorbed.field, QString());
    } else if (isFilled(rows.forward)) {
        show(rows.reflected, valueOf(rows.forward) - *absorbed);
    } else if (isFilled(rows.reflected)) {
        show(rows.forward, valueOf(rows.reflected) + *absorbed);
    }
}

/// The value of the row that was finished, in mW or mV; nothing if there is none to calculate with.
std::optional<double> VswrConverterProfile::readEdited(const Row &edited)
{
    if (!isFilled(edited))
        return std::nullopt;
    const std::optional<double> value = readPrefixedValue(text(edited.field));
    if (value)
        return edited.units.at(this->*edited.unit).toBase(*value);
    setText(edited.field, ErrorText::invalidInput());
    return std::nullopt;
}

/// In mW or mV.
double VswrConverterProfile::valueOf(const Row &row) const
{
    return row.units.at(this->*row.unit).toBase(uncheckedValue(text(row.field)));
}

void VswrConverterProfile::show(const Row &row, double baseValue)
{
    setText(row.field, generalText(row.units.at(this->*row.unit).fromBase(baseValue)));
}

bool VswrConverterProfile::isFilled(const Row &row) const
{
    return !text(row.field).isEmpty();
}

/// Reflected over forward, in both halves.
double VswrConverterProfile::reflectedShare() const
{
    return uncheckedValue(m_r2) / Reflection::kPercent;
}

/// The text is rewritten before the unit is stored, and no other row is calculated.
void VswrConverterProfile::setUnit(const Row &row, int unit)
{
    if (this->*row.unit == unit)
        return;
    if (isFilled(row))
        setText(row.field, generalText(row.units.at(unit).fromBase(valueOf(row))));
    assign(this->*row.unit, unit, row.unitChanged);
}
