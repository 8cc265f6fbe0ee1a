// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessibletree.h"
#include "expectedmessages.h"
#include "kelapplication.h"
#include "kelguidewindow.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"
#include "words.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>

#include <functional>

using End = std::function<void(MainWindow &)>;

Q_DECLARE_METATYPE(End)
Q_DECLARE_METATYPE(Qt::KeyboardModifier)

/// Tests how F1 opens the guide, and what the keys do there.
class GuideWindowTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void isNotThereBeforeF1();
    void opensAtTheChapterOfTheModule_data();
    void opensAtTheChapterOfTheModule();
    void opensByF1Alone_data();
    void opensByF1Alone();
    void hasTheThemeOfTheMainWindow();
    void opensFromTheModuleList();
    void opensAboveAnOpenListOfChoices();
    void opensFromAnOpenMenu();
    void f1AgainGoesToTheChapterThatIsOpenNow();
    void theArrowKeysScroll();

    void findsWhileOneTypes();
    void findsTheNextAndThePreviousPlace_data();
    void findsTheNextAndThePreviousPlace();
    void findsFromWhereOneReads();
    void goesOnAtTheOtherEnd();
    void findsWhatIsPasted();
    void saysThatNothingIsFound();
    void f3WithoutAWordAsksForOne();
    void theButtonsFind();
    void escClosesTheFindLineFirst();

    void keepsItsSizeWhileTheProgramRuns();
    void keepsItsSizeBetweenStarts();
    void keepsTheSizeThatItHadBeforeItWasMaximized();
    void isNotLargerThanTheScreen();
    void ignoresAMalformedSize_data();
    void ignoresAMalformedSize();
    void storesNothingUnlessItWasOpen();
    void closesWithTheMainWindow();
    void doesNotKeepTheProgramFromEnding_data();
    void doesNotKeepTheProgramFromEnding();

    void whatAScreenReaderFinds();
    void tabStops();

private:
    void openGuide();
    KelGuideWindow &guide() const { return *openGuides().constFirst(); }
    template <typename Object>
    Object *inGuide(const char *name) const
    {
        return guide().findChild<Object *>(QLatin1String(name));
    }
    QTextBrowser *browser() const { return inGuide<QTextBrowser>("pageBrowser"); }
    QLineEdit *findField() const { return inGuide<QLineEdit>("findLineEdit"); }
    QString notFound() const { return findField()->accessibleDescription(); }
    QString chapter() const;
    void find(const char *text);
    static QVector<KelGuideWindow *> openGuides();
    static QStringList storedKeys();

    std::unique_ptr<ExpectedMessages> m_messages;
};

namespace {

QStringList moduleNames()
{
    return {QStringLiteral("dBm Calculator"), QStringLiteral("Voltage Calculator"),
            QStringLiteral("Unit Converter"), QStringLiteral("dB Converter"),
            QStringLiteral("VSWR Converter")};
}

/// What has the keyboard, or is about to get it.
QWidget *focused()
{
    return QApplication::focusWidget();
}

} // namespace

void GuideWindowTest::initTestCase()
{
    m_messages = std::make_unique<ExpectedMessages>(offscreenPopupMessages());
}

void GuideWindowTest::cleanupTestCase()
{
    m_messages.reset();
}

QVector<KelGuideWindow *> GuideWindowTest::openGuides()
{
    QVector<KelGuideWindow *> guides;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *guide = qobject_cast<KelGuideWindow *>(window))
            guides += guide;
    }
    return guides;
}

QStringList GuideWindowTest::storedKeys()
{
    return QSettings().allKeys().filter(QStringLiteral("GuideWindow/"));
}

void GuideWindowTest::openGuide()
{
    if (!m_window)
        openWindow();
    QTest::keyClick(focused(), Qt::Key_F1);
    QCOMPARE(openGuides().size(), 1);
    QVERIFY(waitForKeyboard(guide()));
}

/// The heading at the top of the page.
QString GuideWindowTest::chapter() const
{
    return browser()->cursorForPosition(QPoint(20, 16)).block().text();
}

void GuideWindowTest::find(const char *text)
{
    QTest::keyClick(focused(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(findField()->hasFocus());
    QTest::keyClicks(findField(), QLatin1String(text));
}

/// Starting the program must not pay for a guide that nobody may read.
void GuideWindowTest::isNotThereBeforeF1()
{
    openWindow();
    QCOMPARE(openGuides().size(), 0);
    openGuide();
    QCOMPARE(guide().windowTitle(), QStringLiteral("Dezimo Guide"));
    QVERIFY(guide().isVisible());
    QVERIFY(browser()->hasFocus());
}

void GuideWindowTest::opensAtTheChapterOfTheModule_data()
{
    columns<int>({"module"});
    const QStringList names = moduleNames();
    for (int module = 0; module < names.size(); ++module)
        row(qPrintable(names.at(module)), module);
}

/// From everything that can have the keyboard on the page.
void GuideWindowTest::opensAtTheChapterOfTheModule()
{
    QFETCH(int, module);

    openWindow();
    m_profile.setCurrentModule(module);
    QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    int stops = 0;
    for (QWidget *widget : widgets) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        m_window->activateWindow();
        QVERIFY(waitForKeyboard(*m_window));
        widget->setFocus();
        openGuide();
        QCOMPARE(chapter(), moduleNames().at(module));
        QTest::keyClick(focused(), Qt::Key_Escape);
        QVERIFY(!guide().isVisible());
        ++stops;
    }
    QVERIFY2(stops >= 4, QByteArray::number(stops).constData());
}

void GuideWindowTest::opensByF1Alone_data()
{
    columns<Qt::KeyboardModifier>({"modifier"});
    row("not with Shift", Qt::ShiftModifier);
    row("not with Ctrl", Qt::ControlModifier);
    row("not with Alt", Qt::AltModifier);
}

void GuideWindowTest::opensByF1Alone()
{
    QFETCH(Qt::KeyboardModifier, modifier);

    openWindow();
    QTest::keyClick(focused(), Qt::Key_F1, modifier);
    QCOMPARE(openGuides().size(), 0);
}

/// The color of the first heading tells the theme.
void GuideWindowTest::hasTheThemeOfTheMainWindow()
{
    const auto color = [this] {
        return browser()->document()->begin().begin().fragment().charFormat().foreground().color();
    };
    openGuide();
    const QColor bright = color();
    for (const ApplicationTheme theme : {Dark, Bright}) {
        QVERIFY(QMetaObject::invokeMethod(m_window.get(), "onThemeChanged",
                                          Q_ARG(ApplicationTheme, theme)));
        QCOMPARE(color() == bright, theme == Bright);
    }

    openWindow();
    QVERIFY(
        QMetaObject::invokeMethod(m_window.get(), "onThemeChanged", Q_ARG(ApplicationTheme, Dark)));
    openGuide();
    QVERIFY(color() != bright);
}

void GuideWindowTest::opensFromTheModuleList()
{
    openWindow();
    child("menuItemsWidget")->setFocus();
    QTest::keyClick(focused(), Qt::Key_Down);
    openGuide();
    QCOMPARE(chapter(), QStringLiteral("Voltage Calculator"));
}

/// The list goes first, because it would lie above the guide.
void GuideWindowTest::opensAboveAnOpenListOfChoices()
{
    openWindow();
    m_profile.setCurrentModule(2);
    auto *selector =
        child<QStackedWidget>("stackedWidget")->currentWidget()->findChild<QComboBox *>();
    selector->showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_F1);
    QTRY_COMPARE(openGuides().size(), 1);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(waitForKeyboard(guide()));
    QCOMPARE(chapter(), QStringLiteral("Unit Converter"));
    QCOMPARE(selector->currentIndex(), 0);
}

void GuideWindowTest::opensFromAnOpenMenu()
{
    openWindow();
    QTest::keyClick(focused(), Qt::Key_F10);
    QTest::keyClick(focused(), Qt::Key_Down);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_F1);
    QTRY_COMPARE(openGuides().size(), 1);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(waitForKeyboard(guide()));
}

void GuideWindowTest::f1AgainGoesToTheChapterThatIsOpenNow()
{
    if (!hasScreenPositions()) {
        QTest::qSkip("a window cannot come to the front by itself here", __FILE__, __LINE__);
        return;
    }
    openGuide();
    const KelGuideWindow *first = &guide();
    guide().showMinimized();
    m_profile.setCurrentModule(4);
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    openGuide();
    QCOMPARE(&guide(), first);
    QVERIFY(!guide().isMinimized());
    QCOMPARE(chapter(), QStringLiteral("VSWR Converter"));

    browser()->verticalScrollBar()->setValue(0);
    find("loss");
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    openGuide();
    QCOMPARE(chapter(), QStringLiteral("VSWR Converter"));
    QVERIFY(browser()->hasFocus());
}

void GuideWindowTest::theArrowKeysScroll()
{
    openGuide();
    const int before = browser()->verticalScrollBar()->value();
    QTest::keyClick(focused(), Qt::Key_Down);
    QVERIFY(browser()->verticalScrollBar()->value() > before);
}

void GuideWindowTest::findsWhileOneTypes()
{
    openGuide();
    find("com");
    const int place = browser()->textCursor().selectionStart();
    QCOMPARE(browser()->textCursor().selectedText(), QStringLiteral("com"));
    QTest::keyClicks(findField(), QStringLiteral("bin"));
    QCOMPARE(browser()->textCursor().selectedText(), QStringLiteral("combin"));
    QVERIFY(browser()->textCursor().selectionStart() >= place);
    find("PHASE");
    QCOMPARE(browser()->textCursor().selectedText(), QStringLiteral("phase"));
}

void GuideWindowTest::findsTheNextAndThePreviousPlace_data()
{
    columns<int>({"key"});
    row("Return", int(Qt::Key_Return));
    row("Enter", int(Qt::Key_Enter));
    row("F3", int(Qt::Key_F3));
}

void GuideWindowTest::findsTheNextAndThePreviousPlace()
{
    QFETCH(int, key);

    openGuide();
    find("mismatch");
    const int first = browser()->textCursor().position();
    QTest::keyClick(findField(), Qt::Key(key));
    const int second = browser()->textCursor().position();
    QVERIFY(second > first);
    QTest::keyClick(findField(), Qt::Key(key));
    QVERIFY(browser()->textCursor().position() > second);
    QTest::keyClick(findField(), Qt::Key(key), Qt::ShiftModifier);
    QCOMPARE(browser()->textCursor().position(), second);
    QTest::keyClick(findField(), Qt::Key(key), Qt::ShiftModifier);
    QCOMPARE(browser()->textCursor().position(), first);
    QVERIFY(findField()->hasFocus());
    QVERIFY(browser()->viewport()->rect().contains(browser()->cursorRect()));
}

void GuideWindowTest::findsFromWhereOneReads()
{
    openWindow();
    m_profile.setCurrentModule(4);
    openGuide();
    find("this module");
    QCOMPARE(browser()->textCursor().block().text().left(37),
             QStringLiteral("This module tells how well a port is "));
}

void GuideWindowTest::goesOnAtTheOtherEnd()
{
    openGuide();
    find("VSWR Converter");
    const QTextCursor first = browser()->document()->find(QStringLiteral("VSWR Converter"));
    QTextCursor last(browser()->document());
    last.movePosition(QTextCursor::End);
    last = browser()->document()->find(QStringLiteral("VSWR Converter"), last,
                                       QTextDocument::FindBackward);
    for (int i = 0; i < 100 && browser()->textCursor() != last; ++i)
        QTest::keyClick(findField(), Qt::Key_Return);
    QCOMPARE(browser()->textCursor().position(), last.position());
    QTest::keyClick(findField(), Qt::Key_Return);
    QCOMPARE(browser()->textCursor().position(), first.position());
    QTest::keyClick(findField(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(browser()->textCursor().position(), last.position());
    QCOMPARE(notFound(), QString());
}

/// The blanks belong to the words, other than in a value.
void GuideWindowTest::findsWhatIsPasted()
{
    openGuide();
    find("");
    QApplication::clipboard()->setText(QStringLiteral("return loss"));
    QTest::keySequence(findField(), QKeySequence::Paste);
    QCOMPARE(findField()->text(), QStringLiteral("return loss"));
    QCOMPARE(browser()->textCursor().selectedText().toLower(), QStringLiteral("return loss"));
    QCOMPARE(notFound(), QString());
}

void GuideWindowTest::saysThatNothingIsFound()
{
    openGuide();
    find("powe");
    QCOMPARE(notFound(), QString());
    const int place = browser()->verticalScrollBar()->value();
    QTest::keyClicks(findField(), QStringLiteral("x"));
    QCOMPARE(notFound(), QStringLiteral("not found"));
    QCOMPARE(browser()->verticalScrollBar()->value(), place);
    QTest::keyClick(findField(), Qt::Key_Return);
    QCOMPARE(notFound(), QStringLiteral("not found"));
    QTest::keyClick(findField(), Qt::Key_Backspace);
    QCOMPARE(notFound(), QString());
    QCOMPARE(browser()->textCursor().selectedText(), QStringLiteral("powe"));
}

void GuideWindowTest::f3WithoutAWordAsksForOne()
{
    openGuide();
    QTest::keyClick(focused(), Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(!findField()->isVisible());
    QTest::keyClick(focused(), Qt::Key_F3);
    QVERIFY(findField()->isVisible());
    QVERIFY(findField()->hasFocus());
    QTest::keyClicks(findField(), QStringLiteral("loss"));
    const int first = browser()->textCursor().position();
    QTest::keyClick(focused(), Qt::Key_Escape);
    QTest::keyClick(focused(), Qt::Key_F3);
    QVERIFY(browser()->textCursor().position() > first);
}

void GuideWindowTest::theButtonsFind()
{
    openGuide();
    find("loss");
    const int first = browser()->textCursor().position();
    QTest::mouseClick(inGuide<QToolButton>("nextButton"), Qt::LeftButton);
    QVERIFY(browser()->textCursor().position() > first);
    QTest::mouseClick(inGuide<QToolButton>("previousButton"), Qt::LeftButton);
    QCOMPARE(browser()->textCursor().position(), first);
    QVERIFY(findField()->hasFocus());
}

void GuideWindowTest::escClosesTheFindLineFirst()
{
    openGuide();
    find("loss");
    QTest::keyClick(findField(), Qt::Key_Escape);
    QVERIFY(!findField()->isVisible());
    QVERIFY(browser()->hasFocus());
    QVERIFY(guide().isVisible());
    QTest::keyClick(browser(), Qt::Key_Escape);
    QVERIFY(!guide().isVisible());
    QVERIFY(m_window->isVisible());
}

void GuideWindowTest::keepsItsSizeWhileTheProgramRuns()
{
    openGuide();
    guide().resize(700, 500);
    QTest::keyClick(focused(), Qt::Key_Escape);
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    openGuide();
    QCOMPARE(guide().size(), QSize(700, 500));
}

void GuideWindowTest::keepsItsSizeBetweenStarts()
{
    openGuide();
    guide().resize(640, 480);
    m_window.reset();
    QCOMPARE(openGuides().size(), 0);
    QCOMPARE(storedKeys(), QStringList{QStringLiteral("GuideWindow/windowSize")});
    openGuide();
    QCOMPARE(guide().size(), QSize(640, 480));
}

void GuideWindowTest::keepsTheSizeThatItHadBeforeItWasMaximized()
{
    openGuide();
    guide().resize(640, 480);
    guide().showMaximized();
    QTRY_VERIFY(guide().width() > 640);
    m_window.reset();
    openGuide();
    QCOMPARE(guide().size(), QSize(640, 480));
}

void GuideWindowTest::isNotLargerThanTheScreen()
{
    QSettings().setValue(QStringLiteral("GuideWindow/windowSize"), QSize(2000000000, 15000));
    openGuide();
    // Windows leaves room for the title bar, too.
    const QSize screen = guide().screen()->availableSize();
    QCOMPARE(guide().width(), screen.width());
    QVERIFY(guide().height() <= screen.height() && guide().height() > screen.height() - 100);
}

void GuideWindowTest::ignoresAMalformedSize_data()
{
    columns<QVariant>({"stored"});
    QTest::newRow("a text") << QVariant(QStringLiteral("large"));
    QTest::newRow("a number") << QVariant(640);
    QTest::newRow("a size below nothing") << QVariant(QSize(-640, 480));
    QTest::newRow("an empty size") << QVariant(QSize(0, 480));
}

void GuideWindowTest::ignoresAMalformedSize()
{
    QFETCH(QVariant, stored);

    QSettings().setValue(QStringLiteral("GuideWindow/windowSize"), stored);
    const QSize usual = KelGuideWindow().size();
    openGuide();
    QCOMPARE(guide().size(), usual.boundedTo(guide().screen()->availableSize()));
}

void GuideWindowTest::storesNothingUnlessItWasOpen()
{
    openWindow();
    m_window.reset();
    QVERIFY(QSettings().contains(QStringLiteral("MainProfile/windowSize")));
    QCOMPARE(storedKeys(), QStringList());
}

void GuideWindowTest::closesWithTheMainWindow()
{
    openGuide();
    m_window->close();
    QVERIFY(!guide().isVisible());
}

void GuideWindowTest::doesNotKeepTheProgramFromEnding_data()
{
    columns<End>({"end"});
    row("when the main window is closed", End([](MainWindow &window) { window.close(); }));
    row("when the system ends the program", End([](MainWindow &window) { window.endProgram(); }));
}

/// If the guide kept the program from ending, the event loop here would never end.
void GuideWindowTest::doesNotKeepTheProgramFromEnding()
{
    QFETCH(const End, end);

    openGuide();
    guide().resize(640, 480);
    QTimer soon;
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, m_window.get(), [&] { end(*m_window); });
    soon.start(0);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!guide().isVisible());
    QVERIFY(!m_window->isVisible());
    m_window.reset();
    QCOMPARE(storedKeys(), QStringList{QStringLiteral("GuideWindow/windowSize")});
}

void GuideWindowTest::whatAScreenReaderFinds()
{
    openGuide();
    find("nowhere to be found");
    const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&guide());
    QCOMPARE(window->role(), QAccessible::Window);
    QCOMPARE(window->text(QAccessible::Name), QStringLiteral("Dezimo Guide"));
    QAccessibleInterface *page = QAccessible::queryAccessibleInterface(browser());
    QCOMPARE(page->text(QAccessible::Name), QStringLiteral("Guide"));
    QVERIFY(page->textInterface());
    QVERIFY(page->textInterface()->characterCount() > 10000);
    QCOMPARE(AccessibleTree::controls(inGuide<QWidget>("findLine")).join(QLatin1Char('\n')),
             lines(R"(
        EditableText Find in the guide / not found
        Button Previous place / Previous place
        Button Next place / Next place)")
                 .join(QLatin1Char('\n')));
}

/// The page has stops of its own, its links. Without any link in sight Tab leaves it.
void GuideWindowTest::tabStops()
{
    openGuide();
    find("loss");
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused()->objectName(), QStringLiteral("previousButton"));
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused()->objectName(), QStringLiteral("nextButton"));
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused()->objectName(), QStringLiteral("pageBrowser"));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, GuideWindowTest>(argc, argv, true);
}

#include "tst_guidewindow.moc"
