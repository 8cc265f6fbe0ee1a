// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_CALCULATORCASE_H
#define TESTS_PROFILES_CALCULATORCASE_H

#include "moduleprofile.h"

#include <QMap>
#include <QString>

namespace Dezimo {
class ExpressionProfile;
}

/**
 * Rows of one mode in the table of an expression calculator: what a person types and what the
 * calculator then shows. row("two powers: the mean", "10mW+2mW", "6 mW").
 *
 * The result is a number with its unit, or an error text with the unit beside it. A plain number
 * has no unit.
 */
class CalculatorRows
{
public:
    /// @p phase is that of the voltage calculator, in degrees.
    explicit CalculatorRows(int mode, double phase = 0.0) : m_mode(mode), m_phase(phase) {}

    /// For a result in the chosen unit. @p offered are the texts of the units that the calculator
    /// then offers, if these are not the usual ones.
    void operator()(const char *tag, const char *input, const char *result,
                    const char *offered = "") const;
    /// For a result in another unit than the chosen one.
    void operator()(const char *tag, const char *input, const char *result, int chosen,
                    const char *offered = "") const;

private:
    int m_mode;
    double m_phase;
};

/// The valid units of a voltage calculator that offers them all.
QMap<int, bool> allVoltageUnits();

/// The texts of the units that @p calculator offers, in the order of the selector. A plain number
/// has the unit "none".
QString offeredUnits(const Dezimo::ExpressionProfile &calculator);

/// What a person does: types @p input and asks for the result.
void calculate(Dezimo::ExpressionProfile &calculator, const char *input);

/// Begins the table of checkCalculatorCase().
void addCalculatorColumns();

/// Calculates the present row with a fresh @p calculator that offers all units at first. Compares
/// output, unit and offered units.
void checkCalculatorCase(Dezimo::ExpressionProfile &calculator,
                         int digits = Dezimo::ModuleProfile::kDefaultSignificantDigits);

template <typename Calculator>
void checkCalculatorCase(int digits = Dezimo::ModuleProfile::kDefaultSignificantDigits)
{
    Calculator calculator;
    checkCalculatorCase(calculator, digits);
}

#endif
