// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessibletree.h"

#include <QMetaEnum>
#include <QVector>
#include <QWidget>

namespace {

using Interfaces = QVector<QAccessibleInterface *>;

bool isFrame(QAccessible::Role role)
{
    return role == QAccessible::Client || role == QAccessible::LayeredPane ||
           role == QAccessible::Border || role == QAccessible::Window ||
           role == QAccessible::Dialog || role == QAccessible::Separator ||
           role == QAccessible::ScrollBar;
}

/// Every visible interface below the root, depth first.
Interfaces visibleBelow(const QWidget *root)
{
    Interfaces found;
    Interfaces open{QAccessible::queryAccessibleInterface(const_cast<QWidget *>(root))};
    while (!open.isEmpty()) {
        QAccessibleInterface *interface = open.takeLast();
        if (interface->state().invisible)
            continue;
        found += interface;
        if (interface->role() == QAccessible::ComboBox)
            continue;
        for (int i = interface->childCount() - 1; i >= 0; --i)
            open += interface->child(i);
    }
    return found;
}

QString line(const QAccessibleInterface *interface)
{
    const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    QString text = QString::fromLatin1(roles.valueToKey(interface->role())) + QLatin1Char(' ') +
                   interface->text(QAccessible::Name);
    const QString description = interface->text(QAccessible::Description);
    if (!description.isEmpty())
        text += QLatin1String(" / ") + description;
    const QAccessible::State state = interface->state();
    if (state.readOnly)
        text += QLatin1String(" [read-only]");
    if (state.disabled)
        text += QLatin1String(" [disabled]");
    if (state.checked)
        text += QLatin1String(" [checked]");
    // Only later versions of Qt 6 say it of a tab; the name of the list of tabs says it in all.
    if (state.selected && interface->role() != QAccessible::PageTab)
        text += QLatin1String(" [selected]");
    if (state.defaultButton)
        text += QLatin1String(" [default]");
    return text;
}

} // namespace

QStringList AccessibleTree::controls(const QWidget *root)
{
    QStringList lines;
    const Interfaces interfaces = visibleBelow(root);
    for (const QAccessibleInterface *interface : interfaces) {
        if (!isFrame(interface->role()) && interface->role() != QAccessible::StaticText)
            lines += line(interface);
    }
    return lines;
}

QStringList AccessibleTree::texts(const QWidget *root)
{
    QStringList names;
    const Interfaces interfaces = visibleBelow(root);
    for (const QAccessibleInterface *interface : interfaces) {
        if (interface->role() == QAccessible::StaticText)
            names += interface->text(QAccessible::Name);
    }
    return names;
}

QAccessibleInterface *AccessibleTree::find(const QWidget *root, QAccessible::Role role,
                                           const QString &name)
{
    QAccessibleInterface *found = nullptr;
    const Interfaces interfaces = visibleBelow(root);
    for (QAccessibleInterface *interface : interfaces) {
        if (interface->role() != role || interface->text(QAccessible::Name) != name)
            continue;
        if (found)
            return nullptr;
        found = interface;
    }
    return found;
}
