// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_DBCONVERTERCASE_H
#define TESTS_PROFILES_DBCONVERTERCASE_H

#include "propertyvalues.h"

/// What the four fields of one half of the dB converter read.
struct DbFields
{
    const char *first;
    const char *second;
    const char *ratio;
    const char *db;
};

/// The property names and run codes of the powers or of the voltages.
struct DbHalf
{
    const char *name;
    DbFields properties;
    const char *latestRun;
    DbFields calculations;
    int operandRun;
    int secondGuard;
    int ratioRun;
    int dbRun;
};

constexpr DbHalf kPowerHalf{
    "powers",
    {"p1", "p2", "pRatio", "pDb"},
    "pLatestRun",
    {"calculateFromP1", "calculateFromP2", "calculateFromPRatio", "calculateFromPDb"},
    1,
    2,
    5,
    6,
};

constexpr DbHalf kVoltageHalf{
    "voltages",
    {"v1", "v2", "vRatio", "vDb"},
    "vLatestRun",
    {"calculateFromV1", "calculateFromV2", "calculateFromVRatio", "calculateFromVDb"},
    3,
    4,
    7,
    8,
};

/// The fields of @p half as properties to set or to expect.
PropertyValues valuesOf(const DbHalf &half, const DbFields &fields);

/// Makes the columns of checkDbCase().
void addDbColumns();

/// Two rows, one for each half: what its fields read before a calculation and after it.
void addDbCase(const char *tag, const DbFields &given, const DbFields &powers,
               const DbFields &voltages, int decimalPlaces = 3);

/// Without a calculation of decibels, both halves read the same.
void addDbCase(const char *tag, const DbFields &given, const DbFields &expected,
               int decimalPlaces = 3);

/// Runs @p calculation of the present row's half on a fresh model and compares all its properties.
/// The other half must not change at all, and the latest run must be @p run.
void checkDbCase(const char *DbFields::*calculation, int DbHalf::*run);

#endif
