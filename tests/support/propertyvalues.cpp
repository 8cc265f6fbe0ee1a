// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"

#include <QMap>
#include <QMetaMethod>
#include <QPoint>
#include <QSize>

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

QStringList methodNames(const QMetaObject &type, QMetaMethod::MethodType kind)
{
    QStringList names;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == kind)
            names += QString::fromLatin1(type.method(i).name());
    }
    return names;
}

} // namespace

PropertyValues values(const QString &text)
{
    PropertyValues found;
    const QStringList parts = text.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const auto equals = part.indexOf(QLatin1Char('='));
        if (equals <= 0)
            qFatal("\"%s\" is no name=value", qPrintable(part));
        found.push_back({part.left(equals).toLatin1(), part.mid(equals + 1).toUtf8().constData()});
    }
    return found;
}

PropertyValues values(const QStringList &names, const QString &texts)
{
    PropertyValues found;
    const QStringList parts = texts.split(QStringLiteral(" | "));
    if (parts.size() > names.size())
        qFatal("\"%s\" has more parts than names", qPrintable(texts));
    for (int i = 0; i < parts.size(); ++i)
        found.push_back({names.at(i).toLatin1(), parts.at(i).toUtf8().constData()});
    return found;
}

std::vector<QMetaProperty> declaredProperties(const QObject &object)
{
    std::vector<QMetaProperty> properties;
    const QMetaObject *type = object.metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i)
        properties.push_back(type->property(i));
    return properties;
}

QString exactText(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    case QMetaType::QPoint:
        return QStringLiteral("%1,%2").arg(value.toPoint().x()).arg(value.toPoint().y());
    case QMetaType::QSize:
        return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
    default:
        break;
    }
    if (value.userType() != qMetaTypeId<QMap<int, bool>>())
        return value.toString();
    QString text;
    const auto units = value.value<QMap<int, bool>>();
    for (auto unit = units.begin(); unit != units.end(); ++unit)
        text += QString::number(unit.key()) + QLatin1String(unit.value() ? "+" : "-");
    return text;
}

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
    for (const QMetaProperty &property : declaredProperties(object)) {
        lines += QString::fromLatin1(property.name()) + QStringLiteral(" = ") +
                 valueAfter(changes, property, object).toString();
    }
    return lines;
}

QStringList signalNames(const QMetaObject &type)
{
    return methodNames(type, QMetaMethod::Signal);
}

QStringList slotNames(const QMetaObject &type)
{
    return methodNames(type, QMetaMethod::Slot);
}

ChangeLog::ChangeLog(const QObject &object) : m_object(object)
{
    const int slot = metaObject()->indexOfSlot("note()");
    for (const QMetaProperty &property : declaredProperties(object))
        QMetaObject::connect(&object, property.notifySignalIndex(), this, slot);
}

QStringList ChangeLog::take()
{
    return std::exchange(m_names, {});
}

void ChangeLog::note()
{
    for (const QMetaProperty &property : declaredProperties(m_object)) {
        if (property.notifySignalIndex() == senderSignalIndex())
            m_names += QString::fromLatin1(property.name());
    }
}
