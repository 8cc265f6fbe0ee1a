// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "windowplacement.h"

#include <algorithm>

namespace {

/// The top-left position nearest to the window's own at which it lies on @p screen; a window larger
/// than the screen keeps its top-left corner there.
QPoint positionOn(const QRect &screen, const QRect &window)
{
    const auto clamp = [](int wanted, int low, int high) {
        return std::max(low, std::min(wanted, high));
    };
    return {clamp(window.x(), screen.x(), screen.x() + screen.width() - window.width()),
            clamp(window.y(), screen.y(), screen.y() + screen.height() - window.height())};
}

} // namespace

QPoint reachablePosition(const QRect &window, const QVector<QRect> &screens)
{
    const auto isTouched = [&window](const QRect &screen) {
        return screen.intersects(window);
    };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), isTouched))
        return window.topLeft();

    const auto distance = [&window](const QRect &screen) {
        const QPoint way = positionOn(screen, window) - window.topLeft();
        return std::abs(qint64(way.x())) + std::abs(qint64(way.y()));
    };
    const auto nearest = std::min_element(
        screens.begin(), screens.end(),
        [&distance](const QRect &a, const QRect &b) { return distance(a) < distance(b); });
    return positionOn(*nearest, window);
}
