// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_UNITTABLE_H
#define PROFILES_UNITTABLE_H

#include "levels.h"

#include <cstddef>

/// How a number in one unit becomes one in the base unit of its quantity (mW for powers, mV RMS for
/// voltages), and back.
struct UnitConversion
{
    double (*toBase)(double);
    double (*fromBase)(double);
};

/**
 * The units of one selector, in its order. An index that names no unit is not an error: it stands
 * for the conversion that the table gives for all others.
 */
class UnitTable
{
public:
    template <std::size_t Count>
    constexpr UnitTable(const UnitConversion (&units)[Count], UnitConversion other)
        : m_units(units),
          m_count(static_cast<int>(Count)),
          m_other(other)
    {}

    constexpr const UnitConversion &at(int index) const
    {
        return index >= 0 && index < m_count ? m_units[index] : m_other;
    }

    /// The index of the last unit.
    constexpr int last() const { return m_count - 1; }

private:
    const UnitConversion *m_units;
    int m_count;
    UnitConversion m_other;
};

/// The units that the selectors offer.
namespace Units {

/// mW, mV, and the RMS value among the voltage modes.
constexpr UnitConversion kBase = {[](double value) { return value; },
                                  [](double value) {
                                      return value;
                                  }};
constexpr UnitConversion kDbm = {Levels::milliwattFromDbm, Levels::dbmFromMilliwatt};
constexpr UnitConversion kDbw = {Levels::milliwattFromDbw, Levels::dbwFromMilliwatt};
constexpr UnitConversion kWatt = {Levels::milliwattFromWatt, Levels::wattFromMilliwatt};
constexpr UnitConversion kMicrowatt = {Levels::milliwattFromMicrowatt,
                                       Levels::microwattFromMilliwatt};
constexpr UnitConversion kDbv = {Levels::millivoltFromDbv, Levels::dbvFromMillivolt};
constexpr UnitConversion kDbmicrovolt = {Levels::millivoltFromDbmicrovolt,
                                         Levels::dbmicrovoltFromMillivolt};
constexpr UnitConversion kDbu = {Levels::millivoltFromDbu, Levels::dbuFromMillivolt};
constexpr UnitConversion kVolt = {Levels::millivoltFromVolt, Levels::voltFromMillivolt};

} // namespace Units

#endif
