// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpanelsubwidget.h"
#include "kelpanelwidget.h"
#include "testmain.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPropertyAnimation>
#include <QTest>
#include <QToolButton>

#include <memory>

class KelPanelWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsExpanded();
    void collapseNarrowsThePanel();
    void collapseAnimatesTheMaximumWidth();
    void collapseFoldsEverySection();
    void expandWidensThePanel();
    void expandAnimatesTheMaximumWidth();
    void doesNothingTwice();
    void turnsAroundInTheMiddle();
    void theButtonToggles();
    void theIconFollowsTheState();

private:
    QPropertyAnimation *resizing() const
    {
        return m_panel->findChild<QPropertyAnimation *>(QString(), Qt::FindDirectChildrenOnly);
    }
    void collapseWholly();

    std::unique_ptr<QWidget> m_window;
    KelPanelWidget *m_panel = nullptr;
    QToolButton *m_button = nullptr;
    KelPanelSubWidget *m_first = nullptr;
    KelPanelSubWidget *m_second = nullptr;
};

void KelPanelWidgetTest::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(600, 400);
    auto *layout = new QHBoxLayout(m_window.get());
    m_panel = new KelPanelWidget;
    m_panel->setMaximumWidth(250);
    layout->addWidget(m_panel);
    layout->addWidget(new QWidget, 0);
    m_first = new KelPanelSubWidget(QStringLiteral("First"));
    m_second = new KelPanelSubWidget(QStringLiteral("Second"));
    m_panel->addSubWidget(m_first);
    m_panel->addSubWidget(m_second);
    m_button = m_panel->findChild<QToolButton *>(QStringLiteral("toggleButton"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_panel->width(), 250);
}

void KelPanelWidgetTest::collapseWholly()
{
    m_panel->collapse();
    QTRY_VERIFY(!resizing());
    QTRY_COMPARE(m_panel->width(), 34);
}

void KelPanelWidgetTest::startsExpanded()
{
    QVERIFY(m_panel->isExpanded());
    QCOMPARE(m_panel->minimumWidth(), 184);
    QCOMPARE(m_button->accessibleName(), QStringLiteral("Collapse panel"));
}

void KelPanelWidgetTest::collapseNarrowsThePanel()
{
    m_panel->collapse();
    QVERIFY(!m_panel->isExpanded());
    QCOMPARE(m_panel->minimumWidth(), 34);
    QCOMPARE(m_button->accessibleName(), QStringLiteral("Expand panel"));

    QTRY_VERIFY(!resizing());
    QCOMPARE(m_panel->maximumWidth(), 34);
    QTRY_COMPARE(m_panel->width(), 34);
}

void KelPanelWidgetTest::collapseAnimatesTheMaximumWidth()
{
    m_panel->collapse();
    QVERIFY(resizing());
    QCOMPARE(resizing()->propertyName(), QByteArray("maximumWidth"));
    QCOMPARE(resizing()->duration(), 200);
    QCOMPARE(resizing()->startValue().toInt(), 250);
    QCOMPARE(resizing()->endValue().toInt(), 34);
    QCOMPARE(resizing()->easingCurve().type(), QEasingCurve::Linear);
}

void KelPanelWidgetTest::collapseFoldsEverySection()
{
    m_second->collapse();
    m_panel->collapse();
    QVERIFY(!m_first->isExpanded());
    QVERIFY(!m_second->isExpanded());

    m_panel->expand();
    QVERIFY(!m_first->isExpanded());
    QVERIFY(!m_second->isExpanded());
}

void KelPanelWidgetTest::expandWidensThePanel()
{
    collapseWholly();
    m_panel->expand();
    QVERIFY(m_panel->isExpanded());
    QCOMPARE(m_panel->minimumWidth(), 34);
    QCOMPARE(m_button->accessibleName(), QStringLiteral("Collapse panel"));

    QTRY_VERIFY(!resizing());
    QCOMPARE(m_panel->minimumWidth(), 184);
    QCOMPARE(m_panel->maximumWidth(), 16777215);
    QTRY_VERIFY(m_panel->width() >= 184);
}

void KelPanelWidgetTest::expandAnimatesTheMaximumWidth()
{
    collapseWholly();
    m_panel->expand();
    QVERIFY(resizing());
    QCOMPARE(resizing()->propertyName(), QByteArray("maximumWidth"));
    QCOMPARE(resizing()->duration(), 200);
    QCOMPARE(resizing()->startValue().toInt(), 34);
    QCOMPARE(resizing()->endValue().toInt(), 184);
    QCOMPARE(resizing()->easingCurve().type(), QEasingCurve::InOutQuad);
}

void KelPanelWidgetTest::doesNothingTwice()
{
    m_panel->expand();
    QVERIFY(!resizing());
    QCOMPARE(m_panel->maximumWidth(), 250);

    collapseWholly();
    m_panel->collapse();
    QVERIFY(!resizing());
    QCOMPARE(m_panel->maximumWidth(), 34);
}

void KelPanelWidgetTest::turnsAroundInTheMiddle()
{
    collapseWholly();
    m_panel->expand();
    resizing()->setCurrentTime(100);
    m_panel->collapse();
    QTRY_VERIFY(!resizing());
    QTRY_COMPARE(m_panel->width(), 34);
    QCOMPARE(m_panel->minimumWidth(), 34);
    QCOMPARE(m_panel->maximumWidth(), 34);
}

void KelPanelWidgetTest::theButtonToggles()
{
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_panel->isExpanded());
    QTest::keyClick(m_button, Qt::Key_Space);
    QVERIFY(m_panel->isExpanded());
}

void KelPanelWidgetTest::theIconFollowsTheState()
{
    // In this test's resources "next" is red and "back" is blue.
    const auto color = [this] {
        return m_button->icon().pixmap(16, 16).toImage().pixelColor(8, 8);
    };
    QCOMPARE(color(), QColor(Qt::red));
    m_panel->collapse();
    QCOMPARE(color(), QColor(Qt::blue));
    m_panel->expand();
    QCOMPARE(color(), QColor(Qt::red));
}

DEZIMO_TEST_MAIN(QApplication, KelPanelWidgetTest)

#include "tst_kelpanelwidget.moc"
