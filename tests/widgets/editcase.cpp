// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "editcase.h"

#include "windowsystem.h"
#include "words.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QTest>

EditCase::EditCase()
{
    Steps &all = m_leavings;
    add(all, "by Tab", [this] { keys("Tab"); });
    add(all, "by Shift+Tab", [this] { keys("Shift+Backtab"); });
    add(all, "by a click elsewhere", [this] { QTest::mouseClick(m_neighbor, Qt::LeftButton); });
    add(all, "by the program", [this] { m_neighbor->setFocus(); });
    add(all, "by giving the focus away", [this] { m_edit->clearFocus(); });
    add(all, "by a menu", [this] { openAndCloseMenu(); });
    add(all, "by a menu and Tab", [this] {
        openAndCloseMenu();
        keys("Tab");
    });
    add(all, "by another window", [this] { activateAnotherWindow(); });
    add(all, "by hiding the edit", [this] { m_edit->hide(); });
    add(all, "by hiding the window", [this] { m_window->hide(); });
    add(all, "by closing the window", [this] { m_window->close(); });
    add(all, "by minimizing the window and showing it again", [this] {
        m_window->showMinimized();
        m_window->showNormal();
    });
    add(all, "by disabling the edit", [this] { m_edit->setEnabled(false); });
}

void EditCase::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(500, 200);
    m_edit = new KelLineEdit(m_window.get());
    m_edit->setGeometry(10, 10, 300, 30);
    m_edit->setErrorTexts({QStringLiteral("invalid input"), QStringLiteral("NAN")});
    m_edit->setText(QStringLiteral("12"));
    m_neighbor = new QLineEdit(m_window.get());
    m_neighbor->setGeometry(10, 60, 300, 30);
    m_menu = std::make_unique<QMenu>(m_window.get());
    m_menu->addAction(QStringLiteral("Entry"));
    m_edit->setFocus();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    QVERIFY(m_edit->hasFocus());
    m_finished = std::make_unique<QSignalSpy>(m_edit, &QLineEdit::editingFinished);
}

void EditCase::cleanup()
{
    m_finished.reset();
    m_menu.reset();
    m_anotherWindow.reset();
    m_window.reset();
}

void EditCase::run(const Steps &steps, const QString &name)
{
    for (const Step &step : steps) {
        if (QString::fromLatin1(step.name) == name)
            return step.run();
    }
    qFatal("no such step: %s", qPrintable(name));
}

void EditCase::type(const char *text)
{
    QTest::keyClicks(m_edit, QString::fromUtf8(text));
}

void EditCase::keys(const char *names)
{
    const QStringList all = words(names);
    for (const QString &name : all) {
        const auto combination = unsigned(QKeySequence::fromString(name)[0]);
        QTest::keyClick(m_edit, Qt::Key(combination & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(combination & Qt::KeyboardModifierMask));
    }
}

void EditCase::drop(const QString &text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent arrival(QPoint(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &arrival);
    QDropEvent event(QPointF(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &event);
}

void EditCase::predict(const QString &word)
{
    QInputMethodEvent event;
    event.setCommitString(word);
    QCoreApplication::sendEvent(m_edit, &event);
}

void EditCase::writeFromOutside(const QString &text)
{
    QAccessible::queryAccessibleInterface(m_edit)->setText(QAccessible::Value, text);
}

QMenu &EditCase::openContextMenu()
{
    const QPoint middle = m_edit->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, m_edit->mapToGlobal(middle));
    QCoreApplication::sendEvent(m_edit, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("no context menu");
    return *menu;
}

void EditCase::chooseFromContextMenu(const QString &entry)
{
    QMenu &menu = openContextMenu();
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions) {
        if (action->text().startsWith(entry)) {
            menu.setActiveAction(action);
            QTest::keyClick(&menu, Qt::Key_Return);
            return;
        }
    }
    qFatal("no such entry: %s", qPrintable(entry));
}

void EditCase::openAndCloseMenu()
{
    m_menu->popup(m_window->mapToGlobal(QPoint(0, 0)));
    QTest::keyClick(m_menu.get(), Qt::Key_Escape);
}

void EditCase::activateAnotherWindow()
{
    m_anotherWindow = std::make_unique<QWidget>();
    m_anotherWindow->show();
    m_anotherWindow->activateWindow();
    QVERIFY(waitForKeyboard(*m_anotherWindow));
}
