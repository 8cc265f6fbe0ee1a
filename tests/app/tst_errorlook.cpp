// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "colorcontrast.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "palette.h"
#include "table.h"
#include "testmain.h"

#include <QImage>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTest>

/// What an error word of a calculator looks like while one types, and afterwards.
class ErrorLookTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void isQuietWhileOneTypes_data();
    void isQuietWhileOneTypes();

private:
    static void apply(ApplicationTheme theme);
};

namespace {

constexpr double kText = 4.5; ///< the lowest contrast of a text, by the accessibility guidelines

QImage pictureOf(const QWidget &widget)
{
    QWidget *window = widget.window();
    return window->grab({widget.mapTo(window, QPoint()), widget.size()}).toImage();
}

int pixelsOf(const QColor &color, const QImage &picture)
{
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            pixels += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return pixels;
}

QColor colorOf(const Palette::Role &role, ApplicationTheme theme)
{
    return QColor(QLatin1String(theme == Dark ? role.dark : role.bright));
}

} // namespace

void ErrorLookTest::apply(ApplicationTheme theme)
{
    qobject_cast<KelApplication *>(qApp)->installStyleSheet(theme);
}

void ErrorLookTest::cleanup()
{
    m_window.reset();
    apply(Bright);
}

void ErrorLookTest::isQuietWhileOneTypes_data()
{
    columns<int, bool>({"module", "isDark"});
    row("dBm calculator, bright", 0, false);
    row("dBm calculator, dark", 0, true);
    row("voltage calculator, bright", 1, false);
    row("voltage calculator, dark", 1, true);
}

void ErrorLookTest::isQuietWhileOneTypes()
{
    QFETCH(int, module);
    QFETCH(bool, isDark);

    const ApplicationTheme theme = isDark ? Dark : Bright;
    apply(theme);
    openWindow();
    QMetaObject::invokeMethod(m_window.get(), "onThemeChanged", Q_ARG(ApplicationTheme, theme));
    m_profile.setCurrentModule(module);
    const QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    auto *input = page->findChild<QLineEdit *>(QStringLiteral("inputLineEdit"));
    const auto *result = page->findChild<QLineEdit *>(QStringLiteral("outputLineEdit"));
    const QColor muted = colorOf(Palette::mutedText, theme);
    const QColor error = colorOf(Palette::error, theme);

    QTest::keyClicks(input, QStringLiteral("5"));
    QImage picture = pictureOf(*result);
    QVERIFY(pixelsOf(muted, picture) > 0);
    QCOMPARE(pixelsOf(error, picture), 0);
    QVERIFY(!result->font().italic());
    QVERIFY(ColorContrast::ratio(muted, picture.pixelColor(1, 1)) >= kText);

    QTest::keyClick(input, Qt::Key_Return);
    picture = pictureOf(*result);
    QCOMPARE(pixelsOf(muted, picture), 0);
    // The bar at the left is as high as the line, but for its corners.
    const QImage bar = picture.copy(0, 0, 4, picture.height());
    QVERIFY(pixelsOf(error, bar) > 3 * picture.height());
    QVERIFY(pixelsOf(error, picture) > pixelsOf(error, bar));
    QVERIFY(result->font().italic());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, ErrorLookTest>(argc, argv, true);
}

#include "tst_errorlook.moc"
