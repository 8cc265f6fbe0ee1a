// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_LATEGUIDE_H
#define APP_LATEGUIDE_H

#include "applicationtheme.h"

#include <memory>

class KelGuideWindow;
class QSettings;

/**
 * The guide of the program. Its window is made when it is first asked for, so that starting costs
 * nothing. The window's size has a group of its own in the application settings, which is there
 * once the guide has been opened.
 */
class LateGuide final
{
public:
    LateGuide();
    ~LateGuide();

    /// Shows the chapter on the module in that row of the list. Below zero it is the beginning.
    void openAtModule(int row);
    void close();
    void setTheme(ApplicationTheme theme);
    /// Writes nothing if the guide has not been opened.
    void saveSettings(QSettings &store) const;

private:
    void makeWindow();

    std::unique_ptr<KelGuideWindow> m_window;
    ApplicationTheme m_theme = Bright;
};

#endif
