// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

/// What the keyboard does in the whole window: it reaches the menus without a pointer, it goes from
/// the list to the page and back, and Alt never types.
class KeyboardTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void altReachesTheMenuBar();
    void altAgainGoesBackToTheField();
    void theMenusAreWalkedByArrowKeys();
    void f10OpensTheFirstMenu();
    void altWithALetterTypesNothing_data();
    void altWithALetterTypesNothing();
    void altGrTypes();
    void aLetterAloneTypes();
    void thePhaseTakesNoDigitWithAlt();
    void theArrowKeysWalkThroughTheModules();
    void returnInTheListGoesIntoThePage();

private:
    QLineEdit *expression() const;
    QAction *chosenMenu() const { return child<QMenuBar>("menubar")->activeAction(); }
};

QLineEdit *KeyboardTest::expression() const
{
    return child("dbmCalculatorWidget")->findChild<QLineEdit *>(QStringLiteral("inputLineEdit"));
}

void KeyboardTest::altReachesTheMenuBar()
{
    openWindow();
    QVERIFY(expression()->hasFocus());
    QTest::keyClick(m_window.get(), Qt::Key_Alt);
    QVERIFY(child<QMenuBar>("menubar")->hasFocus());
    QCOMPARE(chosenMenu()->text(), QStringLiteral("File"));
}

void KeyboardTest::altAgainGoesBackToTheField()
{
    openWindow();
    QTest::keyClick(m_window.get(), Qt::Key_Alt);
    QVERIFY(child<QMenuBar>("menubar")->hasFocus());
    QTest::keyClick(child("menubar"), Qt::Key_Escape);
    QVERIFY(expression()->hasFocus());
}

void KeyboardTest::theMenusAreWalkedByArrowKeys()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    QTest::keyClick(m_window.get(), Qt::Key_Alt);
    QTest::keyClick(child("menubar"), Qt::Key_Right);
    QCOMPARE(chosenMenu()->text(), QStringLiteral("Options"));
    QTest::keyClick(child("menubar"), Qt::Key_Right);
    QCOMPARE(chosenMenu()->text(), QStringLiteral("Help"));
    QTest::keyClick(child("menubar"), Qt::Key_Down);
    QVERIFY(child("menuHelp")->isVisible());
    QCOMPARE(child<QMenu>("menuHelp")->activeAction()->text(), QStringLiteral("About"));
    child("menuHelp")->close();
}

void KeyboardTest::f10OpensTheFirstMenu()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    QTest::keyClick(expression(), Qt::Key_F10);
    QVERIFY(child("menuFile")->isVisible());
    QTest::keyClick(child("menuFile"), Qt::Key_Down);
    QCOMPARE(child<QMenu>("menuFile")->activeAction()->text(), QStringLiteral("Load Defaults"));
    child("menuFile")->close();
}

void KeyboardTest::altWithALetterTypesNothing_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("field");

    QTest::newRow("into an expression") << 0 << "inputLineEdit";
    QTest::newRow("into a converter's field") << 2 << "dbmLineEdit";
}

void KeyboardTest::altWithALetterTypesNothing()
{
    QFETCH(int, module);
    QFETCH(QString, field);

    openWindow();
    m_profile.setCurrentModule(module);
    const QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    auto *edit = page->findChild<QLineEdit *>(field);
    QTest::keyClicks(edit, QStringLiteral("3"));
    QTest::keyClick(edit, 'f', Qt::AltModifier);
    QTest::keyClick(edit, 'X', Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(edit->text(), QStringLiteral("3"));
}

/// On some platforms AltGr arrives as Ctrl and Alt. Many keyboards need AltGr to type µ.
void KeyboardTest::altGrTypes()
{
    openWindow();
    QTest::sendKeyEvent(QTest::Click, expression(), Qt::Key_M, QStringLiteral("µ"),
                        Qt::ControlModifier | Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, expression(), Qt::Key_M, QStringLiteral("µ"),
                        Qt::GroupSwitchModifier);
    QCOMPARE(expression()->text(), QStringLiteral("µµ"));
}

void KeyboardTest::aLetterAloneTypes()
{
    openWindow();
    QTest::keyClicks(expression(), QStringLiteral("3 dBm"));
    QCOMPARE(expression()->text(), QStringLiteral("3 dBm"));
}

void KeyboardTest::thePhaseTakesNoDigitWithAlt()
{
    openWindow();
    m_profile.setCurrentModule(1);
    auto *phase = child<QSpinBox>("phaseSpinBox");
    phase->setFocus();
    phase->selectAll();
    QTest::keyClick(phase, '9', Qt::AltModifier);
    QCOMPARE(phase->value(), 0);
}

void KeyboardTest::theArrowKeysWalkThroughTheModules()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus();
    for (int row = 1; row < 5; ++row) {
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), row);
        QVERIFY(list->hasFocus());
    }
    QTest::keyClick(list, Qt::Key_Home);
    QCOMPARE(m_profile.currentModule(), 0);
}

void KeyboardTest::returnInTheListGoesIntoThePage()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(expression()->hasFocus());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, KeyboardTest>(argc, argv, true);
}

#include "tst_keyboard.moc"
