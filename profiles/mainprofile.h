// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_MAINPROFILE_H
#define PROFILES_MAINPROFILE_H

#include "announced.h"
#include "dbconverterprofile.h"
#include "dbmcalculatorprofile.h"
#include "unitconverterprofile.h"
#include "voltagecalculatorprofile.h"
#include "vswrconverterprofile.h"

#include <QByteArrayList>
#include <QPoint>
#include <QSize>

#include <vector>

namespace Dezimo {

/**
 * The one root model: the state of the main window, the number of digits of all value texts, and
 * the owner of the module profiles. The main window and the views reach all of it through
 * instance(); the modules know nothing of it, and it tells them their digits.
 */
class MainProfile final : public Profile
{
    Q_OBJECT
    Q_PROPERTY(QPoint windowPosition READ windowPosition WRITE setWindowPosition NOTIFY
                   windowPositionChanged)
    Q_PROPERTY(QSize windowSize READ windowSize WRITE setWindowSize NOTIFY windowSizeChanged)
    Q_PROPERTY(int windowMode READ windowMode WRITE setWindowMode NOTIFY windowModeChanged)
    Q_PROPERTY(
        int currentModule READ currentModule WRITE setCurrentModule NOTIFY currentModuleChanged)
    Q_PROPERTY(
        int decimalPlaces READ decimalPlaces WRITE setDecimalPlaces NOTIFY decimalPlacesChanged)

public:
    static constexpr int kDefaultDecimalPlaces = ModuleProfile::kDefaultSignificantDigits;
    static constexpr int kMaximumDecimalPlaces = 10;
    /// In pixels. It is more than screens have, and little enough for a window to be painted.
    static constexpr int kLargestWindowSide = 16384;

    MainProfile();

    /// The profile of the running program. It is made by the first caller, whichever thread that is
    /// (another one waits until it is complete), and lives until the process ends.
    static MainProfile &instance();

    QPoint windowPosition() const { return m_windowPosition.get(); }
    /// Invalid until a window has been shown.
    QSize windowSize() const { return m_windowSize.get(); }
    /// 0: compact module list (icons); any other value: expanded (icons and texts).
    int windowMode() const { return m_windowMode.get(); }
    /// Row of the module list: 0 dBm calculator, 1 voltage calculator, 2 unit converter,
    /// 3 dB converter, 4 VSWR converter.
    int currentModule() const { return m_currentModule.get(); }
    /// Significant digits of linear values, 0 to 10. A change applies from the next calculation of
    /// each model; texts that are already shown stay.
    int decimalPlaces() const { return m_decimalPlaces.get(); }

    void setWindowPosition(const QPoint &position) { m_windowPosition.set(position); }
    void setWindowSize(const QSize &size) { m_windowSize.set(size); }
    void setWindowMode(int mode) { m_windowMode.set(mode); }
    void setCurrentModule(int module) { m_currentModule.set(module); }
    void setDecimalPlaces(int places);

    DbmCalculatorProfile &dbmCalculator() { return m_dbmCalculator; }
    VoltageCalculatorProfile &voltageCalculator() { return m_voltageCalculator; }
    DbConverterProfile &dbConverter() { return m_dbConverter; }
    UnitConverterProfile &unitConverter() { return m_unitConverter; }
    VswrConverterProfile &vswrConverter() { return m_vswrConverter; }

    /// The module profiles in the order in which they are saved and loaded.
    std::vector<ModuleProfile *> modules();
    /// The names of all groups that saveSettings() writes.
    QByteArrayList storedGroups();

    /// Writes the window group and then every module's group.
    void saveSettings(QSettings &settings) override;
    /// Reads the window group and then every module's group.
    void loadSettings(QSettings &settings) override;
    /// Reads the modules' groups only: calculation files and defaults never move the window, turn a
    /// page or change the number of digits.
    void loadModuleSettings(QSettings &settings);

Q_SIGNALS:
    void windowPositionChanged();
    void windowSizeChanged();
    void windowModeChanged();
    void currentModuleChanged();
    void decimalPlacesChanged();

private:
    using Self = MainProfile;
    Announced<QPoint> m_windowPosition{this, &Self::windowPositionChanged};
    Announced<QSize> m_windowSize{this, &Self::windowSizeChanged};
    Announced<int> m_windowMode{this, &Self::windowModeChanged};
    Announced<int> m_currentModule{this, &Self::currentModuleChanged};
    Announced<int> m_decimalPlaces{this, &Self::decimalPlacesChanged, kDefaultDecimalPlaces};
    DbmCalculatorProfile m_dbmCalculator;
    VoltageCalculatorProfile m_voltageCalculator;
    DbConverterProfile m_dbConverter;
    UnitConverterProfile m_unitConverter;
    VswrConverterProfile m_vswrConverter;
};

} // namespace Dezimo

#endif
