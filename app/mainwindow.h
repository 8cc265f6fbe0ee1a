// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_MAINWINDOW_H
#define APP_MAINWINDOW_H

#include "applicationtheme.h"
#include "kelmainwindow.h"
#include "lateguide.h"

#include <array>
#include <memory>

namespace Dezimo {
class MainProfile;
}

class QMenu;

namespace Ui {
class MainWindow;
}

/**
 * The program's window: the list of modules at the left, the chosen module's page at the right, and
 * the menus. F1 opens the guide beside it, which ends with it. Its geometry, list mode and module
 * are mirrored into MainProfile, which is read from the application settings when the window is
 * made and written when it is destroyed.
 */
class MainWindow final : public KelMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Finishes the edit that is open and writes the state, for a session that may end without
    /// asking again. The window goes on.
    void keepState();
    /// Quits, whatever menu or dialog is open: finishes the edit that is open, writes the state,
    /// closes every window and leaves the event loop with status 0. The state is written first,
    /// because the system may not wait.
    void endProgram();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void on_changeWindowModeButton_clicked();
    void onWindowModeChanged();
    void onCurrentModuleChanged();
    void on_actionLoad_Defaults_triggered();
    void on_actionOpen_triggered();
    void on_actionSave_triggered();
    void onDecimalPlacesMenuAboutToShow();
    void on_menuItemsWidget_currentRowChanged(int currentRow);
    void onThemeChanged(ApplicationTheme theme);
    void on_actionAbout_triggered();

private:
    struct Extent;

    void addViews();
    void writeState();
    void applyStyleSheet(ApplicationTheme theme);
    void applyModuleIcons(ApplicationTheme theme);
    std::array<Extent, 3> windowModeExtents() const;
    void applyWindowMode();
    void restoreGeometryFromProfile();
    void connectKeyboard();
    void connectModuleKeys();
    void showMenu(const QMenu &menu);
    void chooseModule(int row);
    void focusPage();
    void focusFirstField();
    void updateWindowTitle();
    void updateModeButton(ApplicationTheme theme);

    std::unique_ptr<Ui::MainWindow> m_ui;
    Dezimo::MainProfile &m_profile;
    ApplicationTheme m_iconTheme = Bright; ///< of the list's icons; the form has the bright ones
    LateGuide m_guide;
};

#endif
