// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"

#include <QListWidget>
#include <QPropertyAnimation>
#include <QTest>
#include <QToolButton>

class MainWindowListModeTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void theModeButtonExpandsAndCompactsTheList();
    void theStoredModeIsAppliedWithoutAnimation_data();
    void theStoredModeIsAppliedWithoutAnimation();
    void modeAnimationsTakeTwoHundredMilliseconds();
    void theModeButtonSaysWhatItDoes();
    void compactListShowsNoTexts();
};

void MainWindowListModeTest::theModeButtonExpandsAndCompactsTheList()
{
    openWindow();
    auto *button = child<QToolButton>("changeWindowModeButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_profile.windowMode(), 1);
    QTRY_COMPARE(child("menuWidget")->width(), 160);
    QTRY_COMPARE(child("headerWidget")->maximumHeight(), 0);
    QTRY_COMPARE(child("menuPlaceholder")->maximumHeight(), 22);
    QCOMPARE(child("menuWidget")->x(), 0);

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_profile.windowMode(), 0);
    QTRY_COMPARE(child("menuWidget")->width(), 40);
    QTRY_COMPARE(child("headerWidget")->maximumHeight(), 22);
    QTRY_COMPARE(child("menuPlaceholder")->maximumHeight(), 0);
}

void MainWindowListModeTest::theStoredModeIsAppliedWithoutAnimation_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("listWidth");
    QTest::addColumn<int>("headerHeight");
    QTest::addColumn<int>("placeholderHeight");

    QTest::newRow("0 is the compact list") << 0 << 40 << 22 << 0;
    QTest::newRow("1 is the expanded list") << 1 << 160 << 0 << 22;
    QTest::newRow("any other number is the expanded list") << 7 << 160 << 0 << 22;
    QTest::newRow("a negative number is expanded without the placeholder") << -1 << 160 << 0 << 0;
}

void MainWindowListModeTest::theStoredModeIsAppliedWithoutAnimation()
{
    QFETCH(int, mode);

    store("windowMode", mode);
    m_window = std::make_unique<MainWindow>();
    QTEST(child("menuWidget")->minimumWidth(), "listWidth");
    QTEST(child("headerWidget")->maximumHeight(), "headerHeight");
    QTEST(child("menuPlaceholder")->maximumHeight(), "placeholderHeight");
    QVERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
}

void MainWindowListModeTest::modeAnimationsTakeTwoHundredMilliseconds()
{
    openWindow();
    QTest::mouseClick(child("changeWindowModeButton"), Qt::LeftButton);
    const QList<QPropertyAnimation *> animations = m_window->findChildren<QPropertyAnimation *>();
    QCOMPARE(animations.size(), 3);
    for (const QPropertyAnimation *animation : animations)
        QCOMPARE(animation->duration(), 200);
    QTRY_VERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
}

void MainWindowListModeTest::theModeButtonSaysWhatItDoes()
{
    openWindow();
    auto *button = child<QToolButton>("changeWindowModeButton");
    const QImage add = button->icon().pixmap(16, 16).toImage();
    QCOMPARE(button->accessibleName(), QStringLiteral("Show module names"));
    m_profile.setWindowMode(1);
    QCOMPARE(button->accessibleName(), QStringLiteral("Hide module names"));
    QVERIFY(button->icon().pixmap(16, 16).toImage() != add);
    m_profile.setWindowMode(0);
    QCOMPARE(button->icon().pixmap(16, 16).toImage(), add);
}

void MainWindowListModeTest::compactListShowsNoTexts()
{
    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    const QImage withTexts = list->grab().toImage();
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setText(QString());
    QCOMPARE(list->grab().toImage(), withTexts);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowListModeTest>(argc, argv, true);
}

#include "tst_mainwindowlistmode.moc"
