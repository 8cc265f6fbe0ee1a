// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "win32host.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <windows.h>

namespace {

/// No path of Windows is longer, and none of the registry values asked for should be.
constexpr DWORD kLongestText = 32768;

using VersionResource = std::vector<char>;

/// The start of @p text as Windows takes it; valid as long as @p text.
const wchar_t *wide(const QString &text)
{
    static_assert(sizeof(wchar_t) == sizeof(ushort), "both are UTF-16");
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// The text up to its terminator, or the whole of @p length units if it has none.
QString textUpTo(const wchar_t *text, std::size_t length)
{
    const wchar_t *end = std::find(text, text + length, L'\0');
    return QString::fromWCharArray(text, int(end - text));
}

HKEY rootKey(WindowsHost::Hive hive)
{
    return hive == WindowsHost::Hive::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

/// In the order of WindowsHost::VersionField.
constexpr const char *kFieldNames[] = {
    "Comments",       "CompanyName",     "FileDescription",  "InternalName",
    "LegalCopyright", "LegalTrademarks", "OriginalFileName", "ProductName",
    "PrivateBuild",   "SpecialBuild",    "FileVersion",
};

/// Empty if the file is missing or has no version resource.
VersionResource versionResource(const QString &path)
{
    DWORD unused = 0;
    const DWORD size = path.isEmpty() ? 0 : GetFileVersionInfoSizeW(wide(path), &unused);
    VersionResource resource(size);
    if (size == 0 || !GetFileVersionInfoW(wide(path), 0, size, resource.data()))
        resource.clear();
    return resource;
}

/// A value of @p resource: where it begins and how many bytes of it lie within the resource.
struct ResourceValue
{
    const char *data = nullptr;
    std::size_t size = 0;
};

/// @p unit is the number of bytes in which the resource counts the length of this kind of value.
ResourceValue resourceValue(const VersionResource &resource, const QString &name, std::size_t unit)
{
    void *found = nullptr;
    UINT length = 0;
    if (resource.empty() || !VerQueryValueW(resource.data(), wide(name), &found, &length) || !found)
        return {};
    const char *data = static_cast<const char *>(found);
    const char *end = resource.data() + resource.size();
    if (data < resource.data() || data >= end)
        return {};
    return {data, std::min(std::size_t(length) * unit, std::size_t(end - data))};
}

/// The block of strings of the first language, for example "\StringFileInfo\040904B0\". Empty if
/// the resource names no language.
QString stringBlock(const VersionResource &resource)
{
    std::array<WORD, 2> languageAndCodePage = {};
    const ResourceValue value =
        resourceValue(resource, QStringLiteral("\\VarFileInfo\\Translation"), 1);
    if (value.size < sizeof languageAndCodePage)
        return QString();
    std::memcpy(languageAndCodePage.data(), value.data, sizeof languageAndCodePage);
    return QString::asprintf("\\StringFileInfo\\%04X%04X\\", unsigned(languageAndCodePage[0]),
                             unsigned(languageAndCodePage[1]));
}

/// The folder that one of Windows' functions writes. @p query takes a buffer and its length and
/// returns the length written or needed.
QString folder(UINT(WINAPI *query)(wchar_t *, UINT))
{
    std::vector<wchar_t> buffer(kLongestText);
    const UINT length = query(buffer.data(), kLongestText);
    return length < kLongestText ? textUpTo(buffer.data(), length) : QString();
}

} // namespace

QString Win32Host::registryText(Hive hive, const QString &key, const QString &value) const
{
    std::vector<wchar_t> buffer(kLongestText);
    DWORD size = DWORD(buffer.size() * sizeof(wchar_t));
    // RRF_RT_REG_SZ also reads texts with variables and expands them.
    const LSTATUS status = RegGetValueW(rootKey(hive), wide(key), wide(value), RRF_RT_REG_SZ,
                                        nullptr, buffer.data(), &size);
    return status == ERROR_SUCCESS ? textUpTo(buffer.data(), size / sizeof(wchar_t)) : QString();
}

std::optional<std::uint32_t> Win32Host::registryNumber(Hive hive, const QString &key,
                                                       const QString &value) const
{
    std::uint32_t number = 0;
    DWORD size = sizeof number;
    const LSTATUS status = RegGetValueW(rootKey(hive), wide(key), wide(value), RRF_RT_REG_DWORD,
                                        nullptr, &number, &size);
    if (status != ERROR_SUCCESS || size != sizeof number)
        return std::nullopt;
    return number;
}

QString Win32Host::versionField(const QString &path, VersionField field) const
{
    const VersionResource resource = versionResource(path);
    const QString block = stringBlock(resource);
    if (block.isEmpty())
        return QString();
    const ResourceValue value =
        resourceValue(resource, block + QLatin1String(kFieldNames[int(field)]), sizeof(wchar_t));
    std::vector<wchar_t> text(value.size / sizeof(wchar_t));
    if (!text.empty())
        std::memcpy(text.data(), value.data, text.size() * sizeof(wchar_t));
    return textUpTo(text.data(), text.size());
}

std::vector<QString> Win32Host::findFiles(const QString &pattern) const
{
    std::vector<QString> names;
    WIN32_FIND_DATAW entry = {};
    const HANDLE search = FindFirstFileW(wide(pattern), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            names.push_back(textUpTo(entry.cFileName, MAX_PATH));
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
}

WindowsHost::Membership Win32Host::administrators() const
{
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    PSID group = nullptr;
    if (!AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                  DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &group))
        return Membership::NoSid;
    BOOL member = FALSE;
    const bool tested = CheckTokenMembership(nullptr, group, &member);
    FreeSid(group);
    if (!tested)
        return Membership::Unknown;
    return member ? Membership::Member : Membership::NotMember;
}

QString Win32Host::systemFolder() const
{
    return folder(GetSystemDirectoryW);
}

QString Win32Host::windowsFolder() const
{
    return folder(GetSystemWindowsDirectoryW);
}
