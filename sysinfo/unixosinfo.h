// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_UNIXOSINFO_H
#define SYSINFO_UNIXOSINFO_H

#include "factbasedosinfo.h"

#include <QStringList>

/// Where a Unix system keeps what UnixOSInfo tells about it.
struct UnixPlaces
{
    /// The first one that has a name for the system is used.
    QStringList osReleaseFiles = {QStringLiteral("/etc/os-release"),
                                  QStringLiteral("/usr/lib/os-release")};
    QString rootFolder = QStringLiteral("/");
    QString machineIdFile = QStringLiteral("/etc/machine-id");
    /// Empty for the usual ones.
    QStringList libraryFolders;
};

/**
 * Tells what a Unix system has in place of the Windows facts: the system's name, the regional
 * settings, when it was installed, whether the user is the administrator, and the VISA library.
 * There are no ActiveX controls, and no known places for instrument drivers.
 */
class UnixOSInfo final : public FactBasedOSInfo
{
public:
    explicit UnixOSInfo(const UnixPlaces &places = UnixPlaces());

protected:
    QString fact(Fact fact) const override;
    std::optional<QVector<Driver>> drivers(DriverKind kind) const override;

private:
    QString systemName() const;
    QString installDate() const;
    QStringList libraryFolders() const;

    const UnixPlaces m_places;
};

#endif
