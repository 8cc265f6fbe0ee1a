// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_LATIN1_H
#define VALUES_LATIN1_H

#include <QLatin1String>

#include <cstddef>

namespace Dezimo {

/// A literal as a constant. Not every compiler would count its characters while it compiles.
template <std::size_t size>
constexpr QLatin1String latin1(const char (&literal)[size])
{
    return QLatin1String(literal, int(size) - 1);
}

} // namespace Dezimo

#endif
