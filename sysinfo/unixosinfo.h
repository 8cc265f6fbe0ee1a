// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_UNIXOSINFO_H
#define SYSINFO_UNIXOSINFO_H

#include "factbasedosinfo.h"

#include <QStringList>

/// Where a Unix system keeps what UnixOSInfo tells about it.
struct UnixPlaces
{
    /// The first one that names the system holds.
    QStringList osReleaseFiles = {QStringLiteral("/etc/os-release"),
                                  QStringLiteral("/usr/lib/os-release")};
    QString rootFolder = QStringLiteral("/");
    QString machineIdFile = QStringLiteral("/etc/machine-id");
    /// The usual ones if empty.
    QStringList libraryFolders;
};

/**
 * Tells what a Unix system has in place of the Windows facts: the system's name, the regional
 * settings, when it was installed, whether the user is the administrator, and the VISA library. It
 * has no ActiveX controls, and no instrument drivers in known places.
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
