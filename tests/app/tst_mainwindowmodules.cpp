// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

class MainWindowModulesTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstStartShowsTheDbmCalculatorAndTheCompactList();
    void listsTheModulesInOrder_data();
    void listsTheModulesInOrder();
    void choosingAModuleTurnsPageHeaderAndTitle_data();
    void choosingAModuleTurnsPageHeaderAndTitle();
    void theProfileChoosesTheModule();
    void aPageIsStyledWhenItIsShownForTheFirstTime();
    void aPageThatFitsShowsNoScrollBarsNotEvenAtFirst();
    void aStoredModuleOutsideTheListShowsThePlainTitle_data();
    void aStoredModuleOutsideTheListShowsThePlainTitle();
    void aStoredModuleOutsideTheListIsKept_data();
    void aStoredModuleOutsideTheListIsKept();
    void aClickOnTheListLeavesTheKeyboardToThePage();
    void theArrowKeysWalkThroughTheModules();
};

void MainWindowModulesTest::firstStartShowsTheDbmCalculatorAndTheCompactList()
{
    openWindow();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [dBm Calculator]"));
    QCOMPARE(m_window->size(), QSize(958, 605));
    QCOMPARE(child("menuWidget")->width(), 40);
    QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 0);
    QVERIFY(!child("headerWidget")->isVisible());
    QVERIFY(!child("menuPlaceholder")->isVisible());
}

void MainWindowModulesTest::listsTheModulesInOrder_data()
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

void MainWindowModulesTest::listsTheModulesInOrder()
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

void MainWindowModulesTest::choosingAModuleTurnsPageHeaderAndTitle_data()
{
    listsTheModulesInOrder_data();
}

void MainWindowModulesTest::choosingAModuleTurnsPageHeaderAndTitle()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QByteArray, page);

    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
    QCOMPARE(m_profile.currentModule(), row);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [%1]").arg(text));
    QVERIFY(child(page.constData())->isVisible());
    // The header hides its label but keeps the text. Row 0 is current from the start.
    QCOMPARE(child<QLabel>("label")->text(), text);
}

void MainWindowModulesTest::theProfileChoosesTheModule()
{
    openWindow();
    m_profile.setCurrentModule(3);
    QCOMPARE(child<QListWidget>("menuItemsWidget")->currentRow(), 3);
    QVERIFY(child("dbConverterWidget")->isVisible());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [dB Converter]"));
}

void MainWindowModulesTest::aPageIsStyledWhenItIsShownForTheFirstTime()
{
    openWindow();
    const auto *stack = child<QStackedWidget>("stackedWidget");
    for (int module = 0; module < stack->count(); ++module) {
        const QWidget *view = stack->widget(module)->layout()->itemAt(0)->widget();
        QCOMPARE(view->testAttribute(Qt::WA_WState_Polished), module == 0);
        m_profile.setCurrentModule(module);
        QVERIFY(view->testAttribute(Qt::WA_WState_Polished));
    }
}

/// The check comes before any further event, so it sees what is painted first.
void MainWindowModulesTest::aPageThatFitsShowsNoScrollBarsNotEvenAtFirst()
{
    openWindow();
    for (int module = 0; module < 5; ++module) {
        m_profile.setCurrentModule(module);
        const QList<QScrollBar *> bars =
            child<QStackedWidget>("stackedWidget")->widget(module)->findChildren<QScrollBar *>();
        for (const QScrollBar *bar : bars)
            QVERIFY(!bar->isVisible());
    }
}

void MainWindowModulesTest::aStoredModuleOutsideTheListShowsThePlainTitle_data()
{
    QTest::addColumn<int>("module");

    QTest::newRow("one behind the last") << 5;
    QTest::newRow("far behind the last") << 1000000;
    QTest::newRow("before the first") << -1;
}

void MainWindowModulesTest::aStoredModuleOutsideTheListShowsThePlainTitle()
{
    QFETCH(int, module);

    store("currentModule", module);
    openWindow();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo"));
    QCOMPARE(child<QListWidget>("menuItemsWidget")->currentItem(), nullptr);
}

void MainWindowModulesTest::aClickOnTheListLeavesTheKeyboardToThePage()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(3)).center());
    QVERIFY(child("p1LineEdit")->hasFocus());
}

void MainWindowModulesTest::theArrowKeysWalkThroughTheModules()
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

void MainWindowModulesTest::aStoredModuleOutsideTheListIsKept_data()
{
    aStoredModuleOutsideTheListShowsThePlainTitle_data();
}

/// A list that gets the keyboard selects a row by itself, so the page must have the keyboard.
void MainWindowModulesTest::aStoredModuleOutsideTheListIsKept()
{
    QFETCH(int, module);

    store("currentModule", module);
    openWindow();
    QVERIFY(child<QStackedWidget>("stackedWidget")->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(m_profile.currentModule(), module);
    m_window->close();
    m_window.reset();
    QCOMPARE(QSettings().value(QStringLiteral("MainProfile/currentModule")).toInt(), module);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowModulesTest>(argc, argv, true);
}

#include "tst_mainwindowmodules.moc"
