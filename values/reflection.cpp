// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "reflection.h"

#include "levels.h"

#include <cmath>

namespace Dezimo::Reflection {

double fromVswr(double vswr)
{
    return std::abs((vswr - 1.0) / (vswr + 1.0));
}

double fromSquare(double percent)
{
    return std::sqrt(percent / kPercent);
}

double fromReturnLoss(double db)
{
    return Levels::voltageRatioFromDb(-db);
}

double fromMismatchLoss(double db)
{
    return std::sqrt(1.0 - Levels::powerRatioFromDb(-db));
}

double vswr(double reflection)
{
    return (std::abs(reflection) + 1.0) / (1.0 - std::abs(reflection));
}

double square(double reflection)
{
    return reflection * reflection * kPercent;
}

double returnLoss(double reflection)
{
    return -Levels::dbFromVoltageRatio(reflection);
}

double mismatchLoss(double reflection)
{
    return -Levels::dbFromPowerRatio(1.0 - reflection * reflection);
}

} // namespace Dezimo::Reflection
