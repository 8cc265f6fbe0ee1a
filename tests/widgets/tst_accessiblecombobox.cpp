// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelcombobox.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <memory>

class AccessibleComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsWhatItIsForAndWhatIsChosen();
    void theChoiceIsReadableAsText();
    void theTextCannotBeChanged();
    void itsTextIsAsLargeAsTheBox();
    void tellsWhatItDoes();
    void opensItsList();
    void itsListHasItsName();
    void aListItemIsSelectedByTheChoice();
    void theNextAndThePreviousItemAreChosen();
    void anItemThatCannotBeChosenIsLeftOut();
    void takesTheFocus();
    void aBoxThatIsOffDoesNothing();

private:
    QAccessibleInterface *interface() const;
    void act(const QString &action) const { interface()->actionInterface()->doAction(action); }

    std::unique_ptr<KelComboBox> m_box;
};

void AccessibleComboBoxTest::init()
{
    m_box = std::make_unique<KelComboBox>();
    m_box->addItems({QStringLiteral("dBm"), QStringLiteral("mW"), QStringLiteral("W")});
    m_box->setAccessibleName(QStringLiteral("Result unit"));
    m_box->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_box.get()));
}

QAccessibleInterface *AccessibleComboBoxTest::interface() const
{
    return QAccessible::queryAccessibleInterface(m_box.get());
}

void AccessibleComboBoxTest::tellsWhatItIsForAndWhatIsChosen()
{
    QCOMPARE(interface()->role(), QAccessible::ComboBox);
    QCOMPARE(interface()->text(QAccessible::Name), QStringLiteral("Result unit"));
    QCOMPARE(interface()->text(QAccessible::Value), QStringLiteral("dBm"));
    m_box->setCurrentIndex(1);
    QCOMPARE(interface()->text(QAccessible::Name), QStringLiteral("Result unit"));
    QCOMPARE(interface()->text(QAccessible::Value), QStringLiteral("mW"));
}

void AccessibleComboBoxTest::theChoiceIsReadableAsText()
{
    const QAccessibleTextInterface *text = interface()->textInterface();
    QCOMPARE(text->characterCount(), 3);
    QCOMPARE(text->text(0, 3), QStringLiteral("dBm"));
    QCOMPARE(text->text(1, 3), QStringLiteral("Bm"));
    QCOMPARE(text->selectionCount(), 0);
    QVERIFY(!interface()->editableTextInterface());
}

/// Whatever a screen reader tries, nothing changes.
void AccessibleComboBoxTest::theTextCannotBeChanged()
{
    QAccessibleTextInterface *text = interface()->textInterface();
    text->addSelection(0, 2);
    text->setSelection(0, 0, 2);
    text->removeSelection(0);
    text->setCursorPosition(2);
    text->scrollToSubstring(0, 2);
    act(QStringLiteral("no such action"));
    int start = 7;
    int end = 7;
    text->selection(0, &start, &end);
    QCOMPARE(start, 0);
    QCOMPARE(end, 0);
    QCOMPARE(text->cursorPosition(), 0);
    QCOMPARE(m_box->currentText(), QStringLiteral("dBm"));
}

void AccessibleComboBoxTest::itsTextIsAsLargeAsTheBox()
{
    const QAccessibleTextInterface *text = interface()->textInterface();
    const QRect box = interface()->rect();
    QCOMPARE(text->characterRect(0), box);
    QCOMPARE(text->characterRect(2), box);
    QCOMPARE(text->characterRect(-1), QRect());
    QCOMPARE(text->characterRect(3), QRect());
    QCOMPARE(text->offsetAtPoint(box.center()), 0);
    QCOMPARE(text->offsetAtPoint(box.bottomRight() + QPoint(1, 1)), -1);
    int start = 7;
    int end = 7;
    QCOMPARE(text->attributes(1, &start, &end), QString());
    QCOMPARE(start, 0);
    QCOMPARE(end, 3);
}

void AccessibleComboBoxTest::tellsWhatItDoes()
{
    using Action = QAccessibleActionInterface;
    QCOMPARE(interface()->actionInterface()->actionNames(),
             QStringList({Action::setFocusAction(), Action::showMenuAction(), Action::pressAction(),
                          Action::increaseAction(), Action::decreaseAction()}));
}

void AccessibleComboBoxTest::opensItsList()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    QVERIFY(interface()->state().hasPopup);
    QVERIFY(interface()->state().collapsed);
    act(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(m_box->view()->isVisible());
    QVERIFY(interface()->state().expanded);
    QVERIFY(!interface()->state().collapsed);
    m_box->hidePopup();
    QVERIFY(interface()->state().collapsed);
}

void AccessibleComboBoxTest::itsListHasItsName()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    act(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(m_box->view()->isVisible());
    QCOMPARE(interface()->childCount(), 1);
    QAccessibleInterface *list = interface()->child(0);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->text(QAccessible::Name), QStringLiteral("Result unit"));
    QCOMPARE(interface()->indexOfChild(list), 0);
    QVERIFY(!interface()->child(1));
    m_box->hidePopup();
}

void AccessibleComboBoxTest::aListItemIsSelectedByTheChoice()
{
    m_box->setCurrentIndex(2);
    const QAccessibleInterface *list = interface()->child(0);
    QCOMPARE(list->childCount(), 3);
    const QStringList names{QStringLiteral("dBm"), QStringLiteral("mW"), QStringLiteral("W")};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(list->child(i)->role(), QAccessible::ListItem);
        QCOMPARE(list->child(i)->text(QAccessible::Name), names.at(i));
        QCOMPARE(bool(list->child(i)->state().selected), i == 2);
    }
}

void AccessibleComboBoxTest::theNextAndThePreviousItemAreChosen()
{
    const QSignalSpy chosen(m_box.get(), qOverload<int>(&QComboBox::currentIndexChanged));
    act(QAccessibleActionInterface::increaseAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("mW"));
    act(QAccessibleActionInterface::increaseAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("W"));
    act(QAccessibleActionInterface::increaseAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("W"));
    act(QAccessibleActionInterface::decreaseAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("mW"));
    QCOMPARE(chosen.size(), 3);
}

void AccessibleComboBoxTest::anItemThatCannotBeChosenIsLeftOut()
{
    qobject_cast<QStandardItemModel *>(m_box->model())->item(1)->setEnabled(false);
    act(QAccessibleActionInterface::increaseAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("W"));
}

void AccessibleComboBoxTest::takesTheFocus()
{
    m_box->activateWindow();
    QVERIFY(waitForKeyboard(*m_box));
    m_box->clearFocus();
    QVERIFY(interface()->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::setFocusAction()));
    act(QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_box->hasFocus());
}

void AccessibleComboBoxTest::aBoxThatIsOffDoesNothing()
{
    m_box->setEnabled(false);
    QVERIFY(!interface()->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::increaseAction()));
    act(QAccessibleActionInterface::increaseAction());
    act(QAccessibleActionInterface::showMenuAction());
    QCOMPARE(m_box->currentText(), QStringLiteral("dBm"));
    QVERIFY(!m_box->view()->isVisible());
}

DEZIMO_TEST_MAIN(QApplication, AccessibleComboBoxTest)

#include "tst_accessiblecombobox.moc"
