// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SYSINFO_SECTIONLINES_H
#define TESTS_SYSINFO_SECTIONLINES_H

#include "osinfo.h"

#include <QStringList>

/// Sections as lines that compare and print well: "[name]", then "key: value" for every entry.
inline QStringList sectionLines(const QVector<OSInfo::Section> &sections)
{
    QStringList lines;
    for (const OSInfo::Section &section : sections) {
        lines.append(QLatin1Char('[') + section.name + QLatin1Char(']'));
        for (const OSInfo::Entry &entry : section.entries)
            lines.append(entry.key + QLatin1String(": ") + entry.value);
    }
    return lines;
}

#endif
