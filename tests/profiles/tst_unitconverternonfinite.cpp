// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"
#include "testmain.h"
#include "unitconverterprofile.h"

#include <QTest>

using namespace Dezimo;

/// Results of the unit converter that no field can show, and impedances that lead to them.
class UnitConverterNonFiniteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptiesMinusInfinity();
    void anImpedanceBeyondAllNumbersIsInfinite_data();
    void anImpedanceBeyondAllNumbersIsInfinite();
};

void UnitConverterNonFiniteTest::emptiesMinusInfinity()
{
    UnitConverterProfile profile;
    setProperties(profile, {{"impedance", "-0"}, {"logPower", "9"}, {"linVoltage", "5"}});
    QStringList powers;
    connect(&profile, &UnitConverterProfile::linPowerChanged, this,
            [&] { powers += profile.linPower(); });
    // 20 lg(0.005) = -46.02; the power is (0.005 V)^2 / -0 ohm and has no level
    const QStringList expected =
        propertyLines(profile, {{"logPower", ""}, {"logVoltage", "-46.02"}});
    profile.calculateFromLinVoltage();
    QCOMPARE(propertyLines(profile), expected);
    QCOMPARE(powers, (QStringList{QStringLiteral("-INF"), QString()}));
}

void UnitConverterNonFiniteTest::anImpedanceBeyondAllNumbersIsInfinite_data()
{
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<PropertyValues>("changes");

    const auto row = [](const char *tag, const PropertyValue &edited, const char *slot,
                        const PropertyValues &changes) {
        PropertyValues given;
        for (const char *name : {"logPower", "linPower", "logVoltage", "linVoltage"})
            given.push_back({name, "9"});
        given.push_back(edited);
        given.push_back({"impedance", "1e999"});
        QTest::newRow(tag) << given << QByteArray(slot) << changes;
    };
    row("a power in it has no voltage", {"linPower", "1"}, "calculateFromLinPower",
        {{"impedance", "invalid"}, {"logPower", "0.00"}, {"linVoltage", ""}, {"logVoltage", ""}});
    row("a power level in it has no voltage", {"logPower", "0"}, "calculateFromLogPower",
        {{"impedance", "invalid"}, {"linPower", "1"}, {"linVoltage", ""}, {"logVoltage", ""}});
    // (1 V)^2 / infinity
    row("a voltage across it has no power", {"linVoltage", "1000"}, "calculateFromLinVoltage",
        {{"impedance", "invalid"}, {"linPower", "0"}, {"logPower", ""}, {"logVoltage", "0.00"}});
}

void UnitConverterNonFiniteTest::anImpedanceBeyondAllNumbersIsInfinite()
{
    QFETCH(PropertyValues, given);
    QFETCH(QByteArray, slot);
    QFETCH(PropertyValues, changes);

    UnitConverterProfile profile;
    setProperties(profile, given);
    const QStringList expected = propertyLines(profile, changes);
    QVERIFY(QMetaObject::invokeMethod(&profile, slot.constData()));
    QCOMPARE(propertyLines(profile), expected);
}

DEZIMO_TEST_MAIN(QCoreApplication, UnitConverterNonFiniteTest)

#include "tst_unitconverternonfinite.moc"
