// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELMAINWINDOW_H
#define WIDGETS_KELMAINWINDOW_H

#include <QMainWindow>

/**
 * The base of the program's main window. It only gives style sheets a class name to select; all
 * behavior is that of the classes above and below it.
 */
class KelMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit KelMainWindow(QWidget *parent = nullptr) : QMainWindow(parent) {}
};

#endif
