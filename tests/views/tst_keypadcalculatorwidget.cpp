// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "kelautoresizelineedit.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <algorithm>

using namespace Dezimo;

/// What the pages share, shown on the dBm calculator's.
class KeypadCalculatorWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void choicesWithoutAResultCalculateNothing();
    void mirroredChoicesCalculateNothing();
    void showsTheModelOnce();
    void showsALoadedStateAsItWasStored();
    void defaultsBringTheSelectorBack();
    void typingInTheMiddleKeepsTheCursor();
    void unitHasTheFontSizeOfTheResult();
    void listOfUnitsKeepsItsFontSize();
    void aResultThatIsThereFromTheStartIsFittedAndMarked();
    void errorWordsAreMarked();
    void anErrorWordSaysWhy_data();
    void anErrorWordSaysWhy();
    void theReasonFollowsEveryKey();
    void aReasonShowsMarkupAsItStands();
    void theReasonHasTheSizeOfATip();
    void resultIsReadOnlyAndCanBeCopied();
    void keysGiveTheFocusToTheInput();
    void tabGoesThroughThePage();
    void takesALongPastedText();
    void retranslationKeepsTheState();

private:
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

void load(DbmCalculatorProfile &profile, const QMap<QString, QVariant> &state)
{
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("DbmCalculatorProfile"));
    for (auto it = state.cbegin(); it != state.cend(); ++it)
        file.settings().setValue(it.key(), it.value());
    file.settings().endGroup();
    profile.loadSettings(file.settings());
}

} // namespace

void KeypadCalculatorWidgetTest::initTestCase()
{
    applyStyleSheet();
}

void KeypadCalculatorWidgetTest::init()
{
    loadDefaults();
}

void KeypadCalculatorWidgetTest::choicesWithoutAResultCalculateNothing()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    m_profile.setOutput(QString());
    const QSignalSpy outputs(&m_profile, &ExpressionProfile::outputChanged);

    page.mode().setFocus();
    page.type(Qt::Key_Down);
    QCOMPARE(m_profile.mode(), 1);
    page.unit().setCurrentIndex(1);
    QCOMPARE(m_profile.outputUnit(), 1);

    QCOMPARE(outputs.count(), 0);
    QCOMPARE(page.result(), QString());
}

void KeypadCalculatorWidgetTest::mirroredChoicesCalculateNothing()
{
    const CalculatorPage page = shownPage();
    const QSignalSpy outputs(&m_profile, &ExpressionProfile::outputChanged);

    m_profile.setOutputUnit(2);
    m_profile.setMode(1);

    QCOMPARE(page.result(), QStringLiteral("--- W"));
    QCOMPARE(page.mode().currentIndex(), 1);
    QCOMPARE(outputs.count(), 0);
}

void KeypadCalculatorWidgetTest::showsTheModelOnce()
{
    m_profile.setInput(QStringLiteral("10dBm+10dBm"));
    m_profile.setOutput(QStringLiteral("7.77"));
    m_profile.setOutputUnit(1);
    m_profile.setMode(2);
    m_profile.setValidUnits({{1, true}});
    const QSignalSpy outputs(&m_profile, &ExpressionProfile::outputChanged);

    const CalculatorPage page = shownPage();

    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    QCOMPARE(page.result(), QStringLiteral("7.77 mW"));
    QCOMPARE(page.mode().currentIndex(), 2);
    QCOMPARE(page.offeredUnits(), QStringList{QStringLiteral("mW")});
    QCOMPARE(outputs.count(), 0);
}

/// Every change of the input line calculates, and loading changes it too. The stored result and
/// unit must still win.
void KeypadCalculatorWidgetTest::showsALoadedStateAsItWasStored()
{
    CalculatorPage page = shownPage();
    page.type("1mW-2mW");

    load(m_profile, {{QStringLiteral("input"), QStringLiteral("10dBm+10dBm")},
                     {QStringLiteral("output"), QStringLiteral("---")},
                     {QStringLiteral("outputUnit"), 4},
                     {QStringLiteral("mode"), 2},
                     {QStringLiteral("WValid"), false}});

    QCOMPARE(page.input().text(), QStringLiteral("10dBm+10dBm"));
    QCOMPARE(page.result(), QStringLiteral("--- dBW"));
    QCOMPARE(m_profile.output(), QStringLiteral("---"));
    QCOMPARE(page.mode().currentIndex(), 2);
    const QStringList offered{QStringLiteral("dBm"), QStringLiteral("mW"),
                              QStringLiteral("\u00B5W"), QStringLiteral("dBW"),
                              QStringLiteral("dB")};
    QCOMPARE(page.offeredUnits(), offered);
}

void KeypadCalculatorWidgetTest::defaultsBringTheSelectorBack()
{
    CalculatorPage page = shownPage();
    page.type("1+2");
    QCOMPARE(page.result(), QStringLiteral("3"));

    load(m_profile, {});

    QCOMPARE(page.input().text(), QString());
    QCOMPARE(page.result(), QStringLiteral("--- dBm"));
}

void KeypadCalculatorWidgetTest::typingInTheMiddleKeepsTheCursor()
{
    CalculatorPage page = shownPage();
    page.type("1dBm+dB");
    page.input().setCursorPosition(5);

    page.type("20");

    QCOMPARE(page.input().text(), QStringLiteral("1dBm+20dB"));
    QCOMPARE(page.input().cursorPosition(), 7);
    page.input().undo();
    QVERIFY(page.input().text() != QStringLiteral("1dBm+20dB"));
}

void KeypadCalculatorWidgetTest::unitHasTheFontSizeOfTheResult()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    auto &output = page.find<KelAutoResizeLineEdit>("outputLineEdit");
    QSignalSpy sizes(&output, &KelAutoResizeLineEdit::fontSizeChanged);
    const auto sheet = [](int size) {
        return QStringLiteral("font-size: %1px").arg(size);
    };

    page.widget().resize(560, 430);
    QTRY_VERIFY(!sizes.isEmpty());
    QVERIFY(sizes.last().first().toInt() != 18);
    QCOMPARE(page.unit().styleSheet(), sheet(sizes.last().first().toInt()));
    QCOMPARE(output.styleSheet(), page.unit().styleSheet());

    m_profile.setOutput(QString(400, QLatin1Char('8')));
    QCOMPARE(page.unit().styleSheet(), sheet(10));
    QCOMPARE(output.styleSheet(), sheet(10));
}

void KeypadCalculatorWidgetTest::listOfUnitsKeepsItsFontSize()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QVERIFY(page.unit().font().pixelSize() > 18);
    page.unit().showPopup();
    QCOMPARE(page.unit().view()->font().pixelSize(), 18);
    page.unit().hidePopup();

    page.widget().resize(560, 430);
    page.unit().showPopup();
    QCOMPARE(page.unit().view()->font().pixelSize(), 18);
}

void KeypadCalculatorWidgetTest::aResultThatIsThereFromTheStartIsFittedAndMarked()
{
    m_profile.setOutput(QStringLiteral("invalid input"));
    const CalculatorPage page = shownPage();
    QCOMPARE(page.output().text(), QStringLiteral("invalid input"));
    QVERIFY(page.output().property("error").toBool());
    QVERIFY(page.output().styleSheet().startsWith(QLatin1String("font-size: ")));
    QCOMPARE(page.unit().styleSheet(), page.output().styleSheet());
}

void KeypadCalculatorWidgetTest::errorWordsAreMarked()
{
    CalculatorPage page = shownPage();
    QVERIFY(!page.output().property("error").toBool());
    page.type("1mW+1");
    QVERIFY(page.output().property("error").toBool());
    page.type("mW");
    QVERIFY(!page.output().property("error").toBool());
}

void KeypadCalculatorWidgetTest::anErrorWordSaysWhy_data()
{
    columns<QString, QString, QString>({"input", "toolTip", "description"});
    row("a result has its unit for a description", "10dBm+10dBm", "", "dBm");
    row("a result without a unit has none", "1+1", "", "");
    row("a value alone", "10dBm", "One value alone needs brackets: (10dBm)",
        "One value alone needs brackets: (10dBm)");
    row("a bracket", "(1mW+1mW", "A closing bracket is missing for '(1mW+1mW'",
        "A closing bracket is missing for '(1mW+1mW'");
    row("a unit", "1mW+1", "'1' has no unit, but '1mW' has one",
        "'1' has no unit, but '1mW' has one");
}

void KeypadCalculatorWidgetTest::anErrorWordSaysWhy()
{
    QFETCH(QString, input);
    QFETCH(QString, toolTip);
    QFETCH(QString, description);

    CalculatorPage page = shownPage();
    page.type(input);
    QCOMPARE(page.output().toolTip(), toolTip);
    QCOMPARE(page.output().accessibleDescription(), description);
}

/// The word is "invalid input" all the time.
void KeypadCalculatorWidgetTest::theReasonFollowsEveryKey()
{
    CalculatorPage page = shownPage();
    page.type("1mW-1mW+1mW");
    const QString combiner = page.output().toolTip();
    QVERIFY(combiner.startsWith(QStringLiteral("A combiner")));
    page.type("x");
    QVERIFY(page.output().toolTip() != combiner);
    page.type(Qt::Key_Backspace);
    QCOMPARE(page.output().toolTip(), combiner);
    page.mode().setCurrentIndex(1);
    QCOMPARE(page.output().toolTip(), QString());
    page.mode().setCurrentIndex(0);
    QCOMPARE(page.output().toolTip(), combiner);
    page.press(QStringLiteral("C"));
    QCOMPARE(page.output().toolTip(), QString());
}

void KeypadCalculatorWidgetTest::aReasonShowsMarkupAsItStands()
{
    CalculatorPage page = shownPage();
    page.type("1<br>+1");
    QVERIFY(page.output().accessibleDescription().contains(QStringLiteral("<br>")));
    QVERIFY(page.output().toolTip().contains(QStringLiteral("&lt;br&gt;")));
}

/// The result beside it may be 80 pixels high.
void KeypadCalculatorWidgetTest::theReasonHasTheSizeOfATip()
{
    CalculatorPage page = shownPage();
    page.type("10dBm");
    QLineEdit &output = page.output();
    const QPoint middle = output.rect().center();
    QHelpEvent rest(QEvent::ToolTip, middle, output.mapToGlobal(middle));
    QCoreApplication::sendEvent(&output, &rest);
    QCOMPARE(QToolTip::text(), output.toolTip());
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->windowType() == Qt::ToolTip && window->isVisible();
    });
    QVERIFY(tip != windows.end());
    QVERIFY2((*tip)->height() < 60, QByteArray::number((*tip)->height()).constData());
    QToolTip::hideText();
}

void KeypadCalculatorWidgetTest::resultIsReadOnlyAndCanBeCopied()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");

    page.output().setFocus();
    page.type("x");
    QCOMPARE(page.output().text(), QStringLiteral("10.00"));
    QTest::keySequence(&page.output(), QKeySequence::SelectAll);
    QTest::keySequence(&page.output(), QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("10.00"));
}

void KeypadCalculatorWidgetTest::keysGiveTheFocusToTheInput()
{
    CalculatorPage page = shownPage();
    QVERIFY(page.input().hasFocus());
    page.mode().setFocus();

    page.press(QStringLiteral("4"));
    page.type("2");

    QCOMPARE(page.input().text(), QStringLiteral("42"));
    page.mode().setFocus();
    page.press(QStringLiteral("back"));
    QVERIFY(page.input().hasFocus());
}

void KeypadCalculatorWidgetTest::tabGoesThroughThePage()
{
    CalculatorPage page = CalculatorPage::shown<VoltageCalculatorWidget>();
    QStringList names;
    for (int i = 0; i < 5; ++i) {
        names += page.widget().focusWidget()->objectName();
        page.type(Qt::Key_Tab);
    }

    const QStringList expected{QStringLiteral("inputLineEdit"), QStringLiteral("outputLineEdit"),
                               QStringLiteral("outputUnitComboBox"),
                               QStringLiteral("calcModeComboBox"), QStringLiteral("phaseSpinBox")};
    QCOMPARE(names, expected);
    QVERIFY(page.input().hasFocus());
}

void KeypadCalculatorWidgetTest::takesALongPastedText()
{
    CalculatorPage page = shownPage();
    m_profile.setMode(2);
    // 8192 powers; 4 * 8192 - 1 characters are as many as a line edit holds
    const QString text = QStringLiteral("1mW+").repeated(8192).chopped(1);
    QCOMPARE(text.size(), 32767);
    QApplication::clipboard()->setText(text);

    QTest::keySequence(&page.input(), QKeySequence::Paste);

    QCOMPARE(m_profile.input(), text);
    // 10 lg 8192 = 39.134
    QCOMPARE(page.result(), QStringLiteral("39.13 dBm"));
}

void KeypadCalculatorWidgetTest::retranslationKeepsTheState()
{
    CalculatorPage page = shownPage();
    m_profile.setMode(1);
    page.type("1mW-2mW");
    const QStringList offered = page.offeredUnits();

    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page.widget(), &change);

    QCOMPARE(page.input().text(), QStringLiteral("1mW-2mW"));
    QCOMPARE(page.result(), QStringLiteral("-1 mW"));
    QCOMPARE(page.mode().currentIndex(), 1);
    QCOMPARE(page.offeredUnits(), offered);
}

DEZIMO_TEST_MAIN(QApplication, KeypadCalculatorWidgetTest)
#include "tst_keypadcalculatorwidget.moc"
