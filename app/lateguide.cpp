// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "lateguide.h"

#include "checkedsettings.h"
#include "kelguidewindow.h"
#include "storedkeys.h"

#include <QSettings>

#include <array>

using namespace Dezimo;

namespace {

/// The chapters on the modules, in the order of the list.
constexpr std::array<const char *, 5> kModuleChapters = {
    "dbm-calculator", "voltage-calculator", "unit-converter", "db-converter", "vswr-converter",
};

constexpr char kGroup[] = "GuideWindow";
constexpr char kWindowSize[] = "GuideWindow/windowSize";

} // namespace

LateGuide::LateGuide() = default;
LateGuide::~LateGuide() = default;

void LateGuide::openAtModule(int row)
{
    if (!m_window)
        makeWindow();
    const auto module = size_t(row);
    m_window->openAt(module < kModuleChapters.size()
                         ? QString::fromLatin1(kModuleChapters.at(module))
                         : QString());
}

void LateGuide::close()
{
    if (m_window)
        m_window->close();
}

void LateGuide::setTheme(ApplicationTheme theme)
{
    m_theme = theme;
    if (m_window)
        m_window->onThemeChanged(theme);
}

void LateGuide::saveSettings(QSettings &store) const
{
    if (m_window)
        store.setValue(QLatin1String(kWindowSize), m_window->windowSize());
}

void LateGuide::makeWindow()
{
    m_window = std::make_unique<KelGuideWindow>();
    m_window->onThemeChanged(m_theme);
    CheckedSettings::readSettings({kGroup}, [this](const QSettings &store) {
        m_window->setWindowSize(storedValue(store, kWindowSize, m_window->windowSize()).toSize());
    });
}
