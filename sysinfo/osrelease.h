// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_OSRELEASE_H
#define SYSINFO_OSRELEASE_H

#include <QString>

/**
 * Reads os-release files: lines KEY=value, where the value may stand in single quotes or in double
 * quotes with backslash escapes. A line that is not well-formed is ignored, and so is a value that
 * is not printable UTF-8 text. If a key has several lines, the last one holds.
 */
namespace OsRelease {

/// A real file has less than 1 KiB. Of a longer one only this much is read.
constexpr int kLongestFile = 64 * 1024;

/// The value of @p key in @p text, the content of an os-release file; empty if it is not there.
QString value(const QByteArray &text, const QByteArray &key);

/// The system's name as people know it ("PRETTY_NAME", which has the version, else "NAME"). Empty
/// if the file cannot be read or has no name.
QString systemName(const QString &path);

} // namespace OsRelease

#endif
