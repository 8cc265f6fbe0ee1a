// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelautoresizepushbutton.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

class KelAutoResizePushButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontFollowsTheSmallerSide_data();
    void fontFollowsTheSmallerSide();
    void aSizeWithoutFontIsWrittenAllTheSame();
    void replacesItsStyleSheet();
};

void KelAutoResizePushButtonTest::fontFollowsTheSmallerSide_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("fontSize");

    QTest::newRow("wider than high: half the height") << QSize(80, 30) << 15;
    QTest::newRow("higher than wide: half the width") << QSize(40, 90) << 20;
    QTest::newRow("a square") << QSize(50, 50) << 25;
    QTest::newRow("an odd side drops the remainder") << QSize(80, 33) << 16;
    QTest::newRow("the smallest side with a font") << QSize(80, 2) << 1;
}

void KelAutoResizePushButtonTest::fontFollowsTheSmallerSide()
{
    QFETCH(QSize, size);
    QFETCH(int, fontSize);

    QWidget window;
    KelAutoResizePushButton button(&window);
    window.show();
    button.show();
    button.resize(size);
    QCOMPARE(button.styleSheet(), QStringLiteral("font-size: %1px").arg(fontSize));
    QCOMPARE(button.font().pixelSize(), fontSize);
}

void KelAutoResizePushButtonTest::aSizeWithoutFontIsWrittenAllTheSame()
{
    const ExpectedMessages warnings({QStringLiteral("QFont::setPixelSize: Pixel size <= 0 (0)")});
    QWidget window;
    KelAutoResizePushButton button(&window);
    window.show();
    button.show();
    button.resize(80, 1);
    QCOMPARE(button.styleSheet(), QStringLiteral("font-size: 0px"));
    QVERIFY(warnings.count() > 0);
}

void KelAutoResizePushButtonTest::replacesItsStyleSheet()
{
    QWidget window;
    KelAutoResizePushButton button(&window);
    window.show();
    button.show();
    button.setStyleSheet(QStringLiteral("color: red"));
    button.resize(60, 40);
    QCOMPARE(button.styleSheet(), QStringLiteral("font-size: 20px"));
}

DEZIMO_TEST_MAIN(QApplication, KelAutoResizePushButtonTest)

#include "tst_kelautoresizepushbutton.moc"
