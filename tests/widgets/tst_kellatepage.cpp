// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellatepage.h"
#include "testmain.h"

#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QVBoxLayout>

class KelLatePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anUnseenPageAsksForTheSizeThatIsExpected();
    void aPageThatWasShownAsksForWhatItHolds();
    void theSizeOfAStackAllowsForUnseenPages();
    void askingAStackForItsSizeStylesNothingOnUnseenPages();
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

/// Adds a page that is shown first and one that is not. Returns that one.
KelLatePage *addPages(QStackedWidget &stack)
{
    auto *unseen = new KelLatePage;
    stack.addWidget(new KelLatePage);
    stack.addWidget(unseen);
    return unseen;
}

} // namespace

void KelLatePageTest::anUnseenPageAsksForTheSizeThatIsExpected()
{
    KelLatePage page;
    fill(page);
    QVERIFY(!page.sizeHint().isValid());
    QVERIFY(!page.minimumSizeHint().isValid());
    page.setExpectedSize(QSize(10, 20));
    QCOMPARE(page.sizeHint(), QSize(10, 20));
    QCOMPARE(page.minimumSizeHint(), QSize(10, 20));
}

void KelLatePageTest::aPageThatWasShownAsksForWhatItHolds()
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

void KelLatePageTest::theSizeOfAStackAllowsForUnseenPages()
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

void KelLatePageTest::askingAStackForItsSizeStylesNothingOnUnseenPages()
{
    QStackedWidget stack;
    KelLatePage *unseen = addPages(stack);
    unseen->ensurePolished();
    const QLabel *label = fill(*unseen);
    stack.sizeHint();
    stack.minimumSizeHint();
    QVERIFY(!label->testAttribute(Qt::WA_WState_Polished));
}

DEZIMO_TEST_MAIN(QApplication, KelLatePageTest)
#include "tst_kellatepage.moc"
