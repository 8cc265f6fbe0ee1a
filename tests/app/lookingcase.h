// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_LOOKINGCASE_H
#define TESTS_APP_LOOKINGCASE_H

#include "mainwindowcase.h"

#include <QLineEdit>
#include <QList>
#include <QStackedWidget>
#include <QTemporaryDir>

/// A test of the window with values in every module and with ways to move around in it.
class LookingCase : public MainWindowCase
{
    Q_OBJECT

protected:
    static constexpr int kPages = 5;
    static constexpr int kDbConverter = 3;
    /// Digits of the typed values, to which results are rounded.
    static constexpr int kDigits = 4;

    /// Opens the window at @p page, with the values that a new session loads.
    void openPage(int page);
    QWidget &page() const { return *child<QStackedWidget>("stackedWidget")->currentWidget(); }
    QList<QLineEdit *> shownFields() const;
    /// Where saveToAFile() saves.
    QString savedFile() const { return m_folder.filePath(QStringLiteral("saved.dezimo")); }
    static void closePopup();

    void visitEveryOtherPage();
    void clickEveryField();
    void openEveryMenu();
    void minimizeAndRestore();
    void activateAnotherWindow();
    void openAbout();
    void saveToAFile();

private:
    void fillModules();

    QTemporaryDir m_folder;
};

#endif
