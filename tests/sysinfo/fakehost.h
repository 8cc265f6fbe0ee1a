// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SYSINFO_FAKEHOST_H
#define TESTS_SYSINFO_FAKEHOST_H

#include "windowshost.h"

#include <QMap>

/// What a Windows machine holds, as plain tables.
struct Machine
{
    /// By "HKLM\" or "HKCU\", key, backslash and value name. The path of a key's default value thus
    /// ends with a backslash.
    QMap<QString, QString> texts;
    QMap<QString, std::uint32_t> numbers;
    /// By path.
    QMap<QString, QString> fileVersions;
    QMap<QString, QString> productNames;
    QMap<QString, QString> companyNames;
    /// By search pattern.
    QMap<QString, std::vector<QString>> files;
    WindowsHost::Membership membership = WindowsHost::Membership::NotMember;
    QString systemFolder = QStringLiteral("C:\\Windows\\system32");
    QString windowsFolder = QStringLiteral("C:\\Windows");
};

/// Answers from a machine's tables, which must outlive this object.
class FakeHost final : public WindowsHost
{
public:
    explicit FakeHost(const Machine &machine) : m_machine(machine) {}

    QString registryText(Hive hive, const QString &key, const QString &value) const override
    {
        return m_machine.texts.value(valuePath(hive, key, value));
    }
    std::optional<std::uint32_t> registryNumber(Hive hive, const QString &key,
                                                const QString &value) const override
    {
        const QString path = valuePath(hive, key, value);
        if (!m_machine.numbers.contains(path))
            return std::nullopt;
        return m_machine.numbers.value(path);
    }
    QString versionField(const QString &path, VersionField field) const override
    {
        if (field == VersionField::ProductName)
            return m_machine.productNames.value(path);
        if (field == VersionField::CompanyName)
            return m_machine.companyNames.value(path);
        return field == VersionField::FileVersion ? m_machine.fileVersions.value(path) : QString();
    }
    std::vector<QString> findFiles(const QString &pattern) const override
    {
        return m_machine.files.value(pattern);
    }
    Membership administrators() const override { return m_machine.membership; }
    QString systemFolder() const override { return m_machine.systemFolder; }
    QString windowsFolder() const override { return m_machine.windowsFolder; }

private:
    static QString valuePath(Hive hive, const QString &key, const QString &value)
    {
        const QLatin1String root(hive == Hive::LocalMachine ? "HKLM\\" : "HKCU\\");
        return root + key + QLatin1Char('\\') + value;
    }

    const Machine &m_machine;
};

#endif
