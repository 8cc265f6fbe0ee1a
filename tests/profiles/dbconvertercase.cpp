// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconvertercase.h"

#include "dbconverterprofile.h"

#include <QTest>

using namespace Dezimo;

PropertyValues valuesOf(const DbHalf &half, const DbFields &fields)
{
    return {{half.properties.first, fields.first},
            {half.properties.second, fields.second},
            {half.properties.ratio, fields.ratio},
            {half.properties.db, fields.db}};
}

void addDbColumns()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<bool>("isPower");
    QTest::addColumn<PropertyValues>("given");
    QTest::addColumn<PropertyValues>("expected");
}

void addDbCase(const char *tag, const DbFields &given, const DbFields &powers,
               const DbFields &voltages, int decimalPlaces)
{
    QTest::addRow("powers: %s", tag)
        << decimalPlaces << true << valuesOf(kPowerHalf, given) << valuesOf(kPowerHalf, powers);
    QTest::addRow("voltages: %s", tag) << decimalPlaces << false << valuesOf(kVoltageHalf, given)
                                       << valuesOf(kVoltageHalf, voltages);
}

void addDbCase(const char *tag, const DbFields &given, const DbFields &expected, int decimalPlaces)
{
    addDbCase(tag, given, expected, expected, decimalPlaces);
}

void checkDbCase(const char *DbFields::*calculation, int DbHalf::*run)
{
    QFETCH(int, places);
    QFETCH(bool, isPower);
    QFETCH(PropertyValues, given);
    QFETCH(PropertyValues, expected);

    const DbHalf &half = isPower ? kPowerHalf : kVoltageHalf;
    const DbHalf &other = isPower ? kVoltageHalf : kPowerHalf;
    DbConverterProfile profile;
    profile.setSignificantDigits(places);
    setProperties(profile, valuesOf(other, {"11", "12", "13", "14"}));
    setProperties(profile, given);
    expected.push_back({half.latestRun, half.*run});
    const QStringList lines = propertyLines(profile, expected);
    QVERIFY(QMetaObject::invokeMethod(&profile, half.calculations.*calculation));
    QCOMPARE(propertyLines(profile), lines);
}
