// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_LOOKINGCASE_H
#define TESTS_APP_LOOKINGCASE_H

#include "mainwindowcase.h"

#include <QLineEdit>
#include <QList>
#include <QStackedWidget>
#include <QTemporaryDir>

/// A test of the window with values in every module, and ways in which a person gets about in it.
class LookingCase : public MainWindowCase
{
    Q_OBJECT

protected:
    static constexpr int kPages = 5;
    static constexpr int kDbConverter = 3;
    /// Digits of the values that are typed; results are rounded to them.
    static constexpr int kDigits = 4;

    /// Opens the window at @p page, with the values that a new session finds.
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
