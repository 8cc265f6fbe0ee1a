// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "visalibrary.h"

#include <QDir>
#include <QRegularExpression>
#include <QVersionNumber>

namespace {

VisaLibrary findIn(const QString &folder)
{
    return VisaLibrary::among(
        QDir(folder).entryList({QStringLiteral("libvisa.so*")}, QDir::Files, QDir::Name));
}

} // namespace

VisaLibrary VisaLibrary::among(const QStringList &fileNames)
{
    static const QRegularExpression fileName(
        QStringLiteral("\\A(libvisa)\\.so(?:\\.([0-9]{1,9}(?:\\.[0-9]{1,9}){0,3}))?\\z"));
    VisaLibrary best;
    for (const QString &name : fileNames) {
        const QRegularExpressionMatch match = fileName.match(name);
        if (!match.hasMatch())
            continue;
        best.name = match.captured(1);
        const QString version = match.captured(2);
        if (QVersionNumber::fromString(best.version) < QVersionNumber::fromString(version))
            best.version = version;
    }
    return best;
}

VisaLibrary VisaLibrary::find(const QStringList &folders)
{
    for (const QString &folder : folders) {
        VisaLibrary library = findIn(folder);
        if (!library.name.isEmpty())
            return library;
    }
    return VisaLibrary();
}

QStringList VisaLibrary::usualFolders()
{
    const QString libraries = QStringLiteral("/usr/lib");
    QStringList folders;
    // A system may have several architectures. The program can only use libraries of its own.
    const QString own = QStringLiteral(DEZIMO_LIBRARY_ARCHITECTURE);
    if (!own.isEmpty())
        folders.append(libraries + QLatin1Char('/') + own);
    folders += {
        QStringLiteral("/usr/local/vxipnp/linux/lib64"),
        QStringLiteral("/usr/local/lib64"),
        QStringLiteral("/usr/local/lib"),
        QStringLiteral("/usr/lib64"),
        libraries,
    };
    const QStringList names =
        QDir(libraries).entryList({QStringLiteral("*-linux-gnu*")}, QDir::Dirs, QDir::Name);
    for (const QString &name : names) {
        if (name != own)
            folders.append(libraries + QLatin1Char('/') + name);
    }
    return folders;
}
