// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"

#include "mainprofile.h"
#include "propertyvalues.h"
#include "settingsfile.h"

#include <QMap>
#include <QPoint>
#include <QSize>

using namespace Dezimo;

namespace {

QString nameOf(const Profile &profile, const QMetaProperty &property)
{
    return profile.group() + QLatin1Char('.') + QString::fromLatin1(property.name());
}

QMap<int, bool> withFirstFlipped(QMap<int, bool> units)
{
    units.first() = !units.first();
    return units;
}

} // namespace

std::vector<Profile *> everyProfile(MainProfile &root)
{
    // In Qt 5, two variants with the same map are not equal without this comparator.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    static const bool registered = QMetaType::registerEqualsComparator<QMap<int, bool>>();
    Q_UNUSED(registered)
#endif

    std::vector<Profile *> profiles{&root};
    for (ModuleProfile *module : root.modules())
        profiles.push_back(module);
    return profiles;
}

QVariant otherValue(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return QVariant(value.toString() + QLatin1Char('1'));
    case QMetaType::Int:
        return value.toInt() + 1;
    case QMetaType::Double:
        return value.toDouble() + 22.5;
    case QMetaType::QPoint:
        return value.toPoint() + QPoint(120, -30);
    case QMetaType::QSize:
        return value.toSize() + QSize(641, 481);
    default:
        return QVariant::fromValue(withFirstFlipped(value.value<QMap<int, bool>>()));
    }
}

void changeEverything(MainProfile &root)
{
    for (Profile *profile : everyProfile(root)) {
        for (const QMetaProperty &property : declaredProperties(*profile))
            property.write(profile, otherValue(property.read(profile)));
    }
}

QByteArray savedText(MainProfile &root)
{
    SettingsFile file;
    root.saveSettings(file.settings());
    return file.text();
}

const QByteArray &savedChanges()
{
    static const QByteArray text = [] {
        MainProfile changed;
        changeEverything(changed);
        return savedText(changed);
    }();
    return text;
}

QStringList everyPropertyName(MainProfile &root)
{
    QStringList names;
    for (const Profile *profile : everyProfile(root)) {
        for (const QMetaProperty &property : declaredProperties(*profile))
            names += nameOf(*profile, property);
    }
    return names;
}

QStringList differences(MainProfile &left, MainProfile &right)
{
    QStringList names;
    const std::vector<Profile *> others = everyProfile(right);
    auto other = others.begin();
    for (const Profile *profile : everyProfile(left)) {
        for (const QMetaProperty &property : declaredProperties(*profile)) {
            if (property.read(profile) != property.read(*other))
                names += nameOf(*profile, property);
        }
        ++other;
    }
    return names;
}
