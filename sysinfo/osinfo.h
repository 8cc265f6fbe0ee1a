// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_OSINFO_H
#define SYSINFO_OSINFO_H

#include <QString>
#include <QVector>

#include <memory>

/**
 * What the About window tells about the host: the operating system, the language settings, the
 * versions of run-time libraries and the installed instrument drivers. Every call collects the
 * facts anew, as texts for display. No call fails: a fact that cannot be read is "---".
 */
class OSInfo
{
public:
    /// An entry of the driver information has no key: its value says everything.
    struct Entry
    {
        QString key;
        QString value;
    };
    struct Section
    {
        QString name;
        QVector<Entry> entries;
    };

    virtual ~OSInfo();

    /// The operating system's product name.
    virtual QString productName() const = 0;
    /// Country, language and identifier of the user's regional settings.
    virtual QString country() const = 0;
    virtual QString language() const = 0;
    virtual QString localeId() const = 0;
    /// Version of the maker's library for power sensors.
    virtual QString sensorControlVersion() const = 0;
    /// The same sections and keys in the same order on every platform.
    virtual QVector<Section> systemInformation() const = 0;
    /// One section per kind of driver; none at all if no driver of any kind is found.
    virtual QVector<Section> driverInformation() const = 0;
};

/// The provider for the platform that the program is built for.
std::unique_ptr<OSInfo> createOsInfo();

#endif
