// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "programstate.h"

#include "mainprofile.h"
#include "resources.h"
#include "settingsfile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

using namespace Dezimo;

void loadDefaults()
{
    SettingsFile empty;
    MainProfile::instance().loadSettings(empty.settings());
}

void loadFile(const QStringList &lines)
{
    SettingsFile file;
    for (const QString &line : lines) {
        const auto equals = line.indexOf(QLatin1Char('='));
        file.settings().setValue(line.left(equals), line.mid(equals + 1));
    }
    MainProfile::instance().loadModuleSettings(file.settings());
}

void applyStyleSheet()
{
    initDezimoResources();
    const QDir fonts(QStringLiteral(":/Global/Fonts"));
    const QStringList fontFiles = fonts.entryList();
    for (const QString &file : fontFiles)
        QFontDatabase::addApplicationFont(fonts.filePath(file));

    QString sheet;
    const QDir sheets(QStringLiteral(":/Global/Style"));
    const QStringList sheetFiles = sheets.entryList({QStringLiteral("*.qss")});
    for (const QString &name : sheetFiles) {
        QFile file(sheets.filePath(name));
        if (!name.endsWith(QStringLiteral("_dark.qss")) && file.open(QIODevice::ReadOnly))
            sheet += QString::fromLatin1(file.readAll());
    }
    qApp->setStyleSheet(sheet);
}
