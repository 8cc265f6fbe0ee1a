// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainwindowcase.h"
#include "windowsystem.h"

#include <QSettings>
#include <QTest>

void MainWindowCase::init()
{
    QSettings settings;
    settings.clear();
    m_profile.loadSettings(settings);
}

void MainWindowCase::cleanup()
{
    m_window.reset();
}

void MainWindowCase::openWindow()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(waitForKeyboard(*m_window));
}

void MainWindowCase::store(const char *key, const QVariant &value)
{
    QSettings settings;
    settings.setValue(QLatin1String("MainProfile/") + QLatin1String(key), value);
}
