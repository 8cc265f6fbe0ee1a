// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_COLORCONTRAST_H
#define TESTS_SUPPORT_COLORCONTRAST_H

#include <QColor>

#include <algorithm>
#include <cmath>

/// The contrast ratio of two colors by the Web Content Accessibility Guidelines 2.1, from 1 to 21.
namespace ColorContrast {

/// The relative luminance of sRGB, as the guidelines define it.
inline double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

inline double ratio(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace ColorContrast

#endif
