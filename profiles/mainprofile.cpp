// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"

#include "storedkeys.h"

#include <limits>

using namespace Dezimo;

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

std::vector<ModuleProfile *> MainProfile::modules()
{
    return {&m_dbmCalculator, &m_voltageCalculator, &m_dbConverter, &m_unitConverter,
            &m_vswrConverter};
}

QByteArrayList MainProfile::storedGroups()
{
    QByteArrayList groups{group().toLatin1()};
    for (const ModuleProfile *module : modules())
        groups += module->group().toLatin1();
    return groups;
}

/// Tells the models before the signal, so that a calculation upon the signal has the new digits.
void MainProfile::setDecimalPlaces(int places)
{
    for (ModuleProfile *module : modules())
        module->setSignificantDigits(places);
    m_decimalPlaces.set(places);
}

void MainProfile::saveSettings(QSettings &settings)
{
    saveGroup(*this, settings, group(), windowKeys());
    for (ModuleProfile *module : modules())
        module->saveSettings(settings);
}

void MainProfile::loadSettings(QSettings &settings)
{
    loadGroup(*this, settings, group(), windowKeys());
    loadModuleSettings(settings);
}

void MainProfile::loadModuleSettings(QSettings &settings)
{
    for (ModuleProfile *module : modules())
        module->loadSettings(settings);
}
