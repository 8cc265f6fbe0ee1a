// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"

#include "storedkeys.h"

#include <QSettings>

#include <limits>

namespace {

/// A damaged or foreign size may be so large that the window could not be painted at all. A size
/// with a negative side is no size yet, as that of a window that was never shown.
constexpr StoredRange kWindowSides{std::numeric_limits<int>::min(),
                                   MainProfile::kLargestWindowSide};

const StoredKeys &windowKeys()
{
    static const StoredKeys rows{
        {"windowPosition", QPoint(0, 0)},
        {"windowSize", QSize(), kWindowSides},
        {"windowMode", 0},
        {"currentModule", 0},
        {"decimalPlaces", MainProfile::kDefaultDecimalPlaces,
         upTo(MainProfile::kMaximumDecimalPlaces)},
    };
    return rows;
}

} // namespace

MainProfile::MainProfile() = default;

MainProfile &MainProfile::instance()
{
    static MainProfile profile;
    return profile;
}

std::vector<Profile *> MainProfile::modules()
{
    return {&m_dbmCalculator, &m_voltageCalculator, &m_dbConverter, &m_unitConverter,
            &m_vswrConverter};
}

void MainProfile::saveSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("MainProfile"));
    saveKeys(*this, settings, windowKeys());
    settings.endGroup();
    for (Profile *module : modules())
        module->saveSettings(settings);
}

void MainProfile::loadSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("MainProfile"));
    loadKeys(*this, settings, windowKeys());
    settings.endGroup();
    loadModuleSettings(settings);
}

void MainProfile::loadModuleSettings(QSettings &settings)
{
    for (Profile *module : modules())
        module->loadSettings(settings);
}
