// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_EVERYPROFILE_H
#define TESTS_PROFILES_EVERYPROFILE_H

#include <QByteArray>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace Dezimo {
class MainProfile;
class Profile;
} // namespace Dezimo

/// For tests that hold for each property of each profile: they walk the meta-objects, so that a new
/// property is tested as soon as it is declared.

/// @p root and the module profiles in the order in which they are stored. Values of properties
/// compare as equal from the first call on.
std::vector<Dezimo::Profile *> everyProfile(Dezimo::MainProfile &root);

/// A value of the same type that differs from @p value. If that is a default value, every property
/// accepts the result.
QVariant otherValue(const QVariant &value);

/// Gives each property of each profile another value, in the order of declaration.
void changeEverything(Dezimo::MainProfile &root);

/// The bytes of a file with the state of @p root. A store that reads them does not know the types
/// of the values.
QByteArray savedText(Dezimo::MainProfile &root);

/// The bytes of a file with every property changed.
const QByteArray &savedChanges();

/// Each property as "class.property", in the order of the profiles and of declaration.
QStringList everyPropertyName(Dezimo::MainProfile &root);

/// The properties, named as above, that differ between @p left and @p right.
QStringList differences(Dezimo::MainProfile &left, Dezimo::MainProfile &right);

#endif
