// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "changewatch.h"

#include "propertyvalues.h"
#include "require.h"

#include <utility>

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
