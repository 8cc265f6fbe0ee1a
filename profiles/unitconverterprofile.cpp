// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "unitconverterprofile.h"

#include "errortexts.h"
#include "levels.h"
#include "pi.h"
#include "prefixedvalue.h"
#include "storedkeys.h"
#include "unittable.h"
#include "valuetext.h"

#include <QSettings>

#include <algorithm>
#include <iterator>

namespace {

/// Peak-to-peak value of a sine of 1 V RMS. That it is cut after eight decimals, and not a computed
/// 2 * sqrt(2), is meant; ten digits show the difference.
constexpr double kPeakToPeakPerRms = 2.82842714;
/// Average of a rectified sine of 1 V RMS.
constexpr double kAveragePerRms = kPeakToPeakPerRms / kPi;

constexpr UnitConversion kPeakToPeak = {[](double vpp) { return vpp / kPeakToPeakPerRms; },
                                        [](double rms) {
                                            return rms * kPeakToPeakPerRms;
                                        }};
constexpr UnitConversion kAverage = {[](double vavg) { return vavg / kAveragePerRms; },
                                     [](double rms) {
                                         return rms * kAveragePerRms;
                                     }};
/// A voltage level in an unknown unit is 0, whatever the voltage.
constexpr UnitConversion kNoUnit = {[](double) { return 0.0; },
                                    [](double) {
                                        return 0.0;
                                    }};

constexpr UnitConversion kLogPowerRows[] = {Units::kDbm, Units::kDbw};
constexpr UnitConversion kLinPowerRows[] = {Units::kBase, Units::kWatt};
constexpr UnitConversion kLogVoltageRows[] = {Units::kDbv, Units::kDbmicrovolt, Units::kDbu};
constexpr UnitConversion kLinVoltageRows[] = {Units::kBase, Units::kVolt};
constexpr UnitConversion kVoltageModeRows[] = {Units::kBase, kPeakToPeak, kAverage};

constexpr UnitTable kLogPowerUnits(kLogPowerRows, Units::kDbm);
constexpr UnitTable kLinPowerUnits(kLinPowerRows, Units::kBase);
constexpr UnitTable kLogVoltageUnits(kLogVoltageRows, kNoUnit);
constexpr UnitTable kLinVoltageUnits(kLinVoltageRows, Units::kBase);
/// What a voltage field shows, from and to mV RMS.
constexpr UnitTable kVoltageModes(kVoltageModeRows, Units::kBase);

/// Indices of the units that the rescaling asks for.
constexpr int kDbw = 1;
constexpr int kWatt = 1;
constexpr int kVolt = 1;

const StoredKeys &converterKeys()
{
    static const StoredKeys rows{
        {"impedance", "impedance", QStringLiteral("50")},
        {"logPowerUnit", "logPowerUnit", 0, upTo(kLogPowerUnits.last())},
        {"linPowerUnit", "linPowerUnit", 0, upTo(kLinPowerUnits.last())},
        {"logVoltageUnit", "logVoltageUnit", 0, upTo(kLogVoltageUnits.last())},
        {"linVoltageUnit", "linVoltageUnit", 0, upTo(kLinVoltageUnits.last())},
        {"logPower", "logPower", QString()},
        {"linPower", "linPower", QString()},
        {"logVoltage", "logVoltage", QString()},
        {"linVoltage", "linVoltage", QString()},
        {"voltageMode", "voltageMode", 0, upTo(kVoltageModes.last())},
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

struct UnitConverterProfile::Field
{
    QString (UnitConverterProfile::*get)() const;
    void (UnitConverterProfile::*set)(const QString &);
    int UnitConverterProfile::*unit;
    const UnitTable &units;
    QString (*format)(double);
    bool mayBeNegative;
};

using Self = UnitConverterProfile;

const Self::Field Self::kLogPower = {
    &Self::logPower, &Self::setLogPower, &Self::m_logPowerUnit, kLogPowerUnits, fixedText, true,
};

const Self::Field Self::kLinPower = {
    &Self::linPower, &Self::setLinPower, &Self::m_linPowerUnit, kLinPowerUnits, generalText, false,
};

const Self::Field Self::kLogVoltage = {
    &Self::logVoltage,
    &Self::setLogVoltage,
    &Self::m_logVoltageUnit,
    kLogVoltageUnits,
    fixedText,
    true,
};

const Self::Field Self::kLinVoltage = {
    &Self::linVoltage, &Self::setLinVoltage, &Self::m_linVoltageUnit,
    kLinVoltageUnits,  generalText,          false,
};

UnitConverterProfile::UnitConverterProfile(QObject *parent) : Profile(parent) {}

void UnitConverterProfile::setLogPower(const QString &text)
{
    assign(m_logPower, text, &UnitConverterProfile::logPowerChanged);
}

void UnitConverterProfile::setLinPower(const QString &text)
{
    assign(m_linPower, text, &UnitConverterProfile::linPowerChanged);
}

/// Whoever sets the text (typing, a calculation, a load) means it in the unit that is chosen now.
void UnitConverterProfile::setLogVoltage(const QString &text)
{
    m_previousLogVoltageUnit = m_logVoltageUnit;
    assign(m_logVoltage, text, &UnitConverterProfile::logVoltageChanged);
}

void UnitConverterProfile::setLinVoltage(const QString &text)
{
    assign(m_linVoltage, text, &UnitConverterProfile::linVoltageChanged);
}

void UnitConverterProfile::setLogPowerUnit(int unit)
{
    assign(m_logPowerUnit, unit, &UnitConverterProfile::logPowerUnitChanged);
}

void UnitConverterProfile::setLinPowerUnit(int unit)
{
    assign(m_linPowerUnit, unit, &UnitConverterProfile::linPowerUnitChanged);
}

void UnitConverterProfile::setLogVoltageUnit(int unit)
{
    assign(m_logVoltageUnit, unit, &UnitConverterProfile::logVoltageUnitChanged);
}

void UnitConverterProfile::setLinVoltageUnit(int unit)
{
    assign(m_linVoltageUnit, unit, &UnitConverterProfile::linVoltageUnitChanged);
}

void UnitConverterProfile::setImpedance(const QString &text)
{
    assign(m_impedance, text, &UnitConverterProfile::impedanceChanged);
}

void UnitConverterProfile::setVoltageMode(int mode)
{
    assign(m_voltageMode, mode, &UnitConverterProfile::voltageModeChanged);
}

void UnitConverterProfile::saveSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("UnitConverterProfile"));
    saveKeys(*this, settings, converterKeys());
    settings.endGroup();
}

void UnitConverterProfile::loadSettings(QSettings &settings)
{
    settings.beginGroup(QStringLiteral("UnitConverterProfile"));
    loadKeys(*this, settings, converterKeys());
    settings.endGroup();
}

void UnitConverterProfile::calculateFromLinPower()
{
    const std::optional<double> milliwatt = readEdited(kLinPower);
    if (!milliwatt)
        return;
    show(kLogPower, *milliwatt);
    showVoltagesOf(*milliwatt);
    clearNonFiniteResults(kLinPower);
}

void UnitConverterProfile::calculateFromLinVoltage()
{
    const std::optional<double> millivolt = readEdited(kLinVoltage);
    if (!millivolt)
        return;
    const double rms = kVoltageModes.at(m_voltageMode).toBase(*millivolt);
    showPowersOf(rms);
    // The level is that of the RMS value in every mode, unlike the level that a power gives.
    show(kLogVoltage, rms);
    clearNonFiniteResults(kLinVoltage);
}

void UnitConverterProfile::calculateFromLogPower()
{
    const std::optional<double> milliwatt = readEdited(kLogPower);
    if (!milliwatt)
        return;
    show(kLinPower, *milliwatt);
    showVoltagesOf(*milliwatt);
    clearNonFiniteResults(kLogPower);
}

void UnitConverterProfile::calculateFromLogVoltage()
{
    const std::optional<double> millivolt = readEdited(kLogVoltage);
    if (!millivolt)
        return;
    show(kLinVoltage, *millivolt);
    showPowersOf(kVoltageModes.at(m_voltageMode).toBase(*millivolt));
    clearNonFiniteResults(kLogVoltage);
}

void UnitConverterProfile::rescaleLinPower()
{
    rescale(kLinPower,
            m_linPowerUnit == kWatt ? Levels::wattFromMilliwatt : Levels::milliwattFromWatt);
}

void UnitConverterProfile::rescaleLinVoltage()
{
    rescale(kLinVoltage,
            m_linVoltageUnit == kVolt ? Levels::voltFromMillivolt : Levels::millivoltFromVolt);
}

void UnitConverterProfile::rescaleLogPower()
{
    rescale(kLogPower, m_logPowerUnit == kDbw ? Levels::dbwFromDbm : Levels::dbmFromDbw);
}

void UnitConverterProfile::rescaleLogVoltage()
{
    const UnitConversion &before = kLogVoltageUnits.at(m_previousLogVoltageUnit);
    const UnitConversion &now = kLogVoltageUnits.at(m_logVoltageUnit);
    rescale(kLogVoltage, [&](double level) { return now.fromBase(before.toBase(level)); });
}

void UnitConverterProfile::clearAll()
{
    for (const Field *field : {&kLinPower, &kLogPower, &kLinVoltage, &kLogVoltage})
        setText(*field, QString());
}

QString UnitConverterProfile::text(const Field &field) const
{
    return (this->*field.get)();
}

void UnitConverterProfile::setText(const Field &field, const QString &text)
{
    (this->*field.set)(text);
}

/// The value of the field that was finished, in mW or mV. There is none in an empty field, which is
/// left alone, nor in one that holds no usable number, which is rejected.
std::optional<double> UnitConverterProfile::readEdited(const Field &edited)
{
    if (text(edited).isEmpty())
        return std::nullopt;
    const std::optional<double> value = readPrefixedValue(text(edited));
    if (!value || (*value < 0.0 && !edited.mayBeNegative)) {
        reject(edited);
        return std::nullopt;
    }
    return edited.units.at(this->*edited.unit).toBase(*value);
}

void UnitConverterProfile::reject(const Field &edited)
{
    setText(edited, ErrorText::invalidInput());
    for (const Field *field : {&kLinPower, &kLogPower, &kLinVoltage, &kLogVoltage}) {
        if (field != &edited)
            setText(*field, QString());
    }
}

void UnitConverterProfile::show(const Field &field, double baseValue)
{
    setText(field, field.format(field.units.at(this->*field.unit).fromBase(baseValue)));
}

/// Both voltages of a power are those of the voltage mode; the level is taken of the same value
/// that the linear field shows, which is meant.
void UnitConverterProfile::showVoltagesOf(double milliwatt)
{
    const double rms = Levels::millivoltFromMilliwatt(milliwatt, readImpedance());
    const double millivolt = kVoltageModes.at(m_voltageMode).fromBase(rms);
    show(kLinVoltage, millivolt);
    show(kLogVoltage, millivolt);
}

void UnitConverterProfile::showPowersOf(double millivoltRms)
{
    const double milliwatt = Levels::milliwattFromMillivolt(millivoltRms, readImpedance());
    show(kLinPower, milliwatt);
    show(kLogPower, milliwatt);
}

void UnitConverterProfile::clearNonFinite(const Field &field)
{
    if (isNonFiniteWord(text(field)))
        setText(field, QString());
}

/// A linear power that was typed stays as it is, even if it reads INF.
void UnitConverterProfile::clearNonFiniteResults(const Field &edited)
{
    clearNonFinite(kLogPower);
    clearNonFinite(kLogVoltage);
    clearNonFinite(kLinVoltage);
    if (&edited != &kLinPower)
        clearNonFinite(kLinPower);
}

/// A value that is infinite or no number in the new unit leaves the field empty, as the result of a
/// calculation would: a word is no quantity that could be kept.
void UnitConverterProfile::rescale(const Field &field,
                                   const std::function<double(double)> &toNewUnit)
{
    const std::optional<double> value = readPrefixedValue(text(field));
    if (!value)
        return;
    setText(field, field.format(toNewUnit(*value)));
    clearNonFinite(field);
}

/// In ohms. An impedance that does not parse is marked, and the calculation goes on with what the
/// parser made of it: 0 for a word, infinity for a number beyond all numbers.
double UnitConverterProfile::readImpedance()
{
    QString text = m_impedance;
    bool ok = false;
    const double ohm = parsePrefixedValue(text, &ok);
    if (!ok)
        setImpedance(ErrorText::invalid());
    return ohm;
}
