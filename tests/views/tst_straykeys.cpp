// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"

#include <QApplication>
#include <QListWidget>
#include <QSpinBox>
#include <QTest>

using namespace Dezimo;

/// What is typed beside the input line goes there, unless the control that has the focus has a use
/// for it.
class StrayKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void goToTheInput_data();
    void goToTheInput();
    void stayWhereTheyAre_data();
    void stayWhereTheyAre();
    void typingGoesOnInTheInput();
    void typeWhereTheCursorIs();
    void areSeenByTheInputAlone();
    void theEqualsSignTakesTheResultOver();
    void eachPageHasItsUnits();
    void thePhaseKeepsItsDigits();
    void aPageThatIsNotOpenTakesNothing();

private:
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

} // namespace

void StrayKeysTest::initTestCase()
{
    applyStyleSheet();
}

void StrayKeysTest::init()
{
    loadDefaults();
}

void StrayKeysTest::goToTheInput_data()
{
    columns<QString, QString>({"control", "typed"});
    row("digits and signs from the result", "outputLineEdit", "0123456789.+-()");
    row("letters of units from the result", "outputLineEdit", "dBmW");
    row("digits and signs from the selector of units", "outputUnitComboBox", "0123456789.+-()");
    row("digits and signs from the selector of modes", "calcModeComboBox", "0123456789.+-()");
}

/// Before each key the control has the focus again. The selector of units hides beside an error.
void StrayKeysTest::goToTheInput()
{
    QFETCH(QString, control);
    QFETCH(QString, typed);

    CalculatorPage page = shownPage();
    auto &focused = page.find<QWidget>(qPrintable(control));
    for (const QChar key : typed) {
        focused.show();
        focused.setFocus();
        QVERIFY(focused.hasFocus());
        QTest::keyClicks(&focused, QString(key));
        QVERIFY(page.input().hasFocus());
    }
    QCOMPARE(page.input().text(), typed);
    QCOMPARE(m_profile.input(), typed);
}

void StrayKeysTest::stayWhereTheyAre_data()
{
    columns<QString, Qt::Key, Qt::KeyboardModifiers>({"control", "key", "held"});
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    row("a letter of no unit in the result", "outputLineEdit", Qt::Key_X, none);
    row("a digit with Ctrl in the result", "outputLineEdit", Qt::Key_5,
        Qt::KeyboardModifiers(Qt::ControlModifier));
    row("an arrow in the result", "outputLineEdit", Qt::Key_Left, none);
    row("a letter in the selector of units", "outputUnitComboBox", Qt::Key_M, none);
    row("a letter in the selector of modes", "calcModeComboBox", Qt::Key_N, none);
    row("an arrow in the selector of modes", "calcModeComboBox", Qt::Key_Down, none);
}

void StrayKeysTest::stayWhereTheyAre()
{
    QFETCH(QString, control);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, held);

    CalculatorPage page = shownPage();
    page.type("3dBm+3dBm");
    auto &focused = page.find<QWidget>(qPrintable(control));
    focused.setFocus();
    QTest::keyClick(&focused, key, held);
    QVERIFY(focused.hasFocus());
    QCOMPARE(page.input().text(), QStringLiteral("3dBm+3dBm"));
    // The letters that selectors keep are there to choose an entry.
    QCOMPARE(page.unit().currentText(),
             key == Qt::Key_M ? QStringLiteral("mW") : QStringLiteral("dBm"));
    QCOMPARE(page.mode().currentIndex(), key == Qt::Key_N ? 2 : key == Qt::Key_Down ? 1 : 0);
}

void StrayKeysTest::typingGoesOnInTheInput()
{
    CalculatorPage page = shownPage();
    page.mode().setFocus();
    page.type("(");
    page.type("3dBm+3dB)");
    QCOMPARE(page.input().text(), QStringLiteral("(3dBm+3dB)"));
    QCOMPARE(page.result(), QStringLiteral("6.00 dBm"));
}

void StrayKeysTest::typeWhereTheCursorIs()
{
    CalculatorPage page = shownPage();
    page.type("1dBm+3dBm");
    page.input().setCursorPosition(1);
    page.output().setFocus();
    page.type("0");
    QCOMPARE(page.input().text(), QStringLiteral("10dBm+3dBm"));
}

/// A list would go on to the entry that begins with what is typed.
void StrayKeysTest::areSeenByTheInputAlone()
{
    const CalculatorPage page = shownPage();
    QListWidget list;
    list.addItems({QStringLiteral("1 level"), QStringLiteral("2 levels")});
    list.setCurrentRow(0);
    qobject_cast<KeypadCalculatorWidget *>(&page.widget())->takeKeysFrom(&list);
    QTest::keyClicks(&list, QStringLiteral("2"));
    QCOMPARE(page.input().text(), QStringLiteral("2"));
    QCOMPARE(list.currentRow(), 0);
}

void StrayKeysTest::theEqualsSignTakesTheResultOver()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.mode().setFocus();
    page.type("=");
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm"));
    QVERIFY(page.input().hasFocus());
}

void StrayKeysTest::eachPageHasItsUnits()
{
    CalculatorPage page = CalculatorPage::shown<VoltageCalculatorWidget>();
    for (const char *key : {"d", "3", "B", "V"}) {
        page.output().setFocus();
        page.type(key);
    }
    QCOMPARE(page.input().text(), QStringLiteral("3V"));
}

void StrayKeysTest::thePhaseKeepsItsDigits()
{
    CalculatorPage page = CalculatorPage::shown<VoltageCalculatorWidget>();
    auto &phase = page.find<QSpinBox>("phaseSpinBox");
    phase.setFocus();
    phase.selectAll();
    QTest::keyClicks(&phase, QStringLiteral("90"));
    QCOMPARE(phase.value(), 90);
    QCOMPARE(page.input().text(), QString());
}

/// One list may stand beside several pages. The last of them is the first to see its keys.
void StrayKeysTest::aPageThatIsNotOpenTakesNothing()
{
    CalculatorPage closed = shownPage();
    CalculatorPage open = CalculatorPage::shown<VoltageCalculatorWidget>();
    QListWidget list;
    for (const CalculatorPage *page : {&open, &closed})
        qobject_cast<KeypadCalculatorWidget *>(&page->widget())->takeKeysFrom(&list);
    closed.widget().hide();
    QTest::keyClicks(&list, QStringLiteral("1V"));
    QCOMPARE(open.input().text(), QStringLiteral("1")); // lists are searched by letters
    QCOMPARE(closed.input().text(), QString());
}

DEZIMO_TEST_MAIN(QApplication, StrayKeysTest)
#include "tst_straykeys.moc"
