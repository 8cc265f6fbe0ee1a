// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELGUIDEWINDOW_H
#define WIDGETS_KELGUIDEWINDOW_H

#include "applicationtheme.h"

#include <QMainWindow>
#include <QTextDocument>

#include <memory>

namespace Ui {
class GuideWindow;
}

/**
 * The guide in a window of its own, beside the main window and not in front of it, so that a person
 * can read in one and type into the other. The program does not wait for it to be closed.
 *
 * Ctrl+F opens a line in which to find words. Return and F3 go to the next place, with Shift to the
 * one before. Esc closes that line, and then the window.
 */
class KelGuideWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit KelGuideWindow(QWidget *parent = nullptr);
    ~KelGuideWindow() override;

    /// The size that the window has while it is not maximized.
    QSize windowSize() const;
    /// Makes the window as large as that, or as it is if the size is empty, but not larger than the
    /// screen.
    void setWindowSize(const QSize &size);

    /// Shows the window in front of the others, at the heading with that anchor. Empty is the
    /// beginning.
    void openAt(const QString &anchor);

public Q_SLOTS:
    void onThemeChanged(ApplicationTheme theme);

private Q_SLOTS:
    void on_findLineEdit_textEdited();
    void on_findLineEdit_returnPressed();
    void on_previousButton_clicked();
    void on_nextButton_clicked();

private:
    void connectKeyboard();
    void openFindLine();
    void closeFindLineOrWindow();
    void find(QTextDocument::FindFlags direction);
    void showWhetherFound(bool isFound);

    const std::unique_ptr<Ui::GuideWindow> m_ui;
};

#endif
