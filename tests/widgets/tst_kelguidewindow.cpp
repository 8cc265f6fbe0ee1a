// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelguidewindow.h"
#include "resources.h"
#include "table.h"
#include "testmain.h"

#include <QApplication>
#include <QIcon>
#include <QTest>
#include <QToolButton>

/// What the window shows around its page. tst_guidewindow tests it as a part of the program.
class KelGuideWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theButtonsShowWhereTheyGo_data();
    void theButtonsShowWhereTheyGo();
};

namespace {

QImage drawing(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

void KelGuideWindowTest::initTestCase()
{
    initDezimoResources();
}

void KelGuideWindowTest::theButtonsShowWhereTheyGo_data()
{
    columns<QString, int, QString>({"button", "theme", "arrow"});
    row("back, in the bright theme", "previousButton", int(Bright), "Up_16_bright");
    row("on, in the bright theme", "nextButton", int(Bright), "Down_16_bright");
    row("back, in the dark theme", "previousButton", int(Dark), "Up_16_dark");
    row("on, in the dark theme", "nextButton", int(Dark), "Down_16_dark");
}

/// The theme that was there before leaves nothing behind.
void KelGuideWindowTest::theButtonsShowWhereTheyGo()
{
    QFETCH(QString, button);
    QFETCH(int, theme);
    QFETCH(QString, arrow);

    KelGuideWindow window;
    const auto *shown = window.findChild<QToolButton *>(button);
    const QString word = themeWord(ApplicationTheme(theme));
    const QIcon expected(
        QStringLiteral(":/Global/Icons_SVG/%1/Icon_Arrow_%2.svg").arg(word, arrow));
    QVERIFY(!drawing(expected).isNull());
    window.onThemeChanged(theme == Dark ? Bright : Dark);
    QVERIFY(drawing(shown->icon()) != drawing(expected));
    window.onThemeChanged(ApplicationTheme(theme));
    QCOMPARE(drawing(shown->icon()), drawing(expected));
}

DEZIMO_TEST_MAIN(QApplication, KelGuideWindowTest)

#include "tst_kelguidewindow.moc"
