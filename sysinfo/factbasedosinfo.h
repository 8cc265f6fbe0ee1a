// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_FACTBASEDOSINFO_H
#define SYSINFO_FACTBASEDOSINFO_H

#include "osinfo.h"

#include <ctime>
#include <optional>

/**
 * Puts the sections together from single facts. Names, keys, order and the texts for missing facts
 * are the same everywhere; a platform only says what each fact is and which drivers it finds.
 */
class FactBasedOSInfo : public OSInfo
{
public:
    enum class Fact {
        ProductName,
        InstallDate,
        AdminRights,
        Country,
        Language,
        LocaleId,
        VbRuntime,
        CviRuntime,
        MsiRuntime,
        InternetExplorer,
        NiAnalysis,
        NiUserInterface,
        Ni3dGraph,
        VisaName,
        VisaVersion,
        VisaCompany,
        IeeeDriver,
        RemoteControl,
        SensorControl,
    };
    enum class DriverKind { VxiPnp, Ivi, Usb };
    struct Driver
    {
        QString fileName;
        /// Empty if it cannot be read.
        QString version;
    };

    QString productName() const final { return text(Fact::ProductName); }
    QString country() const final { return text(Fact::Country); }
    QString language() const final { return text(Fact::Language); }
    QString localeId() const final { return text(Fact::LocaleId); }
    QString sensorControlVersion() const final { return text(Fact::SensorControl); }
    QVector<Section> systemInformation() const final;
    QVector<Section> driverInformation() const final;

protected:
    /// Empty if the fact cannot be read.
    virtual QString fact(Fact fact) const = 0;
    /// The maker's installed drivers, or no list if the platform has no drivers of that kind.
    virtual std::optional<QVector<Driver>> drivers(DriverKind kind) const = 0;

    /// A moment (seconds since 1970-01-01 UTC) in local time as the C library writes it, for
    /// example "Thu Jan  1 00:00:00 1970". Empty if the C library cannot write the year.
    static QString momentText(std::time_t moment);
    static QString yesOrNo(bool yes);

private:
    QString text(Fact fact) const;
    QVector<Entry> usbDriverEntries() const;
};

#endif
