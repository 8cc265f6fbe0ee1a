// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_PI_H
#define VALUES_PI_H

namespace Dezimo {

/// The nearest double; the headers of C++17 have none, and M_PI is not there on every system.
constexpr double kPi = 3.14159265358979323846;

} // namespace Dezimo

#endif
