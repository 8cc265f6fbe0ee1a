// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_WIDGETS_FAKEOSINFO_H
#define TESTS_WIDGETS_FAKEOSINFO_H

#include "osinfo.h"

#include <QStringList>

/// The facts that a test gives to a host. They must outlive the provider that tells them.
struct FakeFacts
{
    QVector<OSInfo::Section> system;
    QVector<OSInfo::Section> drivers;
    int providers = 0;
    /// What the providers were asked for: "drivers" or "system", the earliest first.
    QStringList questions;
};

/// Tells what a FakeFacts holds when it is asked.
class FakeOsInfo final : public OSInfo
{
public:
    explicit FakeOsInfo(FakeFacts &facts) : m_facts(facts) { ++m_facts.providers; }
    ~FakeOsInfo() override { --m_facts.providers; }

    QString productName() const override { return QStringLiteral("---"); }
    QString country() const override { return QStringLiteral("---"); }
    QString language() const override { return QStringLiteral("---"); }
    QString localeId() const override { return QStringLiteral("---"); }
    QString sensorControlVersion() const override { return QStringLiteral("---"); }
    QVector<Section> systemInformation() const override
    {
        m_facts.questions.append(QStringLiteral("system"));
        return m_facts.system;
    }
    QVector<Section> driverInformation() const override
    {
        m_facts.questions.append(QStringLiteral("drivers"));
        return m_facts.drivers;
    }

private:
    FakeFacts &m_facts;
};

#endif
