// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "resources.h"
#include "testmain.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

#include <cstdlib>

/// Every icon of both themes, drawn as the program draws it, in the sizes that the program shows.
class IconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void drawsASign_data() { icons(); }
    void drawsASign();
    void staysInsideItsFrame_data() { icons(); }
    void staysInsideItsFrame();
    void straightEdgesFallBetweenPixels_data() { icons(); }
    void straightEdgesFallBetweenPixels();
    void isToldFromEveryOther_data() { icons(); }
    void isToldFromEveryOther();

private:
    static void icons();
};

namespace {

constexpr int kSizes[] = {16, 24, 32, 48};

/// Whether a shape covers a clear part of a pixel, but not nearly all of it.
bool isHalfCovered(int alpha)
{
    return alpha > 48 && alpha < 208;
}

QStringList iconPaths()
{
    QStringList paths;
    for (const char *theme : {"bright", "dark"}) {
        QDirIterator files(QStringLiteral(":/"),
                           {QStringLiteral("*_16_%1.svg").arg(QLatin1String(theme)),
                            QStringLiteral("*_32_%1.svg").arg(QLatin1String(theme)),
                            QStringLiteral("*Add_48_%1.svg").arg(QLatin1String(theme))},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths += files.next();
    }
    return paths;
}

QImage drawn(const QString &path, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

int alphaAt(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

/// The longest run of neighbors in a row or a column of which a shape covers the same part. Such a
/// run is a straight edge that goes through the pixels instead of between them.
int longestBlurredEdge(const QImage &image)
{
    const int size = image.width();
    int longest = 0;
    for (int line = 0; line < size; ++line) {
        for (const bool isRow : {true, false}) {
            int run = 0;
            int before = 0;
            for (int i = 0; i < size; ++i) {
                const int alpha = isRow ? alphaAt(image, i, line) : alphaAt(image, line, i);
                const bool goesOn = run > 0 && std::abs(alpha - before) < 8;
                run = isHalfCovered(alpha) ? (goesOn ? run + 1 : 1) : 0;
                before = alpha;
                longest = qMax(longest, run);
            }
        }
    }
    return longest;
}

/// The name without its size, because the same sign may exist in two sizes.
QString sign(const QString &path)
{
    return QFileInfo(path).baseName().remove(QStringLiteral("_16")).remove(QStringLiteral("_48"));
}

} // namespace

void IconsTest::initTestCase()
{
    initDezimoResources();
    QCOMPARE(iconPaths().size(), 2 * 18);
}

void IconsTest::icons()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = iconPaths();
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path)) << path;
}

/// The thinnest sign is a bar that covers five of a hundred pixels.
void IconsTest::drawsASign()
{
    QFETCH(QString, path);

    for (const int size : kSizes) {
        const QImage image = drawn(path, size);
        int covered = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x)
                covered += alphaAt(image, x, y) > 128 ? 1 : 0;
        }
        QVERIFY2(covered >= size * size / 20, qPrintable(QString::number(size)));
    }
}

/// Draws the icon with a margin of a sixteenth of its width. The margin must stay empty.
void IconsTest::staysInsideItsFrame()
{
    QFETCH(QString, path);

    QSvgRenderer renderer(path);
    const QRectF frame = renderer.viewBoxF();
    const qreal air = frame.width() / 16;
    renderer.setViewBox(frame.adjusted(-air, -air, air, air));
    QImage image(18 * 4, 18 * 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    const QRect inside = image.rect().adjusted(4, 4, -4, -4);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY2(inside.contains(x, y) || alphaAt(image, x, y) == 0,
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
    }
}

/// Edges are sharp at the multiples of the grid that the icons are drawn on. Round and slanted
/// lines may look straight for up to a quarter of the icon.
void IconsTest::straightEdgesFallBetweenPixels()
{
    QFETCH(QString, path);

    for (const int size : {16, 32, 48}) {
        const int blurred = longestBlurredEdge(drawn(path, size));
        QVERIFY2(blurred <= size / 4,
                 qPrintable(QStringLiteral("%1 of %2 pixels").arg(blurred).arg(size)));
    }
}

void IconsTest::isToldFromEveryOther()
{
    QFETCH(QString, path);

    const auto isDark = [](const QString &name) {
        return name.endsWith(QLatin1String("_dark.svg"));
    };
    const QImage image = drawn(path, 16);
    const QStringList others = iconPaths();
    for (const QString &other : others) {
        if (isDark(other) != isDark(path) || sign(other) == sign(path))
            continue;
        const QImage otherImage = drawn(other, 16);
        int different = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const QRgb here = image.pixel(x, y);
                const QRgb there = otherImage.pixel(x, y);
                const bool differs = std::abs(qAlpha(here) - qAlpha(there)) > 96 ||
                                     std::abs(qRed(here) - qRed(there)) > 96;
                different += differs ? 1 : 0;
            }
        }
        QVERIFY2(different >= 10, qPrintable(other));
    }
}

DEZIMO_TEST_MAIN(QGuiApplication, IconsTest)

#include "tst_icons.moc"
