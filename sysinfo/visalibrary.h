// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_VISALIBRARY_H
#define SYSINFO_VISALIBRARY_H

#include <QString>
#include <QStringList>

/**
 * An installed VISA library, known by its file name: "libvisa.so.7.2.0" is version 7.2.0 of
 * "libvisa".
 */
struct VisaLibrary
{
    /// Both are empty without a library. The version alone is empty if no file name has one.
    QString name;
    QString version;

    /// The highest version among the names of files in one folder.
    static VisaLibrary among(const QStringList &fileNames);
    /// The highest version in the first of @p folders that has any. It reads only file names.
    static VisaLibrary find(const QStringList &folders);
    /// Where today's systems install libraries, the program's own architecture first.
    static QStringList usualFolders();
};

#endif
