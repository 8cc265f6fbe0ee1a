// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_OSRELEASE_H
#define SYSINFO_OSRELEASE_H

#include <QString>

/**
 * Reads os-release files: lines KEY=value, where the value may stand in single quotes or in double
 * quotes with backslash escapes. A line that is not well-formed, and a value that is not printable
 * UTF-8 text, counts as not there. Of several lines of one key the last one holds.
 */
namespace OsRelease {

/// Of a longer file only the beginning is read. A real one has less than 1 KiB.
constexpr int kLongestFile = 64 * 1024;

/// The value of @p key in @p text, the content of an os-release file; empty if it is not there.
QString value(const QByteArray &text, const QByteArray &key);

/// The system's name for people, with its version where the file tells it ("PRETTY_NAME", else
/// "NAME"). Empty if the file cannot be read or has no name.
QString systemName(const QString &path);

} // namespace OsRelease

#endif
