// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Drives the three converters through sequences of edits and calculations by the lines that
// EditScript reads. If several converters have the name in a line, the line goes to all of them.

#include "dbconverterprofile.h"
#include "editscript.h"
#include "mainprofile.h"
#include "require.h"
#include "unitconverterprofile.h"
#include "vswrconverterprofile.h"

using namespace Dezimo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    requireSilence();
    MainProfile::instance().setDecimalPlaces(MainProfile::kDefaultDecimalPlaces);
    UnitConverterProfile units;
    DbConverterProfile ratios;
    VswrConverterProfile reflections;
    EditScript script({&MainProfile::instance(), &units, &ratios, &reflections});
    const QStringList lines = linesOf(data, size);
    for (const QString &line : lines)
        script.run(line);
    return 0;
}
