// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "levels.h"

#include <cmath>

namespace Dezimo::Levels {

namespace {

/// Computed with more digits than the result keeps, because the pow() of some C libraries is wrong
/// in the last ones: mingw-w64's by several units even for whole exponents. A limit such as
/// 1e-12 W = -90 dBm would lie on the other side then.
double powerOfTen(double exponent)
{
    return static_cast<double>(std::pow(10.0L, static_cast<long double>(exponent)));
}

} // namespace

double powerRatioFromDb(double db)
{
    return powerOfTen(db / 10.0);
}

double dbFromPowerRatio(double ratio)
{
    return 10.0 * std::log10(ratio);
}

double voltageRatioFromDb(double db)
{
    return powerOfTen(db / 20.0);
}

double dbFromVoltageRatio(double ratio)
{
    return 20.0 * std::log10(ratio);
}

double milliwattFromDbm(double dbm)
{
    return powerRatioFromDb(dbm);
}

double dbmFromMilliwatt(double milliwatt)
{
    return dbFromPowerRatio(milliwatt);
}

double milliwattFromDbw(double dbw)
{
    return milliwattFromDbm(dbmFromDbw(dbw));
}

double dbwFromMilliwatt(double milliwatt)
{
    return dbwFromDbm(dbmFromMilliwatt(milliwatt));
}

double dbmFromDbw(double dbw)
{
    return dbw + kDbwInDbm;
}

double dbwFromDbm(double dbm)
{
    return dbm - kDbwInDbm;
}

double millivoltFromDbv(double dbv)
{
    return voltageRatioFromDb(dbv) * kDbvReferenceMillivolt;
}

double dbvFromMillivolt(double millivolt)
{
    return dbFromVoltageRatio(millivolt / kDbvReferenceMillivolt);
}

double millivoltFromDbmicrovolt(double dbmicrovolt)
{
    return voltageRatioFromDb(dbmicrovolt) * kDbmicrovoltReferenceMillivolt;
}

double dbmicrovoltFromMillivolt(double millivolt)
{
    return dbFromVoltageRatio(millivolt / kDbmicrovoltReferenceMillivolt);
}

double millivoltFromDbu(double dbu)
{
    return voltageRatioFromDb(dbu) * kDbuReferenceMillivolt;
}

double dbuFromMillivolt(double millivolt)
{
    return dbFromVoltageRatio(millivolt / kDbuReferenceMillivolt);
}

double millivoltFromMilliwatt(double milliwatt, double ohm)
{
    return std::sqrt(milliwatt / kMilliPerUnit * ohm) * kMilliPerUnit;
}

double milliwattFromMillivolt(double millivolt, double ohm)
{
    const double volt = millivolt / kMilliPerUnit;
    return volt * volt / ohm * kMilliPerUnit;
}

} // namespace Dezimo::Levels
