// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellatepages.h"
#include "testmain.h"

#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QVBoxLayout>

class KelLatePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anUnseenPageAsksForTheSizeThatIsExpected();
    void aPageThatWasShownAsksForWhatItHolds();
    void theSizeOfAStackAllowsForUnseenPages();
    void askingAStackForItsSizeStylesNothingOnUnseenPages();

    void aPageOfATabWidgetIsItsLastTab();
    void theFirstPageOfATabWidgetIsTheCurrentOne();
    void theTitleOfATabPageIsTheTextOfItsTab();
    void aTabPageOfAnotherWidgetStaysItsChild();

    void aPageOfAScrollAreaIsItsContents();
    void bothScrollBarsOfAScrollAreaAreThoseOfTheToolkit();
    void aScrollPageOfAnotherWidgetStaysItsChild();
    void anAreaThatIsLargeEnoughLosesItsScrollBarsAtOnce();
};

namespace {

constexpr QSize kContents(300, 200);

/// Fills the page with something of a known size.
QLabel *fill(KelLatePage &page)
{
    auto *layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(&page);
    label->setFixedSize(kContents);
    layout->addWidget(label);
    return label;
}

/// Adds two pages, of which only the first is shown. Returns the second one.
KelLatePage *addPages(QStackedWidget &stack)
{
    auto *unseen = new KelLatePage;
    stack.addWidget(new KelLatePage);
    stack.addWidget(unseen);
    return unseen;
}

} // namespace

void KelLatePagesTest::anUnseenPageAsksForTheSizeThatIsExpected()
{
    KelLatePage page;
    fill(page);
    QVERIFY(!page.sizeHint().isValid());
    QVERIFY(!page.minimumSizeHint().isValid());
    page.setExpectedSize(QSize(10, 20));
    QCOMPARE(page.sizeHint(), QSize(10, 20));
    QCOMPARE(page.minimumSizeHint(), QSize(10, 20));
}

void KelLatePagesTest::aPageThatWasShownAsksForWhatItHolds()
{
    KelLatePage page;
    fill(page);
    page.setExpectedSize(QSize(10, 20));
    page.show();
    QCOMPARE(page.sizeHint(), kContents);
    QCOMPARE(page.minimumSizeHint(), kContents);
    page.hide();
    QCOMPARE(page.sizeHint(), kContents);
    QCOMPARE(page.minimumSizeHint(), kContents);
}

void KelLatePagesTest::theSizeOfAStackAllowsForUnseenPages()
{
    QStackedWidget stack;
    KelLatePage *unseen = addPages(stack);
    unseen->setExpectedSize(QSize(10, 20));
    QCOMPARE(stack.minimumSizeHint(), QSize(10, 20));

    fill(*unseen);
    stack.show();
    QCOMPARE(stack.minimumSizeHint(), QSize(10, 20));
    stack.setCurrentWidget(unseen);
    QCOMPARE(stack.minimumSizeHint(), kContents);
}

void KelLatePagesTest::askingAStackForItsSizeStylesNothingOnUnseenPages()
{
    QStackedWidget stack;
    KelLatePage *unseen = addPages(stack);
    unseen->ensurePolished();
    const QLabel *label = fill(*unseen);
    stack.sizeHint();
    stack.minimumSizeHint();
    QVERIFY(!label->testAttribute(Qt::WA_WState_Polished));
}

void KelLatePagesTest::aPageOfATabWidgetIsItsLastTab()
{
    KelTabWidget tabs;
    const KelTabPage first(&tabs);
    const KelTabPage second(&tabs);
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.widget(0), &first);
    QCOMPARE(tabs.widget(1), &second);
}

void KelLatePagesTest::theFirstPageOfATabWidgetIsTheCurrentOne()
{
    KelTabWidget tabs;
    const KelTabPage first(&tabs);
    const KelTabPage second(&tabs);
    QCOMPARE(tabs.currentWidget(), &first);
    tabs.show();
    QVERIFY(first.isVisible());
    QVERIFY(!second.isVisible());
}

void KelLatePagesTest::theTitleOfATabPageIsTheTextOfItsTab()
{
    KelTabWidget tabs;
    KelTabPage first(&tabs);
    KelTabPage second(&tabs);
    first.setTitle(QStringLiteral("Powers"));
    second.setTitle(QStringLiteral("Voltages"));
    QCOMPARE(tabs.tabText(0), QStringLiteral("Powers"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Voltages"));
}

void KelLatePagesTest::aTabPageOfAnotherWidgetStaysItsChild()
{
    QWidget parent;
    KelTabPage page(&parent);
    page.setTitle(QStringLiteral("Powers"));
    QCOMPARE(page.parentWidget(), &parent);
}

void KelLatePagesTest::aPageOfAScrollAreaIsItsContents()
{
    KelScrollArea area;
    KelScrollPage page(&area);
    QCOMPARE(area.widget(), &page);
}

void KelLatePagesTest::bothScrollBarsOfAScrollAreaAreThoseOfTheToolkit()
{
    const KelScrollArea area;
    for (const QScrollBar *bar : {area.verticalScrollBar(), area.horizontalScrollBar()})
        QVERIFY(qobject_cast<const KelScrollBar *>(bar));
    QCOMPARE(area.verticalScrollBar()->orientation(), Qt::Vertical);
    QCOMPARE(area.horizontalScrollBar()->orientation(), Qt::Horizontal);
}

void KelLatePagesTest::aScrollPageOfAnotherWidgetStaysItsChild()
{
    QWidget parent;
    const KelScrollPage page(&parent);
    QCOMPARE(page.parentWidget(), &parent);
}

/// The next paint may come before any other event, so the scroll bars must be gone by then.
void KelLatePagesTest::anAreaThatIsLargeEnoughLosesItsScrollBarsAtOnce()
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

DEZIMO_TEST_MAIN(QApplication, KelLatePagesTest)
#include "tst_kellatepages.moc"
