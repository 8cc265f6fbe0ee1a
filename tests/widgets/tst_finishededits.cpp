// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "editcase.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QApplication>
#include <QClipboard>
#include <QIntValidator>
#include <QTest>

#include <utility>

/// Return finishes an edit. Leaving it does so only if the person has changed the text.
class FinishedEditsTest : public EditCase
{
    Q_OBJECT

public:
    FinishedEditsTest();

private Q_SLOTS:
    void anEditIsFinishedOnceByLeaving_data() { addLeavingsAfter(m_changes); }
    void anEditIsFinishedOnceByLeaving();
    void lookingFinishesNothing_data() { addLeavingsAfter(m_looks); }
    void lookingFinishesNothing();
    void anEditThatWasNeverWrittenToHasNothingToFinish();
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
    void theEndOfTheSelectionIsTold_data();
    void theEndOfTheSelectionIsTold();

private:
    void addChanges();
    void addLooks();
    void addLeavingsAfter(const Steps &steps) const;

    /// Every way in which a person changes the text.
    Steps m_changes;
    /// Everything that happens in the edit without a change by the person.
    Steps m_looks;
};

FinishedEditsTest::FinishedEditsTest()
{
    addChanges();
    addLooks();
}

void FinishedEditsTest::addChanges()
{
    Steps &all = m_changes;
    add(all, "typed", [this] { keys("3"); });
    add(all, "typed after Return", [this] { keys("3 Return 4"); });
    add(all, "typed and typed back", [this] { keys("3 Backspace"); });
    add(all, "deleted by Backspace", [this] { keys("Backspace"); });
    add(all, "deleted by Delete", [this] { keys("Home Del"); });
    add(all, "cut", [this] { keys("Ctrl+A Ctrl+X"); });
    add(all, "pasted", [this] {
        QApplication::clipboard()->setText(QStringLiteral("7"));
        keys("Ctrl+V");
    });
    add(all, "pasted from the context menu", [this] {
        QApplication::clipboard()->setText(QStringLiteral("7"));
        chooseFromContextMenu(QStringLiteral("&Paste"));
    });
    add(all, "dropped", [this] { drop(QStringLiteral("8")); });
    add(all, "dropped without the focus", [this] {
        m_neighbor->setFocus();
        drop(QStringLiteral("8"));
    });
    add(all, "undone", [this] { keys("3 Return Ctrl+Z"); });
    add(all, "typed and undone", [this] { keys("3 Ctrl+Z"); });
    add(all, "redone", [this] { keys("3 Ctrl+Z Return Ctrl+Shift+Z"); });
    add(all, "predicted by an input method", [this] { predict(QStringLiteral("345")); });
    add(all, "written by a screen reader", [this] { writeFromOutside(QStringLiteral("9")); });
    add(all, "typed over a text of the program", [this] {
        keys("3");
        m_edit->setText(QStringLiteral("50"));
        keys("1");
    });
}

void FinishedEditsTest::addLooks()
{
    Steps &all = m_looks;
    add(all, "nothing at all", [] {});
    add(all, "a text that the program writes",
        [this] { m_edit->setText(QStringLiteral("13.98")); });
    add(all, "a text that the program clears", [this] { m_edit->clear(); });
    add(all, "a click", [this] { QTest::mouseClick(m_edit, Qt::LeftButton); });
    add(all, "all selected and copied", [this] { keys("Ctrl+A Ctrl+C"); });
    add(all, "the cursor moved", [this] { keys("Left"); });
    add(all, "nothing to undo", [this] { keys("Ctrl+Z"); });
    add(all, "nothing to delete", [this] { keys("Home Backspace"); });
    add(all, "the context menu opened and closed",
        [this] { QTest::keyClick(&openContextMenu(), Qt::Key_Escape); });
    add(all, "copied from the context menu", [this] {
        m_edit->selectAll();
        chooseFromContextMenu(QStringLiteral("&Copy"));
    });
    add(all, "another style sheet",
        [this] { m_edit->setStyleSheet(QStringLiteral("font-size: 20px")); });
    add(all, "left and entered again", [this] {
        m_neighbor->setFocus();
        m_edit->setFocus();
    });
    add(all, "an edit that Return has finished", [this] {
        keys("3 Return");
        m_finished->clear();
    });
    add(all, "an edit that leaving has finished", [this] {
        keys("3");
        m_neighbor->setFocus();
        m_edit->setFocus();
        m_finished->clear();
    });
}

void FinishedEditsTest::addLeavingsAfter(const Steps &steps) const
{
    columns<QString, QString>({"before", "leaving"});
    for (const Step &before : steps) {
        for (const Step &leaving : leavings())
            QTest::addRow("%s, left %s", before.name, leaving.name) << before.name << leaving.name;
    }
}

void FinishedEditsTest::anEditIsFinishedOnceByLeaving()
{
    QFETCH(QString, before);
    QFETCH(QString, leaving);

    run(m_changes, before);
    QVERIFY(m_edit->hasFocus());
    m_finished->clear();
    run(leavings(), leaving);
    QTRY_COMPARE(m_finished->count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::lookingFinishesNothing()
{
    QFETCH(QString, before);
    QFETCH(QString, leaving);

    run(m_looks, before);
    run(leavings(), leaving);
    QCoreApplication::processEvents();
    QCOMPARE(m_finished->count(), 0);
}

/// It is as empty as it was made.
void FinishedEditsTest::anEditThatWasNeverWrittenToHasNothingToFinish()
{
    KelLineEdit edit(m_window.get());
    const QSignalSpy finished(&edit, &QLineEdit::editingFinished);
    edit.show();
    edit.setFocus();
    QVERIFY(edit.hasFocus());
    m_neighbor->setFocus();
    edit.hide();
    QCOMPARE(finished.count(), 0);
}

void FinishedEditsTest::aWrittenTextEndsTheEdit_data()
{
    columns<QStringList, int>({"texts", "finished"});
    row("another text", words("7"), 0);
    row("an empty text", QStringList(QString()), 0);
    row("another text and then the person's own", words("7 123"), 0);
    row("the person's own text replaces nothing", words("123"), 1);
}

void FinishedEditsTest::aWrittenTextEndsTheEdit()
{
    QFETCH(QStringList, texts);
    QFETCH(int, finished);

    type("3");
    for (const QString &text : std::as_const(texts))
        m_edit->setText(text);
    keys("Tab");
    QCOMPARE(m_finished->count(), finished);
}

void FinishedEditsTest::returnFinishesAlways()
{
    for (const char *key : {"Return", "Enter"}) {
        m_finished->clear();
        keys(key);
        QCOMPARE(m_finished->count(), 1);
        type("3");
        keys(key);
        QCOMPARE(m_finished->count(), 2);
    }
}

void FinishedEditsTest::anEditAfterReturnIsFinishedAgain()
{
    type("3");
    keys("Return");
    type("4");
    keys("Tab");
    QCOMPARE(m_finished->count(), 2);
}

/// A model does so to show an error word in the field.
void FinishedEditsTest::aSlotMayReplaceTheText()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit,
            [this] { m_edit->setText(QStringLiteral("invalid input")); });
    type("x");
    keys("Tab");
    QCOMPARE(m_finished->count(), 1);
    m_edit->setFocus();
    keys("Tab");
    QCOMPARE(m_finished->count(), 1);
}

/// Hiding the edit leaves it once more, but finishes it only once.
void FinishedEditsTest::aSlotMayHideTheEdit()
{
    connect(m_edit, &QLineEdit::editingFinished, m_edit, &QWidget::hide);
    type("3");
    m_neighbor->setFocus();
    QVERIFY(m_edit->isHidden());
    QCOMPARE(m_finished->count(), 1);
}

/// Return does not finish a text that is not acceptable, and neither does leaving. The edit stays
/// open until the text is acceptable.
void FinishedEditsTest::aTextThatMustNotStayIsNotFinished()
{
    QIntValidator twoDigits(10, 99);
    m_edit->setValidator(&twoDigits);
    keys("Backspace");
    keys("Tab");
    QCOMPARE(m_finished->count(), 0);
    m_edit->setFocus();
    keys("End");
    type("7");
    keys("Tab");
    QCOMPARE(m_edit->text(), QStringLiteral("17"));
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::everyLeavingFinishesWhereItIsAskedFor_data()
{
    columns<QString, bool>({"leaving", "isEdited"});
    for (const Step &leaving : leavings()) {
        QTest::addRow("left %s", leaving.name) << leaving.name << false;
        QTest::addRow("edited, left %s", leaving.name) << leaving.name << true;
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
    run(leavings(), leaving);
    QTRY_VERIFY(m_finished->count() > 0);
    QCoreApplication::processEvents();
    // In these ways the focus may come back by itself, so the platform decides how often it is
    // lost.
    for (const char *way : {"by a menu", "by minimizing", "by another window"}) {
        if (leaving.startsWith(QLatin1String(way)))
            return;
    }
    QCOMPARE(m_finished->count(), 1);
}

/// A screen reader writes into an edit without giving it the focus.
void FinishedEditsTest::anUnfocusedEditIsFinishedByHiding()
{
    m_neighbor->setFocus();
    writeFromOutside(QStringLiteral("9"));
    QCOMPARE(m_finished->count(), 0);
    m_window->hide();
    QCOMPARE(m_finished->count(), 1);
}

void FinishedEditsTest::theEndOfTheSelectionIsTold_data()
{
    columns<bool, int>({"isSelected", "told"});
    row("a selection", true, 1);
    row("none", false, 0);
}

void FinishedEditsTest::theEndOfTheSelectionIsTold()
{
    QFETCH(bool, isSelected);
    QFETCH(int, told);

    m_edit->setSelection(0, isSelected ? int(m_edit->text().size()) : 0);
    const QSignalSpy changed(m_edit, &QLineEdit::selectionChanged);
    keys("Tab");
    QVERIFY(!m_edit->hasSelectedText());
    QCOMPARE(changed.count(), told);
}

DEZIMO_TEST_MAIN(QApplication, FinishedEditsTest)

#include "tst_finishededits.moc"
