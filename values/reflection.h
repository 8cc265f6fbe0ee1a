// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_REFLECTION_H
#define VALUES_REFLECTION_H

/**
 * What one mismatched port is described by. All functions lead from or to the magnitude of the
 * reflection coefficient, a plain number; its square is in percent, losses are in dB. Nothing is
 * checked: a coefficient of 1 gives infinities, one above 1 a negative VSWR and a mismatch loss
 * that is not a number.
 */
namespace Dezimo::Reflection {

constexpr double kPercent = 100.0;

double fromVswr(double vswr);
double fromSquare(double percent);
double fromReturnLoss(double db);
double fromMismatchLoss(double db);

double vswr(double reflection);
double square(double reflection);
double returnLoss(double reflection);
double mismatchLoss(double reflection);

} // namespace Dezimo::Reflection

#endif
