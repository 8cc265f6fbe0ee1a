// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "stylesheets.h"

#include <QDir>
#include <QFile>

namespace {

bool belongsTo(ApplicationTheme theme, const QString &fileName)
{
    if (fileName.endsWith(QLatin1String("_dark.qss")))
        return theme == Dark;
    if (fileName.endsWith(QLatin1String("_bright.qss")))
        return theme == Bright;
    return true;
}

} // namespace

std::optional<QString> StyleSheets::read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    return QString::fromLatin1(bytes.constData()); // ends at the first zero byte
}

QString StyleSheets::combined(const QString &folder, ApplicationTheme theme)
{
    const QDir directory(folder);
    QString style;
    const QStringList names = directory.entryList({QStringLiteral("*.qss")});
    for (const QString &name : names) {
        if (belongsTo(theme, name))
            style += read(directory.filePath(name)).value_or(QString());
    }
    return style;
}
