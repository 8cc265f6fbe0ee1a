// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "storedkeys.h"

#include <QLocale>
#include <QObject>
#include <QPoint>
#include <QSettings>
#include <QSize>

#include <cmath>

namespace Dezimo {

namespace {

/// INI files keep every number as a text, the registry keeps integers as integers.
bool isNumberOrText(const QVariant &stored)
{
    switch (stored.userType()) {
    case QMetaType::QString:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

QVariant textOrNothing(const QVariant &stored)
{
    const bool isText = stored.userType() == QMetaType::QString;
    return isText && stored.toString().size() <= kMaximumTextLength ? stored : QVariant();
}

/// Read as a text whatever its type, since a variant cuts a number that is no int down to one. The
/// text is read by a locale: QString::toInt() takes other blanks in Qt 6 than in Qt 5, and ends at
/// a zero character.
QVariant integerOrNothing(const QVariant &stored)
{
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const int value = isNumberOrText(stored) ? plain.toInt(stored.toString(), &ok) : 0;
    return ok ? QVariant(value) : QVariant();
}

QVariant finiteOrNothing(const QVariant &stored)
{
    bool ok = false;
    const double value = isNumberOrText(stored) ? stored.toDouble(&ok) : 0.0;
    return ok && std::isfinite(value) ? QVariant(value) : QVariant();
}

QVariant boolOrNothing(const QVariant &stored)
{
    if (stored.userType() == QMetaType::Bool)
        return stored;
    const QString text = isNumberOrText(stored) ? stored.toString() : QString();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return {};
}

/// The stored value as the type of @p wanted, or an invalid variant where it is malformed.
QVariant wellFormed(const QVariant &stored, const QVariant &wanted)
{
    switch (wanted.userType()) {
    case QMetaType::QString:
        return textOrNothing(stored);
    case QMetaType::Int:
        return integerOrNothing(stored);
    case QMetaType::Double:
        return finiteOrNothing(stored);
    case QMetaType::Bool:
        return boolOrNothing(stored);
    default:
        return stored.userType() == wanted.userType() ? stored : QVariant();
    }
}

bool isWithin(const StoredRange &range, double number)
{
    return number >= range.minimum && number <= range.maximum;
}

bool isWithin(const StoredRange &range, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::Double:
        return isWithin(range, value.toDouble());
    case QMetaType::QSize:
        return isWithin(range, value.toSize().width()) && isWithin(range, value.toSize().height());
    default:
        return true;
    }
}

} // namespace

QVariant storedValue(const QSettings &settings, const char *key, const QVariant &defaultValue)
{
    const QVariant stored = settings.value(QLatin1String(key));
    const QVariant value = stored.isValid() ? wellFormed(stored, defaultValue) : QVariant();
    return value.isValid() ? value : defaultValue;
}

void saveGroup(const QObject &object, QSettings &settings, const QString &group,
               const StoredKeys &rows)
{
    settings.beginGroup(group);
    for (const StoredKey &row : rows)
        settings.setValue(QLatin1String(row.property), object.property(row.property));
    settings.endGroup();
}

void loadGroup(QObject &object, QSettings &settings, const QString &group, const StoredKeys &rows)
{
    settings.beginGroup(group);
    for (const StoredKey &row : rows) {
        const QVariant value = storedValue(settings, row.property, row.defaultValue);
        object.setProperty(row.property, isWithin(row.range, value) ? value : row.defaultValue);
    }
    settings.endGroup();
}

} // namespace Dezimo
