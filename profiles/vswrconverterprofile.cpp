// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "vswrconverterprofile.h"

#include "errortexts.h"
#include "prefixedvalue.h"
#include "reflection.h"
#include "storedkeys.h"
#include "units.h"
#include "valuetext.h"

#include <cmath>
#include <iterator>
#include <limits>

using namespace Dezimo;

namespace {

/// A port with a VSWR this near to 1 is matched.
constexpr double kMatchTolerance = 1e-12;
/// The largest reflection coefficient that is accepted. It is 100 on purpose, as for the
/// percentage, and not 1: values above 1 are computed as they come, to a negative VSWR and a
/// mismatch loss that is not a number.
constexpr double kMaximumReflection = 100.0;
constexpr double kNoMaximum = std::numeric_limits<double>::infinity();

constexpr const Unit *kPowerRows[] = {&Units::kDbm, &Units::kDbw, &Units::kWatt,
                                      &Units::kMilliwatt};
constexpr const Unit *kVoltageRows[] = {&Units::kDbv, &Units::kDbmicrovolt, &Units::kVolt,
                                        &Units::kMillivolt};
constexpr int kLastPowerUnit = int(std::size(kPowerRows)) - 1;
constexpr int kLastVoltageUnit = int(std::size(kVoltageRows)) - 1;

const StoredKeys &textKeys()
{
    static const StoredKeys rows{
        {"vswr", QString()},       {"r", QString()},         {"r2", QString()},
        {"ar", QString()},         {"am", QString()},        {"pForward", QString()},
        {"pReflected", QString()}, {"pAbsorbed", QString()}, {"vForward", QString()},
        {"vReflected", QString()}, {"vAbsorbed", QString()},
    };
    return rows;
}

const StoredKeys &selectionKeys()
{
    static const StoredKeys rows{
        {"currentMode", 0, upTo(1)},
        {"pForwardUnit", 0, upTo(kLastPowerUnit)},
        {"pReflectedUnit", 0, upTo(kLastPowerUnit)},
        {"pAbsorbedUnit", 0, upTo(kLastPowerUnit)},
        {"vForwardUnit", 0, upTo(kLastVoltageUnit)},
        {"vReflectedUnit", 0, upTo(kLastVoltageUnit)},
        {"vAbsorbedUnit", 0, upTo(kLastVoltageUnit)},
    };
    return rows;
}

QString vswrText(double reflection, int digits)
{
    return generalText(Reflection::vswr(reflection), digits);
}

QString squareText(double reflection, int digits)
{
    return generalText(Reflection::square(reflection), digits);
}

/// Without reflection there is no return loss to show.
QString returnLossText(double reflection, int /*digits*/)
{
    return reflection == 0.0 ? QString() : fixedText(Reflection::returnLoss(reflection));
}

/// At the limit of what is accepted there is no mismatch loss to show; from 1 up to it there is,
/// infinite or not a number.
QString mismatchLossText(double reflection, int /*digits*/)
{
    if (reflection == kMaximumReflection)
        return {};
    return fixedText(Reflection::mismatchLoss(reflection));
}

/// A VSWR may be typed as the ratio that it is: 2, 2:1 and 2 : 1 are the same.
std::optional<double> readVswr(QString text)
{
    text.remove(QLatin1Char(' '));
    text.remove(QLatin1String(":1"));
    return readPrefixedValue(text);
}

} // namespace

/// How a quantity of the reflection group is read, what is valid, and how it follows from the
/// reflection coefficient.
struct VswrConverterProfile::Rule
{
    std::optional<double> (*read)(QString);
    double minimum;
    double maximum;
    double (*reflectionFrom)(double);
    /// The digits are those of linear values.
    QString (*textFrom)(double reflection, int digits);
};

using Self = VswrConverterProfile;

const Self::Rule Self::kVswr = {readVswr, 1.0, kNoMaximum, Reflection::fromVswr, vswrText};
const Self::Rule Self::kR = {readPrefixedValue, 0.0, kMaximumReflection,
                             [](double reflection) { return reflection; }, generalText};
const Self::Rule Self::kR2 = {readPrefixedValue, 0.0, Reflection::kPercent, Reflection::fromSquare,
                              squareText};
const Self::Rule Self::kAr = {readPrefixedValue, 0.0, kNoMaximum, Reflection::fromReturnLoss,
                              returnLossText};
const Self::Rule Self::kAm = {readPrefixedValue, 0.0, kNoMaximum, Reflection::fromMismatchLoss,
                              mismatchLossText};

const UnitSelector Self::kPowerUnits(kPowerRows, Units::kMilliwatt);
const UnitSelector Self::kVoltageUnits(kVoltageRows, Units::kMillivolt);

void VswrConverterProfile::saveSettings(QSettings &settings)
{
    saveGroup(*this, settings, group(), textKeys());
    saveGroup(*this, settings, group(), selectionKeys());
}

void VswrConverterProfile::loadSettings(QSettings &settings)
{
    loadGroup(*this, settings, group(), selectionKeys());
    loadGroup(*this, settings, group(), textKeys());
}

/// Shows a return loss only for a match, where it is infinite. It stays empty on purpose for every
/// other VSWR.
void VswrConverterProfile::calculateFromVswr()
{
    const std::optional<double> vswr = readEdited(m_vswr);
    if (!vswr)
        return;
    const double reflection = kVswr.reflectionFrom(*vswr);
    const bool matched = !(std::abs(*vswr - 1.0) > kMatchTolerance);
    setR(generalText(reflection, significantDigits()));
    setAr(matched ? fixedText(Reflection::returnLoss(reflection)) : QString());
    setR2(squareText(reflection, significantDigits()));
    setAm(mismatchLossText(reflection, significantDigits()));
}

/// The value of the quantity that was finished. An empty field has none and is left alone; one
/// without a valid number is rejected.
std::optional<double> VswrConverterProfile::readEdited(Quantity &edited)
{
    const QString text = edited.text.get();
    if (text.isEmpty())
        return std::nullopt;
    const std::optional<double> value = edited.rule.read(text);
    if (value && *value >= edited.rule.minimum && *value <= edited.rule.maximum)
        return value;
    reject(edited);
    return std::nullopt;
}

void VswrConverterProfile::reject(Quantity &edited)
{
    edited.text.set(ErrorText::kInvalidInput);
    for (Quantity *quantity : {&m_vswr, &m_r, &m_r2, &m_ar, &m_am}) {
        if (quantity != &edited)
            quantity->text.set(QString());
    }
}

void VswrConverterProfile::finishQuantity(Quantity &edited)
{
    const std::optional<double> value = readEdited(edited);
    if (!value)
        return;
    const double reflection = edited.rule.reflectionFrom(*value);
    for (Quantity *quantity : {&m_r, &m_vswr, &m_r2, &m_ar, &m_am}) {
        if (quantity != &edited)
            quantity->text.set(quantity->rule.textFrom(reflection, significantDigits()));
    }
}
