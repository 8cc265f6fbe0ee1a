// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_WIDGETS_FAKEOSINFO_H
#define TESTS_WIDGETS_FAKEOSINFO_H

#include "osinfo.h"

/// What a host is made to say. It outlives the provider that says it.
struct FakeHost
{
    QVector<OSInfo::Section> system;
    QVector<OSInfo::Section> drivers;
    int providers = 0;
};

/// Says what a FakeHost holds at the moment of the question.
class FakeOsInfo final : public OSInfo
{
public:
    explicit FakeOsInfo(FakeHost &host) : m_host(host) { ++m_host.providers; }
    ~FakeOsInfo() override { --m_host.providers; }

    QString productName() const override { return QStringLiteral("---"); }
    QString country() const override { return QStringLiteral("---"); }
    QString language() const override { return QStringLiteral("---"); }
    QString localeId() const override { return QStringLiteral("---"); }
    QString sensorControlVersion() const override { return QStringLiteral("---"); }
    QVector<Section> systemInformation() const override { return m_host.system; }
    QVector<Section> driverInformation() const override { return m_host.drivers; }

private:
    FakeHost &m_host;
};

#endif
