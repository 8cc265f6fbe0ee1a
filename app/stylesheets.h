// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_STYLESHEETS_H
#define APP_STYLESHEETS_H

#include "applicationtheme.h"

#include <QString>

#include <optional>

/**
 * Style sheets are Latin-1 text up to the first zero byte. A file that cannot be opened is no
 * error: it contributes nothing.
 */
namespace StyleSheets {

/// The text of one file, or nothing if it cannot be opened.
std::optional<QString> read(const QString &fileName);

/// All "*.qss" entries of @p folder for @p theme, one after the other in the order of their names
/// (ignoring case): those ending in the theme's suffix, and those with neither theme's.
QString combined(const QString &folder, ApplicationTheme theme);

} // namespace StyleSheets

#endif
