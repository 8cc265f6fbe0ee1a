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

/// Every icon of both themes, drawn as the program draws it, at the sizes at which it is shown.
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

/// A pixel that a shape covers neither nearly not nor nearly wholly.
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

/// The longest run of neighbors in one line that a shape covers by the same part: a straight edge
/// that runs through the pixels instead of between them.
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

/// The name without its size: the same sign may be there in two sizes.
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

/// Drawn with a sixteenth of air around it, the icon leaves that air empty.
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

/// At the multiples of the grid that the icons are drawn on. A quarter of the icon is what a round
/// or slanted line may have in common with a straight one.
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
