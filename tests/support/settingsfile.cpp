// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "settingsfile.h"

#include "iniformat.h"
#include "settingstext.h"

#include <QFile>

using namespace Dezimo;

namespace {

QString storeIn(const QTemporaryDir &folder)
{
    return folder.filePath(QStringLiteral("store.dezimo"));
}

} // namespace

SettingsFile::SettingsFile() : m_settings(storeIn(m_folder), IniFormat::ofFiles()) {}

SettingsFile::SettingsFile(const QByteArray &text) : m_settings(written(text), IniFormat::ofFiles())
{}

QByteArray SettingsFile::text()
{
    m_settings.sync();
    QFile file(m_settings.fileName());
    return file.open(QIODevice::ReadOnly) ? SettingsText::arranged(file.readAll()) : QByteArray();
}

QStringList SettingsFile::lines()
{
    QStringList lines = QString::fromUtf8(text()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

/// Writes @p text into the store's file and returns the file's name.
QString SettingsFile::written(const QByteArray &text) const
{
    QFile file(storeIn(m_folder));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}
