// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keltabpage.h"
#include "keltabwidget.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

class KelTabPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageOfATabWidgetIsItsLastTab();
    void theFirstPageIsTheCurrentOne();
    void theTitleOfAPageIsTheTextOfItsTab();
    void aPageOfAnotherWidgetStaysItsChild();
};

void KelTabPageTest::aPageOfATabWidgetIsItsLastTab()
{
    KelTabWidget tabs;
    const KelTabPage first(&tabs);
    const KelTabPage second(&tabs);
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.widget(0), &first);
    QCOMPARE(tabs.widget(1), &second);
}

void KelTabPageTest::theFirstPageIsTheCurrentOne()
{
    KelTabWidget tabs;
    const KelTabPage first(&tabs);
    const KelTabPage second(&tabs);
    QCOMPARE(tabs.currentWidget(), &first);
    tabs.show();
    QVERIFY(first.isVisible());
    QVERIFY(!second.isVisible());
}

void KelTabPageTest::theTitleOfAPageIsTheTextOfItsTab()
{
    KelTabWidget tabs;
    KelTabPage first(&tabs);
    KelTabPage second(&tabs);
    first.setTitle(QStringLiteral("Powers"));
    second.setTitle(QStringLiteral("Voltages"));
    QCOMPARE(tabs.tabText(0), QStringLiteral("Powers"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Voltages"));
}

void KelTabPageTest::aPageOfAnotherWidgetStaysItsChild()
{
    QWidget parent;
    KelTabPage page(&parent);
    page.setTitle(QStringLiteral("Powers"));
    QCOMPARE(page.parentWidget(), &parent);
}

DEZIMO_TEST_MAIN(QApplication, KelTabPageTest)
#include "tst_keltabpage.moc"
