// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_PROFILE_H
#define PROFILES_PROFILE_H

#include <QObject>

class QSettings;

namespace Dezimo {

/**
 * Base of every model. A profile holds the values of one concern as the texts a person sees,
 * announces each real change by a signal without arguments, and keeps its values in a group of its
 * own in a settings store. Bad input becomes an error text in a property.
 */
class Profile : public QObject
{
    Q_OBJECT

public:
    explicit Profile(QObject *parent = nullptr) : QObject(parent) {}

    /// The name of the profile's group in a store: that of its class, without the namespace.
    QString group() const
    {
        const QLatin1String name(metaObject()->className());
        return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
    }

    /// Writes the profile's group into @p settings.
    virtual void saveSettings(QSettings &settings) = 0;
    /// Reads the profile's group from @p settings through the setters; a key that is missing or
    /// malformed takes its default.
    virtual void loadSettings(QSettings &settings) = 0;
};

} // namespace Dezimo

#endif
