// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "expectedmessages.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QTest>

using namespace Dezimo;

class DbmCalculatorWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void offersUnitsAndModes();
    void aKeyTypesItsTextAtTheCursor_data();
    void aKeyTypesItsTextAtTheCursor();
    void aKeyReplacesTheSelection();
    void keysAreNamed_data();
    void keysAreNamed();
    void everyKeyIsNamedAndTakesNoFocus();
    void backspaceDeletesBeforeTheCursor();
    void clearEmptiesBothLines();
    void resultFollowsEveryKeystroke();
    void calculatesWithTheKeypadAlone();
    void hidingDuringTheTakeOverLeavesNoError();
    void choosesTheUnit();
    void choosesTheMode();
    void selectorIsShownWithAUnit_data();
    void selectorIsShownWithAUnit();
    void offersWhatMakesSense_data();
    void offersWhatMakesSense();
    void aMissingValidityIsNone();
    void aDisabledUnitCannotBeChosen();

private:
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

QStringList allUnits()
{
    return {QStringLiteral("dBm"),     QStringLiteral("mW"),  QStringLiteral("W"),
            QStringLiteral("\u00B5W"), QStringLiteral("dBW"), QStringLiteral("dB")};
}

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

} // namespace

void DbmCalculatorWidgetTest::initTestCase()
{
    applyStyleSheet();
}

void DbmCalculatorWidgetTest::init()
{
    loadDefaults();
}

void DbmCalculatorWidgetTest::offersUnitsAndModes()
{
    const CalculatorPage page = shownPage();
    const QStringList modes{QStringLiteral("Incoherent Powers (Combiner)"),
                            QStringLiteral("Coherent Powers (Combiner), \u0394\u03C6 = 0\u00B0"),
                            QStringLiteral("Numeric Calculation")};

    QCOMPARE(page.texts(page.unit()), allUnits());
    QCOMPARE(page.texts(page.mode()), modes);
    QCOMPARE(page.result(), QStringLiteral("--- dBm"));
    QCOMPARE(page.input().text(), QString());
}

void DbmCalculatorWidgetTest::aKeyTypesItsTextAtTheCursor_data()
{
    addPlainKeys();
    row("the level unit", "dBm", "dBm");
    row("the ratio unit", "dB", "dB");
    row("the small power unit", "mW", "mW");
    row("the power unit", "W", "W");
}

void DbmCalculatorWidgetTest::aKeyTypesItsTextAtTheCursor()
{
    CalculatorPage page = shownPage();
    checkTypedKey(page, m_profile);
}

void DbmCalculatorWidgetTest::aKeyReplacesTheSelection()
{
    CalculatorPage page = shownPage();
    page.type("123");
    page.input().setSelection(0, 2);

    page.press(QStringLiteral("7"));

    QCOMPARE(page.input().text(), QStringLiteral("73"));
}

void DbmCalculatorWidgetTest::keysAreNamed_data()
{
    columns<QString, QString>({"key", "name"});
    row("a digit by its text", "4", "4");
    row("a unit by its text", "dBm", "dBm");
    row("the decimal point", "point", "Decimal point");
    row("plus", "plus", "Plus");
    row("minus", "minus", "Minus");
    row("the sign", "plusMinus", "Change sign");
    row("backspace", "back", "Backspace");
    row("clear", "C", "Clear");
    row("calculate", "calc", "Calculate");
}

void DbmCalculatorWidgetTest::keysAreNamed()
{
    QFETCH(QString, key);
    QFETCH(QString, name);
    const CalculatorPage page = shownPage();

    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&page.key(key));
    QCOMPARE(interface->text(QAccessible::Name), name);
    QCOMPARE(interface->role(), QAccessible::Button);
}

void DbmCalculatorWidgetTest::everyKeyIsNamedAndTakesNoFocus()
{
    const CalculatorPage page = shownPage();
    const QList<QPushButton *> keys =
        page.find<QWidget>("keyboard_db_calc").findChildren<QPushButton *>();

    // 10 digits, point, plus, minus, sign, backspace, clear, calculate and 4 units.
    QCOMPARE(keys.size(), 21);
    for (QPushButton *key : keys) {
        QVERIFY2(!QAccessible::queryAccessibleInterface(key)->text(QAccessible::Name).isEmpty(),
                 qPrintable(key->objectName()));
        QVERIFY2(key->focusPolicy() == Qt::NoFocus, qPrintable(key->objectName()));
    }
    QCOMPARE(page.find<QWidget>("unitWidget").findChildren<QPushButton *>().size(), 4);
    QCOMPARE(page.key(QStringLiteral("back")).text(), QStringLiteral("\u232B"));
}

void DbmCalculatorWidgetTest::backspaceDeletesBeforeTheCursor()
{
    CalculatorPage page = shownPage();
    page.type("123");
    page.input().setCursorPosition(2);

    page.press(QStringLiteral("back"));

    QCOMPARE(page.input().text(), QStringLiteral("13"));
    QCOMPARE(m_profile.input(), QStringLiteral("13"));
    QVERIFY(page.input().hasFocus());
}

void DbmCalculatorWidgetTest::clearEmptiesBothLines()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");

    page.press(QStringLiteral("C"));

    QCOMPARE(page.input().text(), QString());
    QCOMPARE(m_profile.input(), QString());
    QCOMPARE(page.result(), QString());
    QCOMPARE(m_profile.output(), QString());
    QVERIFY(page.input().hasFocus());
}

void DbmCalculatorWidgetTest::resultFollowsEveryKeystroke()
{
    CalculatorPage page = shownPage();

    page.type("3 dBm");
    QCOMPARE(page.result(), QStringLiteral("invalid input"));
    page.type(" + 3");
    QCOMPARE(page.result(), QStringLiteral("unit missing"));
    // 3 dBm and a gain of 3 dB
    page.type(" dB");
    QCOMPARE(page.result(), QStringLiteral("6.00 dBm"));
    // an ideal combiner of two equal incoherent powers delivers their mean
    page.type("m");
    QCOMPARE(page.result(), QStringLiteral("3.00 dBm"));
    page.type(Qt::Key_Backspace);
    QCOMPARE(page.result(), QStringLiteral("6.00 dBm"));
}

void DbmCalculatorWidgetTest::calculatesWithTheKeypadAlone()
{
    CalculatorPage page = shownPage();
    for (const char *key :
         {"plusMinus", "3", "0", "dBm", "plus", "2", "0", "dB", "minus", "3", "point", "5", "dB"})
        page.press(QString::fromLatin1(key));

    QCOMPARE(page.input().text(), QStringLiteral("-30dBm+20dB-3.5dB"));
    // -30 + 20 - 3.5
    QCOMPARE(page.result(), QStringLiteral("-13.50 dBm"));
}

/// The window may be closed during the slide. The model must not store an error then.
void DbmCalculatorWidgetTest::hidingDuringTheTakeOverLeavesNoError()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);
    QCOMPARE(m_profile.output(), QStringLiteral("invalid input"));

    page.widget().hide();
    QCOMPARE(m_profile.input(), QStringLiteral("10.00 dBm"));
    QCOMPARE(m_profile.output(), QString());
}

void DbmCalculatorWidgetTest::choosesTheUnit()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));

    page.unit().setFocus();
    QStringList results;
    for (int i = 0; i < allUnits().size(); ++i) {
        page.type(Qt::Key_Down);
        results += page.result();
    }

    // 10 dBm are 10 mW. The ratio is disabled, so the last step stays at dBW.
    const QStringList expected{QStringLiteral("10 mW"),         QStringLiteral("0.01 W"),
                               QStringLiteral("1E+04 \u00B5W"), QStringLiteral("-20.00 dBW"),
                               QStringLiteral("-20.00 dBW"),    QStringLiteral("-20.00 dBW")};
    QCOMPARE(results, expected);
    QCOMPARE(m_profile.outputUnit(), 4);
}

void DbmCalculatorWidgetTest::choosesTheMode()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");

    page.mode().setFocus();
    page.type(Qt::Key_Down);
    // 10 mW + 10 mW = 20 mW
    QCOMPARE(page.result(), QStringLiteral("13.01 dBm"));
    QCOMPARE(m_profile.mode(), 1);
    page.type(Qt::Key_Down);
    QCOMPARE(page.result(), QStringLiteral("13.01 dBm"));
    QCOMPARE(m_profile.mode(), 2);
    page.type(Qt::Key_Home);
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));
    QCOMPARE(m_profile.mode(), 0);
}

void DbmCalculatorWidgetTest::selectorIsShownWithAUnit_data()
{
    columns<QString, QString>({"input", "result"});
    row("a level", "10dBm-3dB", "7.00 dBm");
    row("a ratio", "3dB+3dB", "6.00 dB");
    row("no level below zero", "1mW-2mW", "-1 mW");
    row("a plain number", "1+2", "3");
    row("a lone value", "1mW", "invalid input");
    row("one unit only", "1mW+1", "unit missing");
    row("an open bracket keeps the unit", "(1mW+1mW", "bracket missing dBm");
}

void DbmCalculatorWidgetTest::selectorIsShownWithAUnit()
{
    QFETCH(QString, input);
    QFETCH(QString, result);
    CalculatorPage page = shownPage();

    page.type(input);

    QCOMPARE(page.result(), result);
}

void DbmCalculatorWidgetTest::offersWhatMakesSense_data()
{
    columns<QString, QStringList>({"input", "units"});
    row("a power in all but the ratio", "1mW+1mW", QStringList(allUnits().mid(0, 5)));
    row("a ratio as nothing else", "3dB+3dB", QStringList(allUnits().mid(5)));
    row("a negative power has no level", "1mW-2mW", QStringList(allUnits().mid(1, 3)));
    row("a plain number in no unit", "1+2", QStringList());
}

void DbmCalculatorWidgetTest::offersWhatMakesSense()
{
    QFETCH(QString, input);
    QFETCH(QStringList, units);
    CalculatorPage page = shownPage();

    page.type(input);

    QCOMPARE(page.offeredUnits(), units);
    QCOMPARE(page.texts(page.unit()), allUnits());
}

void DbmCalculatorWidgetTest::aMissingValidityIsNone()
{
    const CalculatorPage page = shownPage();
    QCOMPARE(page.offeredUnits(), allUnits());

    m_profile.setValidUnits({{1, true}, {2, false}});

    QCOMPARE(page.offeredUnits(), QStringList{QStringLiteral("mW")});
}

void DbmCalculatorWidgetTest::aDisabledUnitCannotBeChosen()
{
    if (!hasScreenPositions()) {
        QTest::qSkip("the pointer cannot be moved here", __FILE__, __LINE__);
        return;
    }
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    const ExpectedMessages popups(offscreenPopupMessages());
    // A list ignores a release within this time, because it may end the click that opened the list.
    QApplication::setDoubleClickInterval(0);
    const auto click = [&page](int row) {
        QAbstractItemView &list = *page.unit().view();
        page.unit().showPopup();
        QCoreApplication::processEvents();
        const QPoint item = list.visualRect(page.unit().model()->index(row, 0)).center();
        QTest::mouseMove(list.viewport(), item);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, item);
        page.unit().hidePopup();
    };

    click(5);
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));
    click(1);
    QCOMPARE(page.result(), QStringLiteral("10 mW"));
}

DEZIMO_TEST_MAIN(QApplication, DbmCalculatorWidgetTest)
#include "tst_dbmcalculatorwidget.moc"
