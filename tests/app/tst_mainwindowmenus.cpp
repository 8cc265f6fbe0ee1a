// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

using namespace Dezimo;

class MainWindowMenusTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void menusHoldTheirActions();
    void actionsHaveTheirShortcuts_data();
    void actionsHaveTheirShortcuts();
    void quitClosesTheWindow();
    void decimalPlacesMenuChecksThePresentNumber();
    void eachDecimalPlaceIsCheckableWithoutAShortcut();
    void changedDecimalPlacesApplyFromTheNextCalculation();
    void choosingADecimalPlaceSetsIt();
    void choosingTheCheckedDecimalPlaceEmitsNothing();
    void aboutOpensANewWindowEachTime();

private:
    QStringList decimalPlacesEntries();
};

void MainWindowMenusTest::menusHoldTheirActions()
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

void MainWindowMenusTest::actionsHaveTheirShortcuts_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("shortcut");

    QTest::newRow("Load Defaults has none") << QByteArray("actionLoad_Defaults") << "";
    QTest::newRow("Open...") << QByteArray("actionOpen") << "Ctrl+O";
    QTest::newRow("Save...") << QByteArray("actionSave") << "Ctrl+S";
    QTest::newRow("Quit") << QByteArray("actionQuit") << "Ctrl+Q";
    QTest::newRow("About has none") << QByteArray("actionAbout") << "";
}

void MainWindowMenusTest::actionsHaveTheirShortcuts()
{
    QFETCH(QByteArray, action);

    openWindow();
    QTEST(child<QAction>(action.constData())->shortcut().toString(), "shortcut");
}

void MainWindowMenusTest::quitClosesTheWindow()
{
    openWindow();
    QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
}

QStringList MainWindowMenusTest::decimalPlacesEntries()
{
    auto *menu = child<QMenu>("menuDecimal_Places");
    Q_EMIT menu->aboutToShow();
    QStringList entries;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        entries += action->text() + (action->isChecked() ? QStringLiteral("*") : QString());
    return entries;
}

void MainWindowMenusTest::decimalPlacesMenuChecksThePresentNumber()
{
    openWindow();
    QCOMPARE(decimalPlacesEntries().join(QLatin1Char(' ')),
             QStringLiteral("0 1 2 3* 4 5 6 7 8 9 10"));
    m_profile.setDecimalPlaces(10);
    QCOMPARE(decimalPlacesEntries().join(QLatin1Char(' ')),
             QStringLiteral("0 1 2 3 4 5 6 7 8 9 10*"));
}

void MainWindowMenusTest::choosingADecimalPlaceSetsIt()
{
    openWindow();
    decimalPlacesEntries();
    const QSignalSpy changed(&m_profile, &MainProfile::decimalPlacesChanged);
    child<QMenu>("menuDecimal_Places")->actions().at(6)->trigger();
    QCOMPARE(m_profile.decimalPlaces(), 6);
    QCOMPARE(changed.count(), 1);
}

void MainWindowMenusTest::choosingTheCheckedDecimalPlaceEmitsNothing()
{
    openWindow();
    decimalPlacesEntries();
    const QSignalSpy changed(&m_profile, &MainProfile::decimalPlacesChanged);
    child<QMenu>("menuDecimal_Places")->actions().at(3)->trigger();
    QCOMPARE(m_profile.decimalPlaces(), 3);
    QCOMPARE(changed.count(), 0);
}

void MainWindowMenusTest::aboutOpensANewWindowEachTime()
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

void MainWindowMenusTest::eachDecimalPlaceIsCheckableWithoutAShortcut()
{
    openWindow();
    decimalPlacesEntries();
    decimalPlacesEntries();
    const QList<QAction *> actions = child<QMenu>("menuDecimal_Places")->actions();
    QCOMPARE(actions.size(), 11);
    for (const QAction *action : actions) {
        QVERIFY(action->isCheckable());
        QCOMPARE(action->shortcut(), QKeySequence());
    }
}

void MainWindowMenusTest::changedDecimalPlacesApplyFromTheNextCalculation()
{
    store("currentModule", 3);
    openWindow();
    auto *p1 = child<QLineEdit>("p1LineEdit");
    auto *p2 = child<QLineEdit>("p2LineEdit");
    auto *ratio = child<QLineEdit>("pRatioLineEdit");
    p1->setFocus();
    QTest::keyClicks(p1, QStringLiteral("1W"));
    p2->setFocus();
    QTest::keyClicks(p2, QStringLiteral("3W"));
    QTest::keyClick(p2, Qt::Key_Return);
    QCOMPARE(ratio->text(), QStringLiteral("0.333")); // 1/3 with 3 digits

    decimalPlacesEntries();
    child<QMenu>("menuDecimal_Places")->actions().at(6)->trigger();
    QCOMPARE(ratio->text(), QStringLiteral("0.333"));
    QTest::keyClick(p2, Qt::Key_Return);
    QCOMPARE(ratio->text(), QStringLiteral("0.333333"));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowMenusTest>(argc, argv, true);
}

#include "tst_mainwindowmenus.moc"
