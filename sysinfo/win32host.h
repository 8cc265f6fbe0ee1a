// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_WIN32HOST_H
#define SYSINFO_WIN32HOST_H

#include "windowshost.h"

/**
 * Asks the running Windows, through the wide-character functions only. It trusts nothing that other
 * programs wrote (registry values, version resources): a value of another type is missing, a text
 * without its terminator ends with its buffer, and nothing outside a resource is read.
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
