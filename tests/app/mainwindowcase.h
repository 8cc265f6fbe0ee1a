// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_MAINWINDOWCASE_H
#define TESTS_APP_MAINWINDOWCASE_H

#include "mainprofile.h"
#include "mainwindow.h"

#include <QVariant>

#include <memory>

/**
 * A test of the main window. Before each test function the settings are empty and the root profile
 * holds its defaults. After it the window is gone.
 */
class MainWindowCase : public QObject
{
    Q_OBJECT

protected:
    template <typename Object = QWidget>
    Object *child(const char *name) const
    {
        return m_window->findChild<Object *>(QLatin1String(name));
    }
    /// Makes the window, shows it and waits until it has the keyboard.
    void openWindow();
    /// Puts a value into the window's group of the settings, which the next window reads.
    static void store(const char *key, const QVariant &value);

    Dezimo::MainProfile &m_profile = Dezimo::MainProfile::instance();
    std::unique_ptr<MainWindow> m_window;

private Q_SLOTS:
    void init();
    void cleanup();
};

#endif
