// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELMAINWINDOW_H
#define WIDGETS_KELMAINWINDOW_H

#include <QMainWindow>

/**
 * The base of the program's main window. It behaves as the window class that it derives from and
 * gives style sheets a class of its own to select. All of a window's state is kept by the class
 * that derives from it.
 */
class KelMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit KelMainWindow(QWidget *parent = nullptr);
};

#endif
