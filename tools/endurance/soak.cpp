// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "memorytrend.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QMetaProperty>

#include <cstdio>
#include <random>
#include <vector>

using namespace Dezimo;

namespace {

using Random = std::mt19937;

constexpr int kMemorySamples = 400;

size_t below(Random &random, size_t bound)
{
    return std::uniform_int_distribution<size_t>(0, bound - 1)(random);
}

QString randomText(Random &random)
{
    static const std::vector<const char *> pieces{
        "0",  "1",   "7",   "50", ".5", "-3", "1e9", "1e-9", "+", "-", "*",     "/", "(",  ")",
        "dB", "dBm", "dBW", "W",  "mW", "µW", "V",   "mV",   "k", "m", "u",     " ", ",",  ".",
        "E",  "inf", "nan", "Ω",  "@",  "\n", "°",   "dBµV", "p", "G", "1e400", "−", "%1", "💥"};
    QString text;
    for (size_t count = below(random, 8); count > 0; --count)
        text += QString::fromUtf8(pieces.at(below(random, pieces.size())));
    return text;
}

/// Half of the texts are numbers with a unit that some field accepts, so that some calculations
/// succeed.
QString randomInput(Random &random)
{
    static const std::vector<const char *> units{"", "", "", "dBm", "dB", "W", "mW", "V", "mV"};
    if (below(random, 2) == 0)
        return randomText(random);
    const double number = std::uniform_real_distribution<double>(-5.0, 100.0)(random);
    const QString unit = QString::fromLatin1(units.at(below(random, units.size())));
    const QString term = QString::number(number, 'g', 6) + unit;
    return below(random, 2) == 0 ? term : term + QLatin1Char('+') + term;
}

QVariant randomValue(Random &random, int type)
{
    switch (type) {
    case QMetaType::QString:
        return randomInput(random);
    case QMetaType::Int:
        return int(below(random, 8)) - 1;
    case QMetaType::Double:
        return std::uniform_real_distribution<double>(-400.0, 400.0)(random);
    default:
        return {};
    }
}

/// What can be done to one model: its properties, and the calculations among its slots.
struct Model
{
    explicit Model(Profile *modelProfile) : profile(modelProfile)
    {
        const QMetaObject &type = *profile->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
            properties.push_back(type.property(i));
        for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
            if (type.method(i).name().startsWith("calculate"))
                calculations.push_back(type.method(i));
        }
    }

    Profile *profile;
    std::vector<QMetaProperty> properties;
    std::vector<QMetaMethod> calculations;
};

/// Sets a property to a random value and then makes a random calculation.
void edit(Random &random, const Model &model)
{
    const QMetaProperty &property = model.properties.at(below(random, model.properties.size()));
    const QVariant value = randomValue(random, property.userType());
    if (value.isValid())
        property.write(model.profile, value);
    model.calculations.at(below(random, model.calculations.size())).invoke(model.profile);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: dezimo-soak <edits> <seed>\n", stderr);
        return 2;
    }
    const int edits = application.arguments().at(1).toInt();
    Random random(application.arguments().at(2).toUInt());

    std::vector<Model> models;
    for (Profile *profile : MainProfile::instance().modules())
        models.emplace_back(profile);
    MemoryTrend memory;
    for (int done = 0; done < edits; ++done) {
        edit(random, models.at(below(random, models.size())));
        if (below(random, 100) == 0)
            MainProfile::instance().setDecimalPlaces(int(below(random, 11)));
        if (done % std::max(1, edits / kMemorySamples) == 0)
            memory.sample();
    }
    std::printf("%d edits\n", edits);
    memory.print();
    return memory.isUpward() ? 1 : 0;
}
