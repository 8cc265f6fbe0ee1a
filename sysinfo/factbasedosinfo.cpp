// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "factbasedosinfo.h"

namespace {

using Fact = FactBasedOSInfo::Fact;
using DriverKind = FactBasedOSInfo::DriverKind;

/// A row of the system information. Consecutive rows of one section name form that section.
struct SystemRow
{
    const char *section;
    const char *key;
    std::optional<Fact> fact;
    /// Shown if the row has no fact.
    const char *fixedText = nullptr;
};

constexpr SystemRow kSystemRows[] = {
    {"Operating System", "Product name", Fact::ProductName},
    {"Operating System", "Installed", Fact::InstallDate},
    {"Operating System", "Admin rights", Fact::AdminRights},
    {"Language Settings", "Country", Fact::Country},
    {"Language Settings", "Language", Fact::Language},
    {"Language Settings", "Local ID", Fact::LocaleId},
    {"DLL and EXE versions", "VB runtime", Fact::VbRuntime},
    {"DLL and EXE versions", "CVI runtime", Fact::CviRuntime},
    {"DLL and EXE versions", "MSI runtime", Fact::MsiRuntime},
    {"DLL and EXE versions", "Internet Explorer", Fact::InternetExplorer},
    // Fixed on purpose: these two name the support data that the text belongs to. What happens to
    // be installed does not matter.
    {"DLL and EXE versions", "Support Tool", std::nullopt, "3.1.0.0"},
    {"DLL and EXE versions", "Qt", std::nullopt, "5.12.2"},
    {"NI ActiveX versions", "NI Analysis", Fact::NiAnalysis},
    {"NI ActiveX versions", "NI UI", Fact::NiUserInterface},
    {"NI ActiveX versions", "NI 3d graph", Fact::Ni3dGraph},
    {"VISA", "Name", Fact::VisaName},
    {"VISA", "Version", Fact::VisaVersion},
    {"VISA", "Company", Fact::VisaCompany},
    {"Remote Control", "IEEE driver", Fact::IeeeDriver},
    {"Remote Control", "Remote control", Fact::RemoteControl},
    {"Remote Control", "Sensor control", Fact::SensorControl},
};

struct DriverRow
{
    DriverKind kind;
    const char *section;
    const char *notFound;
};

constexpr DriverRow kDriverRows[] = {
    {DriverKind::VxiPnp, "Installed Vantrel VXI PnP drivers", "No VXI driver found"},
    {DriverKind::Ivi, "Installed Vantrel IVI drivers", "No IVI driver found"},
    {DriverKind::Usb, "Installed Vantrel USB drivers", "No USB driver found"},
};

QString orMissing(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("---") : text;
}

/// One entry per driver, or the single entry @p notFound.
QVector<OSInfo::Entry> driverEntries(const QString &key,
                                     const QVector<FactBasedOSInfo::Driver> &drivers,
                                     const QString &notFound)
{
    if (drivers.isEmpty())
        return {{key, notFound}};
    QVector<OSInfo::Entry> entries;
    for (const FactBasedOSInfo::Driver &driver : drivers) {
        const QString text = driver.fileName + QLatin1String(" (Version ") +
                             orMissing(driver.version) + QLatin1Char(')');
        entries.append({key, text});
    }
    return entries;
}

} // namespace

QVector<OSInfo::Section> FactBasedOSInfo::systemInformation() const
{
    QVector<Section> sections;
    for (const SystemRow &row : kSystemRows) {
        const QLatin1String name(row.section);
        if (sections.isEmpty() || sections.last().name != name)
            sections.append({name, {}});
        const QString value = row.fact ? text(*row.fact) : QString::fromLatin1(row.fixedText);
        sections.last().entries.append({QLatin1String(row.key), value});
    }
    sections.append({QStringLiteral("Kel USB Drivers"), usbDriverEntries()});
    return sections;
}

QVector<OSInfo::Section> FactBasedOSInfo::driverInformation() const
{
    QVector<Section> sections;
    bool anyFound = false;
    for (const DriverRow &row : kDriverRows) {
        const QVector<Driver> found = drivers(row.kind).value_or(QVector<Driver>());
        anyFound = anyFound || !found.isEmpty();
        sections.append({QLatin1String(row.section),
                         driverEntries(QString(), found, QLatin1String(row.notFound))});
    }
    return anyFound ? sections : QVector<Section>();
}

QString FactBasedOSInfo::momentText(std::time_t moment)
{
    const char *line = std::ctime(&moment);
    return QString::fromLatin1(line).trimmed();
}

QString FactBasedOSInfo::yesOrNo(bool yes)
{
    return yes ? QStringLiteral("Yes") : QStringLiteral("No");
}

QString FactBasedOSInfo::text(Fact fact) const
{
    return orMissing(this->fact(fact));
}

QVector<OSInfo::Entry> FactBasedOSInfo::usbDriverEntries() const
{
    const QString key = QStringLiteral("Drivers");
    const std::optional<QVector<Driver>> found = drivers(DriverKind::Usb);
    if (!found)
        return {{key, orMissing(QString())}};
    return driverEntries(key, *found, QStringLiteral("No USB driver found"));
}
