// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QIntValidator>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

/// When an edit is finished: by Return, and by leaving the edit if the person has changed it.
class FinishedEditsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEditIsFinishedOnceByLeaving_data();
    void anEditIsFinishedOnceByLeaving();
    void lookingFinishesNothing_data();
    void lookingFinishesNothing();
    void aWrittenTextEndsTheEdit_data();
    void aWrittenTextEndsTheEdit();
    void returnFinishesAlways();
    void anEditAfterReturnIsFinishedAgain();
    void aSlotMayReplaceTheText();
    void aSlotMayHideTheEdit();
    void aTextThatMustNotStayIsNotFinished();
    void everyLeavingFinishesWhereItIsAskedFor_data();
    void everyLeavingFinishesWhereItIsAskedFor();
    void anUnfocusedEditIsFinishedByHiding();
    void theEndOfTheSelectionIsTold();

    void anErrorIsSelectedOnArrival_data();
    void anErrorIsSelectedOnArrival();
    void anErrorThatAppearsIsSelected();
    void aTypedErrorIsNotSelected();
    void aSecondClickPlacesTheCursor();
    void aPartOfAnErrorIsSelectedByDragging();
    void theContextMenuKeepsTheCursor();
    void theContextMenuHasTheFontOfMenus();
    void theContextMenuGoesWhenItIsClosed();

private:
    using Step = std::function<void(FinishedEditsTest &)>;
    struct NamedStep
    {
        const char *name;
        Step run;
    };

    static const QVector<NamedStep> &changes();
    static const QVector<NamedStep> &looks();
    static const QVector<NamedStep> &leavings();
    static Step stepOf(const QVector<NamedStep> &steps, const QString &name);

    void type(const char *text) { QTest::keyClicks(m_edit, QString::fromUtf8(text)); }
    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::keyClick(m_edit, key, held);
    }
    void click(QWidget &widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
    void drop(const QString &text);
    void predict(const QString &word);
    QMenu &openContextMenu();
    void chooseFromContextMenu(const QString &entry);

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QWidget> m_anotherWindow;
    std::unique_ptr<QMenu> m_menu;
    KelLineEdit *m_edit = nullptr;
    QLineEdit *m_neighbor = nullptr;
    std::unique_ptr<QSignalSpy> m_finished;
};

/// The edit has the focus and holds a text of the program's.
void FinishedEditsTest::init()
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

void FinishedEditsTest::cleanup()
{
    m_finished.reset();
    m_menu.reset();
    m_anotherWindow.reset();
    m_window.reset();
}

void FinishedEditsTest::drop(const QString &text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent arrival(QPoint(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &arrival);
    QDropEvent event(QPointF(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_edit, &event);
}

void FinishedEditsTest::predict(const QString &word)
{
    QInputMethodEvent event;
    event.setCommitString(word);
    QCoreApplication::sendEvent(m_edit, &event);
}

QMenu &FinishedEditsTest::openContextMenu()
{
    const QPoint middle = m_edit->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, m_edit->mapToGlobal(middle));
    QCoreApplication::sendEvent(m_edit, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("no context menu");
    return *menu;
}

void FinishedEditsTest::chooseFromContextMenu(const QString &entry)
{
    QMenu &menu = openContextMenu();
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions) {
        if (action->text().startsWith(entry)) {
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                              menu.actionGeometry(action).center());
            return;
        }
    }
    qFatal("no such entry: %s", qPrintable(entry));
}

/// Every way in which a person changes the text.
const QVector<FinishedEditsTest::NamedStep> &FinishedEditsTest::changes()
{
    using Test = FinishedEditsTest;
    static const QVector<NamedStep> steps{
        {"typed",
         [](Test &test) {
             test.type("3");
         }},
        {"typed after Return",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Return);
             test.type("4");
         }},
        {"typed and typed back",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Backspace);
         }},
        {"deleted by Backspace",
         [](Test &test) {
             test.press(Qt::Key_Backspace);
         }},
        {"deleted by Delete",
         [](Test &test) {
             test.press(Qt::Key_Home);
             test.press(Qt::Key_Delete);
         }},
        {"cut",
         [](Test &test) {
             test.press(Qt::Key_A, Qt::ControlModifier);
             test.press(Qt::Key_X, Qt::ControlModifier);
         }},
        {"pasted",
         [](Test &test) {
             QApplication::clipboard()->setText(QStringLiteral("7"));
             test.press(Qt::Key_V, Qt::ControlModifier);
         }},
        {"pasted from the context menu",
         [](Test &test) {
             QApplication::clipboard()->setText(QStringLiteral("7"));
             test.chooseFromContextMenu(QStringLiteral("&Paste"));
         }},
        {"dropped",
         [](Test &test) {
             test.drop(QStringLiteral("8"));
         }},
        {"dropped without the focus",
         [](Test &test) {
             test.m_neighbor->setFocus();
             test.drop(QStringLiteral("8"));
         }},
        {"undone",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Return);
             test.press(Qt::Key_Z, Qt::ControlModifier);
         }},
        {"typed and undone",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Z, Qt::ControlModifier);
         }},
        {"redone",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Z, Qt::ControlModifier);
             test.press(Qt::Key_Return);
             test.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
         }},
        {"predicted by an input method",
         [](Test &test) {
             test.predict(QStringLiteral("345"));
         }},
        {"written by a screen reader",
         [](Test &test) {
             QAccessible::queryAccessibleInterface(test.m_edit)
                 ->setText(QAccessible::Value, QStringLiteral("9"));
         }},
        {"typed over a text of the program",
         [](Test &test) {
             test.type("3");
             test.m_edit->setText(QStringLiteral("50"));
             test.type("1");
         }},
    };
    return steps;
}

/// Every way of being there without changing anything.
const QVector<FinishedEditsTest::NamedStep> &FinishedEditsTest::looks()
{
    using Test = FinishedEditsTest;
    static const QVector<NamedStep> steps{
        {"nothing at all",
         [](Test &) {
         }},
        {"a text that the program writes",
         [](Test &test) {
             test.m_edit->setText(QStringLiteral("13.98"));
         }},
        {"a text that the program clears",
         [](Test &test) {
             test.m_edit->clear();
         }},
        {"a click",
         [](Test &test) {
             test.click(*test.m_edit);
         }},
        {"all selected and copied",
         [](Test &test) {
             test.press(Qt::Key_A, Qt::ControlModifier);
             test.press(Qt::Key_C, Qt::ControlModifier);
         }},
        {"the cursor moved",
         [](Test &test) {
             test.press(Qt::Key_Left);
         }},
        {"nothing to undo",
         [](Test &test) {
             test.press(Qt::Key_Z, Qt::ControlModifier);
         }},
        {"nothing to delete",
         [](Test &test) {
             test.press(Qt::Key_Home);
             test.press(Qt::Key_Backspace);
         }},
        {"the context menu opened and closed",
         [](Test &test) {
             QTest::keyClick(&test.openContextMenu(), Qt::Key_Escape);
         }},
        {"copied from the context menu",
         [](Test &test) {
             test.m_edit->selectAll();
             test.chooseFromContextMenu(QStringLiteral("&Copy"));
         }},
        {"another style sheet",
         [](Test &test) {
             test.m_edit->setStyleSheet(QStringLiteral("font-size: 20px"));
         }},
        {"left and entered again",
         [](Test &test) {
             test.m_neighbor->setFocus();
             test.m_edit->setFocus();
         }},
        {"an edit that Return has finished",
         [](Test &test) {
             test.type("3");
             test.press(Qt::Key_Return);
             test.m_finished->clear();
         }},
        {"an edit that leaving has finished",
         [](Test &test) {
             test.type("3");
             test.m_neighbor->setFocus();
             test.m_edit->setFocus();
             test.m_finished->clear();
         }},
    };
    return steps;
}

/// Every way of leaving the edit.
const QVector<FinishedEditsTest::NamedStep> &FinishedEditsTest::leavings()
{
    using Test = FinishedEditsTest;
    static const QVector<NamedStep> steps{
        {"by Tab",
         [](Test &test) {
             test.press(Qt::Key_Tab);
         }},
        {"by Shift+Tab",
         [](Test &test) {
             test.press(Qt::Key_Backtab, Qt::ShiftModifier);
         }},
        {"by a click elsewhere",
         [](Test &test) {
             test.click(*test.m_neighbor);
         }},
        {"by the program",
         [](Test &test) {
             test.m_neighbor->setFocus();
         }},
        {"by giving the focus away",
         [](Test &test) {
             test.m_edit->clearFocus();
         }},
        {"by a menu",
         [](Test &test) {
             test.m_menu->popup(test.m_window->mapToGlobal(QPoint(0, 0)));
             QTest::keyClick(test.m_menu.get(), Qt::Key_Escape);
         }},
        {"by a menu and Tab",
         [](Test &test) {
             test.m_menu->popup(test.m_window->mapToGlobal(QPoint(0, 0)));
             QTest::keyClick(test.m_menu.get(), Qt::Key_Escape);
             test.press(Qt::Key_Tab);
         }},
        {"by another window",
         [](Test &test) {
             test.m_anotherWindow = std::make_unique<QWidget>();
             test.m_anotherWindow->show();
             test.m_anotherWindow->activateWindow();
             QVERIFY(waitForKeyboard(*test.m_anotherWindow));
         }},
        {"by hiding the edit",
         [](Test &test) {
             test.m_edit->hide();
         }},
        {"by hiding the window",
         [](Test &test) {
             test.m_window->hide();
         }},
        {"by closing the window",
         [](Test &test) {
             test.m_window->close();
         }},
        {"by minimizing the window and showing it again",
         [](Test &test) {
             test.m_window->showMinimized();
             test.m_window->showNormal();
         }},
        {"by disabling the edit",
         [](Test &test) {
             test.m_edit->setEnabled(false);
         }},
    };
    return steps;
}

FinishedEditsTest::Step FinishedEditsTest::stepOf(const QVector<NamedStep> &steps,
                                                  const QString &name)
{
    for (const NamedStep &step : steps) {
        if (QString::fromLatin1(step.name) == name)
            return step.run;
    }
    qFatal("no such step: %s", qPrintable(name));
}

void FinishedEditsTest::anEditIsFinishedOnceByLeaving_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("leaving");

    for (const NamedStep &change : changes()) {
        for (const NamedStep &leaving : leavings())
            QTest::addRow("%s, left %s", change.name, leaving.name)
                << QString::fromLatin1(change.name) << QString::fromLatin1(leaving.name);
    }
}

void FinishedEditsTest::anEditIsFinishedOnceByLeaving()
{
    QFETCH(QString, change);
    QFETCH(QString, leaving);

    stepOf(changes(), change)(*this);
    QVERIFY(m_edit->hasFocus());
    m_finished->clear();
    stepOf(leavings(), leaving)(*this);
    QTRY_COMPARE(m_finished->count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::lookingFinishesNothing_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("leaving");

    for (const NamedStep &look : looks()) {
        for (const NamedStep &leaving : leavings())
            QTest::addRow("%s, left %s", look.name, leaving.name)
                << QString::fromLatin1(look.name) << QString::fromLatin1(leaving.name);
    }
}

void FinishedEditsTest::lookingFinishesNothing()
{
    QFETCH(QString, look);
    QFETCH(QString, leaving);

    stepOf(looks(), look)(*this);
    stepOf(leavings(), leaving)(*this);
    QCoreApplication::processEvents();
    QCOMPARE(m_finished->count(), 0);
}

void FinishedEditsTest::aWrittenTextEndsTheEdit_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("finished");

    QTest::newRow("another text") << QStringList(QStringLiteral("7")) << 0;
    QTest::newRow("an empty text") << QStringList(QString()) << 0;
    QTest::newRow("another text and then the person's own")
        << QStringList{QStringLiteral("7"), QStringLiteral("123")} << 0;
    QTest::newRow("the person's own text replaces nothing")
        << QStringList(QStringLiteral("123")) << 1;
}

void FinishedEditsTest::aWrittenTextEndsTheEdit()
{
    QFETCH(QStringList, texts);
    QFETCH(int, finished);

    type("3");
    for (const QString &text : qAsConst(texts))
        m_edit->setText(text);
    press(Qt::Key_Tab);
    QCOMPARE(m_finished->count(), finished);
}

void FinishedEditsTest::returnFinishesAlways()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        m_finished->clear();
        press(key);
        QCOMPARE(m_finished->count(), 1);
        type("3");
        press(key);
        QCOMPARE(m_finished->count(), 2);
    }
}

void FinishedEditsTest::anEditAfterReturnIsFinishedAgain()
{
    type("3");
    press(Qt::Key_Return);
    type("4");
    press(Qt::Key_Tab);
    QCOMPARE(m_finished->count(), 2);
}

/// As a model does that puts an error word into the field.
void FinishedEditsTest::aSlotMayReplaceTheText()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit,
            [this] { m_edit->setText(QStringLiteral("invalid input")); });
    type("x");
    press(Qt::Key_Tab);
    QCOMPARE(m_finished->count(), 1);
    m_edit->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(m_finished->count(), 1);
}

/// Which is to leave it once more.
void FinishedEditsTest::aSlotMayHideTheEdit()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit, &QWidget::hide);
    type("3");
    m_neighbor->setFocus();
    QVERIFY(m_edit->isHidden());
    QCOMPARE(m_finished->count(), 1);
}

/// The edit stays open until the text is acceptable, as Return finishes none before.
void FinishedEditsTest::aTextThatMustNotStayIsNotFinished()
{
    QIntValidator twoDigits(10, 99);
    m_edit->setValidator(&twoDigits);
    press(Qt::Key_Backspace);
    press(Qt::Key_Tab);
    QCOMPARE(m_finished->count(), 0);
    m_edit->setFocus();
    press(Qt::Key_End);
    type("7");
    press(Qt::Key_Tab);
    QCOMPARE(m_edit->text(), QStringLiteral("17"));
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::everyLeavingFinishesWhereItIsAskedFor_data()
{
    QTest::addColumn<QString>("leaving");
    QTest::addColumn<bool>("isEdited");

    for (const NamedStep &leaving : leavings()) {
        const QString name = QString::fromLatin1(leaving.name);
        QTest::addRow("left %s", leaving.name) << name << false;
        QTest::addRow("edited, left %s", leaving.name) << name << true;
    }
}

void FinishedEditsTest::everyLeavingFinishesWhereItIsAskedFor()
{
    QFETCH(QString, leaving);
    QFETCH(bool, isEdited);

    m_edit->clearFocus();
    m_edit->setFinishedByEveryLeaving(true);
    m_edit->setFocus();
    if (isEdited)
        type("3");
    stepOf(leavings(), leaving)(*this);
    QTRY_VERIFY(m_finished->count() > 0);
    QCoreApplication::processEvents();
    // Where the focus may come back by itself, the platform decides how often it is lost.
    static const QStringList comesBack{QStringLiteral("by a menu"), QStringLiteral("by minimizing"),
                                       QStringLiteral("by another window")};
    for (const QString &way : comesBack) {
        if (leaving.startsWith(way))
            return;
    }
    QCOMPARE(m_finished->count(), 1);
}

/// The means of a screen reader write without going there.
void FinishedEditsTest::anUnfocusedEditIsFinishedByHiding()
{
    m_neighbor->setFocus();
    QAccessible::queryAccessibleInterface(m_edit)->setText(QAccessible::Value, QStringLiteral("9"));
    QCOMPARE(m_finished->count(), 0);
    m_window->hide();
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::theEndOfTheSelectionIsTold()
{
    m_edit->selectAll();
    const QSignalSpy changed(m_edit, &QLineEdit::selectionChanged);
    press(Qt::Key_Tab);
    QVERIFY(!m_edit->hasSelectedText());
    QCOMPARE(changed.count(), 1);
}

void FinishedEditsTest::anErrorIsSelectedOnArrival_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("typedOver");

    for (const char *by : {"Tab", "click", "program", "window"}) {
        QTest::addRow("an error, by %s", by)
            << QString::fromLatin1(by) << QStringLiteral("invalid input") << QStringLiteral("5");
    }
    QTest::newRow("a number keeps what it is, by click")
        << QStringLiteral("click") << QStringLiteral("12") << QStringLiteral("512");
    QTest::newRow("a number keeps what it is, by program")
        << QStringLiteral("program") << QStringLiteral("12") << QStringLiteral("125");
}

void FinishedEditsTest::anErrorIsSelectedOnArrival()
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
        stepOf(leavings(), QStringLiteral("by another window"))(*this);
        m_edit->deselect();
        m_anotherWindow.reset();
        m_window->activateWindow();
        QVERIFY(waitForKeyboard(*m_window));
    }
    QVERIFY(m_edit->hasFocus());
    type("5");
    QCOMPARE(m_edit->text(), typedOver);
}

void FinishedEditsTest::anErrorThatAppearsIsSelected()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit,
            [this] { m_edit->setText(QStringLiteral("invalid input")); });
    type("x");
    press(Qt::Key_Return);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("invalid input"));
    type("x");
    stepOf(leavings(), QStringLiteral("by a menu"))(*this);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("invalid input"));
    type("5");
    QCOMPARE(m_edit->text(), QStringLiteral("5"));
}

void FinishedEditsTest::aTypedErrorIsNotSelected()
{
    m_edit->clear();
    type("NAN");
    QVERIFY(m_edit->hasError());
    type("O");
    QCOMPARE(m_edit->text(), QStringLiteral("NANO"));
}

void FinishedEditsTest::aSecondClickPlacesTheCursor()
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

/// With the press that brings the focus.
void FinishedEditsTest::aPartOfAnErrorIsSelectedByDragging()
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

void FinishedEditsTest::theContextMenuKeepsTheCursor()
{
    m_edit->setText(QStringLiteral("NAN"));
    m_edit->setCursorPosition(1);
    QTest::keyClick(&openContextMenu(), Qt::Key_Escape);
    QVERIFY(!m_edit->hasSelectedText());
    QCOMPARE(m_edit->cursorPosition(), 1);
}

void FinishedEditsTest::theContextMenuHasTheFontOfMenus()
{
    m_menu->ensurePolished();
    m_edit->setStyleSheet(QStringLiteral("font-size: 80px"));
    QMenu &menu = openContextMenu();
    QCOMPARE(menu.font(), m_menu->font());
    QCOMPARE(menu.parentWidget(), m_window.get());
    QTest::keyClick(&menu, Qt::Key_Escape);
}

/// It belongs to the window, where one for each click would pile up.
void FinishedEditsTest::theContextMenuGoesWhenItIsClosed()
{
    const QPointer<QMenu> left = &openContextMenu();
    QTest::keyClick(left, Qt::Key_Escape);
    QTRY_VERIFY(!left);
    m_edit->selectAll();
    chooseFromContextMenu(QStringLiteral("&Copy"));
    QTRY_COMPARE(m_window->findChildren<QMenu *>(), QList<QMenu *>{m_menu.get()});
}

DEZIMO_TEST_MAIN(QApplication, FinishedEditsTest)

#include "tst_finishededits.moc"
