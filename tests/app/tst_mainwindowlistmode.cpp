// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QListWidget>
#include <QPropertyAnimation>
#include <QTest>
#include <QToolButton>

#include <algorithm>

class MainWindowListModeTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void theModeButtonExpandsAndCompactsTheList();
    void theStoredModeIsAppliedWithoutAnimation_data();
    void theStoredModeIsAppliedWithoutAnimation();
    void aModeChangeAnimatesThreeProperties_data();
    void aModeChangeAnimatesThreeProperties();
    void aChangeInMidFlightTurnsAroundWhereItIs();
    void theModeButtonShowsWhatItDoes_data();
    void theModeButtonShowsWhatItDoes();
    void theModeButtonCompactsFromAnyExpandedMode();
    void compactListShowsNoTexts();

private:
    QList<QPropertyAnimation *> running() const;
    /// Each as "object.property from to".
    static QStringList inWords(const QList<QPropertyAnimation *> &animations);
};

QList<QPropertyAnimation *> MainWindowListModeTest::running() const
{
    QList<QPropertyAnimation *> animations = m_window->findChildren<QPropertyAnimation *>();
    animations.erase(std::remove_if(animations.begin(), animations.end(),
                                    [](const QPropertyAnimation *animation) {
                                        return animation->state() != QAbstractAnimation::Running;
                                    }),
                     animations.end());
    return animations;
}

QStringList MainWindowListModeTest::inWords(const QList<QPropertyAnimation *> &animations)
{
    QStringList words;
    for (const QPropertyAnimation *animation : animations)
        words += QStringLiteral("%1.%2 %3 %4")
                     .arg(animation->targetObject()->objectName(),
                          QString::fromLatin1(animation->propertyName()),
                          animation->startValue().toString(), animation->endValue().toString());
    return words;
}

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
    columns<int, int, int, int>({"mode", "listWidth", "headerHeight", "placeholderHeight"});
    row("0 is the compact list", 0, 40, 22, 0);
    row("1 is the expanded list", 1, 160, 0, 22);
    row("any other number is the expanded list", 7, 160, 0, 22);
    row("a negative number is expanded without the placeholder", -1, 160, 0, 0);
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

void MainWindowListModeTest::aModeChangeAnimatesThreeProperties_data()
{
    columns<int, int, QString, QString, QString>({"from", "to", "list", "header", "placeholder"});
    row("compact to expanded", 0, 1, "40 160", "22 0", "0 22");
    row("expanded to compact", 1, 0, "160 40", "0 22", "22 0");
    row("compact to a negative mode: the placeholder stays", 0, -1, "40 160", "22 0", "0 0");
}

void MainWindowListModeTest::aModeChangeAnimatesThreeProperties()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, list);
    QFETCH(QString, header);
    QFETCH(QString, placeholder);

    store("windowMode", from);
    openWindow();
    m_profile.setWindowMode(to);
    const QList<QPropertyAnimation *> started = running();
    for (const QPropertyAnimation *animation : started)
        QCOMPARE(animation->duration(), 200);
    QStringList found = inWords(started);
    found.sort();
    const QStringList expected{QStringLiteral("headerWidget.maximumHeight ") + header,
                               QStringLiteral("menuPlaceholder.maximumHeight ") + placeholder,
                               QStringLiteral("menuWidget.minimumWidth ") + list};
    QCOMPARE(found, expected);
    QTRY_VERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
}

void MainWindowListModeTest::aChangeInMidFlightTurnsAroundWhereItIs()
{
    openWindow();
    m_profile.setWindowMode(1);
    const QList<QPropertyAnimation *> expanding = running();
    for (QPropertyAnimation *animation : expanding)
        animation->setCurrentTime(100);
    m_profile.setWindowMode(0);

    // The animations are halfway: 40 + 120 / 2, 22 - 22 / 2, 0 + 22 / 2. The three expanding ones
    // have stopped.
    QStringList found = inWords(running());
    found.sort();
    QCOMPARE(found, QStringList({QStringLiteral("headerWidget.maximumHeight 11 22"),
                                 QStringLiteral("menuPlaceholder.maximumHeight 11 0"),
                                 QStringLiteral("menuWidget.minimumWidth 100 40")}));
    QTRY_VERIFY(m_window->findChildren<QPropertyAnimation *>().isEmpty());
    QCOMPARE(child("menuWidget")->minimumWidth(), 40);
    QCOMPARE(child("headerWidget")->maximumHeight(), 22);
    QCOMPARE(child("menuPlaceholder")->maximumHeight(), 0);
}

void MainWindowListModeTest::theModeButtonShowsWhatItDoes_data()
{
    columns<int, QString, QString>({"mode", "icon", "purpose"});
    row("0: add the names", 0, "Icon_Add_16_bright.svg", "Show module names");
    row("1: remove the names", 1, "Icon_Minus_16_bright.svg", "Hide module names");
    row("-1: remove the names", -1, "Icon_Minus_16_bright.svg", "Hide module names");
}

void MainWindowListModeTest::theModeButtonShowsWhatItDoes()
{
    QFETCH(int, mode);
    QFETCH(QString, icon);
    QFETCH(QString, purpose);

    const QIcon expected(QStringLiteral(":/Global/Icons_SVG/bright/") + icon);
    const auto check = [&] {
        const auto *button = child<QToolButton>("changeWindowModeButton");
        QCOMPARE(button->icon().pixmap(16, 16).toImage(), expected.pixmap(16, 16).toImage());
        QCOMPARE(button->accessibleName(), purpose);
        QCOMPARE(button->toolTip(), purpose);
    };
    openWindow();
    m_profile.setWindowMode(99);
    m_profile.setWindowMode(mode);
    check();

    m_window.reset();
    openWindow(); // now with the stored mode
    check();
}

void MainWindowListModeTest::theModeButtonCompactsFromAnyExpandedMode()
{
    store("windowMode", 7);
    openWindow();
    QTest::mouseClick(child("changeWindowModeButton"), Qt::LeftButton);
    QCOMPARE(m_profile.windowMode(), 0);
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
