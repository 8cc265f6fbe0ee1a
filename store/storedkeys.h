// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef STORE_STOREDKEYS_H
#define STORE_STOREDKEYS_H

#include <QVariant>

#include <limits>
#include <vector>

class QObject;
class QSettings;

namespace Dezimo {

/// From minimum to maximum, both included.
struct StoredRange
{
    int minimum = std::numeric_limits<int>::min();
    int maximum = std::numeric_limits<int>::max();
};

/// What a selector holds: the index of one of its rows, the first of which is 0.
constexpr StoredRange upTo(int last)
{
    return {0, last};
}

/**
 * One row of an object's table of stored values: a property, stored under its own name. The same
 * row drives saving and loading, so that the two cannot drift apart. The type of the default is the
 * type that is stored: text, int, bool, double, point or size.
 */
struct StoredKey
{
    const char *property;
    QVariant defaultValue;
    StoredRange range = {};
};

using StoredKeys = std::vector<StoredKey>;

/// The longest text that is read back. It is what a line edit holds: a longer text would come back
/// from the field cut.
constexpr int kMaximumTextLength = 32767;

/// The value of @p key in the current group of @p settings, or @p defaultValue where the key is
/// missing or malformed: another type than the default's, a number that is none, an infinity, a
/// text longer than kMaximumTextLength.
QVariant storedValue(const QSettings &settings, const char *key, const QVariant &defaultValue);

/// Writes the rows' properties of @p object into @p group of @p settings, in row order.
void saveGroup(const QObject &object, QSettings &settings, const QString &group,
               const StoredKeys &rows);

/// Reads the rows from @p group of @p settings and hands each value to the setter of its property,
/// in row order. A number outside the row's range (that of int, unless the row gives one) is
/// malformed, and so is a size with a side outside it.
void loadGroup(QObject &object, QSettings &settings, const QString &group, const StoredKeys &rows);

} // namespace Dezimo

#endif
