// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "shownnumber.h"
#include "testmain.h"
#include "unitconverterprofile.h"
#include "vswrconverterprofile.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>

using namespace Dezimo;

/// There and back again, a thousand times each with random values. The difference must not exceed
/// what the texts on the way lose by rounding: a linear value has ten digits and a level two
/// decimals.
class ConverterRoundTripsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void powerToVoltage();
    void powerLevelToVoltageLevel();
    void vswrToReflectionCoefficient();
    void reflectionCoefficientToReturnLoss();
    void vswrToReturnLoss();
    void rescaledLinearUnits();
    void rescaledLevelUnits();
    void powerUnits();
    void voltageUnits();

private:
    double uniform(double from, double to);
    int below(int count);
    QString text(double value) const;
    void unitThereAndBack(const QByteArray &field);

    QRandomGenerator m_random;
};

namespace {

constexpr int kRuns = 1000;
constexpr quint32 kSeed = 20261121;
constexpr int kDigits = 10;
/// The relative loss of rounding to ten digits.
constexpr double kDigitLoss = 5e-10;
/// The loss of rounding to two decimals.
constexpr double kLevelLoss = 0.005;
/// Some differences are exactly as large as the sum of their losses.
constexpr double kSlack = 1e-9;
/// If a voltage changes by the small fraction x, its level changes by 8.69 x in dB.
constexpr double kDbPerNeper = 8.685889638;

bool isNear(const QString &after, const QString &before, double tolerance)
{
    return std::abs(shownNumber(after) - shownNumber(before)) <= tolerance;
}

} // namespace

void ConverterRoundTripsTest::init()
{
    m_random.seed(kSeed);
}

double ConverterRoundTripsTest::uniform(double from, double to)
{
    return from + (to - from) * m_random.generateDouble();
}

int ConverterRoundTripsTest::below(int count)
{
    return m_random.bounded(count);
}

QString ConverterRoundTripsTest::text(double value) const
{
    return QString::number(value, 'g', kDigits);
}

void ConverterRoundTripsTest::powerToVoltage()
{
    for (int run = 0; run < kRuns; ++run) {
        UnitConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        profile.setImpedance(text(uniform(1, 1000)));
        profile.setVoltageMode(below(3));
        profile.setLinPowerUnit(below(2));
        profile.setLinVoltageUnit(below(2));
        const QString before = text(std::pow(10, uniform(-12, 6)));
        profile.setLinPower(before);
        profile.calculateFromLinPower();
        profile.calculateFromLinVoltage();
        // Squaring doubles the loss of the voltage. Then the power is rounded once more.
        QVERIFY2(isNear(profile.linPower(), before, 3.1 * kDigitLoss * shownNumber(before)),
                 qPrintable(before));
    }
}

void ConverterRoundTripsTest::powerLevelToVoltageLevel()
{
    for (int run = 0; run < kRuns; ++run) {
        UnitConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        profile.setImpedance(text(uniform(1, 1000)));
        profile.setVoltageMode(below(3));
        profile.setLogPowerUnit(below(2));
        profile.setLogVoltageUnit(below(3));
        const QString before = QString::number(uniform(-120, 60), 'f', 2);
        profile.setLogPower(before);
        profile.calculateFromLogPower();
        profile.calculateFromLogVoltage();
        QVERIFY2(isNear(profile.logPower(), before, 2 * kLevelLoss + kSlack), qPrintable(before));
    }
}

void ConverterRoundTripsTest::vswrToReflectionCoefficient()
{
    for (int run = 0; run < kRuns; ++run) {
        VswrConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const QString before = text(1 + std::pow(10, uniform(-3, 3)));
        const double s = shownNumber(before);
        profile.setVswr(before);
        profile.calculateFromVswr();
        const double r = shownNumber(profile.r());
        profile.calculateFromR();
        // ds = 2 dr / (1 - r)^2 = dr (s + 1)^2 / 2
        const double tolerance = kDigitLoss * (r * (s + 1) * (s + 1) / 2 + s) * 1.01;
        QVERIFY2(isNear(profile.vswr(), before, tolerance), qPrintable(before));
    }
}

void ConverterRoundTripsTest::reflectionCoefficientToReturnLoss()
{
    for (int run = 0; run < kRuns; ++run) {
        VswrConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const QString vswr = text(1 + std::pow(10, uniform(-3, 3)));
        profile.setVswr(vswr);
        profile.calculateFromVswr();
        profile.calculateFromR();
        const QString before = profile.r();
        profile.calculateFromAr();
        const double tolerance = shownNumber(before) * (kLevelLoss / kDbPerNeper * 1.01);
        QVERIFY2(isNear(profile.r(), before, tolerance), qPrintable(vswr));
        profile.calculateFromR();
        profile.calculateFromR2();
        QVERIFY2(isNear(profile.r(), before, tolerance), qPrintable(vswr));
    }
}

/// A VSWR does not give a return loss, so this goes through the reflection coefficient both ways.
void ConverterRoundTripsTest::vswrToReturnLoss()
{
    for (int run = 0; run < kRuns; ++run) {
        VswrConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const QString before = text(1 + std::pow(10, uniform(-3, 2)));
        profile.setVswr(before);
        profile.calculateFromVswr();
        QCOMPARE(profile.ar(), QString());
        profile.calculateFromR();
        profile.calculateFromAr();
        profile.setVswr(QString());
        profile.calculateFromR();
        // The larger the coefficient is, the faster the VSWR grows. So the VSWR is off most where
        // the rounded return loss made the coefficient larger.
        const double r = (shownNumber(before) - 1) / (shownNumber(before) + 1);
        const double largest = r * std::pow(10, kLevelLoss * 1.01 / 20);
        const double tolerance = (1 + largest) / (1 - largest) - shownNumber(before);
        QVERIFY2(isNear(profile.vswr(), before, tolerance), qPrintable(before));
    }
}

void ConverterRoundTripsTest::rescaledLinearUnits()
{
    for (int run = 0; run < kRuns; ++run) {
        UnitConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const int unit = below(2);
        const QString before = text(std::pow(10, uniform(-12, 6)));
        profile.setLinPowerUnit(unit);
        profile.setLinVoltageUnit(unit);
        profile.setLinPower(before);
        profile.setLinVoltage(before);
        for (const int next : {1 - unit, unit}) {
            profile.setLinPowerUnit(next);
            profile.rescaleLinPower();
            profile.setLinVoltageUnit(next);
            profile.rescaleLinVoltage();
        }
        // A factor of 1000 only moves the decimal point.
        QVERIFY2(isNear(profile.linPower(), before, 1e-15 * shownNumber(before)),
                 qPrintable(before));
        QVERIFY2(isNear(profile.linVoltage(), before, 1e-15 * shownNumber(before)),
                 qPrintable(before));
    }
}

void ConverterRoundTripsTest::rescaledLevelUnits()
{
    for (int run = 0; run < kRuns; ++run) {
        UnitConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const int powerUnit = below(2);
        const int voltageUnit = below(3);
        const QString before = QString::number(uniform(-150, 150), 'f', 2);
        profile.setLogPowerUnit(powerUnit);
        profile.setLogVoltageUnit(voltageUnit);
        profile.setLogPower(before);
        profile.setLogVoltage(before);
        profile.setLogPowerUnit(1 - powerUnit);
        profile.rescaleLogPower();
        profile.setLogPowerUnit(powerUnit);
        profile.rescaleLogPower();
        profile.setLogVoltageUnit((voltageUnit + 1 + below(2)) % 3);
        profile.rescaleLogVoltage();
        profile.setLogVoltageUnit(voltageUnit);
        profile.rescaleLogVoltage();
        QVERIFY2(isNear(profile.logPower(), before, kSlack), qPrintable(before));
        QVERIFY2(isNear(profile.logVoltage(), before, 2 * kLevelLoss + kSlack), qPrintable(before));
    }
}

/// Units 0 and 1 are levels, 2 and 3 linear. Levels up to 200 dB keep seven decimals in ten digits.
void ConverterRoundTripsTest::unitThereAndBack(const QByteArray &field)
{
    constexpr double kLevelDigitLoss = 5e-8;
    const QByteArray unitName = field + "Unit";
    for (int run = 0; run < kRuns; ++run) {
        VswrConverterProfile profile;
        profile.setSignificantDigits(kDigits);
        const int unit = below(4);
        const int other = (unit + 1 + below(3)) % 4;
        const bool isLevel = unit < 2;
        const QString before = text(isLevel ? uniform(-80, 80) : std::pow(10, uniform(-6, 6)));
        profile.setProperty(unitName.constData(), unit);
        profile.setProperty(field.constData(), before);
        profile.setProperty(unitName.constData(), other);
        profile.setProperty(unitName.constData(), unit);
        // On the way as a level, a linear power loses 5e-8 dB * 0.23, and a voltage half of that.
        // On the way as a linear value, a level loses at most 5e-10 * 8.69 dB.
        const double tolerance =
            isLevel ? 2.1 * kLevelDigitLoss : shownNumber(before) * (0.25 * kLevelDigitLoss);
        const QString after = profile.property(field.constData()).toString();
        QVERIFY2(isNear(after, before, tolerance), qPrintable(before));
    }
}

void ConverterRoundTripsTest::powerUnits()
{
    for (const char *field : {"pForward", "pReflected", "pAbsorbed"})
        unitThereAndBack(field);
}

void ConverterRoundTripsTest::voltageUnits()
{
    for (const char *field : {"vForward", "vReflected", "vAbsorbed"})
        unitThereAndBack(field);
}

DEZIMO_TEST_MAIN(QCoreApplication, ConverterRoundTripsTest)

#include "tst_converterroundtrips.moc"
