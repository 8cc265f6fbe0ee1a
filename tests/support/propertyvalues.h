// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_PROPERTYVALUES_H
#define TESTS_SUPPORT_PROPERTYVALUES_H

#include <QByteArray>
#include <QMetaProperty>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <vector>

struct PropertyValue
{
    PropertyValue(const QByteArray &property, const char *text)
        : name(property),
          value(QString::fromUtf8(text))
    {}
    PropertyValue(const QByteArray &property, int number) : name(property), value(number) {}

    QByteArray name;
    QVariant value;
};

/// In the order in which they are set.
using PropertyValues = std::vector<PropertyValue>;
Q_DECLARE_METATYPE(PropertyValues)

/// Reads "name=value, name=value", so that a list fits on a line.
PropertyValues values(const QString &text);

/// The properties @p names with the texts between the bars of "a | b | ", in this order.
PropertyValues values(const QStringList &names, const QString &texts);

/// The properties that the class of @p object and its bases declare, in the order of declaration,
/// without QObject's own.
std::vector<QMetaProperty> declaredProperties(const QObject &object);

/// The value of a property with all digits of a number, so that two texts are equal exactly if the
/// values are. Comparing two QVariants would not do: numbers that are nearly equal pass as equal.
QString exactText(const QVariant &value);

/// Sets @p values one after the other. A name that is no property ends the test.
void setProperties(QObject &object, const PropertyValues &values);

/// Every declared property as a line "name = value", with the values in @p changes in place of the
/// real ones. Two such lists are equal exactly if the objects are, so a test misses no unexpected
/// change. Works for properties that can be written as text: numbers and texts.
QStringList propertyLines(const QObject &object, const PropertyValues &changes = {});

/// The signals that a class declares, in the order of declaration.
QStringList signalNames(const QMetaObject &type);

/// The slots that a class declares, in the order of declaration.
QStringList slotNames(const QMetaObject &type);

/// Names the properties of an object in the order in which they announced a change.
class ChangeLog final : public QObject
{
    Q_OBJECT

public:
    explicit ChangeLog(const QObject &object);

    /// What has been announced since the last call.
    QStringList take();

private Q_SLOTS:
    void note();

private:
    const QObject &m_object;
    QStringList m_names;
};

#endif
