// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_SETTINGSFILE_H
#define TESTS_SUPPORT_SETTINGSFILE_H

#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

/// An empty settings store in an INI file of its own, removed at the end.
class SettingsFile
{
public:
    SettingsFile();

    QSettings &settings() { return m_settings; }
    QString fileName() const { return m_settings.fileName(); }
    /// The lines of the file, sorted: the store keeps no order of its own.
    QStringList lines();

private:
    QTemporaryDir m_folder;
    QSettings m_settings;
};

#endif
