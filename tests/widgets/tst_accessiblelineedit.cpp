// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QRegularExpressionValidator>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class AccessibleLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAnEditableTextWithItsText();
    void aPlaceholderDescribesIt();
    void aReadOnlyEditOffersNoEditing();
    void editsAsAPersonDoes_data();
    void editsAsAPersonDoes();
    void aReplacedTextIsEditedToo();
    void aValueThatIsSetIsEditedToo();
    void whatTheValidatorRefusesIsNotPutIn();
    void pressIsTheReturnKey();
    void pressDoesNothingInAReadOnlyEdit();
    void theFocusCanBeGiven();
    void readsPartsOfTheText_data();
    void readsPartsOfTheText();
    void movesTheCursorWithinTheText_data();
    void movesTheCursorWithinTheText();
    void selectsAndDeselects();
    void scrollsToAPart();
    void theWholeTextLooksAlike();
    void knowsWhereACharacterIs();

private:
    QAccessibleInterface *interface() const;

    std::unique_ptr<KelLineEdit> m_edit;
};

void AccessibleLineEditTest::init()
{
    m_edit = std::make_unique<KelLineEdit>();
    m_edit->setText(QStringLiteral("12 dBm"));
}

QAccessibleInterface *AccessibleLineEditTest::interface() const
{
    return QAccessible::queryAccessibleInterface(m_edit.get());
}

void AccessibleLineEditTest::isAnEditableTextWithItsText()
{
    m_edit->setAccessibleName(QStringLiteral("Forward power"));
    QCOMPARE(interface()->role(), QAccessible::EditableText);
    QCOMPARE(interface()->text(QAccessible::Name), QStringLiteral("Forward power"));
    QCOMPARE(interface()->text(QAccessible::Value), QStringLiteral("12 dBm"));
    QVERIFY(interface()->state().editable);
    QVERIFY(interface()->state().selectableText);
    QVERIFY(!interface()->state().readOnly);
}

void AccessibleLineEditTest::aPlaceholderDescribesIt()
{
    m_edit->setPlaceholderText(QStringLiteral("Forward"));
    QCOMPARE(interface()->text(QAccessible::Description), QStringLiteral("Forward"));
    m_edit->setAccessibleDescription(QStringLiteral("dBm"));
    QCOMPARE(interface()->text(QAccessible::Description), QStringLiteral("dBm"));
}

void AccessibleLineEditTest::aReadOnlyEditOffersNoEditing()
{
    m_edit->setReadOnly(true);
    QVERIFY(interface()->state().readOnly);
    QVERIFY(!interface()->state().editable);
    QVERIFY(!interface()->editableTextInterface());
    QVERIFY(interface()->textInterface());
    QVERIFY(!interface()->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    interface()->setText(QAccessible::Value, QStringLiteral("7"));
    QCOMPARE(m_edit->text(), QStringLiteral("12 dBm"));
}

void AccessibleLineEditTest::editsAsAPersonDoes_data()
{
    columns<int, int, QString, QString>({"start", "end", "text", "after"});
    row("puts in at the beginning", 0, 0, "-", "-12 dBm");
    row("puts in in the middle", 2, 2, ".5", "12.5 dBm");
    row("puts in beyond the end", 99, 99, "W", "12 dBmW");
    row("replaces a part", 3, 6, "W", "12 W");
    row("replaces all, the end unsaid", 0, 99, "7 W", "7 W");
    row("takes out a part", 2, 6, "", "12");
    row("begins before the text", -5, 2, "3", "3 dBm");
    row("ends before it begins", 4, 1, "x", "12 dxBm");
}

void AccessibleLineEditTest::editsAsAPersonDoes()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, text);
    QFETCH(QString, after);

    const QSignalSpy edited(m_edit.get(), &QLineEdit::textEdited);
    QAccessibleEditableTextInterface *editing = interface()->editableTextInterface();
    if (text.isEmpty())
        editing->deleteText(start, end);
    else if (start == end)
        editing->insertText(start, text);
    else
        editing->replaceText(start, end, text);
    QCOMPARE(m_edit->text(), after);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.first().first().toString(), after);
}

void AccessibleLineEditTest::aReplacedTextIsEditedToo()
{
    const QSignalSpy edited(m_edit.get(), &QLineEdit::textEdited);
    interface()->setText(QAccessible::Value, QStringLiteral("30"));
    QCOMPARE(m_edit->text(), QStringLiteral("30"));
    QCOMPARE(edited.size(), 1);
}

void AccessibleLineEditTest::aValueThatIsSetIsEditedToo()
{
    const QSignalSpy edited(m_edit.get(), &QLineEdit::textEdited);
    interface()->setText(QAccessible::Value, QStringLiteral("7 V"));
    QCOMPARE(m_edit->text(), QStringLiteral("7 V"));
    QVERIFY(!edited.isEmpty());
    interface()->setText(QAccessible::Name, QStringLiteral("Voltage"));
    QCOMPARE(m_edit->text(), QStringLiteral("7 V"));
}

void AccessibleLineEditTest::whatTheValidatorRefusesIsNotPutIn()
{
    m_edit->setText(QStringLiteral("12"));
    const QRegularExpression digits(QStringLiteral("\\d{1,3}"));
    m_edit->setValidator(new QRegularExpressionValidator(digits, m_edit.get()));
    interface()->editableTextInterface()->insertText(2, QStringLiteral("x"));
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    interface()->editableTextInterface()->insertText(2, QStringLiteral("3"));
    QCOMPARE(m_edit->text(), QStringLiteral("123"));
}

void AccessibleLineEditTest::pressIsTheReturnKey()
{
    const QSignalSpy returned(m_edit.get(), &QLineEdit::returnPressed);
    const QSignalSpy finished(m_edit.get(), &QLineEdit::editingFinished);
    interface()->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(returned.size(), 1);
    QCOMPARE(finished.size(), 1);

    m_edit->setEnabled(false);
    interface()->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(returned.size(), 1);
}

void AccessibleLineEditTest::pressDoesNothingInAReadOnlyEdit()
{
    m_edit->setReadOnly(true);
    const QSignalSpy pressed(m_edit.get(), &QLineEdit::returnPressed);
    interface()->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(pressed.isEmpty());
}

void AccessibleLineEditTest::theFocusCanBeGiven()
{
    m_edit->show();
    QVERIFY(waitForKeyboard(*m_edit));
    m_edit->clearFocus();
    interface()->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_edit->hasFocus());
}

void AccessibleLineEditTest::readsPartsOfTheText_data()
{
    columns<int, int, QString>({"start", "end", "part"});
    row("all of it", 0, 6, "12 dBm");
    row("the number", 0, 2, "12");
    row("the unit and beyond", 3, 99, "dBm");
    row("nothing where the end lies before the start", 4, 2, "");
}

void AccessibleLineEditTest::readsPartsOfTheText()
{
    QFETCH(int, start);
    QFETCH(int, end);

    QTEST(interface()->textInterface()->text(start, end), "part");
    QCOMPARE(interface()->textInterface()->characterCount(), 6);
}

void AccessibleLineEditTest::movesTheCursorWithinTheText_data()
{
    columns<int, int>({"asked", "position"});
    row("to the beginning", 0, 0);
    row("into the text", 3, 3);
    row("beyond the end", 99, 6);
    row("before the beginning", -1, 0);
}

void AccessibleLineEditTest::movesTheCursorWithinTheText()
{
    QFETCH(int, asked);

    interface()->textInterface()->setCursorPosition(asked);
    QTEST(interface()->textInterface()->cursorPosition(), "position");
    QTEST(m_edit->cursorPosition(), "position");
}

void AccessibleLineEditTest::selectsAndDeselects()
{
    QAccessibleTextInterface *text = interface()->textInterface();
    int start = -1;
    int end = -1;
    QCOMPARE(text->selectionCount(), 0);
    text->addSelection(3, 99);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("dBm"));
    QCOMPARE(text->selectionCount(), 1);
    text->selection(0, &start, &end);
    QCOMPARE(start, 3);
    QCOMPARE(end, 6);
    text->removeSelection(0);
    QCOMPARE(text->selectionCount(), 0);
    text->selection(0, &start, &end);
    QCOMPARE(start, 0);
    QCOMPARE(end, 0);
}

void AccessibleLineEditTest::scrollsToAPart()
{
    interface()->textInterface()->scrollToSubstring(2, 4);
    QCOMPARE(m_edit->cursorPosition(), 2);
}

void AccessibleLineEditTest::theWholeTextLooksAlike()
{
    int start = 7;
    int end = 7;
    QCOMPARE(interface()->textInterface()->attributes(3, &start, &end), QString());
    QCOMPARE(start, 0);
    QCOMPARE(end, 6);
}

/// A point inside a character leads back to that character, wherever the cursor is.
void AccessibleLineEditTest::knowsWhereACharacterIs()
{
    m_edit->resize(200, 30);
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    const QAccessibleTextInterface *text = interface()->textInterface();
    for (const int cursor : {0, 3, 6}) {
        m_edit->setCursorPosition(cursor);
        for (int i = 0; i < 6; ++i) {
            const QRect place = text->characterRect(i);
            QVERIFY(place.width() > 0);
            QVERIFY(interface()->rect().contains(place.center()));
            QCOMPARE(text->offsetAtPoint(QPoint(place.left() + 1, place.center().y())), i);
        }
    }
    QVERIFY(text->characterRect(6).isNull());
    QVERIFY(text->characterRect(-1).isNull());
}

DEZIMO_TEST_MAIN(QApplication, AccessibleLineEditTest)

#include "tst_accessiblelineedit.moc"
