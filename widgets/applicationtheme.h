// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_APPLICATIONTHEME_H
#define WIDGETS_APPLICATIONTHEME_H

#include <QString>

/**
 * The two looks of the program. The names of style sheets and icons contain the theme's word, by
 * which the program finds them.
 */
enum ApplicationTheme { Bright = 0, Dark = 1 };

/// "bright" or "dark": the word in the names of style sheets, icon folders and icons.
inline QString themeWord(ApplicationTheme theme)
{
    return theme == Dark ? QStringLiteral("dark") : QStringLiteral("bright");
}

#endif
