// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_UNITCONVERTERWIDGET_H
#define VIEWS_UNITCONVERTERWIDGET_H

#include "modulepage.h"
#include "unitconverterprofile.h"

#include <memory>

namespace Ui {
class UnitConverterWidget;
}

/**
 * The page of the unit converter: the four linked values with their units, the load impedance and
 * the voltage mode. Typing stores a text in the model; leaving a field calculates from it.
 *
 * Finishing the impedance empties the four values on purpose, instead of converting them. When the
 * model changes a unit by itself, as after loading, the page only shows it, because the text is in
 * that unit already.
 */
class UnitConverterWidget final : public ModulePage
{
    Q_OBJECT

public:
    explicit UnitConverterWidget(QWidget *parent = nullptr);
    ~UnitConverterWidget() override;

private Q_SLOTS:
    void on_dbmLineEdit_textEdited(const QString &arg1) { m_profile->setLogPower(arg1); }
    void on_wattLineEdit_textEdited(const QString &arg1) { m_profile->setLinPower(arg1); }
    void on_voltLineEdit_textEdited(const QString &arg1) { m_profile->setLinVoltage(arg1); }
    void on_dbvLineEdit_textEdited(const QString &arg1) { m_profile->setLogVoltage(arg1); }
    void on_impedanceLineEdit_textEdited(const QString &arg1) { m_profile->setImpedance(arg1); }

    void on_dbmLineEdit_editingFinished() { m_profile->calculateFromLogPower(); }
    void on_wattLineEdit_editingFinished() { m_profile->calculateFromLinPower(); }
    void on_voltLineEdit_editingFinished() { m_profile->calculateFromLinVoltage(); }
    void on_dbvLineEdit_editingFinished() { m_profile->calculateFromLogVoltage(); }
    void on_impedanceLineEdit_editingFinished() { m_profile->clearAll(); }

    void on_dbmUnitComboBox_currentIndexChanged(int index);
    void on_wattUnitComboBox_currentIndexChanged(int index);
    void on_voltUnitComboBox_currentIndexChanged(int index);
    void on_dbvUnitComboBox_currentIndexChanged(int index);
    void onVModeToggle_currentIndexChanged(int index);

    void onLogPowerChanged();
    void onLinPowerChanged();
    void onLogVoltageChanged();
    void onLinVoltageChanged();
    void onImpedanceChanged();
    void onLogPowerUnitChanged();
    void onLinPowerUnitChanged();
    void onLogVoltageUnitChanged();
    void onLinVoltageUnitChanged();
    void onVoltageModeChanged();

private:
    void addVoltageModes();
    void tellAboutFields();
    void showModel();

    const std::unique_ptr<Ui::UnitConverterWidget> m_ui;
    Dezimo::UnitConverterProfile *const m_profile;
};

#endif
