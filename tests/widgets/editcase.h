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
 * A test of an edit that a person works in. Before each test function it stands in a window with a
 * neighbor and a menu, has the focus and holds a text of the program's.
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
    /// Presses the keys that are named: "3 Return Ctrl+Z".
    void keys(const char *names);
    void drop(const QString &text);
    void predict(const QString &word);
    /// As the means of a screen reader do, which need not go there.
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
