// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_MODULEPROFILE_H
#define PROFILES_MODULEPROFILE_H

#include "profile.h"

namespace Dezimo {

/// Base of the five models that calculate. The owner of a model tells it how many digits it shows.
class ModuleProfile : public Profile
{
    Q_OBJECT

public:
    static constexpr int kDefaultSignificantDigits = 3;

    using Profile::Profile;

    /// How many significant digits linear values are written with, 0 to 10; 0 counts as 1.
    int significantDigits() const { return m_significantDigits; }
    /// Applies from the next calculation; texts that are already shown stay.
    void setSignificantDigits(int digits) { m_significantDigits = digits; }

private:
    int m_significantDigits = kDefaultSignificantDigits;
};

} // namespace Dezimo

#endif
