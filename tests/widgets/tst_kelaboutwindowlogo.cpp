// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "fakeosinfo.h"
#include "kelaboutwindow.h"
#include "resources.h"
#include "testmain.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>
#include <QTest>

/// The logo on a screen whose pixels are 1.27 times finer than the window's units.
class KelAboutWindowLogoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void isDrawnInTheScreensPixels();
    void isDrawnForTheTheme_data();
    void isDrawnForTheTheme();
    void staysEmptyWithoutADrawing();

private:
    QPixmap logo() const;

    FakeFacts m_facts;
    std::unique_ptr<KelAboutWindow> m_window;
};

namespace {

QImage drawing(const QString &path, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

} // namespace

// The resource macros must not stand inside a class or a namespace.
static void removeIcons()
{
    Q_CLEANUP_RESOURCE(themes);
}

void KelAboutWindowLogoTest::initTestCase()
{
    initDezimoResources();
    QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), 1.27);
}

void KelAboutWindowLogoTest::init()
{
    m_window = std::make_unique<KelAboutWindow>(KelAboutWindow::Product(),
                                                std::make_unique<FakeOsInfo>(m_facts));
}

void KelAboutWindowLogoTest::cleanup()
{
    m_window.reset();
}

QPixmap KelAboutWindowLogoTest::logo() const
{
    return m_window->findChild<QLabel *>(QStringLiteral("bg_image"))->pixmap(Qt::ReturnByValue);
}

void KelAboutWindowLogoTest::isDrawnInTheScreensPixels()
{
    QCOMPARE(m_window->findChild<QLabel *>(QStringLiteral("bg_image"))->size(), QSize(120, 48));
    // 120 * 1.27 = 152.4 and 48 * 1.27 = 60.96, rounded to the nearest pixel
    QCOMPARE(logo().size(), QSize(152, 61));
    QCOMPARE(logo().devicePixelRatio(), 1.27);
}

void KelAboutWindowLogoTest::isDrawnForTheTheme_data()
{
    QTest::addColumn<QVector<int>>("themes");
    QTest::addColumn<QString>("file");

    QTest::newRow("bright at first") << QVector<int>() << "Kelmark_48_bright";
    QTest::newRow("dark") << QVector<int>{Dark} << "Kelmark_48_dark";
    QTest::newRow("bright again") << QVector<int>{Dark, Bright} << "Kelmark_48_bright";
}

void KelAboutWindowLogoTest::isDrawnForTheTheme()
{
    QFETCH(QVector<int>, themes);
    QFETCH(QString, file);

    for (const int theme : themes)
        m_window->onThemeChanged(ApplicationTheme(theme));
    const QString path = QStringLiteral(":/Global/Icons_SVG/custom/%1.svg").arg(file);
    QImage image = logo().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.0);
    QCOMPARE(image, drawing(path, QSize(152, 61)));
}

/// This must run last because it removes the icons.
void KelAboutWindowLogoTest::staysEmptyWithoutADrawing()
{
    removeIcons();
    m_window->onThemeChanged(Dark);
    QImage empty(152, 61, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    QImage image = logo().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.0);
    QCOMPARE(image, empty);
}

DEZIMO_TEST_MAIN(QApplication, KelAboutWindowLogoTest)

#include "tst_kelaboutwindowlogo.moc"
