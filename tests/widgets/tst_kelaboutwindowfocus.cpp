// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "aboutwindowcase.h"
#include "resources.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

/// What the Tab key reaches in the About window.
class KelAboutWindowFocusTest : public AboutWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void reachesAllInOrder_data();
    void reachesAllInOrder();

private:
    QStringList focusRound(Qt::Key key) const;
};

void KelAboutWindowFocusTest::initTestCase()
{
    initDezimoResources();
    addApplicationFonts();
}

/// Presses the key until the focus is back on the tab bar. Returns the names of the widgets that it
/// visits. A label with a link takes two presses but is named once.
QStringList KelAboutWindowFocusTest::focusRound(Qt::Key key) const
{
    child<QTabWidget>("tabs")->tabBar()->setFocus(Qt::TabFocusReason);
    QStringList names{m_window->focusWidget()->objectName()};
    // No round of the window takes as many presses.
    for (int press = 0; press < 50; ++press) {
        QTest::keyClick(m_window->focusWidget(), key);
        const QString name = m_window->focusWidget()->objectName();
        if (name == names.constFirst())
            return names;
        if (name != names.constLast())
            names.append(name);
    }
    return {};
}

void KelAboutWindowFocusTest::reachesAllInOrder_data()
{
    QTest::addColumn<bool>("hasDrivers");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("names");

    const QString tabBar = QStringLiteral("qt_tabwidget_tabbar");
    const QString page = QStringLiteral("product_page");
    const QString mail = QStringLiteral("mail");
    const QStringList legal{tabBar, QStringLiteral("license_box"), page, mail};
    const QStringList driver{tabBar, QStringLiteral("scroll_driver"), page, mail};
    const QStringList system{tabBar, QStringLiteral("scroll_system"), QStringLiteral("copyButton"),
                             page, mail};
    QTest::newRow("legal information") << true << 0 << legal;
    QTest::newRow("driver information") << true << 1 << driver;
    QTest::newRow("system information") << true << 2 << system;
    QTest::newRow("legal information without drivers") << false << 0 << legal;
    QTest::newRow("system information without drivers") << false << 1 << system;
}

void KelAboutWindowFocusTest::reachesAllInOrder()
{
    QFETCH(bool, hasDrivers);
    QFETCH(int, tab);
    QFETCH(QStringList, names);

    if (!hasDrivers)
        m_facts.drivers.clear();
    // Without this style sheet the tabs need scroll buttons, which would take the focus too.
    qApp->setStyleSheet(themeSheet(QStringLiteral("_dark")));
    open();
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    child<QTabWidget>("tabs")->setCurrentIndex(tab);
    QCOMPARE(focusRound(Qt::Key_Tab), names);

    // Backward the order is reversed, and again begins with the tab bar.
    std::reverse(names.begin() + 1, names.end());
    QCOMPARE(focusRound(Qt::Key_Backtab), names);
}

DEZIMO_TEST_MAIN(QApplication, KelAboutWindowFocusTest)

#include "tst_kelaboutwindowfocus.moc"
