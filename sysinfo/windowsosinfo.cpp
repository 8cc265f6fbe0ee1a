// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "windowsosinfo.h"

#include "windowshost.h"

#include <QStringList>

#include <algorithm>

namespace {

using Fact = FactBasedOSInfo::Fact;
using Hive = WindowsHost::Hive;
using VersionField = WindowsHost::VersionField;

constexpr char kWindowsNt[] = R"(SOFTWARE\Microsoft\Windows NT\CurrentVersion)";
constexpr char kWindows[] = R"(SOFTWARE\Microsoft\Windows\CurrentVersion)";
constexpr char kInternational[] = R"(Control Panel\International)";
constexpr char kInternetExplorer[] =
    R"(SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\IEXPLORE.EXE)";
constexpr char kVxiPnp[] = R"(SOFTWARE\VXIPNP_Alliance\VXIPNP\CurrentVersion)";

struct RegistryFact
{
    Fact fact;
    Hive hive;
    const char *key;
    const char *value;
};

constexpr RegistryFact kRegistryFacts[] = {
    {Fact::ProductName, Hive::LocalMachine, kWindowsNt, "ProductName"},
    {Fact::Country, Hive::CurrentUser, kInternational, "sCountry"},
    {Fact::Language, Hive::CurrentUser, kInternational, "sLanguage"},
    {Fact::LocaleId, Hive::CurrentUser, kInternational, "Locale"},
};

struct LibraryFact
{
    Fact fact;
    VersionField field;
    /// In the system folder.
    const char *fileName;
};

constexpr LibraryFact kLibraryFacts[] = {
    {Fact::VbRuntime, VersionField::FileVersion, R"(\msvbvm60.dll)"},
    {Fact::CviRuntime, VersionField::FileVersion, R"(\cvirte.dll)"},
    {Fact::MsiRuntime, VersionField::FileVersion, R"(\msi.dll)"},
    {Fact::NiAnalysis, VersionField::FileVersion, R"(\cwanalysis.ocx)"},
    {Fact::NiUserInterface, VersionField::FileVersion, R"(\cwui.ocx)"},
    {Fact::Ni3dGraph, VersionField::FileVersion, R"(\cw3dgrph.ocx)"},
    {Fact::VisaName, VersionField::ProductName, R"(\visa32.dll)"},
    {Fact::VisaVersion, VersionField::FileVersion, R"(\visa32.dll)"},
    {Fact::VisaCompany, VersionField::CompanyName, R"(\visa32.dll)"},
    {Fact::RemoteControl, VersionField::FileVersion, R"(\kelremote.dll)"},
    {Fact::SensorControl, VersionField::FileVersion, R"(\kelsensor.dll)"},
};

/// The GPIB library of the interface board's maker, or else the one of the older SICL layer.
constexpr const char *kIeeeLibraries[] = {R"(\GPIB-32.dll)", R"(\sicl32.dll)"};

/// @p relative, which begins with a backslash, below @p folder. Without a folder that would be a
/// path on the current drive, which nobody asked for, so the answer is empty.
QString below(QString folder, const char *relative)
{
    while (folder.endsWith(QLatin1Char('\\')))
        folder.chop(1);
    return folder.isEmpty() ? QString() : QString(folder + QLatin1String(relative));
}

bool lessWithoutCase(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) < 0;
}

} // namespace

WindowsOSInfo::WindowsOSInfo(std::unique_ptr<WindowsHost> host) : m_host(std::move(host)) {}

WindowsOSInfo::~WindowsOSInfo() = default;

QString WindowsOSInfo::fact(Fact fact) const
{
    for (const RegistryFact &row : kRegistryFacts) {
        if (row.fact == fact)
            return m_host->registryText(row.hive, QLatin1String(row.key), QLatin1String(row.value));
    }
    for (const LibraryFact &row : kLibraryFacts) {
        if (row.fact == fact)
            return m_host->versionField(below(m_host->systemFolder(), row.fileName), row.field);
    }
    if (fact == Fact::InstallDate)
        return installDate();
    if (fact == Fact::AdminRights)
        return adminRights();
    if (fact == Fact::InternetExplorer)
        return internetExplorerVersion();
    return fact == Fact::IeeeDriver ? ieeeDriverVersion() : QString();
}

std::optional<QVector<FactBasedOSInfo::Driver>> WindowsOSInfo::drivers(DriverKind kind) const
{
    switch (kind) {
    case DriverKind::VxiPnp:
        return librariesIn(vxiPnpFolder());
    case DriverKind::Ivi:
        return librariesIn(iviFolder());
    case DriverKind::Usb:
        return usbDrivers();
    }
    return std::nullopt;
}

QString WindowsOSInfo::installDate() const
{
    const std::optional<std::uint32_t> seconds = m_host->registryNumber(
        Hive::LocalMachine, QLatin1String(kWindowsNt), QStringLiteral("InstallDate"));
    return seconds ? momentText(*seconds) : QString();
}

QString WindowsOSInfo::adminRights() const
{
    switch (m_host->administrators()) {
    case WindowsHost::Membership::Member:
        return yesOrNo(true);
    case WindowsHost::Membership::NotMember:
        return yesOrNo(false);
    case WindowsHost::Membership::NoSid:
        return QStringLiteral("Unable to allocate & initialize SID struct");
    default:
        return QString();
    }
}

QString WindowsOSInfo::internetExplorerVersion() const
{
    QString path =
        m_host->registryText(Hive::LocalMachine, QLatin1String(kInternetExplorer), QString());
    // Some set-ups write the path in quotes, as on a command line.
    path.remove(QLatin1Char('"'));
    return fileVersion(path);
}

QString WindowsOSInfo::ieeeDriverVersion() const
{
    for (const char *library : kIeeeLibraries) {
        QString version = fileVersion(below(m_host->systemFolder(), library));
        if (!version.isEmpty())
            return version;
    }
    return QString();
}

QString WindowsOSInfo::vxiPnpFolder() const
{
    for (const char *value : {"FRAMEWORK_PATH", "FrameworkPath"}) {
        const QString framework =
            m_host->registryText(Hive::LocalMachine, QLatin1String(kVxiPnp), QLatin1String(value));
        if (!framework.isEmpty())
            return below(framework, R"(\bin)");
    }
    return QString();
}

QString WindowsOSInfo::iviFolder() const
{
    return below(m_host->registryText(Hive::LocalMachine, QLatin1String(kWindows),
                                      QStringLiteral("ProgramFilesDir")),
                 R"(\IVI\Bin)");
}

QVector<FactBasedOSInfo::Driver> WindowsOSInfo::librariesIn(const QString &folder) const
{
    QVector<Driver> found;
    const QStringList names = makerFilesIn(folder, QStringLiteral(".dll"));
    for (const QString &name : names)
        found.append({name, fileVersion(folder + QLatin1Char('\\') + name)});
    return found;
}

/// A driver is found by its set-up file, but name and version are those of the driver file.
QVector<FactBasedOSInfo::Driver> WindowsOSInfo::usbDrivers() const
{
    const QString windows = m_host->windowsFolder();
    const QString driverFolder = below(windows, R"(\SYSTEM32\Drivers)");
    const QString extension = QStringLiteral(".inf");
    const QStringList names = makerFilesIn(below(windows, R"(\INF)"), extension);
    QVector<Driver> found;
    for (const QString &name : names) {
        const QString driver = name.chopped(extension.size()) + QLatin1String(".SYS");
        found.append({driver, fileVersion(driverFolder + QLatin1Char('\\') + driver)});
    }
    return found;
}

QStringList WindowsOSInfo::makerFilesIn(const QString &folder, const QString &extension) const
{
    if (folder.isEmpty())
        return {};
    QStringList names;
    for (const QString &name : m_host->findFiles(folder + QLatin1String(R"(\kel*)") + extension)) {
        // Windows also matches short names, and the one of "kel.inf_old" ends with ".INF".
        if (name.endsWith(extension, Qt::CaseInsensitive))
            names.append(name);
    }
    std::sort(names.begin(), names.end(), lessWithoutCase);
    return names;
}

QString WindowsOSInfo::fileVersion(const QString &path) const
{
    return m_host->versionField(path, VersionField::FileVersion);
}
