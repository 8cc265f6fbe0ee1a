// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "table.h"
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
    columns<int, int, QSize, QVector<QRect>, int, int>(
        {"storedX", "storedY", "size", "screens", "x", "y"});
    const QSize form(958, 605);
    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 0, 1280, 1024);
    const QVector<QRect> one{left};
    const QVector<QRect> two{left, right};

    row("on the screen: stays", 100, 50, form, one, 100, 50);
    row("partly off the screen: stays", -900, 50, form, one, -900, 50);
    row("on the second screen: stays", 2000, 50, form, two, 2000, 50);
    // 1920 - 958 = 962, 1080 - 605 = 475, 3200 - 958 = 2242, 1024 - 605 = 419
    row("the second screen has gone: onto the right edge of the first", 2000, 50, form, one, 962,
        50);
    row("above the screen: onto its upper edge", 10, -5000, form, one, 10, 0);
    row("below and left: into the nearest corner", -5000, 9000, form, one, 0, 475);
    row("beyond the second screen: onto the second", 9000, 0, form, two, 2242, 0);
    const QSize large(4000, 3000);
    row("larger than the screen: its corner is reachable", 5000, 5000, large, one, 0, 0);
    row("touching an edge from outside is not on the screen", 1920, 0, form, one, 962, 0);
    const QVector<QRect> none;
    row("no screen known: stays", 5000, 5000, QSize(10, 10), none, 5000, 5000);
    const int max = std::numeric_limits<int>::max();
    const int min = std::numeric_limits<int>::min();
    row("at the upper end of the number range: onto the last corner", max, max, form, one, 962,
        475);
    row("at the lower end of the number range: onto the first corner", min, min, form, one, 0, 0);
    row("the upper end, two screens: onto the right one", max, max, form, two, 2242, 419);
    row("the lower end, two screens: onto the left one", min, min, form, two, 0, 0);
    row("right end and top end, two screens: onto the right one", max, min, form, two, 2242, 0);
    row("left end and bottom end, two screens: onto the left one", min, max, form, two, 0, 475);
}

void WindowPlacementTest::places()
{
    QFETCH(int, storedX);
    QFETCH(int, storedY);
    QFETCH(QSize, size);
    QFETCH(QVector<QRect>, screens);
    QFETCH(int, x);
    QFETCH(int, y);

    QCOMPARE(reachablePosition(QPoint(storedX, storedY), size, screens), QPoint(x, y));
}

DEZIMO_TEST_MAIN(QCoreApplication, WindowPlacementTest)

#include "tst_windowplacement.moc"
