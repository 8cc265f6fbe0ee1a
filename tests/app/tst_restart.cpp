// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QTest>

/// What one main window leaves in the settings is what the next one shows.
class RestartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theNextWindowShowsWhatTheLastOneHeld();
    void theSettingsHoldTheWindowGroup();
};

void RestartTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

void RestartTest::theNextWindowShowsWhatTheLastOneHeld()
{
    {
        MainWindow window;
        window.show();
        window.resize(941, 602);
        MainProfile::instance().setCurrentModule(3);
        auto *p1 = window.findChild<QLineEdit *>(QStringLiteral("p1LineEdit"));
        auto *p2 = window.findChild<QLineEdit *>(QStringLiteral("p2LineEdit"));
        QTest::keyClicks(p1, QStringLiteral("10dBm"));
        QTest::keyClicks(p2, QStringLiteral("0dBm"));
        QTest::keyClick(p2, Qt::Key_Return);
    }
    // A new process starts with the defaults; the profile of this one is brought to them.
    QSettings none(QStringLiteral("none"), QString());
    MainProfile::instance().loadSettings(none);

    MainWindow window;
    window.show();
    const auto text = [&window](const char *name) {
        return window.findChild<QLineEdit *>(QLatin1String(name))->text();
    };
    QCOMPARE(window.size(), QSize(941, 602));
    QCOMPARE(window.windowTitle(), QStringLiteral("Dezimo [dB Converter]"));
    QCOMPARE(text("p1LineEdit"), QStringLiteral("10dBm"));
    QCOMPARE(text("p2LineEdit"), QStringLiteral("0dBm"));
    QCOMPARE(text("pRatioLineEdit"), QStringLiteral("10"));
    QCOMPARE(text("pDbLineEdit"), QStringLiteral("10.00"));
}

void RestartTest::theSettingsHoldTheWindowGroup()
{
    MainProfile &profile = MainProfile::instance();
    {
        MainWindow window;
        window.show();
        window.move(40, 50);
        window.resize(970, 640);
        profile.setWindowMode(1);
        profile.setCurrentModule(2);
        profile.setDecimalPlaces(7);
    }
    QSettings settings;
    settings.beginGroup(QStringLiteral("MainProfile"));
    QCOMPARE(settings.value(QStringLiteral("windowPosition")).toPoint(), QPoint(40, 50));
    QCOMPARE(settings.value(QStringLiteral("windowSize")).toSize(), QSize(970, 640));
    QCOMPARE(settings.value(QStringLiteral("windowMode")).toInt(), 1);
    QCOMPARE(settings.value(QStringLiteral("currentModule")).toInt(), 2);
    QCOMPARE(settings.value(QStringLiteral("decimalPlaces")).toInt(), 7);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, RestartTest>(argc, argv, true);
}

#include "tst_restart.moc"
