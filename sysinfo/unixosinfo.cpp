// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "unixosinfo.h"

#include "localesetting.h"
#include "osrelease.h"
#include "visalibrary.h"

#include <QDateTime>
#include <QFileInfo>

#include <unistd.h>

UnixOSInfo::UnixOSInfo(const UnixPlaces &places) : m_places(places) {}

QString UnixOSInfo::fact(Fact fact) const
{
    switch (fact) {
    case Fact::ProductName:
        return systemName();
    case Fact::InstallDate:
        return installDate();
    case Fact::AdminRights:
        return yesOrNo(geteuid() == 0);
    case Fact::Country:
        return LocaleSetting::ofUser().country;
    case Fact::Language:
        return LocaleSetting::ofUser().language;
    case Fact::LocaleId:
        return LocaleSetting::ofUser().name;
    case Fact::VisaName:
        return VisaLibrary::find(libraryFolders()).name;
    case Fact::VisaVersion:
        return VisaLibrary::find(libraryFolders()).version;
    default:
        return QString();
    }
}

std::optional<QVector<FactBasedOSInfo::Driver>> UnixOSInfo::drivers(DriverKind) const
{
    return std::nullopt;
}

QString UnixOSInfo::systemName() const
{
    for (const QString &path : m_places.osReleaseFiles) {
        QString name = OsRelease::systemName(path);
        if (!name.isEmpty())
            return name;
    }
    return QString();
}

/// The installation makes the root folder together with its file system. If that does not keep the
/// time of birth, the next best is the file with the machine's identity, which the first start of
/// the installed system writes once.
QString UnixOSInfo::installDate() const
{
    const QDateTime moments[] = {QFileInfo(m_places.rootFolder).birthTime(),
                                 QFileInfo(m_places.machineIdFile).lastModified()};
    for (const QDateTime &moment : moments) {
        if (moment.isValid() && moment.toSecsSinceEpoch() > 0)
            return momentText(std::time_t(moment.toSecsSinceEpoch()));
    }
    return QString();
}

QStringList UnixOSInfo::libraryFolders() const
{
    return m_places.libraryFolders.isEmpty() ? VisaLibrary::usualFolders()
                                             : m_places.libraryFolders;
}
