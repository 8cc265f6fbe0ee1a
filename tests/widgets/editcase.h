// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_WIDGETS_EDITCASE_H
#define TESTS_WIDGETS_EDITCASE_H

#include "kellineedit.h"

#include <QMenu>
#include <QSignalSpy>

#include <functional>
#include <memory>
#include <vector>

/**
 * A test of an edit that a person works in. Before each test function, the edit stands in a window
 * with a neighbor and a menu. It has the focus and holds a text that the program has set.
 */
class EditCase : public QObject
{
    Q_OBJECT

protected:
    struct Step
    {
        const char *name;
        std::function<void()> run;
    };
    using Steps = std::vector<Step>;

    EditCase();

    static void add(Steps &steps, const char *name, const std::function<void()> &run)
    {
        steps.push_back({name, run});
    }
    static void run(const Steps &steps, const QString &name);
    /// Every way of leaving the edit.
    const Steps &leavings() const { return m_leavings; }

    void type(const char *text);
    /// Presses the named keys, such as "3 Return Ctrl+Z".
    void keys(const char *names);
    void drop(const QString &text);
    void predict(const QString &word);
    /// Writes as a screen reader does, which need not give the edit the focus.
    void writeFromOutside(const QString &text);
    QMenu &openContextMenu();
    void chooseFromContextMenu(const QString &entry);
    void openAndCloseMenu();
    void activateAnotherWindow();

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QWidget> m_anotherWindow;
    std::unique_ptr<QMenu> m_menu;
    KelLineEdit *m_edit = nullptr;
    QLineEdit *m_neighbor = nullptr;
    std::unique_ptr<QSignalSpy> m_finished;

private Q_SLOTS:
    void init();
    void cleanup();

private:
    Steps m_leavings;
};

#endif
