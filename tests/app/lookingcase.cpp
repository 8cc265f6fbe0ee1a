// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "lookingcase.h"

#include "kelaboutwindow.h"
#include "windowsystem.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace Dezimo;

/// Types values and calculates them at four digits. Calculating again from any of the results would
/// give other values: for example a mismatch loss of 0.18 dB also fits a return loss of 13.91 dB.
void LookingCase::fillModules()
{
    m_profile.setDecimalPlaces(kDigits);

    m_profile.dbmCalculator().setInput(QStringLiteral("10dBm+3.1mW"));
    m_profile.dbmCalculator().setOutputUnit(1);
    m_profile.dbmCalculator().calculate();
    VoltageCalculatorProfile &voltages = m_profile.voltageCalculator();
    voltages.setInput(QStringLiteral("300mV+400mV"));
    voltages.setMode(1);
    voltages.setPhase(45.5);
    voltages.calculate();

    m_profile.unitConverter().setImpedance(QStringLiteral("75"));
    m_profile.unitConverter().setLinPower(QStringLiteral("12.345"));
    m_profile.unitConverter().calculateFromLinPower();

    DbConverterProfile &ratios = m_profile.dbConverter();
    ratios.setP2(QStringLiteral("3W"));
    ratios.setPDb(QStringLiteral("1.2345"));
    ratios.calculateFromPDb();
    ratios.setV2(QStringLiteral("7"));
    ratios.setVDb(QStringLiteral("-1.2345"));
    ratios.calculateFromVDb();

    VswrConverterProfile &mismatch = m_profile.vswrConverter();
    mismatch.setAr(QStringLiteral("14"));
    mismatch.calculateFromAr();
    mismatch.setPForwardUnit(2);
    mismatch.setPForward(QStringLiteral("10"));
    mismatch.calculateFromPForward();
    mismatch.setVForwardUnit(2);
    mismatch.setVForward(QStringLiteral("10"));
    mismatch.calculateFromVForward();
}

void LookingCase::openPage(int page)
{
    fillModules();
    m_profile.setCurrentModule(page);
    {
        QSettings settings;
        m_profile.saveSettings(settings);
    }
    openWindow();
}

QList<QLineEdit *> LookingCase::shownFields() const
{
    QList<QLineEdit *> fields;
    const QList<QLineEdit *> all = page().findChildren<QLineEdit *>();
    for (QLineEdit *field : all) {
        if (field->isVisible() && field->isEnabled())
            fields.append(field);
    }
    return fields;
}

void LookingCase::closePopup()
{
    QWidget *popup = QApplication::activePopupWidget();
    QVERIFY(popup);
    QTest::keyClick(popup, Qt::Key_Escape);
}

void LookingCase::visitEveryOtherPage()
{
    auto *list = child<QListWidget>("menuItemsWidget");
    const int start = list->currentRow();
    for (int step = 1; step <= kPages; ++step) {
        QListWidgetItem *row = list->item((start + step) % kPages);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(row).center());
        QCoreApplication::processEvents();
    }
    QCOMPARE(list->currentRow(), start);
}

/// On every tab of the page.
void LookingCase::clickEveryField()
{
    const auto *tabs = page().findChild<QTabWidget *>();
    const int start = tabs ? tabs->currentIndex() : 0;
    for (int step = 0; step <= (tabs ? tabs->count() : 0); ++step) {
        if (tabs) {
            const int tab = (start + step) % tabs->count();
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {},
                              tabs->tabBar()->tabRect(tab).center());
            QCOMPARE(tabs->currentIndex(), tab);
        }
        const QList<QLineEdit *> fields = shownFields();
        QVERIFY(!fields.isEmpty());
        for (QLineEdit *field : fields)
            QTest::mouseClick(field, Qt::LeftButton);
    }
}

void LookingCase::openEveryMenu()
{
    QMenuBar *bar = m_window->menuBar();
    const QList<QAction *> menus = bar->actions();
    for (QAction *menu : menus) {
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu).center());
        QVERIFY(menu->menu()->isVisible());
        QTest::keyClick(menu->menu(), Qt::Key_Down);
        QTest::keyClick(menu->menu(), Qt::Key_Right);
        while (QApplication::activePopupWidget())
            closePopup();
        QTest::keyClick(bar, Qt::Key_Escape);
    }
}

void LookingCase::minimizeAndRestore()
{
    m_window->showMinimized();
    QCoreApplication::processEvents();
    // A Wayland compositor decides when a window comes back, so the test does not wait there.
    const auto comesBack = [this] {
        m_window->showNormal();
        m_window->activateWindow();
        return !hasScreenPositions() || waitForKeyboard(*m_window);
    };
    // A busy window system may hide the window only after that. Then a person asks for it again.
    QVERIFY(comesBack() || comesBack());
}

void LookingCase::activateAnotherWindow()
{
    {
        QWidget another;
        another.show();
        another.activateWindow();
        QVERIFY(waitForKeyboard(another));
    }
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
}

void LookingCase::openAbout()
{
    child<QAction>("actionAbout")->trigger();
    auto *about = m_window->findChild<KelAboutWindow *>();
    QVERIFY(about);
    about->activateWindow();
    QVERIFY(waitForKeyboard(*about));
    about->close();
    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
}

void LookingCase::saveToAFile()
{
    QTimer untilItIsThere;
    connect(&untilItIsThere, &QTimer::timeout, m_window.get(), [this] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog && !m_window->isActiveWindow()) {
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(savedFile());
            static_cast<QDialog *>(dialog)->accept();
        }
    });
    untilItIsThere.start(0);
    QFile::remove(savedFile());
    child<QAction>("actionSave")->trigger();
    QVERIFY(QFile::exists(savedFile()));
}
