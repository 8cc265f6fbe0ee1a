// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "checkedsettings.h"

#include "iniformat.h"
#include "settingstext.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

using namespace Dezimo;

namespace {

/// Files beyond this are not even looked at, so that no file can exhaust the memory.
constexpr qint64 kMebibyte = qint64(1024) * 1024;
constexpr qint64 kLargestFile = 256 * kMebibyte;

/// Where QSettings keeps a user's store, if that is a file at all. QSettings cannot be asked: it
/// would read the file first, and wait if it is a pipe.
QString nativeFile(const QString &store)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1Char('/') + store + QStringLiteral(".conf");
}

QString settingsFile()
{
    return nativeFile(QCoreApplication::organizationName() + QLatin1Char('/') +
                      QCoreApplication::applicationName());
}

/// QSettings looks there for what the settings lack.
QString organizationFile()
{
    return nativeFile(QCoreApplication::organizationName());
}

bool canBeLookedAt(const QString &fileName)
{
    const QFileInfo file(fileName);
    return !file.exists() || file.isDir() || (file.isFile() && file.size() <= kLargestFile);
}

/// Empty if there is nothing to read, which is an empty store to QSettings too.
QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    const bool isReadable = QFileInfo(fileName).isFile() && file.open(QIODevice::ReadOnly);
    return isReadable ? file.read(file.size()) : QByteArray();
}

bool keepBeside(const QString &fileName)
{
    const QString kept = fileName + QStringLiteral(".damaged");
    QFile::remove(kept);
    return QFile::copy(fileName, kept);
}

bool replace(const QString &fileName, const QByteArray &text)
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

/// The name of a file that can be read in place of another one.
class Substitute
{
public:
    Substitute(const QString &fileName, const QByteArrayList &groups)
    {
        if (!canBeLookedAt(fileName))
            return;
        const QByteArray text = contents(fileName);
        const QByteArray harmless = SettingsText::harmless(text, groups);
        m_isOriginal = harmless.size() == text.size();
        if (m_isOriginal)
            m_fileName = fileName;
        else if (m_copy.open() && m_copy.write(harmless) == harmless.size() && m_copy.flush())
            m_fileName = m_copy.fileName();
    }

    /// The file itself if it is harmless, else a copy of what is harmless in it. If that cannot be
    /// made, it is a file that does not exist.
    QString fileName() const { return m_fileName; }
    bool isOriginal() const { return m_isOriginal; }

private:
    QString m_fileName = QStringLiteral(":/no such store");
    QTemporaryFile m_copy;
    bool m_isOriginal = false;
};

bool isHarmless(const QString &fileName, const QByteArrayList &groups)
{
    return Substitute(fileName, groups).isOriginal();
}

QSettings applicationSettings()
{
    return QSettings(IniFormat::ofSettings(), QSettings::UserScope,
                     QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

} // namespace

void CheckedSettings::readFile(const QString &fileName, const QByteArrayList &groups,
                               const Use &load)
{
    const Substitute substitute(fileName, groups);
    QSettings file(substitute.fileName(), IniFormat::ofFiles());
    load(file);
}

QString CheckedSettings::whyUnreadable(const QString &fileName)
{
    const QFileInfo info(fileName);
    if (info.isDir())
        return QStringLiteral("It is a folder");
    if (info.isFile() && info.size() > kLargestFile)
        return QStringLiteral("It is larger than %1 MiB").arg(kLargestFile / kMebibyte);
    if (info.exists() && !info.isFile())
        return QStringLiteral("It is not a regular file");
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

void CheckedSettings::readSettings(const QByteArrayList &groups, const Use &load)
{
    if (!isHarmless(organizationFile(), groups) || !isHarmless(settingsFile(), groups)) {
        readFile(settingsFile(), groups, load);
        return;
    }
    QSettings settings = applicationSettings();
    load(settings);
}

void CheckedSettings::readDefaults(const QByteArrayList &groups, const Use &load)
{
    const QString organization = QStringLiteral("none");
    if (!isHarmless(nativeFile(organization), groups)) {
        readFile(nativeFile(organization), groups, load);
        return;
    }
    QSettings defaults(IniFormat::ofSettings(), QSettings::UserScope, organization);
    load(defaults);
}

bool CheckedSettings::makeWritable(const QString &fileName)
{
    if (!canBeLookedAt(fileName))
        return false;
    const QByteArray text = contents(fileName);
    const QByteArray harmless = SettingsText::harmless(text);
    return harmless.size() == text.size() || (keepBeside(fileName) && replace(fileName, harmless));
}

/// The organization's store is not written, but read with the other one, and by some formats whole.
void CheckedSettings::writeSettings(const Use &save)
{
    if (!makeWritable(settingsFile()))
        return;
    if (!isHarmless(organizationFile(), {})) {
        QSettings file(settingsFile(), IniFormat::ofSettings());
        save(file);
        return;
    }
    QSettings settings = applicationSettings();
    save(settings);
}
