// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelapplication.h"
#include "kelcombobox.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
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
    void altWithItsFirstLetterOpensAMenu_data();
    void altWithItsFirstLetterOpensAMenu();
    void altWithALetterTypesNothing_data();
    void altWithALetterTypesNothing();
    void altGrTypes();
    void aLetterAloneTypes();
    void thePhaseTakesNoDigitWithAlt();
    void theArrowKeysWalkThroughTheModules();
    void returnInTheListGoesIntoThePage();
    void ctrlWithADigitChoosesAModule_data();
    void ctrlWithADigitChoosesAModule();
    void ctrlWithPageKeysGoesThroughTheModules();
    void moduleKeysWorkWhereverTheFocusIs_data();
    void moduleKeysWorkWhereverTheFocusIs();
    void moduleKeysFinishAnEdit();
    void keysOfTheWindowWaitWhileAListIsOpen();
    void whatIsTypedInTheListGoesToTheExpression();
    void theListIsSearchedByLetters();
    void whatIsTypedInTheListOfAConverterGoesNowhere();
    void aKeyThatNothingUsesIsLeftToTheDesktop();

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

void KeyboardTest::altWithItsFirstLetterOpensAMenu_data()
{
    columns<int, QString>({"key", "menu"});
    row("Alt+F", int(Qt::Key_F), "menuFile");
    row("Alt+O", int(Qt::Key_O), "menuOptions");
    row("Alt+H", int(Qt::Key_H), "menuHelp");
}

void KeyboardTest::altWithItsFirstLetterOpensAMenu()
{
    QFETCH(int, key);
    QFETCH(QString, menu);

    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    QTest::keyClick(expression(), Qt::Key(key), Qt::AltModifier);
    auto *opened = child<QMenu>(qPrintable(menu));
    QVERIFY(opened->isVisible());
    QCOMPARE(expression()->text(), QString());
    QTest::keyClick(opened, Qt::Key_Down);
    QCOMPARE(opened->activeAction(), opened->actions().constFirst());
    opened->close();
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
    QTest::keyClick(edit, 'g', Qt::AltModifier);
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

void KeyboardTest::ctrlWithADigitChoosesAModule_data()
{
    columns<int, QString>({"module", "field"});
    row("the dBm calculator", 0, "inputLineEdit");
    row("the voltage calculator", 1, "inputLineEdit");
    row("the unit converter", 2, "dbmLineEdit");
    row("the dB converter", 3, "p1LineEdit");
    row("the VSWR converter", 4, "vswrLineEdit");
}

/// One can type on the page at once, even if it was chosen before.
void KeyboardTest::ctrlWithADigitChoosesAModule()
{
    QFETCH(int, module);
    QFETCH(QString, field);

    openWindow();
    const auto *pages = child<QStackedWidget>("stackedWidget");
    for (int time = 1; time <= 2; ++time) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + module),
                        Qt::ControlModifier);
        QCOMPARE(m_profile.currentModule(), module);
        QCOMPARE(pages->currentIndex(), module);
        const auto *edit = pages->currentWidget()->findChild<QLineEdit *>(field);
        QVERIFY(edit->hasFocus());
        QCOMPARE(edit->text(), QString());
        child("changeWindowModeButton")->setFocus();
    }
}

/// At the ends of the list there is nowhere to go.
void KeyboardTest::ctrlWithPageKeysGoesThroughTheModules()
{
    openWindow();
    const auto go = [this](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        return m_profile.currentModule();
    };
    QCOMPARE(go(Qt::Key_PageUp), 0);
    for (const int module : {1, 2, 3, 4, 4})
        QCOMPARE(go(Qt::Key_PageDown), module);
    for (const int module : {3, 2, 1, 0, 0})
        QCOMPARE(go(Qt::Key_PageUp), module);

    m_profile.setCurrentModule(99); // as the settings may say
    QCOMPARE(go(Qt::Key_PageDown), 0);
}

void KeyboardTest::moduleKeysWorkWhereverTheFocusIs_data()
{
    columns<QString>({"name"});
    row("in a field", "inputLineEdit");
    row("in the result", "outputLineEdit");
    row("in a selector", "calcModeComboBox");
    row("in the phase", "phaseSpinBox");
    row("on the button below the list", "changeWindowModeButton");
    row("in the list of modules", "menuItemsWidget");
}

void KeyboardTest::moduleKeysWorkWhereverTheFocusIs()
{
    QFETCH(QString, name);

    store("currentModule", 1);
    openWindow();
    auto *focused = child("voltageCalculatorWidget")->findChild<QWidget *>(name);
    if (!focused)
        focused = child(qPrintable(name));
    const auto press = [focused](Qt::Key key) {
        focused->setFocus();
        QTest::keyClick(focused, key, Qt::ControlModifier);
    };
    press(Qt::Key_4);
    QCOMPARE(m_profile.currentModule(), 3);
    m_profile.setCurrentModule(1);
    press(Qt::Key_PageDown);
    QCOMPARE(m_profile.currentModule(), 2);
    m_profile.setCurrentModule(1);
    press(Qt::Key_PageUp);
    QCOMPARE(m_profile.currentModule(), 0);
    QCOMPARE(focused->hasFocus(), name == QLatin1String("menuItemsWidget"));
    // Nothing but the module has changed.
    QCOMPARE(m_profile.voltageCalculator().mode(), 0);
    QCOMPARE(m_profile.voltageCalculator().phase(), 0.0);
    QCOMPARE(m_profile.voltageCalculator().input(), QString());
}

void KeyboardTest::moduleKeysFinishAnEdit()
{
    store("currentModule", 2);
    openWindow();
    QTest::keyClicks(child("dbmLineEdit"), QStringLiteral("30"));
    QCOMPARE(child<QLineEdit>("wattLineEdit")->text(), QString());
    QTest::keyClick(child("dbmLineEdit"), Qt::Key_5, Qt::ControlModifier);
    QCOMPARE(child<QLineEdit>("wattLineEdit")->text(), QStringLiteral("1E+03")); // mW
}

void KeyboardTest::keysOfTheWindowWaitWhileAListIsOpen()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    auto *selector =
        child("dbmCalculatorWidget")->findChild<KelComboBox *>(QStringLiteral("calcModeComboBox"));
    selector->setFocus();
    selector->showPopup();
    QTRY_VERIFY(selector->view()->isVisible());
    QTest::keyClick(selector->view(), Qt::Key_3, Qt::ControlModifier);
    QTest::keyClick(selector->view(), Qt::Key_F, Qt::AltModifier);
    QCOMPARE(m_profile.currentModule(), 0);
    QVERIFY(!child("menuFile")->isVisible());
    QVERIFY(selector->view()->isVisible());
    selector->hidePopup();
}

void KeyboardTest::whatIsTypedInTheListGoesToTheExpression()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus();
    QTest::keyClicks(list, QStringLiteral("5"));
    QCOMPARE(expression()->text(), QStringLiteral("5"));
    QVERIFY(expression()->hasFocus());

    m_profile.setCurrentModule(1);
    list->setFocus();
    QTest::keyClicks(list, QStringLiteral("7"));
    const auto *voltages =
        child("voltageCalculatorWidget")->findChild<QLineEdit *>(QStringLiteral("inputLineEdit"));
    QCOMPARE(voltages->text(), QStringLiteral("7"));
    QVERIFY(voltages->hasFocus());
    QCOMPARE(expression()->text(), QStringLiteral("5"));
}

void KeyboardTest::theListIsSearchedByLetters()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus();
    QTest::keyClicks(list, QStringLiteral("V"));
    QCOMPARE(m_profile.currentModule(), 1);
    QVERIFY(list->hasFocus());
    QCOMPARE(expression()->text(), QString());
}

void KeyboardTest::whatIsTypedInTheListOfAConverterGoesNowhere()
{
    openWindow();
    m_profile.setCurrentModule(2);
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus();
    QTest::keyClicks(list, QStringLiteral("5"));
    QVERIFY(list->hasFocus());
    const QList<QLineEdit *> fields = m_window->findChildren<QLineEdit *>();
    for (const QLineEdit *field : fields)
        QVERIFY2(!field->text().contains(QLatin1Char('5')) ||
                     field->objectName() == QStringLiteral("impedanceLineEdit"),
                 qPrintable(field->objectName()));
}

void KeyboardTest::aKeyThatNothingUsesIsLeftToTheDesktop()
{
    openWindow();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &key);
    QVERIFY(!key.isAccepted());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, KeyboardTest>(argc, argv, true);
}

#include "tst_keyboard.moc"
