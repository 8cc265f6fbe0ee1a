// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "testmain.h"
#include "windowplacement.h"

#include <QCoreApplication>
#include <QTest>

class WindowPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data();
    void places();
};

void WindowPlacementTest::places_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QVector<QRect>>("screens");
    QTest::addColumn<QPoint>("position");

    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 0, 1280, 1024);
    const QVector<QRect> one{left};
    const QVector<QRect> two{left, right};

    QTest::newRow("on the screen: stays") << QRect(100, 50, 958, 605) << one << QPoint(100, 50);
    QTest::newRow("partly off the screen: stays")
        << QRect(-900, 50, 958, 605) << one << QPoint(-900, 50);
    QTest::newRow("on the second screen: stays")
        << QRect(2000, 50, 958, 605) << two << QPoint(2000, 50);
    QTest::newRow("the second screen has gone: onto the right edge of the first")
        << QRect(2000, 50, 958, 605) << one << QPoint(962, 50); // 1920 - 958
    QTest::newRow("above the screen: onto its upper edge")
        << QRect(10, -5000, 958, 605) << one << QPoint(10, 0);
    QTest::newRow("below and left: into the nearest corner")
        << QRect(-5000, 9000, 958, 605) << one << QPoint(0, 475); // 1080 - 605
    QTest::newRow("beyond the second screen: onto the second")
        << QRect(9000, 0, 958, 605) << two << QPoint(2242, 0); // 3200 - 958
    QTest::newRow("larger than the screen: its corner is reachable")
        << QRect(5000, 5000, 4000, 3000) << one << QPoint(0, 0);
    QTest::newRow("touching an edge from outside is not on the screen")
        << QRect(1920, 0, 958, 605) << one << QPoint(962, 0);
    QTest::newRow("no screen known: stays")
        << QRect(5000, 5000, 10, 10) << QVector<QRect>() << QPoint(5000, 5000);
    QTest::newRow("at the end of the number range: does not overflow")
        << QRect(2147480000, 2147480000, 958, 605) << one << QPoint(962, 475);
}

void WindowPlacementTest::places()
{
    QFETCH(QRect, window);
    QFETCH(QVector<QRect>, screens);
    QFETCH(QPoint, position);

    QCOMPARE(reachablePosition(window, screens), position);
}

DEZIMO_TEST_MAIN(QCoreApplication, WindowPlacementTest)

#include "tst_windowplacement.moc"
