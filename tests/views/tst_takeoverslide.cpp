// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "takeoverslide.h"
#include "testmain.h"

#include <QApplication>
#include <QPointer>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TakeOverSlideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void movesBothUpwards();
    void leavesNothingBehind();
    void endsWhereANewLayoutPutsThem();
    void endsInAHiddenWindow();
    void canBeDestroyedMeanwhile();
    void canBeEndedAtOnce();

private:
    std::unique_ptr<QWidget> m_window;
    QWidget *m_frame = nullptr;
    QWidget *m_input = nullptr;
    QWidget *m_row = nullptr;
    std::unique_ptr<TakeOverSlide> m_slide;
    std::unique_ptr<QSignalSpy> m_finished;
};

/// Of the window's 200 pixels, a frame with the input takes the upper 40, and a row takes the 160
/// below.
void TakeOverSlideTest::init()
{
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_frame = new QWidget;
    m_frame->setFixedHeight(40);
    auto *frameLayout = new QVBoxLayout(m_frame);
    frameLayout->setContentsMargins(0, 0, 0, 0);
    m_input = new QWidget;
    frameLayout->addWidget(m_input);
    m_row = new QWidget;
    layout->addWidget(m_frame);
    layout->addWidget(m_row);
    m_window->resize(300, 200);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_slide = std::make_unique<TakeOverSlide>(m_window.get());
    m_finished = std::make_unique<QSignalSpy>(m_slide.get(), &TakeOverSlide::finished);
}

void TakeOverSlideTest::cleanup()
{
    m_finished.reset();
    m_slide.reset();
    m_window.reset();
}

void TakeOverSlideTest::movesBothUpwards()
{
    QVERIFY(!m_slide->isRunning());
    const MoveLog rowMoves(*m_row);
    const MoveLog inputMoves(*m_input);

    m_slide->start(m_row, m_input);
    QVERIFY(m_slide->isRunning());
    QCOMPARE(m_input->pos(), QPoint(0, 40));
    QCOMPARE(m_row->pos(), QPoint(0, 40));

    QTRY_COMPARE(m_finished->count(), 1);
    QVERIFY(!m_slide->isRunning());
    // the row goes up by its own 160 pixels, and is put back
    QCOMPARE(rowMoves.highest(), 40 - 160);
    QCOMPARE(m_row->geometry(), QRect(0, 40, 300, 160));
    QCOMPARE(inputMoves.highest(), 0);
    QCOMPARE(inputMoves.lowest(), 40);
    QCOMPARE(m_input->geometry(), QRect(0, 0, 300, 40));
}

void TakeOverSlideTest::leavesNothingBehind()
{
    m_slide->start(m_row, m_input);
    QCOMPARE(m_window->findChildren<QPropertyAnimation *>().size(), 2);

    QTRY_VERIFY(m_window->findChildren<QAbstractAnimation *>().isEmpty());
    QCOMPARE(m_finished->count(), 1);
}

void TakeOverSlideTest::endsWhereANewLayoutPutsThem()
{
    m_slide->start(m_row, m_input);
    m_frame->layout()->setContentsMargins(5, 10, 5, 0);
    m_window->layout()->setContentsMargins(10, 20, 10, 0);
    m_window->resize(400, 300);

    QTRY_COMPARE(m_finished->count(), 1);
    QCOMPARE(m_input->geometry(), QRect(5, 10, 370, 30));
    QCOMPARE(m_row->geometry(), QRect(10, 60, 380, 240));
}

void TakeOverSlideTest::endsInAHiddenWindow()
{
    m_slide->start(m_row, m_input);
    m_window->hide();

    QTRY_COMPARE(m_finished->count(), 1);
    QCOMPARE(m_input->geometry(), QRect(0, 0, 300, 40));
    QCOMPARE(m_row->geometry(), QRect(0, 40, 300, 160));
}

void TakeOverSlideTest::canBeDestroyedMeanwhile()
{
    m_slide->start(m_row, m_input);
    const QPointer<QObject> moves = m_window->findChild<QAbstractAnimation *>();
    QVERIFY(moves);

    m_finished.reset();
    m_slide.reset();

    QVERIFY(!moves);
}

void TakeOverSlideTest::canBeEndedAtOnce()
{
    const QPoint row = m_row->pos();
    m_slide->finish();
    QCOMPARE(m_finished->count(), 0); // nothing runs

    m_slide->start(m_row, m_input);
    m_slide->finish();
    QVERIFY(!m_slide->isRunning());
    QCOMPARE(m_finished->count(), 1);
    QCOMPARE(m_row->pos(), row);
}

DEZIMO_TEST_MAIN(QApplication, TakeOverSlideTest)
#include "tst_takeoverslide.moc"
