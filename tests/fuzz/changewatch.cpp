// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "changewatch.h"

#include "propertyvalues.h"
#include "require.h"

#include <QMap>
#include <QPoint>
#include <QSize>

#include <utility>

namespace {

/// Equal exactly if the values are, which two variants are not for numbers that nearly are.
QString exactText(const QVariant &value)
{
    if (value.userType() == QMetaType::QPoint)
        return QStringLiteral("%1,%2").arg(value.toPoint().x()).arg(value.toPoint().y());
    if (value.userType() == QMetaType::QSize)
        return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
    if (value.userType() != qMetaTypeId<QMap<int, bool>>())
        return value.toString();
    QString text;
    const auto units = value.value<QMap<int, bool>>();
    for (auto unit = units.begin(); unit != units.end(); ++unit)
        text += QString::number(unit.key()) + QLatin1String(unit.value() ? "+" : "-");
    return text;
}

} // namespace

ChangeWatch::ChangeWatch(const QObject &object) : m_object(object)
{
    const int slot = metaObject()->indexOfSlot("note()");
    for (const QMetaProperty &property : declaredProperties(object)) {
        m_watched.push_back({property, exactText(property.read(&object))});
        QMetaObject::connect(&object, property.notifySignalIndex(), this, slot);
    }
}

void ChangeWatch::requireAllAnnounced() const
{
    for (const Watched &watched : m_watched)
        require(valueOf(watched) == watched.announced, "every change is announced",
                QString::fromLatin1(watched.property.name()));
}

QStringList ChangeWatch::takeChangedTexts()
{
    QStringList texts;
    for (Watched &watched : m_watched) {
        if (std::exchange(watched.hasChanged, false) && watched.property.type() == QVariant::String)
            texts += watched.announced;
    }
    return texts;
}

void ChangeWatch::note()
{
    for (Watched &watched : m_watched) {
        if (watched.property.notifySignalIndex() != senderSignalIndex())
            continue;
        const QString now = valueOf(watched);
        require(now != watched.announced, "what is announced has changed",
                QString::fromLatin1(watched.property.name()));
        watched.announced = now;
        watched.hasChanged = true;
    }
}

QString ChangeWatch::valueOf(const Watched &watched) const
{
    return exactText(watched.property.read(&m_object));
}
