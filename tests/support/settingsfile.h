// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_SETTINGSFILE_H
#define TESTS_SUPPORT_SETTINGSFILE_H

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

/// A settings store in an INI file of its own, removed at the end.
class SettingsFile
{
public:
    /// An empty store.
    SettingsFile();
    /// A store that holds what a file with the bytes of @p text says.
    explicit SettingsFile(const QByteArray &text);

    QSettings &settings() { return m_settings; }
    QString fileName() const { return m_settings.fileName(); }
    /// The text of the file as it is on every system.
    QByteArray text();
    /// The lines of the file, sorted: the store keeps no order of its own.
    QStringList lines();

private:
    QString written(const QByteArray &text) const;

    QTemporaryDir m_folder;
    QSettings m_settings;
};

#endif
