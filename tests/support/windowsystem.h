// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_WINDOWSYSTEM_H
#define TESTS_SUPPORT_WINDOWSYSTEM_H

#include <QApplication>
#include <QTest>
#include <QWidget>

/// Waits until @p window has the keyboard. On Wayland a window cannot ask for the keyboard, so
/// QTest's function does not wait there, although the compositor does give it.
inline bool waitForKeyboard(const QWidget &window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// Whether windows know where on the screen they are and can move the pointer. On Wayland only the
/// compositor can do both.
inline bool hasScreenPositions()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

#endif
