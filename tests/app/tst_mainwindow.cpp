// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "stylesheets.h"
#include "testmain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPropertyAnimation>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>

#include <limits>

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void firstStartShowsTheDbmCalculatorAndTheCompactList();
    void listsTheModulesInOrder_data();
    void listsTheModulesInOrder();
    void choosingAModuleTurnsPageHeaderAndTitle_data();
    void choosingAModuleTurnsPageHeaderAndTitle();
    void theProfileChoosesTheModule();
    void aStoredModuleOutsideTheListShowsThePlainTitle_data();
    void aStoredModuleOutsideTheListShowsThePlainTitle();
    void aClickOnTheListLeavesTheKeyboardToThePage();
    void theArrowKeysWalkThroughTheModules();

    void theModeButtonExpandsAndCompactsTheList();
    void theStoredModeIsAppliedWithoutAnimation_data();
    void theStoredModeIsAppliedWithoutAnimation();
    void modeAnimationsTakeTwoHundredMilliseconds();
    void theModeButtonSaysWhatItDoes();
    void compactListShowsNoTexts();

    void menusHoldTheirActions();
    void actionsHaveTheirShortcuts_data();
    void actionsHaveTheirShortcuts();
    void quitClosesTheWindow();
    void decimalPlacesMenuChecksThePresentNumber();
    void choosingADecimalPlaceSetsIt();
    void choosingTheCheckedDecimalPlaceEmitsNothing();

    void appliesBothThemes_data();
    void appliesBothThemes();

    void aboutOpensANewWindowEachTime();

    void mirrorsItsGeometry();
    void restoresItsGeometry();
    void anInvalidStoredSizeIsNotApplied();
    void aStoredSizeThatNoScreenCanShowIsBounded_data();
    void aStoredSizeThatNoScreenCanShowIsBounded();
    void aWindowThatLiesOnNoScreenIsBroughtBack_data();
    void aWindowThatLiesOnNoScreenIsBroughtBack();

private:
    template <typename T = QWidget>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    void openWindow();
    void store(const char *key, const QVariant &value);
    QStringList decimalPlacesEntries();

    std::unique_ptr<MainWindow> m_window;
};

void MainWindowTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

void MainWindowTest::cleanup()
{
    m_window.reset();
}

void MainWindowTest::openWindow()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void MainWindowTest::store(const char *key, const QVariant &value)
{
    QSettings settings;
    settings.setValue(QLatin1String("MainProfile/") + QLatin1String(key), value);
}

void MainWindowTest::firstStartShowsTheDbmCalculatorAndTheCompactList()
{
    openWindow();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [dBm Calculator]"));
    QCOMPARE(m_window->size(), QSize(958, 605));
    QCOMPARE(child("menuWidget")->width(), 40);
    QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 0);
    QVERIFY(!child("headerWidget")->isVisible());
    QVERIFY(!child("menuPlaceholder")->isVisible());
}

void MainWindowTest::listsTheModulesInOrder_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("page");

    const auto row = [](int number, const char *text, const char *page) {
        QTest::newRow(text) << number << QString::fromLatin1(text) << QByteArray(page);
    };
    row(0, "dBm Calculator", "dbmCalculatorWidget");
    row(1, "Voltage Calculator", "voltageCalculatorWidget");
    row(2, "Unit Converter", "unitConverterWidget");
    row(3, "dB Converter", "dbConverterWidget");
    row(4, "VSWR Converter", "vswrConverterWidget");
}

void MainWindowTest::listsTheModulesInOrder()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QByteArray, page);

    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QCOMPARE(list->count(), 5);
    QCOMPARE(list->item(row)->text(), text);
    QCOMPARE(list->item(row)->toolTip(), text);
    QVERIFY(!list->item(row)->icon().isNull());
    QVERIFY(
        child<QStackedWidget>("stackedWidget")->widget(row)->isAncestorOf(child(page.constData())));
}

void MainWindowTest::choosingAModuleTurnsPageHeaderAndTitle_data()
{
    listsTheModulesInOrder_data();
}

void MainWindowTest::choosingAModuleTurnsPageHeaderAndTitle()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QByteArray, page);

    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
    QCOMPARE(MainProfile::instance().currentModule(), row);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [%1]").arg(text));
    QVERIFY(child(page.constData())->isVisible());
    // The header hides its label; the text is kept all the same. Row 0 is current from the start.
    QCOMPARE(child<QLabel>("label")->text(), text);
}

void MainWindowTest::theProfileChoosesTheModule()
{
    openWindow();
    MainProfile::instance().setCurrentModule(3);
    QCOMPARE(child<QListWidget>("menuItemsWidget")->currentRow(), 3);
    QVERIFY(child("dbConverterWidget")->isVisible());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [dB Converter]"));
}

void MainWindowTest::aStoredModuleOutsideTheListShowsThePlainTitle_data()
{
    QTest::addColumn<int>("module");

    QTest::newRow("one behind the last") << 5;
    QTest::newRow("far behind the last") << 1000000;
    QTest::newRow("before the first") << -1;
}

void MainWindowTest::aStoredModuleOutsideTheListShowsThePlainTitle()
{
    QFETCH(int, module);

    store("currentModule", module);
    openWindow();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo"));
    QCOMPARE(child<QListWidget>("menuItemsWidget")->currentItem(), nullptr);
}

void MainWindowTest::aClickOnTheListLeavesTheKeyboardToThePage()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(3)).center());
    QVERIFY(child("p1LineEdit")->hasFocus());
}

void MainWindowTest::theArrowKeysWalkThroughTheModules()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    list->setFocus(Qt::TabFocusReason);
    for (int row = 1; row < list->count(); ++row) {
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), row);
        QVERIFY(list->hasFocus());
    }
}

void MainWindowTest::theModeButtonExpandsAndCompactsTheList()
{
    openWindow();
    auto *button = child<QToolButton>("changeWindowModeButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(MainProfile::instance().windowMode(), 1);
    QTRY_COMPARE(child("menuWidget")->width(), 160);
    QTRY_COMPARE(child("headerWidget")->maximumHeight(), 0);
    QTRY_COMPARE(child("menuPlaceholder")->maximumHeight(), 22);
    QCOMPARE(child("menuWidget")->x(), 0);

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(MainProfile::instance().windowMode(), 0);
    QTRY_COMPARE(child("menuWidget")->width(), 40);
    QTRY_COMPARE(child("headerWidget")->maximumHeight(), 22);
    QTRY_COMPARE(child("menuPlaceholder")->maximumHeight(), 0);
}

void MainWindowTest::theStoredModeIsAppliedWithoutAnimation_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("listWidth");
    QTest::addColumn<int>("headerHeight");
    QTest::addColumn<int>("placeholderHeight");

    QTest::newRow("0 is the compact list") << 0 << 40 << 22 << 0;
    QTest::newRow("1 is the expanded list") << 1 << 160 << 0 << 22;
    QTest::newRow("any other number is the expanded list") << 7 << 160 << 0 << 22;
    QTest::newRow("a negative number is expanded without the placeholder") << -1 << 160 << 0 << 0;
}

void MainWindowTest::theStoredModeIsAppliedWithoutAnimation()
{
    QFETCH(int, mode);

    store("windowMode", mode);
    m_window = std::make_unique<MainWindow>();
    QTEST(child("menuWidget")->minimumWidth(), "listWidth");
    QTEST(child("headerWidget")->maximumHeight(), "headerHeight");
    QTEST(child("menuPlaceholder")->maximumHeight(), "placeholderHeight");
    QVERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
}

void MainWindowTest::modeAnimationsTakeTwoHundredMilliseconds()
{
    openWindow();
    QTest::mouseClick(child("changeWindowModeButton"), Qt::LeftButton);
    const QList<QPropertyAnimation *> animations = m_window->findChildren<QPropertyAnimation *>();
    QCOMPARE(animations.size(), 3);
    for (const QPropertyAnimation *animation : animations)
        QCOMPARE(animation->duration(), 200);
    QTRY_VERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
}

void MainWindowTest::theModeButtonSaysWhatItDoes()
{
    openWindow();
    auto *button = child<QToolButton>("changeWindowModeButton");
    const QImage add = button->icon().pixmap(16, 16).toImage();
    QCOMPARE(button->accessibleName(), QStringLiteral("Show module names"));
    MainProfile::instance().setWindowMode(1);
    QCOMPARE(button->accessibleName(), QStringLiteral("Hide module names"));
    QVERIFY(button->icon().pixmap(16, 16).toImage() != add);
    MainProfile::instance().setWindowMode(0);
    QCOMPARE(button->icon().pixmap(16, 16).toImage(), add);
}

void MainWindowTest::compactListShowsNoTexts()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    const QImage withTexts = list->grab().toImage();
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setText(QString());
    QCOMPARE(list->grab().toImage(), withTexts);
}

void MainWindowTest::menusHoldTheirActions()
{
    openWindow();
    const auto texts = [](const QList<QAction *> &actions) {
        QStringList all;
        for (const QAction *action : actions)
            all += action->isSeparator() ? QStringLiteral("-") : action->text();
        return all;
    };
    QCOMPARE(
        texts(m_window->menuBar()->actions()),
        QStringList({QStringLiteral("File"), QStringLiteral("Options"), QStringLiteral("Help")}));
    QCOMPARE(texts(child<QMenu>("menuFile")->actions()),
             QStringList({QStringLiteral("Load Defaults"), QStringLiteral("-"),
                          QStringLiteral("Open..."), QStringLiteral("Save..."), QStringLiteral("-"),
                          QStringLiteral("Quit")}));
    QCOMPARE(texts(child<QMenu>("menuOptions")->actions()),
             QStringList({QStringLiteral("Decimal Places")}));
    QCOMPARE(texts(child<QMenu>("menuHelp")->actions()), QStringList({QStringLiteral("About")}));
}

void MainWindowTest::actionsHaveTheirShortcuts_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("shortcut");

    QTest::newRow("Load Defaults has none") << QByteArray("actionLoad_Defaults") << "";
    QTest::newRow("Open...") << QByteArray("actionOpen") << "Ctrl+O";
    QTest::newRow("Save...") << QByteArray("actionSave") << "Ctrl+S";
    QTest::newRow("Quit") << QByteArray("actionQuit") << "Ctrl+Q";
    QTest::newRow("About has none") << QByteArray("actionAbout") << "";
}

void MainWindowTest::actionsHaveTheirShortcuts()
{
    QFETCH(QByteArray, action);

    openWindow();
    QTEST(child<QAction>(action.constData())->shortcut().toString(), "shortcut");
}

void MainWindowTest::quitClosesTheWindow()
{
    openWindow();
    QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
}

QStringList MainWindowTest::decimalPlacesEntries()
{
    auto *menu = child<QMenu>("menuDecimal_Places");
    Q_EMIT menu->aboutToShow();
    QStringList entries;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        entries += action->text() + (action->isChecked() ? QStringLiteral("*") : QString());
    return entries;
}

void MainWindowTest::decimalPlacesMenuChecksThePresentNumber()
{
    openWindow();
    QCOMPARE(decimalPlacesEntries().join(QLatin1Char(' ')),
             QStringLiteral("0 1 2 3* 4 5 6 7 8 9 10"));
    MainProfile::instance().setDecimalPlaces(10);
    QCOMPARE(decimalPlacesEntries().join(QLatin1Char(' ')),
             QStringLiteral("0 1 2 3 4 5 6 7 8 9 10*"));
}

void MainWindowTest::choosingADecimalPlaceSetsIt()
{
    openWindow();
    decimalPlacesEntries();
    const QSignalSpy changed(&MainProfile::instance(), &MainProfile::decimalPlacesChanged);
    child<QMenu>("menuDecimal_Places")->actions().at(6)->trigger();
    QCOMPARE(MainProfile::instance().decimalPlaces(), 6);
    QCOMPARE(changed.count(), 1);
}

void MainWindowTest::choosingTheCheckedDecimalPlaceEmitsNothing()
{
    openWindow();
    decimalPlacesEntries();
    const QSignalSpy changed(&MainProfile::instance(), &MainProfile::decimalPlacesChanged);
    child<QMenu>("menuDecimal_Places")->actions().at(3)->trigger();
    QCOMPARE(MainProfile::instance().decimalPlaces(), 3);
    QCOMPARE(changed.count(), 0);
}

void MainWindowTest::appliesBothThemes_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("sheet");

    QTest::newRow("bright") << int(Bright) << ":/main_light.qss";
    QTest::newRow("dark") << int(Dark) << ":/main_dark.qss";
}

void MainWindowTest::appliesBothThemes()
{
    QFETCH(int, theme);
    QFETCH(QString, sheet);

    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "onThemeChanged",
                                      Q_ARG(ApplicationTheme, ApplicationTheme(theme))));
    QCOMPARE(m_window->styleSheet(), *StyleSheets::read(sheet));
    const QIcon expected(
        QStringLiteral(":/vswrconv_16_%1.svg").arg(themeWord(ApplicationTheme(theme))));
    QCOMPARE(list->item(4)->icon().pixmap(16, 16).toImage(), expected.pixmap(16, 16).toImage());
}

void MainWindowTest::aboutOpensANewWindowEachTime()
{
    openWindow();
    child<QAction>("actionAbout")->trigger();
    child<QAction>("actionAbout")->trigger();
    const QList<KelAboutWindow *> windows = m_window->findChildren<KelAboutWindow *>();
    QCOMPARE(windows.size(), 2);
    for (KelAboutWindow *about : windows) {
        const auto text = [about](const char *name) {
            return about->findChild<QLabel *>(QLatin1String(name))->text();
        };
        QVERIFY(about->isVisible());
        QCOMPARE(about->windowTitle(), QStringLiteral("Information about Dezimo"));
        QCOMPARE(text("title"), QStringLiteral("Dezimo"));
        QCOMPARE(text("subtitle"),
                 QStringLiteral("application for calculating with logarithmic and linear power and "
                                "voltage values"));
        QCOMPARE(text("version"), QStringLiteral("Version 3.2.1.0 64 bit (2022)"));
        QVERIFY(text("product_page").contains(QStringLiteral("/7TK31")));
        about->close();
    }
    QTRY_VERIFY(m_window->findChildren<KelAboutWindow *>().isEmpty());
}

void MainWindowTest::mirrorsItsGeometry()
{
    openWindow();
    MainProfile &profile = MainProfile::instance();
    const QSignalSpy sizeChanged(&profile, &MainProfile::windowSizeChanged);
    const QSignalSpy positionChanged(&profile, &MainProfile::windowPositionChanged);
    m_window->resize(1000, 700);
    m_window->move(20, 30);
    QTRY_COMPARE(profile.windowSize(), QSize(1000, 700));
    QTRY_COMPARE(profile.windowPosition(), QPoint(20, 30));
    QCOMPARE(sizeChanged.count(), 1);
    QCOMPARE(positionChanged.count(), 1);
}

void MainWindowTest::restoresItsGeometry()
{
    store("windowPosition", QPoint(11, 22));
    store("windowSize", QSize(940, 600));
    openWindow();
    QCOMPARE(m_window->pos(), QPoint(11, 22));
    QCOMPARE(m_window->size(), QSize(940, 600));
}

void MainWindowTest::anInvalidStoredSizeIsNotApplied()
{
    store("windowSize", QSize(-5, 300));
    openWindow();
    QCOMPARE(m_window->size(), QSize(958, 605));
}

void MainWindowTest::aStoredSizeThatNoScreenCanShowIsBounded_data()
{
    QTest::addColumn<QSize>("stored");

    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("too large both ways") << QSize(100000, 100000);
    QTest::newRow("at the end of the number range") << QSize(highest, highest);
    QTest::newRow("too wide") << QSize(100000, 605);
    QTest::newRow("too high") << QSize(958, 100000);
}

void MainWindowTest::aStoredSizeThatNoScreenCanShowIsBounded()
{
    QFETCH(QSize, stored);

    store("windowSize", stored);
    openWindow();
    // Smaller than the form, the screens do not count.
    const QSize largest = m_window->screen()->availableVirtualSize().expandedTo(QSize(958, 605));
    QCOMPARE(m_window->size(), stored.boundedTo(largest));
    QCOMPARE(MainProfile::instance().windowSize(), m_window->size());
}

void MainWindowTest::aWindowThatLiesOnNoScreenIsBroughtBack_data()
{
    QTest::addColumn<QPoint>("stored");

    const int highest = std::numeric_limits<int>::max();
    const int lowest = std::numeric_limits<int>::min();
    QTest::newRow("far away") << QPoint(100000, 100000);
    QTest::newRow("at the upper end of the number range") << QPoint(highest, highest);
    QTest::newRow("at the lower end of the number range") << QPoint(lowest, lowest);
}

void MainWindowTest::aWindowThatLiesOnNoScreenIsBroughtBack()
{
    QFETCH(QPoint, stored);

    store("windowPosition", stored);
    openWindow();
    QVERIFY(m_window->screen()->availableGeometry().intersects(m_window->geometry()));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowTest>(argc, argv, true);
}

#include "tst_mainwindow.moc"
