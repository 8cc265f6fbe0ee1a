// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * The least that a program of this kind can be: a bare main window of the same size, with two line
 * edits of which the second mirrors the first. Every program on this toolkit needs at least as
 * much.
 */

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *page = new QWidget;
    auto *typed = new QLineEdit;
    auto *mirror = new QLineEdit;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(typed);
    layout->addWidget(mirror);
    QObject::connect(typed, &QLineEdit::textChanged, mirror, &QLineEdit::setText);
    window.setCentralWidget(page);
    window.resize(958, 605);
    window.show();
    return QApplication::exec();
}
