// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_WINDOWSOSINFO_H
#define SYSINFO_WINDOWSOSINFO_H

#include "factbasedosinfo.h"

#include <memory>

class WindowsHost;

/**
 * Knows where Windows keeps each fact: which registry value, which file's version resource, which
 * driver folder. It asks a WindowsHost for them, so it can be built and tested anywhere.
 */
class WindowsOSInfo final : public FactBasedOSInfo
{
public:
    explicit WindowsOSInfo(std::unique_ptr<WindowsHost> host);
    ~WindowsOSInfo() override;

protected:
    QString fact(Fact fact) const override;
    std::optional<QVector<Driver>> drivers(DriverKind kind) const override;

private:
    QString installDate() const;
    QString adminRights() const;
    QString internetExplorerVersion() const;
    QString ieeeDriverVersion() const;
    QString vxiPnpFolder() const;
    QString iviFolder() const;
    QVector<Driver> librariesIn(const QString &folder) const;
    QVector<Driver> usbDrivers() const;
    QStringList makerFilesIn(const QString &folder, const QString &extension) const;
    QString fileVersion(const QString &path) const;

    const std::unique_ptr<WindowsHost> m_host;
};

#endif
