// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Drives both expression calculators by the lines that EditScript reads. It calculates after each
// line, as the views do after each key.

#include "dbmcalculatorprofile.h"
#include "editscript.h"
#include "errortexts.h"
#include "expressiontext.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "require.h"
#include "voltagecalculatorprofile.h"

using namespace Dezimo;

namespace {

/// Sets the input of @p profile, which stays set, and returns the results.
QStringList resultsWith(ExpressionProfile &profile, const QString &input)
{
    profile.setInput(input);
    profile.calculate();
    return propertyLines(profile, {{"input", ""}});
}

QString spaced(const QString &input)
{
    QString text;
    for (const QChar character : input)
        text += QString(character) + QLatin1Char(' ');
    return text;
}

/// NAN is a result here: infinity minus infinity.
bool isErrorText(const QString &output)
{
    return output != ErrorText::kNotANumber && ErrorText::all().contains(output);
}

bool isChain(const QString &cleaned)
{
    return !cleaned.contains(QLatin1Char('(')) && !cleaned.contains(QLatin1Char(')')) &&
           !ExpressionText::operatorPositions(cleaned).empty();
}

void requireSteadyResults(ExpressionProfile &profile)
{
    const QString input = profile.input();
    const QStringList results = propertyLines(profile, {{"input", ""}});
    require(isResult(profile.output()), "the output is a result", profile.output());
    require(profile.reason().isEmpty() != isErrorText(profile.output()),
            "an error text has a reason, and a result has none", input);
    require(resultsWith(profile, input) == results, "calculated twice it is the same", input);
    require(resultsWith(profile, spaced(input)) == results, "blanks do not count", input);
    const QString cleaned = ExpressionText::cleaned(input);
    if (isChain(cleaned)) {
        require(resultsWith(profile, QLatin1Char('(') + cleaned + QLatin1Char(')')) == results,
                "brackets around the whole do not count", input);
    }
    profile.setInput(input);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    requireSilence();
    MainProfile::instance().setDecimalPlaces(MainProfile::kDefaultDecimalPlaces);
    DbmCalculatorProfile powers;
    VoltageCalculatorProfile voltages;
    EditScript script({&MainProfile::instance(), &powers, &voltages});
    const QStringList lines = linesOf(data, size);
    for (const QString &line : lines) {
        script.run(line);
        script.run(QStringLiteral("calculate"));
    }
    requireSteadyResults(powers);
    requireSteadyResults(voltages);
    return 0;
}
