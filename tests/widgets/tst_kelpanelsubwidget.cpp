// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keliconwidget.h"
#include "kelpanelsubwidget.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QFrame>
#include <QLineEdit>
#include <QPaintEvent>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

class KelPanelSubWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsExpanded();
    void collapseFoldsTheContent();
    void collapseAnimatesThreeProperties();
    void theLastFrameFoldsWhateverTheOneBeforeLeft();
    void collapseFixesTheHeaderHeight();
    void collapseEndsWithARepaintOfTheFrame();
    void expandUnfoldsTheContent();
    void expandAnimatesThreeProperties();
    void doesNothingTwice();
    void turnsAroundInTheMiddle();
    void restoresTheLimitsOfTheContent();
    void aClickOnTheHeaderToggles_data();
    void aClickOnTheHeaderToggles();
    void aSecondClickUnfolds();
    void foldedContentTakesNoFocus();
    void unfoldsWhatWasFoldedBeforeItWasShown();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;

    template <typename Object>
    Object *child(const char *name) const
    {
        return m_section->findChild<Object *>(QLatin1String(name));
    }
    QParallelAnimationGroup *folding() const
    {
        return m_section->findChild<QParallelAnimationGroup *>();
    }
    void collapseWholly();

    std::unique_ptr<QWidget> m_window;
    KelPanelSubWidget *m_section = nullptr;
    QWidget *m_content = nullptr;
    KelIconWidget *m_arrow = nullptr;
    int m_framePaints = 0;
};

namespace {

constexpr int kContentHeight = 80;

void compareAnimation(const QAbstractAnimation *animation, const QObject *target,
                      const QByteArray &property, int from, int to, QEasingCurve::Type easing)
{
    const auto *found = qobject_cast<const QPropertyAnimation *>(animation);
    QVERIFY(found);
    QCOMPARE(found->targetObject(), target);
    QCOMPARE(found->propertyName(), property);
    QCOMPARE(found->duration(), 200);
    QCOMPARE(found->startValue().toInt(), from);
    QCOMPARE(found->endValue().toInt(), to);
    QCOMPARE(found->easingCurve().type(), easing);
}

} // namespace

void KelPanelSubWidgetTest::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 400);
    auto *layout = new QVBoxLayout(m_window.get());
    m_section = new KelPanelSubWidget(QStringLiteral("Details"));
    layout->addWidget(m_section);
    layout->addStretch(1);

    m_content = m_section->contentWidget();
    auto *contentLayout = new QVBoxLayout(m_content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    auto *edit = new QLineEdit;
    edit->setFixedHeight(kContentHeight);
    contentLayout->addWidget(edit);
    m_arrow = m_section->findChild<KelIconWidget *>();

    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_content->height(), kContentHeight);
    m_framePaints = 0;
}

/// Counts how often the frame is painted as a whole.
bool KelPanelSubWidgetTest::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        const QRect painted = static_cast<QPaintEvent *>(event)->region().boundingRect();
        if (painted == static_cast<QWidget *>(watched)->rect())
            ++m_framePaints;
    }
    return QObject::eventFilter(watched, event);
}

void KelPanelSubWidgetTest::collapseWholly()
{
    m_section->collapse();
    QTRY_VERIFY(!folding());
    QCOMPARE(m_content->maximumHeight(), 0);
}

void KelPanelSubWidgetTest::startsExpanded()
{
    QVERIFY(m_section->isExpanded());
    QVERIFY(m_content->isVisible());
    QCOMPARE(m_arrow->rotation(), 90);
    QCOMPARE(child<QPushButton>("titleButton")->text(), QStringLiteral("Details"));
    QCOMPARE(child<QPushButton>("titleButton")->accessibleName(),
             QStringLiteral("Collapse Details"));
}

void KelPanelSubWidgetTest::collapseFoldsTheContent()
{
    m_section->collapse();
    QVERIFY(!m_section->isExpanded());
    QCOMPARE(child<QPushButton>("titleButton")->accessibleName(), QStringLiteral("Expand Details"));

    QTRY_VERIFY(!folding());
    QCOMPARE(m_content->minimumHeight(), 0);
    QCOMPARE(m_content->maximumHeight(), 0);
    QTRY_COMPARE(m_content->height(), 0);
    QCOMPARE(m_arrow->rotation(), 0);
}

void KelPanelSubWidgetTest::collapseAnimatesThreeProperties()
{
    m_section->collapse();
    const QParallelAnimationGroup *group = folding();
    QVERIFY(group);
    QCOMPARE(group->state(), QAbstractAnimation::Running);
    QCOMPARE(group->animationCount(), 3);
    compareAnimation(group->animationAt(0), m_content, "minimumHeight", kContentHeight, 0,
                     QEasingCurve::InOutQuad);
    compareAnimation(group->animationAt(1), m_content, "maximumHeight", kContentHeight, 0,
                     QEasingCurve::InOutQuad);
    compareAnimation(group->animationAt(2), m_arrow, "rotation", 90, 0, QEasingCurve::Linear);
}

void KelPanelSubWidgetTest::theLastFrameFoldsWhateverTheOneBeforeLeft()
{
    m_section->collapse();
    folding()->setCurrentTime(184);
    QCOMPARE(m_content->height(), 1); // 80 * 2 * (1 - 184/200)^2 = 1.02
    folding()->setCurrentTime(200);
    QCOMPARE(m_content->height(), 0);
}

void KelPanelSubWidgetTest::collapseFixesTheHeaderHeight()
{
    const int height = child<QWidget>("header")->height();
    QVERIFY(height > 0);
    m_section->collapse();
    QCOMPARE(child<QWidget>("header")->minimumHeight(), height);
}

void KelPanelSubWidgetTest::collapseEndsWithARepaintOfTheFrame()
{
    // Nothing folds here, so only the arrow is drawn again before the end.
    m_content->setMaximumHeight(0);
    QTRY_COMPARE(m_content->height(), 0);
    QCoreApplication::processEvents();
    child<QFrame>("frame")->installEventFilter(this);
    m_section->collapse();
    // A window system may repaint the frame for reasons of its own, so counting starts at the end.
    connect(folding(), &QAbstractAnimation::finished, this, [this] { m_framePaints = 0; });
    QTRY_VERIFY(!folding());
    QTRY_COMPARE(m_framePaints, 1);
}

void KelPanelSubWidgetTest::expandUnfoldsTheContent()
{
    collapseWholly();
    m_section->expand();
    QVERIFY(m_section->isExpanded());
    QCOMPARE(child<QPushButton>("titleButton")->accessibleName(),
             QStringLiteral("Collapse Details"));

    QTRY_VERIFY(!folding());
    QTRY_COMPARE(m_content->height(), kContentHeight);
    QVERIFY(m_content->isVisible());
    QCOMPARE(m_content->minimumHeight(), 0);
    QCOMPARE(m_content->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(m_arrow->rotation(), 90);
}

void KelPanelSubWidgetTest::expandAnimatesThreeProperties()
{
    collapseWholly();
    m_section->expand();
    const QParallelAnimationGroup *group = folding();
    QVERIFY(group);
    QCOMPARE(group->animationCount(), 3);
    compareAnimation(group->animationAt(0), m_content, "minimumHeight", 0, kContentHeight,
                     QEasingCurve::InOutQuad);
    compareAnimation(group->animationAt(1), m_content, "maximumHeight", 0, kContentHeight,
                     QEasingCurve::InOutQuad);
    compareAnimation(group->animationAt(2), m_arrow, "rotation", 0, 90, QEasingCurve::Linear);
}

void KelPanelSubWidgetTest::doesNothingTwice()
{
    m_section->expand();
    QVERIFY(!folding());

    collapseWholly();
    m_section->collapse();
    QVERIFY(!folding());
    QVERIFY(!m_section->isExpanded());

    m_section->expand();
    const QParallelAnimationGroup *group = folding();
    m_section->expand();
    QCOMPARE(m_section->findChildren<QParallelAnimationGroup *>().size(), 1);
    QCOMPARE(folding(), group);
}

void KelPanelSubWidgetTest::turnsAroundInTheMiddle()
{
    collapseWholly();
    m_section->expand();
    folding()->setCurrentTime(100);
    m_section->collapse();
    QTRY_VERIFY(!folding());
    QTRY_COMPARE(m_content->height(), 0);
    QCOMPARE(m_arrow->rotation(), 0);

    // It still unfolds to its whole height.
    m_section->expand();
    QTRY_VERIFY(!folding());
    QTRY_COMPARE(m_content->height(), kContentHeight);
    QCOMPARE(m_content->maximumHeight(), QWIDGETSIZE_MAX);
}

void KelPanelSubWidgetTest::restoresTheLimitsOfTheContent()
{
    m_content->setMinimumHeight(90);
    m_content->setMaximumHeight(120);
    QTRY_COMPARE(m_content->height(), 90);
    collapseWholly();
    m_section->expand();
    QTRY_VERIFY(!folding());
    QCOMPARE(m_content->minimumHeight(), 90);
    QCOMPARE(m_content->maximumHeight(), 120);
}

void KelPanelSubWidgetTest::aClickOnTheHeaderToggles_data()
{
    columns<QString, int, QPoint, bool>({"target", "button", "release", "toggles"});

    const QPoint inside(2, 2);
    row("the title", "titleButton", int(Qt::LeftButton), inside, true);
    row("the arrow", "disclosure", int(Qt::LeftButton), inside, true);
    row("the space around them", "header", int(Qt::LeftButton), inside, true);
    row("the arrow with the right button", "disclosure", int(Qt::RightButton), inside, false);
    row("the header, let go below it", "header", int(Qt::LeftButton), QPoint(2, 200), false);
}

void KelPanelSubWidgetTest::aClickOnTheHeaderToggles()
{
    QFETCH(QString, target);
    QFETCH(int, button);
    QFETCH(QPoint, release);
    QFETCH(bool, toggles);

    auto *widget = m_section->findChild<QWidget *>(target);
    QTest::mousePress(widget, Qt::MouseButton(button), Qt::NoModifier, QPoint(2, 2));
    QTest::mouseRelease(widget, Qt::MouseButton(button), Qt::NoModifier, release);
    QCOMPARE(m_section->isExpanded(), !toggles);
}

void KelPanelSubWidgetTest::aSecondClickUnfolds()
{
    collapseWholly();
    QTest::mouseClick(child<QPushButton>("titleButton"), Qt::LeftButton);
    QVERIFY(m_section->isExpanded());
    QTRY_COMPARE(m_content->height(), kContentHeight);
}

void KelPanelSubWidgetTest::foldedContentTakesNoFocus()
{
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    collapseWholly();
    QVERIFY(!m_content->isVisible());
    auto *title = child<QPushButton>("titleButton");
    title->setFocus();
    QTest::keyClick(title, Qt::Key_Tab);
    QVERIFY(title->hasFocus());
}

void KelPanelSubWidgetTest::unfoldsWhatWasFoldedBeforeItWasShown()
{
    KelPanelSubWidget section(QStringLiteral("Later"));
    auto *layout = new QVBoxLayout(section.contentWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    auto *edit = new QLineEdit;
    edit->setFixedHeight(50);
    layout->addWidget(edit);

    section.collapse();
    QTRY_VERIFY(!section.findChild<QParallelAnimationGroup *>());
    section.show();
    section.expand();
    const auto *group = section.findChild<QParallelAnimationGroup *>();
    QCOMPARE(qobject_cast<QPropertyAnimation *>(group->animationAt(0))->endValue().toInt(), 50);
}

DEZIMO_TEST_MAIN(QApplication, KelPanelSubWidgetTest)

#include "tst_kelpanelsubwidget.moc"
