// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"

#include "checkedsettings.h"
#include "iniformat.h"
#include "kellatepages.h"
#include "mainprofile.h"
#include "settingstext.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QSaveFile>
#include <QSettings>
#include <QVector>

#include <algorithm>
#include <utility>

using namespace Dezimo;

namespace {

QString extension()
{
    return QStringLiteral("dezimo");
}

// "Calulation" is how the dialogs of the program have always spelled it.
QString fileFilter()
{
    return QCoreApplication::translate("CalculationFiles", "dB Calulation (*.%1)").arg(extension());
}

/// Where the last file of this session is. Empty before the first one.
QString &lastFolder()
{
    static QString folder;
    return folder;
}

void rememberFolderOf(const QString &fileName)
{
    lastFolder() = QFileInfo(fileName).absolutePath();
}

/// By itself a dialog begins where the one before it was left, even if that was cancelled. The
/// folder may be gone, for example with its drive.
void beginInLastFolder(QFileDialog &dialog)
{
    if (QFileInfo(lastFolder()).isDir())
        dialog.setDirectory(lastFolder());
}

/// Qt's own scroll bars take their colors from the desktop, which may be dark. The names that the
/// dialog proposes while one is typed are in a window of their own. A dialog of the system has none
/// of all that.
void dressScrollBars(const QFileDialog &dialog)
{
    QList<QAbstractScrollArea *> areas = dialog.findChildren<QAbstractScrollArea *>();
    const auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (name && name->completer())
        areas += name->completer()->popup();
    for (QAbstractScrollArea *area : std::as_const(areas))
        KelScrollBar::installOn(*area);
}

QString chosenFile(QFileDialog &dialog)
{
    dressScrollBars(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

/// A file name may hold anything, even line breaks and commands to the terminal.
QString onOneLine(const QString &text)
{
    QVector<uint> characters = text.toUcs4();
    const auto breaksTheLine = [](uint character) {
        const QChar::Category category = QChar::category(character);
        return !QChar::isPrint(character) || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    };
    std::replace_if(characters.begin(), characters.end(), breaksTheLine, uint('?'));
    return QString::fromUcs4(characters.constData(), characters.size());
}

/// Writes the file again if it is not arranged yet. On Linux it already is.
void arrange(const QString &fileName)
{
    QFile saved(fileName);
    if (!saved.open(QIODevice::ReadOnly))
        return;
    const QByteArray text = saved.readAll();
    saved.close();
    const QByteArray arranged = SettingsText::arranged(text);
    if (arranged == text)
        return;
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(arranged);
    file.commit();
}

} // namespace

QString CalculationFiles::askForFileToOpen(QWidget *parent)
{
    QFileDialog dialog(parent,
                       QCoreApplication::translate("CalculationFiles", "Open dB Calulation ..."),
                       QString(), fileFilter());
    dialog.setFileMode(QFileDialog::ExistingFile);
    beginInLastFolder(dialog);
    return chosenFile(dialog);
}

QString CalculationFiles::askForFileToSave(QWidget *parent)
{
    // With a pattern in place of a format the date would have the digits of the system's language.
    const QString today = QDate::currentDate().toString(Qt::ISODate); // yyyy-MM-dd
    QFileDialog dialog(parent,
                       QCoreApplication::translate("CalculationFiles", "Save dB Calulation ..."),
                       QString(), fileFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.selectNameFilter(fileFilter());
    dialog.setDefaultSuffix(extension());
    beginInLastFolder(dialog);
    dialog.selectFile(today + QLatin1Char('.') + extension());
    return chosenFile(dialog);
}

void CalculationFiles::open(MainProfile &profile, const QString &fileName)
{
    rememberFolderOf(fileName);
    CheckedSettings::readFile(fileName, profile.storedGroups(),
                              [&](QSettings &file) { profile.loadModuleSettings(file); });
}

void CalculationFiles::save(MainProfile &profile, const QString &fileName)
{
    rememberFolderOf(fileName);
    if (!CheckedSettings::makeWritable(fileName))
        return;
    {
        QSettings file(fileName, IniFormat::ofFiles());
        profile.saveSettings(file);
        file.sync();
        if (file.status() != QSettings::NoError)
            return;
    }
    arrange(fileName);
}

QString CalculationFiles::openFromCommandLine(MainProfile &profile, const QStringList &arguments)
{
    const QString name = arguments.value(1);
    const bool looksLikeAnOption = name.startsWith(QLatin1Char('-'));
    if (arguments.size() != 2 || name.isEmpty() || looksLikeAnOption)
        return {};
    const QString reason = CheckedSettings::whyUnreadable(name);
    if (!reason.isEmpty())
        return onOneLine(QStringLiteral("dezimo: cannot open %1: %2").arg(name, reason));
    open(profile, name);
    return {};
}

void CalculationFiles::loadDefaults(MainProfile &profile)
{
    CheckedSettings::readDefaults(profile.storedGroups(),
                                  [&](QSettings &store) { profile.loadModuleSettings(store); });
}
