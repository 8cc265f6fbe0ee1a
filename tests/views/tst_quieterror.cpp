// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "expectedmessages.h"
#include "kelautoresizelineedit.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <functional>
#include <vector>

using namespace Dezimo;

/// An error word of a calculator is quiet as long as the person types, and not a moment longer. Of
/// its look, this page shows that it is upright.
class QuietErrorTest : public QObject
{
    Q_OBJECT

public:
    QuietErrorTest();

private Q_SLOTS:
    void initTestCase();
    void init();

    void anErrorThatIsTypedIsQuiet_data() { rowsOf(m_typings); }
    void anErrorThatIsTypedIsQuiet();
    void typingEnds_data() { rowsOf(m_endings); }
    void typingEnds();
    void typingOnMakesItQuietAgain_data() { rowsOf(m_endings); }
    void typingOnMakesItQuietAgain();
    void aMenuDoesNotEndTyping();

    void anErrorThatWasStoredIsNotQuiet();
    void anErrorThatIsLoadedIsNotQuiet();
    void anErrorThatIsLoadedWithAnotherModeIsNotQuiet();
    void anErrorOfAnotherModeIsNotQuiet();

    void aQuietErrorIsAnErrorAllTheSame();
    void bothLooksFitTheirLine();

private:
    using Page = CalculatorPage;
    struct Step
    {
        const char *name;
        std::function<void(Page &)> run;
    };
    using Steps = std::vector<Step>;

    static void add(Steps &steps, const char *name, const std::function<void(Page &)> &run)
    {
        steps.push_back({name, run});
    }
    static void rowsOf(const Steps &steps);
    static void run(const Steps &steps, Page &page);

    Steps m_typings; ///< that end in an error
    Steps m_endings;
    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

bool isErrorQuiet(const CalculatorPage &page)
{
    return page.output().property("error").toBool() && page.output().property("quiet").toBool() &&
           !page.output().font().italic();
}

bool isErrorPlain(const CalculatorPage &page)
{
    return page.output().property("error").toBool() && !page.output().property("quiet").toBool() &&
           page.output().font().italic();
}

void paste(CalculatorPage &page, const char *text)
{
    QApplication::clipboard()->setText(QString::fromLatin1(text));
    QTest::keySequence(&page.input(), QKeySequence::Paste);
}

void drop(CalculatorPage &page, const char *text)
{
    QMimeData data;
    data.setText(QString::fromLatin1(text));
    QDragEnterEvent arrival(QPoint(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&page.input(), &arrival);
    QDropEvent event(QPointF(20, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&page.input(), &event);
}

void activateAnotherWindow()
{
    QWidget another;
    another.show();
    another.activateWindow();
    QVERIFY(waitForKeyboard(another));
}

} // namespace

QuietErrorTest::QuietErrorTest()
{
    Steps &typed = m_typings;
    add(typed, "with keys", [](Page &page) { page.type("1mW+1"); });
    add(typed, "with the first key", [](Page &page) { page.type("1"); });
    add(typed, "with the keypad", [](Page &page) { page.press(QStringLiteral("1")); });
    add(typed, "with the keypad, while another control has the focus", [](Page &page) {
        page.mode().setFocus();
        page.press(QStringLiteral("1"));
    });
    add(typed, "by pasting", [](Page &page) { paste(page, "10dBm"); });
    add(typed, "by dropping", [](Page &page) { drop(page, "10dBm"); });
    add(typed, "with Backspace", [](Page &page) {
        page.type("1mW+1mW");
        page.type(Qt::Key_Backspace);
    });
    add(typed, "with the backspace key of the keypad", [](Page &page) {
        page.type("1mW+1mW");
        page.press(QStringLiteral("back"));
    });
    add(typed, "by undoing", [](Page &page) {
        page.type("1mW+1mW");
        QTest::keySequence(&page.input(), QKeySequence::Undo);
    });

    Steps &ended = m_endings;
    add(ended, "with Return", [](Page &page) { page.type(Qt::Key_Return); });
    add(ended, "with Enter", [](Page &page) { page.type(Qt::Key_Enter); });
    add(ended, "with =", [](Page &page) { page.type("="); });
    add(ended, "with = of the keypad", [](Page &page) { page.press(QStringLiteral("calc")); });
    add(ended, "with Tab", [](Page &page) { page.type(Qt::Key_Tab); });
    add(ended, "by a click on the result",
        [](Page &page) { QTest::mouseClick(&page.output(), Qt::LeftButton); });
    add(ended, "by giving the focus away", [](Page &page) { page.input().clearFocus(); });
    add(ended, "in another window", [](Page &) { activateAnotherWindow(); });
    add(ended, "by turning the page", [](Page &page) {
        page.widget().hide();
        page.widget().show();
    });
}

void QuietErrorTest::initTestCase()
{
    applyStyleSheet();
}

void QuietErrorTest::init()
{
    loadDefaults();
}

void QuietErrorTest::rowsOf(const Steps &steps)
{
    columns<int>({"step"});
    for (std::size_t i = 0; i < steps.size(); ++i)
        row(steps.at(i).name, int(i));
}

void QuietErrorTest::run(const Steps &steps, Page &page)
{
    QFETCH(int, step);
    steps.at(std::size_t(step)).run(page);
}

void QuietErrorTest::anErrorThatIsTypedIsQuiet()
{
    CalculatorPage page = shownPage();
    run(m_typings, page);
    QVERIFY(isErrorQuiet(page));
}

void QuietErrorTest::typingEnds()
{
    CalculatorPage page = shownPage();
    page.type("1mW+1");
    QVERIFY(isErrorQuiet(page));
    run(m_endings, page);
    QVERIFY(isErrorPlain(page));
}

void QuietErrorTest::typingOnMakesItQuietAgain()
{
    CalculatorPage page = shownPage();
    page.type("1mW+1");
    run(m_endings, page);
    QTest::keyClicks(&page.input(), QStringLiteral("0"));
    QVERIFY(isErrorQuiet(page));
    QTest::keyClicks(&page.input(), QStringLiteral("mW"));
    QVERIFY(!page.output().property("error").toBool());
    QTest::keyClicks(&page.input(), QStringLiteral("+"));
    QVERIFY(isErrorQuiet(page));
}

void QuietErrorTest::aMenuDoesNotEndTyping()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    CalculatorPage page = shownPage();
    page.type("1mW+1");
    const QPoint middle = page.input().rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, page.input().mapToGlobal(middle));
    QCoreApplication::sendEvent(&page.input(), &event);
    QWidget *menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QVERIFY(isErrorQuiet(page));
    QTest::keyClick(menu, Qt::Key_Escape);
    QVERIFY(isErrorQuiet(page));
}

void QuietErrorTest::anErrorThatWasStoredIsNotQuiet()
{
    m_profile.setInput(QStringLiteral("1mW+1"));
    m_profile.calculate();
    const CalculatorPage page = shownPage();
    QVERIFY(isErrorPlain(page));
}

void QuietErrorTest::anErrorThatIsLoadedIsNotQuiet()
{
    CalculatorPage page = shownPage();
    page.type("2");
    QVERIFY(isErrorQuiet(page));
    loadFile({QStringLiteral("DbmCalculatorProfile/input=1mW+1"),
              QStringLiteral("DbmCalculatorProfile/output=unit missing")});
    QCOMPARE(page.result(), QStringLiteral("unit missing"));
    QVERIFY(isErrorPlain(page));
}

/// The expression is the one that was typed.
void QuietErrorTest::anErrorThatIsLoadedWithAnotherModeIsNotQuiet()
{
    CalculatorPage page = shownPage();
    page.type("1mW+1");
    QVERIFY(isErrorQuiet(page));
    loadFile({QStringLiteral("DbmCalculatorProfile/input=1mW+1"),
              QStringLiteral("DbmCalculatorProfile/output=unit missing"),
              QStringLiteral("DbmCalculatorProfile/mode=1")});
    QVERIFY(isErrorPlain(page));
}

/// A screen reader chooses a mode without moving the focus.
void QuietErrorTest::anErrorOfAnotherModeIsNotQuiet()
{
    m_profile.setMode(2);
    CalculatorPage page = shownPage();
    page.type("3mW-1mW+1mW");
    QVERIFY(!page.output().property("error").toBool());
    page.mode().setCurrentIndex(0); // a combiner has no sum after a difference
    QVERIFY(isErrorPlain(page));
    page.mode().setCurrentIndex(2);
    QVERIFY(!page.output().property("error").toBool());
}

void QuietErrorTest::aQuietErrorIsAnErrorAllTheSame()
{
    CalculatorPage page = shownPage();
    page.type("1mW+1");
    const QString reason = m_profile.reason();
    QVERIFY(!reason.isEmpty());
    for (const bool isQuiet : {true, false}) {
        QCOMPARE(isErrorQuiet(page), isQuiet);
        QCOMPARE(page.output().text(), QStringLiteral("unit missing"));
        QCOMPARE(page.output().toolTip(), reason);
        QCOMPARE(page.output().accessibleDescription(), reason);
        page.type(Qt::Key_Return);
    }
}

/// The line is so narrow that the width of the letters decides about their size.
void QuietErrorTest::bothLooksFitTheirLine()
{
    CalculatorPage page = shownPage();
    auto &output = page.find<KelAutoResizeLineEdit>("outputLineEdit");
    page.type("(1mW");
    page.widget().resize(560, 560);
    for (const bool isQuiet : {true, false, true}) {
        QCOMPARE(output.font().italic(), !isQuiet);
        const QString shown = output.styleSheet();
        output.adjustTextSizeAuto();
        QCOMPARE(output.styleSheet(), shown);
        isQuiet ? page.input().clearFocus() : QTest::keyClicks(&page.input(), QStringLiteral("+"));
    }
}

DEZIMO_TEST_MAIN(QApplication, QuietErrorTest)
#include "tst_quieterror.moc"
