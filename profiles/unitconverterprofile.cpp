// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "unitconverterprofile.h"

#include "errortexts.h"
#include "levels.h"
#include "prefixedvalue.h"
#include "storedkeys.h"
#include "units.h"
#include "valuetext.h"

#include <QtMath>

#include <algorithm>
#include <iterator>

using namespace Dezimo;

namespace {

/// Peak-to-peak value of a sine of 1 V RMS. It is cut after eight decimals on purpose and not
/// computed as 2 * sqrt(2); ten digits show the difference.
constexpr double kPeakToPeakPerRms = 2.82842714;
/// Average of a rectified sine of 1 V RMS.
constexpr double kAveragePerRms = kPeakToPeakPerRms / M_PI;

/// What a voltage field shows of a sine of 1 V RMS, in the order of the voltage modes.
constexpr double kShownPerRms[] = {1.0, kPeakToPeakPerRms, kAveragePerRms};
constexpr int kLastVoltageMode = int(std::size(kShownPerRms)) - 1;

double zero(double)
{
    return 0.0;
}

/// A voltage level in an unknown unit is 0, whatever the voltage.
constexpr Unit kNoUnit{latin1(""), zero, zero};

constexpr const Unit *kLogPowerRows[] = {&Units::kDbm, &Units::kDbw};
constexpr const Unit *kLinPowerRows[] = {&Units::kMilliwatt, &Units::kWatt};
constexpr const Unit *kLogVoltageRows[] = {&Units::kDbv, &Units::kDbmicrovolt, &Units::kDbu};
constexpr const Unit *kLinVoltageRows[] = {&Units::kMillivolt, &Units::kVolt};

constexpr UnitSelector kLogPowerUnits(kLogPowerRows, Units::kDbm);
constexpr UnitSelector kLinPowerUnits(kLinPowerRows, Units::kMilliwatt);
constexpr UnitSelector kLogVoltageUnits(kLogVoltageRows, kNoUnit);
constexpr UnitSelector kLinVoltageUnits(kLinVoltageRows, Units::kMillivolt);

/// The larger one of two units: dBW, W or V.
constexpr int kLargerUnit = 1;

const StoredKeys &converterKeys()
{
    static const StoredKeys rows{
        {"impedance", QStringLiteral("50")},
        {"logPowerUnit", 0, upTo(kLogPowerUnits.last())},
        {"linPowerUnit", 0, upTo(kLinPowerUnits.last())},
        {"logVoltageUnit", 0, upTo(kLogVoltageUnits.last())},
        {"linVoltageUnit", 0, upTo(kLinVoltageUnits.last())},
        {"logPower", QString()},
        {"linPower", QString()},
        {"logVoltage", QString()},
        {"linVoltage", QString()},
        {"voltageMode", 0, upTo(kLastVoltageMode)},
    };
    return rows;
}

/// The words in which numbers that are not finite are written, in the general and the fixed form.
bool isNonFiniteWord(const QString &text)
{
    const QLatin1String words[] = {QLatin1String("-inf"), QLatin1String("inf"),
                                   QLatin1String("INF"),  QLatin1String("-INF"),
                                   QLatin1String("NAN"),  QLatin1String("nan")};
    return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

} // namespace

/// A level may be negative and always has two decimals, unlike a linear value.
struct UnitConverterProfile::Rule
{
    const UnitSelector &units;
    bool isLevel;
};

using Self = UnitConverterProfile;

const Self::Rule Self::kLogPower = {kLogPowerUnits, true};
const Self::Rule Self::kLinPower = {kLinPowerUnits, false};
const Self::Rule Self::kLogVoltage = {kLogVoltageUnits, true};
const Self::Rule Self::kLinVoltage = {kLinVoltageUnits, false};

void UnitConverterProfile::saveSettings(QSettings &settings)
{
    saveGroup(*this, settings, group(), converterKeys());
}

void UnitConverterProfile::loadSettings(QSettings &settings)
{
    loadGroup(*this, settings, group(), converterKeys());
}

void UnitConverterProfile::calculateFromLinPower()
{
    const std::optional<double> milliwatt = readEdited(m_linPower);
    if (!milliwatt)
        return;
    m_logPower.showBaseValue(*milliwatt);
    showVoltagesOf(*milliwatt);
    clearNonFiniteResults(m_linPower);
}

void UnitConverterProfile::calculateFromLinVoltage()
{
    const std::optional<double> millivolt = readEdited(m_linVoltage);
    if (!millivolt)
        return;
    const double rms = *millivolt / shownPerRms();
    showPowersOf(rms);
    // The level is that of the RMS value in every mode, unlike the level that a power gives.
    m_logVoltage.showBaseValue(rms);
    clearNonFiniteResults(m_linVoltage);
}

void UnitConverterProfile::calculateFromLogPower()
{
    const std::optional<double> milliwatt = readEdited(m_logPower);
    if (!milliwatt)
        return;
    m_linPower.showBaseValue(*milliwatt);
    showVoltagesOf(*milliwatt);
    clearNonFiniteResults(m_logPower);
}

void UnitConverterProfile::calculateFromLogVoltage()
{
    const std::optional<double> millivolt = readEdited(m_logVoltage);
    if (!millivolt)
        return;
    m_linVoltage.showBaseValue(*millivolt);
    showPowersOf(*millivolt / shownPerRms());
    clearNonFiniteResults(m_logVoltage);
}

void UnitConverterProfile::rescaleLinPower()
{
    m_linPower.rescale(linPowerUnit() == kLargerUnit ? Units::kWatt.fromBase : Units::kWatt.toBase);
}

void UnitConverterProfile::rescaleLinVoltage()
{
    m_linVoltage.rescale(linVoltageUnit() == kLargerUnit ? Units::kVolt.fromBase
                                                         : Units::kVolt.toBase);
}

void UnitConverterProfile::rescaleLogPower()
{
    m_logPower.rescale(logPowerUnit() == kLargerUnit ? Levels::dbwFromDbm : Levels::dbmFromDbw);
}

void UnitConverterProfile::rescaleLogVoltage()
{
    const Unit &before = kLogVoltageUnits.at(m_logVoltage.textUnit);
    const Unit &now = kLogVoltageUnits.at(logVoltageUnit());
    m_logVoltage.rescale([&](double level) { return now.fromBase(before.toBase(level)); });
}

void UnitConverterProfile::clearAll()
{
    for (Field *field : {&m_linPower, &m_logPower, &m_linVoltage, &m_logVoltage})
        field->show(QString());
}

void UnitConverterProfile::Field::show(const QString &newText)
{
    textUnit = unit.get();
    text.set(newText);
}

void UnitConverterProfile::Field::showValue(double value)
{
    show(rule.isLevel ? fixedText(value) : generalText(value, model.significantDigits()));
}

/// @p baseValue is in mW or mV.
void UnitConverterProfile::Field::showBaseValue(double baseValue)
{
    showValue(rule.units.at(unit.get()).fromBase(baseValue));
}

void UnitConverterProfile::Field::clearNonFinite()
{
    if (isNonFiniteWord(text.get()))
        show(QString());
}

/// A value that is infinite or not a number in the new unit leaves the field empty, as the result
/// of a calculation would: no quantity could be read from the word for it.
void UnitConverterProfile::Field::rescale(const std::function<double(double)> &toNewUnit)
{
    const std::optional<double> value = readPrefixedValue(text.get());
    if (!value)
        return;
    showValue(toNewUnit(*value));
    clearNonFinite();
}

/// The value of the field that was finished, in mW or mV. An empty field has none and is left
/// alone; one without a usable number is rejected.
std::optional<double> UnitConverterProfile::readEdited(Field &edited)
{
    if (edited.text.get().isEmpty())
        return std::nullopt;
    const std::optional<double> value = readPrefixedValue(edited.text.get());
    if (!value || (*value < 0.0 && !edited.rule.isLevel)) {
        reject(edited);
        return std::nullopt;
    }
    return edited.rule.units.at(edited.unit.get()).toBase(*value);
}

void UnitConverterProfile::reject(Field &edited)
{
    edited.show(ErrorText::kInvalidInput);
    for (Field *field : {&m_linPower, &m_logPower, &m_linVoltage, &m_logVoltage}) {
        if (field != &edited)
            field->show(QString());
    }
}

/// Both voltages of a power are those of the voltage mode: on purpose the level is that of the
/// value in the linear field, and not of the RMS value.
void UnitConverterProfile::showVoltagesOf(double milliwatt)
{
    const double rms = Levels::millivoltFromMilliwatt(milliwatt, readImpedance());
    const double millivolt = rms * shownPerRms();
    m_linVoltage.showBaseValue(millivolt);
    m_logVoltage.showBaseValue(millivolt);
}

void UnitConverterProfile::showPowersOf(double millivoltRms)
{
    const double milliwatt = Levels::milliwattFromMillivolt(millivoltRms, readImpedance());
    m_linPower.showBaseValue(milliwatt);
    m_logPower.showBaseValue(milliwatt);
}

/// A linear power that was typed stays as it is, even if it reads INF.
void UnitConverterProfile::clearNonFiniteResults(const Field &edited)
{
    m_logPower.clearNonFinite();
    m_logVoltage.clearNonFinite();
    m_linVoltage.clearNonFinite();
    if (&edited != &m_linPower)
        m_linPower.clearNonFinite();
}

/// A mode that is none of the selector's shows RMS values.
double UnitConverterProfile::shownPerRms() const
{
    const int mode = voltageMode();
    return mode >= 0 && mode <= kLastVoltageMode ? kShownPerRms[mode] : 1.0;
}

/// In ohms. Marks an impedance that does not parse. The calculation then goes on with what the
/// parser made of it: 0 for a word, infinity for a number that is too large.
double UnitConverterProfile::readImpedance()
{
    QString text = impedance();
    bool ok = false;
    const double ohm = parsePrefixedValue(text, &ok);
    if (!ok)
        setImpedance(ErrorText::kInvalid);
    return ohm;
}
