// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "soundstore.h"

#include "initext.h"
#include "mainprofile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryFile>

namespace {

/// Files beyond this are not even looked at, so that no file can exhaust the memory.
constexpr qint64 kLargestFile = qint64(256) * 1024 * 1024;

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
        if (sound.size() == text.size())
            m_fileName = fileName;
        else if (m_copy.open() && m_copy.write(sound) == sound.size() && m_copy.flush())
            m_fileName = m_copy.fileName();
    }

    /// The file itself if it is sound, else a copy of what is sound in it. If that cannot be made,
    /// it is a file that does not exist.
    QString fileName() const { return m_fileName; }

private:
    QString m_fileName = QStringLiteral(":/no such store");
    QTemporaryFile m_copy;
};

} // namespace

void SoundStore::readFile(const QString &fileName, const Load &load)
{
    const Substitute substitute(fileName);
    QSettings file(substitute.fileName(), QSettings::IniFormat);
    load(file);
}

void SoundStore::read(QSettings &store, const Load &load)
{
    const Substitute substitute(store.fileName());
    if (substitute.fileName() == store.fileName()) {
        load(store);
        return;
    }
    QSettings file(substitute.fileName(), QSettings::IniFormat);
    load(file);
}

bool SoundStore::makeWritable(const QString &fileName)
{
    if (!canBeLookedAt(fileName))
        return false;
    const QByteArray text = contents(fileName);
    const QByteArray sound = IniText::sound(text);
    return sound.size() == text.size() || (keepBeside(fileName) && replace(fileName, sound));
}
