// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QListWidget>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

#include <memory>

using namespace Dezimo;

/// A person can type into a page as soon as it is shown.
class PageFocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void atStart_data() { pages(); }
    void atStart();
    void afterAClickOnItsRow_data() { pages(); }
    void afterAClickOnItsRow();
    void afterAClickOnTheRowThatIsCurrent_data() { pages(); }
    void afterAClickOnTheRowThatIsCurrent();
    void theListKeepsTheArrowKeys();

private:
    static void pages();
    void openWindow(int module);
    void click(int row);
    QString focused() const;

    std::unique_ptr<MainWindow> m_window;
};

void PageFocusTest::init()
{
    m_window.reset();
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

void PageFocusTest::pages()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("field");

    QTest::newRow("the dBm calculator") << 0 << "dbmCalculatorWidget inputLineEdit";
    QTest::newRow("the voltage calculator") << 1 << "voltageCalculatorWidget inputLineEdit";
    QTest::newRow("the unit converter") << 2 << "unitConverterWidget dbmLineEdit";
    QTest::newRow("the dB converter") << 3 << "dbConverterWidget p1LineEdit";
    QTest::newRow("the VSWR converter") << 4 << "vswrConverterWidget vswrLineEdit";
}

void PageFocusTest::openWindow(int module)
{
    QSettings().setValue(QStringLiteral("MainProfile/currentModule"), module);
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(waitForKeyboard(*m_window));
}

void PageFocusTest::click(int row)
{
    auto *list = m_window->findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
}

/// The name of the widget with the focus, after the name of the current page if it is on that.
QString PageFocusTest::focused() const
{
    const QWidget *widget = QApplication::focusWidget();
    if (!widget)
        return {};
    const QWidget *frame =
        m_window->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget();
    const auto *page = frame->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (!page->isAncestorOf(widget))
        return widget->objectName();
    return page->objectName() + QLatin1Char(' ') + widget->objectName();
}

void PageFocusTest::atStart()
{
    QFETCH(int, row);

    openWindow(row);
    QTEST(focused(), "field");
}

void PageFocusTest::afterAClickOnItsRow()
{
    QFETCH(int, row);

    openWindow(row == 0 ? 4 : 0);
    click(row);
    QTEST(focused(), "field");
}

void PageFocusTest::afterAClickOnTheRowThatIsCurrent()
{
    QFETCH(int, row);

    openWindow(row);
    m_window->findChild<QWidget *>(QStringLiteral("changeWindowModeButton"))->setFocus();
    QCOMPARE(focused(), QStringLiteral("changeWindowModeButton"));
    click(row);
    QTEST(focused(), "field");
}

void PageFocusTest::theListKeepsTheArrowKeys()
{
    openWindow(0);
    auto *list = m_window->findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    list->setFocus(Qt::TabFocusReason);
    for (int row = 1; row <= 2; ++row) {
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentRow(), row);
        QCOMPARE(focused(), QStringLiteral("menuItemsWidget"));
    }
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, PageFocusTest>(argc, argv, true);
}

#include "tst_pagefocus.moc"
