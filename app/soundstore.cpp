// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "soundstore.h"

#include "initext.h"
#include "mainprofile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

/// Files beyond this are not even looked at, so that no file can exhaust the memory.
constexpr qint64 kMebibyte = qint64(1024) * 1024;
constexpr qint64 kLargestFile = 256 * kMebibyte;

/// Where QSettings keeps a user's store, if that is a file at all: asked itself, it would read the
/// file first, and wait if it is a pipe.
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

/// Nothing where there is nothing to read; to QSettings that is an empty store too.
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

/// Each profile stores a group named after its class. No other is read, be there a million of them.
QByteArrayList storedGroups()
{
    QByteArrayList groups{MainProfile::staticMetaObject.className()};
    for (const Profile *module : MainProfile::instance().modules())
        groups += module->metaObject()->className();
    return groups;
}

/// The name of a file that can be read in place of another one.
class Substitute
{
public:
    explicit Substitute(const QString &fileName)
    {
        if (!canBeLookedAt(fileName))
            return;
        const QByteArray text = contents(fileName);
        const QByteArray sound = IniText::sound(text, storedGroups());
        m_isOriginal = sound.size() == text.size();
        if (m_isOriginal)
            m_fileName = fileName;
        else if (m_copy.open() && m_copy.write(sound) == sound.size() && m_copy.flush())
            m_fileName = m_copy.fileName();
    }

    /// The file itself if it is sound, else a copy of what is sound in it. If that cannot be made,
    /// it is a file that does not exist.
    QString fileName() const { return m_fileName; }
    bool isOriginal() const { return m_isOriginal; }

private:
    QString m_fileName = QStringLiteral(":/no such store");
    QTemporaryFile m_copy;
    bool m_isOriginal = false;
};

bool isSound(const QString &fileName)
{
    return Substitute(fileName).isOriginal();
}

} // namespace

void SoundStore::readFile(const QString &fileName, const Use &load)
{
    const Substitute substitute(fileName);
    QSettings file(substitute.fileName(), QSettings::IniFormat);
    load(file);
}

QString SoundStore::whyUnreadable(const QString &fileName)
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

void SoundStore::readSettings(const Use &load)
{
    if (!isSound(organizationFile()) || !isSound(settingsFile())) {
        readFile(settingsFile(), load);
        return;
    }
    QSettings settings;
    load(settings);
}

void SoundStore::readDefaults(const Use &load)
{
    const QString organization = QStringLiteral("none");
    if (!isSound(nativeFile(organization))) {
        readFile(nativeFile(organization), load);
        return;
    }
    QSettings defaults(organization, QString());
    load(defaults);
}

bool SoundStore::makeWritable(const QString &fileName)
{
    if (!canBeLookedAt(fileName))
        return false;
    const QByteArray text = contents(fileName);
    const QByteArray sound = IniText::sound(text);
    return sound.size() == text.size() || (keepBeside(fileName) && replace(fileName, sound));
}

void SoundStore::writeSettings(const Use &save)
{
    if (!canBeLookedAt(organizationFile()) || !makeWritable(settingsFile()))
        return;
    QSettings settings;
    save(settings);
}
