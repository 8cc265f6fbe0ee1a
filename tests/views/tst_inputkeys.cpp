// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "expectedmessages.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

using namespace Dezimo;

/// The keys that an input line has as the line of a calculator.
class InputKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theEqualsSignTakesTheResultOver_data();
    void theEqualsSignTakesTheResultOver();
    void theEqualsSignTypesNothing_data();
    void theEqualsSignTypesNothing();
    void aCommandWithTheEqualsSignDoesNothing_data();
    void aCommandWithTheEqualsSignDoesNothing();

    void escEmptiesTheInput_data();
    void escEmptiesTheInput();
    void anEmptiedInputComesBack_data();
    void anEmptiedInputComesBack();
    void escClosesAListFirst();
    void escDuringTheSlide();

    void recallsWhatWasTakenOver();
    void comesBackToWhatWasBeingTyped();
    void whatIsRecalledIsCalculated();
    void theArrowOfTheNumericKeypadRecalls();
    void recallingCanBeUndone();
    void eachCalculatorRecallsItsOwn();
    void beyondTheOldestNothingChanges();
    void heldKeysRecallNothing();
    void whatTheInputTakesGoesNoFurther_data();
    void whatTheInputTakesGoesNoFurther();

private:
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

void takeOver(CalculatorPage &page, const char *expression)
{
    page.enter(expression);
    page.type(Qt::Key_Return);
    QTRY_COMPARE(page.result(), QString());
}

} // namespace

void InputKeysTest::initTestCase()
{
    applyStyleSheet();
}

void InputKeysTest::init()
{
    loadDefaults();
}

void InputKeysTest::theEqualsSignTakesTheResultOver_data()
{
    columns<Qt::KeyboardModifiers>({"held"});
    row("with a key of its own", Qt::KeyboardModifiers(Qt::NoModifier));
    row("with Shift, as on many keyboards", Qt::KeyboardModifiers(Qt::ShiftModifier));
    row("on the numeric keypad", Qt::KeyboardModifiers(Qt::KeypadModifier));
}

void InputKeysTest::theEqualsSignTakesTheResultOver()
{
    QFETCH(Qt::KeyboardModifiers, held);

    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    const MoveLog rowMoves(page.outputRow());
    QTest::keyClick(&page.input(), '=', held);

    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm"));
    QTRY_COMPARE(page.result(), QString());
    QVERIFY(!rowMoves.places().empty());
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm"));
}

void InputKeysTest::theEqualsSignTypesNothing_data()
{
    columns<QString>({"input"});
    row("where it cannot take over a lone value", "10dBm");
    row("where a unit is missing", "1mW+1");
}

void InputKeysTest::theEqualsSignTypesNothing()
{
    QFETCH(QString, input);

    CalculatorPage page = shownPage();
    page.type(input);
    page.type("=");
    QCOMPARE(page.input().text(), input);
}

void InputKeysTest::aCommandWithTheEqualsSignDoesNothing_data()
{
    columns<Qt::KeyboardModifiers>({"held"});
    row("with Ctrl", Qt::KeyboardModifiers(Qt::ControlModifier));
    row("with Meta", Qt::KeyboardModifiers(Qt::MetaModifier));
}

void InputKeysTest::aCommandWithTheEqualsSignDoesNothing()
{
    QFETCH(Qt::KeyboardModifiers, held);

    CalculatorPage page = shownPage();
    page.type("10dBm+3dB");
    QTest::keyClick(&page.input(), '=', held);
    QVERIFY(page.input().text().startsWith(QStringLiteral("10dBm+3dB")));
}

void InputKeysTest::escEmptiesTheInput_data()
{
    columns<QString>({"input"});
    row("an expression with a result", "10dBm+10dBm");
    row("an error", "10dBm");
    row("an input that is empty already", "");
}

void InputKeysTest::escEmptiesTheInput()
{
    QFETCH(QString, input);

    CalculatorPage page = shownPage();
    page.type(input);
    page.type(Qt::Key_Escape);
    QCOMPARE(page.input().text(), QString());
    QCOMPARE(page.result(), QString());
    QCOMPARE(m_profile.input(), QString());
    QCOMPARE(m_profile.output(), QString());
}

void InputKeysTest::anEmptiedInputComesBack_data()
{
    columns<bool>({"byKey"});
    row("after Esc", false);
    row("after the key C of the keypad", true);
}

void InputKeysTest::anEmptiedInputComesBack()
{
    QFETCH(bool, byKey);

    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    byKey ? page.press(QStringLiteral("C")) : page.type(Qt::Key_Escape);
    QCOMPARE(page.input().text(), QString());

    QTest::keySequence(&page.input(), QKeySequence::Undo);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));
}

void InputKeysTest::escClosesAListFirst()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QTest::mouseClick(&page.unit(), Qt::LeftButton);
    QWidget *list = QApplication::activePopupWidget();
    QVERIFY(list);
    QTest::keyClick(list, Qt::Key_Escape);
    QVERIFY(!list->isVisible());
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
}

void InputKeysTest::escDuringTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm=");
    page.type(Qt::Key_Escape);
    QCOMPARE(page.input().text(), QString());
    QTRY_COMPARE(page.result(), QString());
    QCOMPARE(m_profile.output(), QString());
}

void InputKeysTest::recallsWhatWasTakenOver()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    takeOver(page, "(1mW"); // "bracket missing" is taken over as well

    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("(1mW"));
    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    page.type(Qt::Key_Down);
    page.type(Qt::Key_Down);
    QCOMPARE(page.input().text(), QStringLiteral("bracket missing dBm"));
    page.type(Qt::Key_Down);
    QCOMPARE(page.input().text(), QStringLiteral("bracket missing dBm"));
}

void InputKeysTest::comesBackToWhatWasBeingTyped()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    page.type("+1dB");
    page.type(Qt::Key_Up);
    page.type("+2dB");

    page.type(Qt::Key_Down);
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm+1dB"));
    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm+2dB"));
    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
}

void InputKeysTest::whatIsRecalledIsCalculated()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    page.type(Qt::Key_Up);
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));
    QCOMPARE(page.input().cursorPosition(), int(qstrlen("10dBm+10dBm")));
    page.type("-3dB");
    QCOMPARE(page.result(), QStringLiteral("7.00 dBm"));
}

void InputKeysTest::theArrowOfTheNumericKeypadRecalls()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    QTest::keyClick(&page.input(), Qt::Key_Up, Qt::KeypadModifier);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
}

void InputKeysTest::recallingCanBeUndone()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    page.type("+1dB");
    page.type(Qt::Key_Up);
    QTest::keySequence(&page.input(), QKeySequence::Undo);
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm+1dB"));
}

void InputKeysTest::eachCalculatorRecallsItsOwn()
{
    CalculatorPage powers = shownPage();
    takeOver(powers, "10dBm+10dBm");
    CalculatorPage voltages = CalculatorPage::shown<VoltageCalculatorWidget>();
    voltages.type("1V");
    voltages.type(Qt::Key_Up);
    QCOMPARE(voltages.input().text(), QStringLiteral("1V"));
}

void InputKeysTest::beyondTheOldestNothingChanges()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Home);
    page.type(Qt::Key_Up);
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    QCOMPARE(page.input().cursorPosition(), 0);
}

/// With Shift, Ctrl or Meta the arrows are left to the system.
void InputKeysTest::heldKeysRecallNothing()
{
    CalculatorPage page = shownPage();
    takeOver(page, "10dBm+10dBm");
    for (const Qt::KeyboardModifier held :
         {Qt::ShiftModifier, Qt::ControlModifier, Qt::MetaModifier}) {
        QTest::keyClick(&page.input(), Qt::Key_Up, held);
        QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm"));
    }
}

void InputKeysTest::whatTheInputTakesGoesNoFurther_data()
{
    columns<Qt::Key>({"key"});
    row("Esc", Qt::Key_Escape);
    row("Up", Qt::Key_Up);
    row("Down", Qt::Key_Down);
}

void InputKeysTest::whatTheInputTakesGoesNoFurther()
{
    QFETCH(Qt::Key, key);

    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&page.input(), &press);
    QVERIFY(press.isAccepted());
}

DEZIMO_TEST_MAIN(QApplication, InputKeysTest)
#include "tst_inputkeys.moc"
