// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_UNITS_H
#define VALUES_UNITS_H

#include "latin1.h"
#include "levels.h"

#include <cstddef>

namespace Dezimo {

/// How a number in one unit becomes one in the base unit of its quantity (mW for powers, mV RMS for
/// voltages), and back.
struct Unit
{
    QLatin1String symbol;
    double (*toBase)(double);
    double (*fromBase)(double);
};

/// Every unit of the program, one row each. Selectors, expressions and operands refer to these
/// rows, so that two units are the same if their addresses are.
namespace Units {

/// A linear unit is so many base units, or so many of it are one.
template <int factor>
double times(double value)
{
    return value * factor;
}
template <int divisor>
double over(double value)
{
    return value / divisor;
}

inline constexpr Unit kMilliwatt{latin1("mW"), times<1>, over<1>};
inline constexpr Unit kMicrowatt{latin1("\xB5W"), over<1000>, times<1000>};
inline constexpr Unit kWatt{latin1("W"), times<1000>, over<1000>};
inline constexpr Unit kDbm{latin1("dBm"), Levels::milliwattFromDbm, Levels::dbmFromMilliwatt};
inline constexpr Unit kDbw{latin1("dBW"), Levels::milliwattFromDbw, Levels::dbwFromMilliwatt};

inline constexpr Unit kMillivolt{latin1("mV"), times<1>, over<1>};
inline constexpr Unit kVolt{latin1("V"), times<1000>, over<1000>};
inline constexpr Unit kDbv{latin1("dBV"), Levels::millivoltFromDbv, Levels::dbvFromMillivolt};
inline constexpr Unit kDbmicrovolt{latin1("dB\xB5V"), Levels::millivoltFromDbmicrovolt,
                                   Levels::dbmicrovoltFromMillivolt};
inline constexpr Unit kDbu{latin1("dBu"), Levels::millivoltFromDbu, Levels::dbuFromMillivolt};

/// A ratio and a plain number have no base unit but themselves.
inline constexpr Unit kDb{latin1("dB"), times<1>, over<1>};
inline constexpr Unit kNone{latin1(""), times<1>, over<1>};

} // namespace Units

/**
 * The units of one selector, in its order. An index that names no unit is not an error: it stands
 * for the unit that the selector gives for all others.
 */
class UnitSelector
{
public:
    template <std::size_t count>
    constexpr UnitSelector(const Unit *const (&units)[count], const Unit &other)
        : m_units(units),
          m_last(int(count) - 1),
          m_other(other)
    {}

    constexpr const Unit &at(int index) const
    {
        return index >= 0 && index <= m_last ? *m_units[index] : m_other;
    }
    /// The index of the last unit.
    constexpr int last() const { return m_last; }

private:
    const Unit *const *m_units;
    int m_last;
    const Unit &m_other;
};

} // namespace Dezimo

#endif
