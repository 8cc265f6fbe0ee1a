// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "testmain.h"
#include "windowplacement.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

class WindowPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data();
    void places();
};

void WindowPlacementTest::places_data()
{
    QTest::addColumn<QPoint>("stored");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<QRect>>("screens");
    QTest::addColumn<QPoint>("position");

    const QSize form(958, 605);
    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 0, 1280, 1024);
    const QVector<QRect> one{left};
    const QVector<QRect> two{left, right};

    QTest::newRow("on the screen: stays") << QPoint(100, 50) << form << one << QPoint(100, 50);
    QTest::newRow("partly off the screen: stays")
        << QPoint(-900, 50) << form << one << QPoint(-900, 50);
    QTest::newRow("on the second screen: stays")
        << QPoint(2000, 50) << form << two << QPoint(2000, 50);
    QTest::newRow("the second screen has gone: onto the right edge of the first")
        << QPoint(2000, 50) << form << one << QPoint(962, 50); // 1920 - 958
    QTest::newRow("above the screen: onto its upper edge")
        << QPoint(10, -5000) << form << one << QPoint(10, 0);
    QTest::newRow("below and left: into the nearest corner")
        << QPoint(-5000, 9000) << form << one << QPoint(0, 475); // 1080 - 605
    QTest::newRow("beyond the second screen: onto the second")
        << QPoint(9000, 0) << form << two << QPoint(2242, 0); // 3200 - 958
    QTest::newRow("larger than the screen: its corner is reachable")
        << QPoint(5000, 5000) << QSize(4000, 3000) << one << QPoint(0, 0);
    QTest::newRow("touching an edge from outside is not on the screen")
        << QPoint(1920, 0) << form << one << QPoint(962, 0);
    QTest::newRow("no screen known: stays")
        << QPoint(5000, 5000) << QSize(10, 10) << QVector<QRect>() << QPoint(5000, 5000);
    const int highest = std::numeric_limits<int>::max();
    const int lowest = std::numeric_limits<int>::min();
    QTest::newRow("at the upper end of the number range: onto the last corner")
        << QPoint(highest, highest) << form << one << QPoint(962, 475);
    QTest::newRow("at the lower end of the number range: onto the first corner")
        << QPoint(lowest, lowest) << form << one << QPoint(0, 0);
    QTest::newRow("the upper end, two screens: onto the right one")
        << QPoint(highest, highest) << form << two << QPoint(2242, 419); // 1024 - 605
    QTest::newRow("the lower end, two screens: onto the left one")
        << QPoint(lowest, lowest) << form << two << QPoint(0, 0);
    QTest::newRow("right end and top end, two screens: onto the right one")
        << QPoint(highest, lowest) << form << two << QPoint(2242, 0);
    QTest::newRow("left end and bottom end, two screens: onto the left one")
        << QPoint(lowest, highest) << form << two << QPoint(0, 475);
}

void WindowPlacementTest::places()
{
    QFETCH(QPoint, stored);
    QFETCH(QSize, size);
    QFETCH(QVector<QRect>, screens);
    QFETCH(QPoint, position);

    QCOMPARE(reachablePosition(stored, size, screens), position);
}

DEZIMO_TEST_MAIN(QCoreApplication, WindowPlacementTest)

#include "tst_windowplacement.moc"
