// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_IDENTITY_H
#define APP_IDENTITY_H

#include <QString>

/**
 * Who the program is. The settings store is found by the organization and application names; the
 * version, the maker's domain and the identifier made from it come from the build configuration.
 */
namespace Identity {

QString productName();
QString version();

/// Gives the application object its names and version, the name of the desktop entry by which a
/// desktop finds the icon of its windows, and that icon for desktops that do not look for it.
void apply();

} // namespace Identity

#endif
