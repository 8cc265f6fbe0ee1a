// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "storetext.h"

#include <QList>
#include <QMap>

namespace {

/// Lines by their keys.
using Group = QMap<QByteArray, QByteArray>;

QMap<QByteArray, Group> groupsOf(const QByteArray &text)
{
    QMap<QByteArray, Group> groups;
    QByteArray group;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray content = line.endsWith('\r') ? line.chopped(1) : line;
        if (content.startsWith('['))
            group = content;
        else if (!content.isEmpty())
            groups[group].insert(content.left(content.indexOf('=')), content);
    }
    return groups;
}

} // namespace

QByteArray arrangedStoreText(const QByteArray &text)
{
    const QMap<QByteArray, Group> groups = groupsOf(text);
    QByteArray result;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        if (!result.isEmpty())
            result += '\n';
        result += group.key() + '\n';
        for (const QByteArray &line : *group)
            result += line + '\n';
    }
    return result;
}
