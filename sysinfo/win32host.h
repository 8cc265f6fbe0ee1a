// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_WIN32HOST_H
#define SYSINFO_WIN32HOST_H

#include "windowshost.h"

/**
 * Answers from the running Windows, through the wide-character functions only. What others wrote
 * (registry values, version resources) is never trusted: a value of another type, a text without
 * its terminator or a resource that points outside itself counts as missing or is cut.
 */
class Win32Host final : public WindowsHost
{
public:
    QString registryText(Hive hive, const QString &key, const QString &value) const override;
    std::optional<std::uint32_t> registryNumber(Hive hive, const QString &key,
                                                const QString &value) const override;
    QString versionField(const QString &path, VersionField field) const override;
    std::vector<QString> findFiles(const QString &pattern) const override;
    Membership administrators() const override;
    QString systemFolder() const override;
    QString windowsFolder() const override;
};

#endif
