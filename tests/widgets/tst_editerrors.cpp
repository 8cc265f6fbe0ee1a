// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "editcase.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

/// Typing should replace an error, so an edit selects an error that it shows. Its context menu
/// leaves cursor and selection as they are.
class EditErrorsTest : public EditCase
{
    Q_OBJECT

private Q_SLOTS:
    void anErrorIsSelectedOnArrival_data();
    void anErrorIsSelectedOnArrival();
    void anErrorThatAppearsIsSelected();
    void aTypedErrorIsNotSelected();
    void aSecondClickPlacesTheCursor();
    void aPartOfAnErrorIsSelectedByDragging();
    void theContextMenuKeepsTheCursor();
    void theContextMenuHasTheFontOfMenus();
    void theContextMenuGoesWhenItIsClosed();
    void theContextMenuBeginsWithAddedActions();
};

void EditErrorsTest::anErrorIsSelectedOnArrival_data()
{
    columns<QString, QString, QString>({"by", "text", "typedOver"});
    row("an error, by Tab", "Tab", "invalid input", "5");
    row("an error, by click", "click", "invalid input", "5");
    row("an error, by program", "program", "invalid input", "5");
    row("an error, by window", "window", "invalid input", "5");
    row("a number keeps what it is, by click", "click", "12", "512");
    row("a number keeps what it is, by program", "program", "12", "125");
}

void EditErrorsTest::anErrorIsSelectedOnArrival()
{
    QFETCH(QString, by);
    QFETCH(QString, text);
    QFETCH(QString, typedOver);

    m_neighbor->setFocus();
    m_edit->setText(text);
    if (by == QStringLiteral("Tab")) {
        QTest::keyClick(m_neighbor, Qt::Key_Tab);
    } else if (by == QStringLiteral("click")) {
        QTest::mouseClick(m_edit, Qt::LeftButton, Qt::NoModifier, QPoint(3, 15));
    } else if (by == QStringLiteral("program")) {
        m_edit->setFocus();
    } else {
        m_edit->setFocus();
        activateAnotherWindow();
        m_edit->deselect();
        m_anotherWindow.reset();
        m_window->activateWindow();
        QVERIFY(waitForKeyboard(*m_window));
    }
    QVERIFY(m_edit->hasFocus());
    type("5");
    QCOMPARE(m_edit->text(), typedOver);
}

void EditErrorsTest::anErrorThatAppearsIsSelected()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit,
            [this] { m_edit->setText(QStringLiteral("invalid input")); });
    type("x");
    keys("Return");
    QCOMPARE(m_edit->selectedText(), QStringLiteral("invalid input"));
    type("x");
    openAndCloseMenu();
    QCOMPARE(m_edit->selectedText(), QStringLiteral("invalid input"));
    type("5");
    QCOMPARE(m_edit->text(), QStringLiteral("5"));
}

void EditErrorsTest::aTypedErrorIsNotSelected()
{
    m_edit->clear();
    type("NAN");
    QVERIFY(m_edit->hasError());
    type("O");
    QCOMPARE(m_edit->text(), QStringLiteral("NANO"));
}

void EditErrorsTest::aSecondClickPlacesTheCursor()
{
    m_neighbor->setFocus();
    m_edit->setText(QStringLiteral("NAN"));
    const QPoint atTheStart(3, 15);
    QTest::mouseClick(m_edit, Qt::LeftButton, Qt::NoModifier, atTheStart);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("NAN"));
    QTest::mouseClick(m_edit, Qt::LeftButton, Qt::NoModifier, atTheStart,
                      QApplication::doubleClickInterval() + 1);
    QVERIFY(!m_edit->hasSelectedText());
    type("1");
    QCOMPARE(m_edit->text(), QStringLiteral("1NAN"));
}

/// The press that starts the drag also gives the edit the focus.
void EditErrorsTest::aPartOfAnErrorIsSelectedByDragging()
{
    m_neighbor->setFocus();
    m_edit->setText(QStringLiteral("invalid input"));
    const QPoint start(1, 15);
    const QPoint afterTheFirstWord(
        m_edit->fontMetrics().horizontalAdvance(QStringLiteral("invalid")) + 5, 15);
    QTest::mousePress(m_edit, Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent drag(QEvent::MouseMove, afterTheFirstWord, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &drag);
    QTest::mouseRelease(m_edit, Qt::LeftButton, Qt::NoModifier, afterTheFirstWord);
    QCOMPARE(m_edit->selectedText().trimmed(), QStringLiteral("invalid"));
}

void EditErrorsTest::theContextMenuKeepsTheCursor()
{
    m_edit->setText(QStringLiteral("NAN"));
    m_edit->setCursorPosition(1);
    QTest::keyClick(&openContextMenu(), Qt::Key_Escape);
    QVERIFY(!m_edit->hasSelectedText());
    QCOMPARE(m_edit->cursorPosition(), 1);
}

void EditErrorsTest::theContextMenuHasTheFontOfMenus()
{
    m_menu->ensurePolished();
    m_edit->setStyleSheet(QStringLiteral("font-size: 80px"));
    QMenu &menu = openContextMenu();
    QCOMPARE(menu.font(), m_menu->font());
    QCOMPARE(menu.parentWidget(), m_window.get());
    QTest::keyClick(&menu, Qt::Key_Escape);
}

/// The window owns the menu. If closed menus stayed, they would pile up there.
void EditErrorsTest::theContextMenuGoesWhenItIsClosed()
{
    const QPointer<QMenu> left = &openContextMenu();
    QTest::keyClick(left, Qt::Key_Escape);
    QTRY_VERIFY(!left);
    m_edit->selectAll();
    chooseFromContextMenu(QStringLiteral("&Copy"));
    QTRY_COMPARE(m_window->findChildren<QMenu *>(), QList<QMenu *>{m_menu.get()});
}

void EditErrorsTest::theContextMenuBeginsWithAddedActions()
{
    QAction first(QStringLiteral("First"));
    QAction second(QStringLiteral("Second"));
    const auto entries = openContextMenu().actions().size();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    m_edit->addActions({&first, &second});
    const QList<QAction *> actions = openContextMenu().actions();
    QCOMPARE(actions.mid(0, 2), (QList<QAction *>{&first, &second}));
    QCOMPARE(actions.size(), entries + 2);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

DEZIMO_TEST_MAIN(QApplication, EditErrorsTest)

#include "tst_editerrors.moc"
