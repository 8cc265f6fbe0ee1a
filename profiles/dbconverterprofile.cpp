// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterprofile.h"

#include "storedkeys.h"

#include <QSettings>

namespace {

const StoredKeys &converterKeys()
{
    static const StoredKeys rows{
        {"p1", "p1", QString()},
        {"p2", "p2", QString()},
        {"v1", "v1", QString()},
        {"v2", "v2", QString()},
        {"pRatio", "pRatio", QString()},
        {"pDb", "pDb", QString()},
        {"vRatio", "vRatio", QString()},
        {"vDb", "vDb", QString()},
        {"pLatestRun", "pLatestRun", 0},
        {"vLatestRun", "vLatestRun", 0},
        {"currentMode", "currentMode", 0, upTo(1)},
    };
    return rows;
}

} // namespace

DbConverterProfile::DbConverterProfile(QObject *parent) : Profile(parent) {}

void DbConverterProfile::setP1(const QString &text)
{
    assign(m_p1, text, &DbConverterProfile::p1Changed);
}

void DbConverterProfile::setP2(const QString &text)
{
    assign(m_p2, text, &DbConverterProfile::p2Changed);
}

void DbConverterProfile::setV1(const QString &text)
{
    assign(m_v1, text, &DbConverterProfile::v1Changed);
}

void DbConverterProfile::setV2(const QString &text)
{
    assign(m_v2, text, &DbConverterProfile::v2Changed);
}

void DbConverterProfile::setPRatio(const QString &text)
{
    assign(m_pRatio, text, &DbConverterProfile::pRatioChanged);
}

void DbConverterProfile::setPDb(const QString &text)
{
    assign(m_pDb, text, &DbConverterProfile::pDbChanged);
}

void DbConverterProfile::setVRatio(const QString &text)
{
    assign(m_vRatio, text, &DbConverterProfile::vRatioChanged);
}

void DbConverterProfile::setVDb(const QString &text)
{
    assign(m_vDb, text, &DbConverterProfile::vDbChanged);
}

void DbConverterProfile::setCurrentMode(int mode)
{
    assign(m_currentMode, mode, &DbConverterProfile::currentModeChanged);
}

void DbConverterProfile::setPLatestRun(int code)
{
    assign(m_pLatestRun, code, &DbConverterProfile::pLatestRunChanged);
}

void DbConverterProfile::setVLatestRun(int code)
{
    assign(m_vLatestRun, code, &DbConverterProfile::vLatestRunChanged);
}

void DbConverterProfile::saveSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("DbConverterProfile"));
    saveKeys(*this, settings, converterKeys());
    settings.endGroup();
}

void DbConverterProfile::loadSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("DbConverterProfile"));
    loadKeys(*this, settings, converterKeys());
    settings.endGroup();
}
