// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Takes the input as a calculation file: opens what is harmless in it, saves that, and opens the
// saved file again.

#include "changewatch.h"
#include "everyprofile.h"
#include "iniformat.h"
#include "mainprofile.h"
#include "require.h"
#include "settingstext.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

using namespace Dezimo;

namespace {

/// A name that no file had before, because Qt remembers the values of a store it has opened.
QString newFileName()
{
    static const QTemporaryDir folder;
    static int count = 0;
    return folder.filePath(QStringLiteral("%1.dezimo").arg(++count));
}

QString written(const std::uint8_t *data, std::size_t size)
{
    QFile file(newFileName());
    require(file.open(QIODevice::WriteOnly), "a file can be written", file.fileName());
    file.write(SettingsText::harmless(QByteArray(reinterpret_cast<const char *>(data), int(size))));
    return file.fileName();
}

/// Whether a value is of a type that takes no more memory than its text.
bool isHarmless(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
    case QMetaType::QByteArray:
    case QMetaType::QPoint:
    case QMetaType::QRect:
    case QMetaType::QSize:
    case QMetaType::QString:
    case QMetaType::QStringList:
        return true;
    default:
        return false;
    }
}

void requireHarmlessValues(const QSettings &file)
{
    QStringList keys = file.allKeys();
    keys.removeAll(QString()); // QSettings lists an empty key but never returns its value
    for (const QString &key : std::as_const(keys)) {
        const QVariant value = file.value(key);
        const bool isList = value.userType() == QMetaType::QVariantList;
        const QVariantList elements = isList ? value.toList() : QVariantList{value};
        require(std::all_of(elements.begin(), elements.end(), isHarmless),
                "what is read is of a harmless kind", key);
    }
}

void load(MainProfile &profile, const QString &fileName)
{
    QSettings file(fileName, IniFormat::ofFiles());
    requireHarmlessValues(file);
    profile.loadSettings(file);
}

void save(MainProfile &profile, const QString &fileName)
{
    const QString remembered = newFileName();
    {
        QSettings file(remembered, IniFormat::ofFiles());
        profile.saveSettings(file);
    }
    require(QFile::rename(remembered, fileName), "a calculation can be saved", fileName);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    requireSilence();
    MainProfile opened;
    std::vector<std::unique_ptr<ChangeWatch>> watches;
    for (const Profile *profile : everyProfile(opened))
        watches.push_back(std::make_unique<ChangeWatch>(*profile));

    const QString original = written(data, size);
    load(opened, original);
    for (const auto &watch : watches)
        watch->requireAllAnnounced();

    const QString copy = newFileName();
    save(opened, copy);
    MainProfile reopened;
    load(reopened, copy);
    require(differences(opened, reopened).isEmpty(), "what was opened can be saved and reopened",
            differences(opened, reopened).join(QLatin1Char(' ')));
    QFile::remove(original);
    QFile::remove(copy);
    return 0;
}
