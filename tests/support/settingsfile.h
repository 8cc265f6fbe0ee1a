// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_SETTINGSFILE_H
#define TESTS_SUPPORT_SETTINGSFILE_H

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

/// A settings store in an INI file of its own, which is removed at the end.
class SettingsFile
{
public:
    /// An empty store.
    SettingsFile();
    /// A store whose file has the bytes of @p text.
    explicit SettingsFile(const QByteArray &text);

    QSettings &settings() { return m_settings; }
    QString fileName() const { return m_settings.fileName(); }
    /// The text of the file, with the order and the line ends that are the same on every system.
    QByteArray text();
    /// The lines of the file. They are sorted, because the store keeps no order.
    QStringList lines();

private:
    QString written(const QByteArray &text) const;

    QTemporaryDir m_folder;
    QSettings m_settings;
};

#endif
