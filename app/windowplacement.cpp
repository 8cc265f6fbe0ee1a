// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "windowplacement.h"

#include <algorithm>

namespace {

/// Whether two stretches have a pixel in common. Their ends are sums that may lie beyond int.
bool overlap(qint64 start, qint64 length, qint64 otherStart, qint64 otherLength)
{
    return start < otherStart + otherLength && otherStart < start + length;
}

/// The place nearest to @p wanted at which the whole stretch is on the screen. A stretch that is
/// longer than the screen begins where the screen does.
int nearestPlace(int wanted, int length, int screenStart, int screenLength)
{
    const qint64 last = qint64(screenStart) + screenLength - length;
    return int(std::max(qint64(screenStart), std::min(qint64(wanted), last)));
}

QPoint positionOn(const QRect &screen, const QPoint &position, const QSize &size)
{
    return {nearestPlace(position.x(), size.width(), screen.x(), screen.width()),
            nearestPlace(position.y(), size.height(), screen.y(), screen.height())};
}

} // namespace

QPoint reachablePosition(const QPoint &position, const QSize &size, const QVector<QRect> &screens)
{
    const auto isTouched = [&position, &size](const QRect &screen) {
        return overlap(position.x(), size.width(), screen.x(), screen.width()) &&
               overlap(position.y(), size.height(), screen.y(), screen.height());
    };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), isTouched))
        return position;

    const auto distance = [&position, &size](const QRect &screen) {
        const QPoint place = positionOn(screen, position, size);
        return std::abs(qint64(place.x()) - position.x()) +
               std::abs(qint64(place.y()) - position.y());
    };
    const auto nearest = std::min_element(
        screens.begin(), screens.end(),
        [&distance](const QRect &a, const QRect &b) { return distance(a) < distance(b); });
    return positionOn(*nearest, position, size);
}
