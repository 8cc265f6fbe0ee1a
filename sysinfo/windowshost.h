// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_WINDOWSHOST_H
#define SYSINFO_WINDOWSHOST_H

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

/**
 * The few questions that only Windows itself can answer. Paths are Windows paths with backslashes.
 * A text is empty if it cannot be read, whatever the reason.
 */
class WindowsHost
{
public:
    enum class Hive { LocalMachine, CurrentUser };
    /// Whether the program runs with the rights of the built-in Administrators group.
    enum class Membership { Member, NotMember, Unknown, NoSid };
    /// The string fields of a file's version resource.
    enum class VersionField {
        Comments,
        CompanyName,
        FileDescription,
        InternalName,
        LegalCopyright,
        LegalTrademarks,
        OriginalFileName,
        ProductName,
        PrivateBuild,
        SpecialBuild,
        FileVersion,
    };

    virtual ~WindowsHost() = default;

    /// A text value; an empty @p value asks for the default value of the key. Variables are
    /// expanded if the value's registry type says so.
    virtual QString registryText(Hive hive, const QString &key, const QString &value) const = 0;
    /// A value of exactly 32 bits.
    virtual std::optional<std::uint32_t> registryNumber(Hive hive, const QString &key,
                                                        const QString &value) const = 0;
    /// A field of the file's version resource, in its first language. Empty if the path is empty.
    virtual QString versionField(const QString &path, VersionField field) const = 0;
    /// The names, without folder and in no particular order, of the files that match @p pattern, a
    /// path whose last part may have the wildcards * and ?.
    virtual std::vector<QString> findFiles(const QString &pattern) const = 0;
    virtual Membership administrators() const = 0;
    virtual QString systemFolder() const = 0;
    virtual QString windowsFolder() const = 0;
};

#endif
