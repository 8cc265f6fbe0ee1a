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

/// The names of what has the focus, one press of the key after the other, from the tab bar until
/// the focus comes round to it again. A link takes one press more, which stays on its label.
QStringList KelAboutWindowFocusTest::focusRound(Qt::Key key) const
{
    child<QTabWidget>("tabs")->tabBar()->setFocus(Qt::TabFocusReason);
    QStringList names{m_window->focusWidget()->objectName()};
    // More presses than a round of the window can take.
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
    // In the plain style the tabs need buttons to scroll, which take the focus too.
    qApp->setStyleSheet(themeSheet(QStringLiteral("_dark")));
    open();
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    child<QTabWidget>("tabs")->setCurrentIndex(tab);
    QCOMPARE(focusRound(Qt::Key_Tab), names);

    // Backwards from the tab bar on.
    std::reverse(names.begin() + 1, names.end());
    QCOMPARE(focusRound(Qt::Key_Backtab), names);
}

DEZIMO_TEST_MAIN(QApplication, KelAboutWindowFocusTest)

#include "tst_kelaboutwindowfocus.moc"
