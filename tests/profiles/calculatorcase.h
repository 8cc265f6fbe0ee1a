// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_CALCULATORCASE_H
#define TESTS_PROFILES_CALCULATORCASE_H

#include <QMap>
#include <QString>

#include <initializer_list>

namespace Dezimo {
class ExpressionProfile;
}

/// What a person types into an expression calculator, and what is shown then.
struct CalculatorCase
{
    const char *tag;
    const char *input;
    int mode;
    int chosenUnit;
    const char *output;
    int shownUnit;
    /// The texts of the units that are offered, in the order of the selector; "none" is the plain
    /// number's.
    const char *offered;
    /// Of the voltage calculator, in degrees.
    double phase = 0.0;
};

/// The valid units of a voltage calculator that offers them all.
QMap<int, bool> allVoltageUnits();

/// The units that @p calculator offers, as in CalculatorCase.
QString offeredUnits(const Dezimo::ExpressionProfile &calculator);

/// What a person does: types @p input and asks for the result.
void calculate(Dezimo::ExpressionProfile &calculator, const char *input);

/// Makes the columns of checkCalculatorCase() and "phase", and one row of each case.
void addCalculatorCases(std::initializer_list<CalculatorCase> cases);

/// Calculates the present row with a fresh @p calculator, whose units are all offered at first, and
/// compares output, unit and offered units.
void checkCalculatorCase(Dezimo::ExpressionProfile &calculator, int decimalPlaces);

#endif
