// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "table.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

using namespace Dezimo;

/// The calculate key of the two calculators, shown on the dBm calculator's page.
class TakeOverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void takesOverTheResult_data();
    void takesOverTheResult();
    void refusesToTakeOver_data();
    void refusesToTakeOver();
    void whatIsTypedDuringTheSlideStays();
    void anotherUnitIsShownAfterTheSlide();
    void clearDuringTheSlide();
    void resizedDuringTheSlide();
    void hiddenDuringTheSlide();
    void destroyedDuringTheSlide();

private:
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

/// Stands for the page's own calculate key in a table of keys of the keyboard.
constexpr Qt::Key kKeypad = Qt::Key_unknown;

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

} // namespace

void TakeOverTest::initTestCase()
{
    applyStyleSheet();
}

void TakeOverTest::init()
{
    loadDefaults();
}

void TakeOverTest::takesOverTheResult_data()
{
    columns<QString, Qt::Key, QString>({"input", "by", "result"});
    row("a level, by Return", "10dBm+10dBm", Qt::Key_Return, "10.00 dBm");
    row("a level, by Enter", "10dBm+10dBm", Qt::Key_Enter, "10.00 dBm");
    row("a level, by the key of the keypad", "10dBm+10dBm", kKeypad, "10.00 dBm");
    row("a negative ratio", "3dB-10dB", kKeypad, "-7.00 dB");
    row("a plain number has no unit", "1+2", Qt::Key_Return, "3");
    row("an open bracket is meant to be taken", "(1mW", Qt::Key_Return, "bracket missing dBm");
    row("the dashes of the first start are meant to be taken", "", Qt::Key_Return, "--- dBm");
}

void TakeOverTest::takesOverTheResult()
{
    QFETCH(QString, input);
    QFETCH(Qt::Key, by);
    QFETCH(QString, result);
    CalculatorPage page = shownPage();
    page.type(input);
    QCoreApplication::processEvents();
    const std::vector<QPoint> places = page.places();
    const int rowTop = page.outputRow().y();
    const int inputTop = page.input().y();
    const MoveLog rowMoves(page.outputRow());
    const MoveLog inputMoves(page.input());

    by == kKeypad ? page.press(QStringLiteral("calc")) : page.type(by);
    QCOMPARE(page.input().text(), result);
    QCOMPARE(m_profile.input(), result);
    QCOMPARE(page.result(), result);

    QTRY_COMPARE(m_profile.output(), QString());
    QCOMPARE(page.result(), QString());
    QCOMPARE(page.input().text(), result);
    QCOMPARE(rowMoves.highest(), rowTop - page.outputRow().height());
    QCOMPARE(inputMoves.lowest(), inputTop + page.input().height());
    QCOMPARE(page.places(), places);
    QVERIFY(page.input().hasFocus());
}

void TakeOverTest::refusesToTakeOver_data()
{
    columns<QString, QString>({"input", "output"});
    row("an invalid input", "1mW+", "invalid input");
    row("a missing unit", "1mW+1", "unit missing");
    row("no result", "", "");
}

void TakeOverTest::refusesToTakeOver()
{
    QFETCH(QString, input);
    QFETCH(QString, output);
    CalculatorPage page = shownPage();
    page.type(input);
    m_profile.setOutput(output);
    const MoveLog rowMoves(page.outputRow());
    const MoveLog inputMoves(page.input());

    page.type(Qt::Key_Return);
    page.press(QStringLiteral("calc"));

    QCOMPARE(page.input().text(), input);
    QCOMPARE(page.result(), output);
    QVERIFY(rowMoves.places().empty());
    QVERIFY(inputMoves.places().empty());
}

void TakeOverTest::whatIsTypedDuringTheSlideStays()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);

    page.type("+1dB");
    QCOMPARE(m_profile.output(), QStringLiteral("11.00"));
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));
    // A second press could take the new result over, but not before the slide ends.
    page.press(QStringLiteral("calc"));
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm+1dB"));

    QTRY_COMPARE(page.result(), QStringLiteral("11.00 dBm"));
    QCOMPARE(page.input().text(), QStringLiteral("10.00 dBm+1dB"));
    page.press(QStringLiteral("calc"));
    QCOMPARE(page.input().text(), QStringLiteral("11.00 dBm"));
}

void TakeOverTest::anotherUnitIsShownAfterTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);

    // 10 mW - 20 mW, which is no level
    page.type("-20mW");
    QCOMPARE(m_profile.outputUnit(), 1);
    QCOMPARE(page.result(), QStringLiteral("10.00 dBm"));

    QTRY_COMPARE(page.result(), QStringLiteral("-10 mW"));
}

void TakeOverTest::clearDuringTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);

    page.press(QStringLiteral("C"));

    QTRY_COMPARE(page.result(), QString());
    QCOMPARE(page.input().text(), QString());
    QCOMPARE(m_profile.output(), QString());
}

void TakeOverTest::resizedDuringTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);
    page.widget().resize(640, 480);
    QTRY_COMPARE(page.result(), QString());

    CalculatorPage another = shownPage();
    another.widget().resize(640, 480);
    QTRY_COMPARE(page.places(), another.places());
}

void TakeOverTest::hiddenDuringTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QCoreApplication::processEvents();
    const std::vector<QPoint> places = page.places();

    page.type(Qt::Key_Return);
    page.widget().hide();
    QTRY_COMPARE(m_profile.output(), QString());
    page.widget().show();

    QTRY_COMPARE(page.places(), places);
}

void TakeOverTest::destroyedDuringTheSlide()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);

    page.destroy();

    QCOMPARE(m_profile.input(), QStringLiteral("10.00 dBm"));
    CalculatorPage another = shownPage();
    another.type("+1dB");
    QCOMPARE(another.result(), QStringLiteral("11.00 dBm"));
}

DEZIMO_TEST_MAIN(QApplication, TakeOverTest)
#include "tst_takeover.moc"
