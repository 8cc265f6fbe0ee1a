// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Dezimo;

class MainWindowGeometryTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void mirrorsItsGeometry();
    void restoresItsGeometry();
    void anInvalidStoredSizeIsNotApplied();
    void aSizeLargerThanTheScreenComesBack_data();
    void aSizeLargerThanTheScreenComesBack();
    void aSizeThatNoWindowHasIsNotApplied_data();
    void aSizeThatNoWindowHasIsNotApplied();
    void aWideWindowIsReachableWhereverItWasStored_data();
    void aWideWindowIsReachableWhereverItWasStored();
    void theSmallestSizeIsTheSameWhateverPageIsShown_data();
    void theSmallestSizeIsTheSameWhateverPageIsShown();
    void aWindowThatLiesOnNoScreenIsBroughtBack_data();
    void aWindowThatLiesOnNoScreenIsBroughtBack();
};

void MainWindowGeometryTest::mirrorsItsGeometry()
{
    openWindow();
    const QSignalSpy sizeChanged(&m_profile, &MainProfile::windowSizeChanged);
    const QSignalSpy positionChanged(&m_profile, &MainProfile::windowPositionChanged);
    m_window->resize(1000, 700);
    m_window->move(20, 30);
    QTRY_COMPARE(m_profile.windowSize(), QSize(1000, 700));
    QTRY_COMPARE(m_profile.windowPosition(), QPoint(20, 30));
    QCOMPARE(sizeChanged.count(), 1);
    QCOMPARE(positionChanged.count(), 1);
}

void MainWindowGeometryTest::restoresItsGeometry()
{
    store("windowPosition", QPoint(11, 22));
    store("windowSize", QSize(940, 600));
    openWindow();
    if (hasScreenPositions())
        QCOMPARE(m_window->pos(), QPoint(11, 22));
    QCOMPARE(m_window->size(), QSize(940, 600));
}

void MainWindowGeometryTest::anInvalidStoredSizeIsNotApplied()
{
    store("windowSize", QSize(-5, 300));
    openWindow();
    QCOMPARE(m_window->size(), QSize(958, 605));
}

void MainWindowGeometryTest::aSizeLargerThanTheScreenComesBack_data()
{
    QTest::addColumn<QSize>("stored");

    QTest::newRow("of a larger screen") << QSize(1400, 900);
    QTest::newRow("wider than any screen") << QSize(16384, 605);
    QTest::newRow("higher than any screen") << QSize(958, 16384);
}

/// The larger screen may be away for a while and be there again at the next start.
void MainWindowGeometryTest::aSizeLargerThanTheScreenComesBack()
{
#ifdef Q_OS_WIN
    QSKIP("Windows itself makes no window larger than its screens");
#endif
    QFETCH(QSize, stored);

    store("windowSize", stored);
    openWindow();
    QCOMPARE(m_window->size(), stored);
    m_window.reset();
    QCOMPARE(QSettings().value(QStringLiteral("MainProfile/windowSize")).toSize(), stored);
}

void MainWindowGeometryTest::aSizeThatNoWindowHasIsNotApplied_data()
{
    QTest::addColumn<QSize>("stored");

    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("too large both ways") << QSize(100000, 100000);
    QTest::newRow("at the end of the number range") << QSize(highest, highest);
    QTest::newRow("too wide by a pixel") << QSize(16385, 605);
    QTest::newRow("too high by a pixel") << QSize(958, 16385);
}

/// The window then has the size of its form.
void MainWindowGeometryTest::aSizeThatNoWindowHasIsNotApplied()
{
    QFETCH(QSize, stored);

    store("windowSize", stored);
    openWindow();
    QCOMPARE(m_window->size(), QSize(958, 605));
    QCOMPARE(m_profile.windowSize(), m_window->size());
}

void MainWindowGeometryTest::aWideWindowIsReachableWhereverItWasStored_data()
{
    QTest::addColumn<QPoint>("stored");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("partly on the screen: stays") << QPoint(-1300, 10) << QPoint(-1300, 10);
    QTest::newRow("left of the screen: onto it") << QPoint(-1400, 10) << QPoint(0, 10);
}

/// The size that the window will have decides whether it lies on a screen, not the form's size.
void MainWindowGeometryTest::aWideWindowIsReachableWhereverItWasStored()
{
    if (!hasScreenPositions()) {
        QTest::qSkip("windows do not know where they are", __FILE__, __LINE__);
        return;
    }
    QFETCH(QPoint, stored);
    QFETCH(QPoint, position);

    store("windowPosition", stored);
    store("windowSize", QSize(1400, 500));
    const MainWindow window;
    QCOMPARE(window.pos(), position);
}

void MainWindowGeometryTest::theSmallestSizeIsTheSameWhateverPageIsShown_data()
{
    QTest::addColumn<int>("module");

    QTest::newRow("starting with the dBm calculator") << 0;
    QTest::newRow("starting with the voltage calculator") << 1;
    QTest::newRow("starting with the unit converter") << 2;
    QTest::newRow("starting with the dB converter") << 3;
    QTest::newRow("starting with the VSWR converter") << 4;
}

/// A window of that size must not grow when another page is chosen.
void MainWindowGeometryTest::theSmallestSizeIsTheSameWhateverPageIsShown()
{
    QFETCH(int, module);

    store("currentModule", module);
    openWindow();
    const QSize smallest = m_window->minimumSizeHint();
    for (int other = 0; other < 5; ++other) {
        m_profile.setCurrentModule(other);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->minimumSizeHint(), smallest);
    }
}

void MainWindowGeometryTest::aWindowThatLiesOnNoScreenIsBroughtBack_data()
{
    QTest::addColumn<QPoint>("stored");

    const int highest = std::numeric_limits<int>::max();
    const int lowest = std::numeric_limits<int>::min();
    QTest::newRow("far away") << QPoint(100000, 100000);
    QTest::newRow("at the upper end of the number range") << QPoint(highest, highest);
    QTest::newRow("at the lower end of the number range") << QPoint(lowest, lowest);
}

void MainWindowGeometryTest::aWindowThatLiesOnNoScreenIsBroughtBack()
{
    QFETCH(QPoint, stored);

    store("windowPosition", stored);
    openWindow();
    QVERIFY(m_window->screen()->availableGeometry().intersects(m_window->geometry()));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowGeometryTest>(argc, argv, true);
}

#include "tst_mainwindowgeometry.moc"
