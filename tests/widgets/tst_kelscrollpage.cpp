// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelscrollarea.h"
#include "kelscrollpage.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

class KelScrollPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageOfAScrollAreaIsItsContents();
    void bothScrollBarsAreThoseOfTheToolkit();
    void aPageOfAnotherWidgetStaysItsChild();
    void anAreaThatIsLargeEnoughLosesItsScrollBarsAtOnce();
};

void KelScrollPageTest::aPageOfAScrollAreaIsItsContents()
{
    KelScrollArea area;
    KelScrollPage page(&area);
    QCOMPARE(area.widget(), &page);
}

void KelScrollPageTest::bothScrollBarsAreThoseOfTheToolkit()
{
    const KelScrollArea area;
    for (const QScrollBar *bar : {area.verticalScrollBar(), area.horizontalScrollBar()})
        QVERIFY(qobject_cast<const KelScrollBar *>(bar));
    QCOMPARE(area.verticalScrollBar()->orientation(), Qt::Vertical);
    QCOMPARE(area.horizontalScrollBar()->orientation(), Qt::Horizontal);
}

void KelScrollPageTest::aPageOfAnotherWidgetStaysItsChild()
{
    QWidget parent;
    const KelScrollPage page(&parent);
    QCOMPARE(page.parentWidget(), &parent);
}

/// What is painted next is what is there before any further event.
void KelScrollPageTest::anAreaThatIsLargeEnoughLosesItsScrollBarsAtOnce()
{
    KelScrollArea area;
    auto *page = new KelScrollPage(&area);
    area.setWidgetResizable(true);
    page->setMinimumSize(200, 200);
    area.resize(100, 100);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QVERIFY(area.verticalScrollBar()->isVisible());
    QVERIFY(area.horizontalScrollBar()->isVisible());

    area.resize(300, 300);
    QVERIFY(!area.verticalScrollBar()->isVisible());
    QVERIFY(!area.horizontalScrollBar()->isVisible());
}

DEZIMO_TEST_MAIN(QApplication, KelScrollPageTest)
#include "tst_kelscrollpage.moc"
