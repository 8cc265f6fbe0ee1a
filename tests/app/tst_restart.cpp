// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QSpinBox>
#include <QTest>

using namespace Dezimo;

/// A main window shows what the last one left in the settings.
class RestartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theNextWindowShowsWhatTheLastOneHeld();
    void theNextWindowShowsEveryPageAsItWas();
    void theSettingsHoldTheWindowGroup();
};

void RestartTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

namespace {

constexpr char kDbm[] = "dbmCalculatorWidget";
constexpr char kVoltage[] = "voltageCalculatorWidget";
constexpr char kUnits[] = "unitConverterWidget";
constexpr char kVswr[] = "vswrConverterWidget";

/// Sets the profile of this process to the defaults, with which a new process starts.
void forgetEverything()
{
    QSettings none(QStringLiteral("none"), QString());
    MainProfile::instance().loadSettings(none);
}

/// Looks on the page @p page only, because the two calculators use the same names.
template <typename Widget>
Widget &find(const QWidget &window, const char *page, const char *name)
{
    const auto *parent = window.findChild<QWidget *>(QLatin1String(page));
    auto *found = parent ? parent->findChild<Widget *>(QLatin1String(name)) : nullptr;
    if (!found)
        qFatal("%s has no %s", page, name);
    return *found;
}

void type(QWidget &field, const char *text)
{
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

/// Makes a result in each calculator and finishes one field in each of two converters.
void usePages(const QWidget &window)
{
    find<QComboBox>(window, kDbm, "calcModeComboBox").setCurrentIndex(1);
    type(find<QLineEdit>(window, kDbm, "inputLineEdit"), "10dBm+10dBm-3dB");

    find<QComboBox>(window, kVoltage, "calcModeComboBox").setCurrentIndex(1);
    find<QSpinBox>(window, kVoltage, "phaseSpinBox").setValue(90);
    type(find<QLineEdit>(window, kVoltage, "inputLineEdit"), "300mV+400mV");
    find<QComboBox>(window, kVoltage, "outputUnitComboBox").setCurrentIndex(1);

    auto &level = find<QLineEdit>(window, kUnits, "dbmLineEdit");
    type(level, "13");
    QTest::keyClick(&level, Qt::Key_Return);

    auto &vswr = find<QLineEdit>(window, kVswr, "vswrLineEdit");
    type(vswr, "2");
    QTest::keyClick(&vswr, Qt::Key_Return);
}

} // namespace

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
    forgetEverything();

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

void RestartTest::theNextWindowShowsEveryPageAsItWas()
{
    {
        MainWindow window;
        window.show();
        usePages(window);
        window.findChild<QAction *>(QStringLiteral("actionQuit"))->trigger();
    }
    forgetEverything();

    const MainWindow window;
    const auto text = [&window](const char *page, const char *name) {
        return find<QLineEdit>(window, page, name).text();
    };
    const auto choice = [&window](const char *page, const char *name) {
        return find<QComboBox>(window, page, name).currentText();
    };
    QCOMPARE(text(kDbm, "inputLineEdit"), QStringLiteral("10dBm+10dBm-3dB"));
    // In phase, a combiner makes (sqrt(10) + sqrt(10))^2 / 2 = 20 mW of them: 13.01 - 3.
    QCOMPARE(text(kDbm, "outputLineEdit"), QStringLiteral("10.01"));
    QCOMPARE(choice(kDbm, "outputUnitComboBox"), QStringLiteral("dBm"));
    QCOMPARE(find<QComboBox>(window, kDbm, "calcModeComboBox").currentIndex(), 1);

    // at right angles: sqrt(0.3^2 + 0.4^2)
    QCOMPARE(text(kVoltage, "inputLineEdit"), QStringLiteral("300mV+400mV"));
    QCOMPARE(text(kVoltage, "outputLineEdit"), QStringLiteral("0.5"));
    QCOMPARE(choice(kVoltage, "outputUnitComboBox"), QStringLiteral("V"));
    QCOMPARE(choice(kVoltage, "calcModeComboBox"), QStringLiteral("Correlated Voltages"));
    QCOMPARE(find<QSpinBox>(window, kVoltage, "phaseSpinBox").value(), 90);

    // 10^1.3 = 19.9526 mW, sqrt(0.0199526 * 50) = 0.998815 V
    QCOMPARE(text(kUnits, "dbmLineEdit"), QStringLiteral("13"));
    QCOMPARE(text(kUnits, "wattLineEdit"), QStringLiteral("20"));
    QCOMPARE(text(kUnits, "voltLineEdit"), QStringLiteral("999"));
    QCOMPARE(text(kUnits, "dbvLineEdit"), QStringLiteral("-0.01"));
    QCOMPARE(text(kUnits, "impedanceLineEdit"), QStringLiteral("50"));

    // 1 / 3, 1 / 9 in percent, -10 log10(8 / 9); the return loss is meant to stay empty
    QCOMPARE(text(kVswr, "vswrLineEdit"), QStringLiteral("2"));
    QCOMPARE(text(kVswr, "rLineEdit"), QStringLiteral("0.333"));
    QCOMPARE(text(kVswr, "r2LineEdit"), QStringLiteral("11.1"));
    QCOMPARE(text(kVswr, "arLineEdit"), QString());
    QCOMPARE(text(kVswr, "amLineEdit"), QStringLiteral("0.51"));
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
