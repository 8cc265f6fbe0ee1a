// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_KELAPPLICATION_H
#define APP_KELAPPLICATION_H

#include "applicationtheme.h"

#include <QApplication>

/**
 * The application object. Its constructor brings everything that the window needs before it is
 * made: the fonts of the program, English as the default locale (numbers are written with a point
 * whatever the system's locale), and the style sheets of the bright theme. A font or style sheet
 * that cannot be loaded is skipped.
 *
 * A letter that is pressed together with Alt is a command and never typed. F1 closes menus and
 * lists of choices and goes to the window below them.
 */
class KelApplication final : public QApplication
{
    Q_OBJECT

public:
    KelApplication(int &argc, char **argv, bool flag);

    /// Builds the application-wide style sheet of @p theme and installs it.
    void installStyleSheet(ApplicationTheme theme);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Nothing depends on these.
    [[maybe_unused]] const bool m_flag;
    [[maybe_unused]] void *const m_reserved = nullptr;
};

#endif
