// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <utility>

namespace {

QMetaProperty propertyNamed(const QObject &object, const QByteArray &name)
{
    const QMetaObject *type = object.metaObject();
    const QMetaProperty property = type->property(type->indexOfProperty(name.constData()));
    if (!property.isValid())
        qFatal("%s has no property %s", type->className(), name.constData());
    return property;
}

QVariant valueAfter(const PropertyValues &changes, const QMetaProperty &property,
                    const QObject &object)
{
    for (const PropertyValue &change : changes) {
        if (change.name == property.name())
            return change.value;
    }
    return property.read(&object);
}

} // namespace

void setProperties(QObject &object, const PropertyValues &values)
{
    for (const PropertyValue &value : values)
        propertyNamed(object, value.name).write(&object, value.value);
}

QStringList propertyLines(const QObject &object, const PropertyValues &changes)
{
    for (const PropertyValue &change : changes)
        propertyNamed(object, change.name);
    QStringList lines;
    const QMetaObject *type = object.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        lines += QString::fromLatin1(property.name()) + QStringLiteral(" = ") +
                 valueAfter(changes, property, object).toString();
    }
    return lines;
}

QStringList signalNames(const QMetaObject &type)
{
    QStringList names;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == QMetaMethod::Signal)
            names += QString::fromLatin1(type.method(i).name());
    }
    return names;
}

ChangeLog::ChangeLog(const QObject &object) : m_object(object)
{
    const QMetaObject *type = object.metaObject();
    const int slot = metaObject()->indexOfSlot("note()");
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
        QMetaObject::connect(&object, type->property(i).notifySignalIndex(), this, slot);
}

QStringList ChangeLog::take()
{
    return std::exchange(m_names, QStringList());
}

void ChangeLog::note()
{
    const QMetaObject *type = m_object.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        if (type->property(i).notifySignalIndex() == senderSignalIndex())
            m_names += QString::fromLatin1(type->property(i).name());
    }
}
