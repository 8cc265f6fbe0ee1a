// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "settingsfile.h"

#include <QFile>

SettingsFile::SettingsFile()
    : m_settings(m_folder.filePath(QStringLiteral("store.dezimo")), QSettings::IniFormat)
{}

QStringList SettingsFile::lines()
{
    m_settings.sync();
    QFile file(m_settings.fileName());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines =
        QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}
