// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_LEVELS_H
#define VALUES_LEVELS_H

/**
 * Conversions between levels and linear quantities. Powers are in mW, voltages in mV RMS, ratios
 * are plain numbers. Nothing is checked: zero gives a level of minus infinity, a negative quantity
 * one that is not a number.
 *
 * A level is 10 lg of a power ratio and 20 lg of a voltage ratio (IEC 60027-3).
 */
namespace Dezimo::Levels {

/// 0 dBW is 1 W, that is 30 dBm.
constexpr double kDbwInDbm = 30.0;
constexpr double kMilliPerUnit = 1000.0;

/// The voltages at 0 dB. dBu refers on purpose to 0.775 V, which is printed on equipment, and not
/// to the 0.7746 V that follow from 1 mW in 600 ohm.
constexpr double kDbvReferenceMillivolt = 1000.0;
constexpr double kDbmicrovoltReferenceMillivolt = 0.001;
constexpr double kDbuReferenceMillivolt = 775.0;

double powerRatioFromDb(double db);
double dbFromPowerRatio(double ratio);
double voltageRatioFromDb(double db);
double dbFromVoltageRatio(double ratio);

double milliwattFromDbm(double dbm);
double dbmFromMilliwatt(double milliwatt);
double milliwattFromDbw(double dbw);
double dbwFromMilliwatt(double milliwatt);
double dbmFromDbw(double dbw);
double dbwFromDbm(double dbm);

double millivoltFromDbv(double dbv);
double dbvFromMillivolt(double millivolt);
double millivoltFromDbmicrovolt(double dbmicrovolt);
double dbmicrovoltFromMillivolt(double millivolt);
double millivoltFromDbu(double dbu);
double dbuFromMillivolt(double millivolt);

/// P = V^2 / R. A resistance below zero gives a voltage that is not a number.
double millivoltFromMilliwatt(double milliwatt, double ohm);
double milliwattFromMillivolt(double millivolt, double ohm);

} // namespace Dezimo::Levels

#endif
