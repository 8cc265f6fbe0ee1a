// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_WINDOWSYSTEM_H
#define TESTS_SUPPORT_WINDOWSYSTEM_H

#include <QApplication>
#include <QTest>
#include <QWidget>

/// Waits until @p window has the keyboard. QTest's function for this does not wait on Wayland,
/// because a window cannot ask for the keyboard there; the compositor gives it all the same.
inline bool waitForKeyboard(const QWidget &window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// Whether windows know where on the screen they are, and can put the pointer anywhere. On Wayland
/// both are the compositor's own business.
inline bool hasScreenPositions()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

#endif
