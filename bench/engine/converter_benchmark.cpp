// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * Every calculation of the converters, after an edit of the field that it starts from.
 */

#include "benchmarks.h"
#include "dbconverterprofile.h"
#include "unitconverterprofile.h"
#include "vswrconverterprofile.h"

#include <benchmark/benchmark.h>

#include <initializer_list>

using namespace Dezimo;

namespace {

/// A model notes which field it calculated last, so that leaving that field again does nothing. An
/// edit clears the note.
void beginEdit(DbConverterProfile &converter)
{
    converter.setPLatestRun(0);
    converter.setVLatestRun(0);
}

void beginEdit(UnitConverterProfile &) {}

void beginEdit(VswrConverterProfile &) {}

/// What the other fields must hold when something is typed into one.
void fill(UnitConverterProfile &) {}

void fill(DbConverterProfile &converter)
{
    converter.setP2(QStringLiteral("5"));
    converter.setV2(QStringLiteral("5"));
}

void fill(VswrConverterProfile &converter)
{
    converter.setPForward(QStringLiteral("10"));
    converter.setVswr(QStringLiteral("1.5"));
    converter.calculateFromVswr();
}

template <typename Converter>
struct Row
{
    const char *name;
    void (Converter::*type)(const QString &);
    void (Converter::*calculate)();
};

template <typename Converter>
void convert(benchmark::State &state, const Row<Converter> &row)
{
    const QString texts[] = {QStringLiteral("0.25"), QStringLiteral("0.5")};
    Converter converter;
    fill(converter);
    int edit = 0;
    while (state.KeepRunning()) {
        beginEdit(converter);
        (converter.*row.type)(texts[++edit % 2]);
        (converter.*row.calculate)();
    }
}

template <typename Converter>
void registerRows(std::initializer_list<Row<Converter>> rows)
{
    for (const Row<Converter> &row : rows)
        benchmark::RegisterBenchmark(row.name, convert<Converter>, row);
}

} // namespace

void registerConverters()
{
    using Unit = UnitConverterProfile;
    using Db = DbConverterProfile;
    using Vswr = VswrConverterProfile;
    registerRows<UnitConverterProfile>({
        {"unitConverter/LinPower", &Unit::setLinPower, &Unit::calculateFromLinPower},
        {"unitConverter/LinVoltage", &Unit::setLinVoltage, &Unit::calculateFromLinVoltage},
        {"unitConverter/LogPower", &Unit::setLogPower, &Unit::calculateFromLogPower},
        {"unitConverter/LogVoltage", &Unit::setLogVoltage, &Unit::calculateFromLogVoltage},
    });
    registerRows<DbConverterProfile>({
        {"dbConverter/P1", &Db::setP1, &Db::calculateFromP1},
        {"dbConverter/P2", &Db::setP2, &Db::calculateFromP2},
        {"dbConverter/PRatio", &Db::setPRatio, &Db::calculateFromPRatio},
        {"dbConverter/PDb", &Db::setPDb, &Db::calculateFromPDb},
        {"dbConverter/V1", &Db::setV1, &Db::calculateFromV1},
        {"dbConverter/V2", &Db::setV2, &Db::calculateFromV2},
        {"dbConverter/VRatio", &Db::setVRatio, &Db::calculateFromVRatio},
        {"dbConverter/VDb", &Db::setVDb, &Db::calculateFromVDb},
    });
    registerRows<VswrConverterProfile>({
        {"vswrConverter/Vswr", &Vswr::setVswr, &Vswr::calculateFromVswr},
        {"vswrConverter/R", &Vswr::setR, &Vswr::calculateFromR},
        {"vswrConverter/R2", &Vswr::setR2, &Vswr::calculateFromR2},
        {"vswrConverter/Ar", &Vswr::setAr, &Vswr::calculateFromAr},
        {"vswrConverter/Am", &Vswr::setAm, &Vswr::calculateFromAm},
        {"vswrConverter/PForward", &Vswr::setPForward, &Vswr::calculateFromPForward},
        {"vswrConverter/PReflected", &Vswr::setPReflected, &Vswr::calculateFromPReflected},
        {"vswrConverter/PAbsorbed", &Vswr::setPAbsorbed, &Vswr::calculateFromPAbsorbed},
        {"vswrConverter/VForward", &Vswr::setVForward, &Vswr::calculateFromVForward},
        {"vswrConverter/VReflected", &Vswr::setVReflected, &Vswr::calculateFromVReflected},
        {"vswrConverter/VAbsorbed", &Vswr::setVAbsorbed, &Vswr::calculateFromVAbsorbed},
    });
}
