// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "kellineedit.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <functional>

using namespace Dezimo;

/// Looking is no editing: whatever a person does without typing, every value stays what it was. An
/// edit, however, is finished whatever the person does next.
class LookingTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void lookingKeepsEveryValue_data();
    void lookingKeepsEveryValue();
    void anEditIsFinishedOnce_data();
    void anEditIsFinishedOnce();
    void menusOfFieldsHaveTheFontOfMenus();

private:
    using Values = QMap<QString, QString>;
    struct Way
    {
        const char *name;
        void (LookingTest::*go)();
        bool visitsEveryField;
    };
    static const QVector<Way> &ways();
    static const QVector<Way> &leavings();

    void fillModules();
    void openPage(int page);
    QWidget &page() const { return *child<QStackedWidget>("stackedWidget")->currentWidget(); }
    QList<QLineEdit *> shownFields() const;
    Values shownValues() const;
    Values savedValues() const;
    static Values moduleValues(const QSettings &store);
    static void forgetSecondOperands(Values *values);

    QFont fontOfContextMenu(QWidget &field);

    void doNothing() {}
    void visitEveryOtherPage();
    void goRound(Qt::Key key, Qt::KeyboardModifiers held);
    void tabAllRound() { goRound(Qt::Key_Tab, Qt::NoModifier); }
    void tabBackAllRound() { goRound(Qt::Key_Backtab, Qt::ShiftModifier); }
    void clickEveryField();
    void openEveryMenu();
    void openEveryUnitList();
    void turnTheWheelOverEverySelector();
    void minimizeAndRestore();
    void activateAnotherWindow();
    void openAbout();
    void changeTheDecimalPlaces();
    void saveToAFile();
    void resizeTheWindow();
    void expandTheList();

    void leaveByTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    void leaveByQuit() { child<QAction>("actionQuit")->trigger(); }
    void leaveByClosing() { m_window->close(); }
    void leaveByTheEndOfTheWindow() { m_window.reset(); }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("saved.dezimo"));
};

namespace {

constexpr int kPages = 5;
constexpr int kDbConverter = 3;

/// Digits of the values that are typed; results are rounded to them.
constexpr int kDigits = 4;

void closePopup()
{
    QWidget *popup = QApplication::activePopupWidget();
    QVERIFY(popup);
    QTest::keyClick(popup, Qt::Key_Escape);
}

QString nameWithPage(const QWidget *widget)
{
    QStringList names;
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (!widget->objectName().isEmpty())
            names.prepend(widget->objectName());
    }
    return names.join(QLatin1Char('/'));
}

} // namespace

const QVector<LookingTest::Way> &LookingTest::ways()
{
    using Test = LookingTest;
    static const QVector<Way> all{
        {"start and quit", &Test::doNothing, false},
        {"every other page and back", &Test::visitEveryOtherPage, false},
        {"Tab all round", &Test::tabAllRound, true},
        {"Shift+Tab all round", &Test::tabBackAllRound, true},
        {"a click into every field", &Test::clickEveryField, true},
        {"every menu opened and closed", &Test::openEveryMenu, false},
        {"every list of units opened and closed", &Test::openEveryUnitList, false},
        {"the wheel over every selector", &Test::turnTheWheelOverEverySelector, false},
        {"minimized and restored", &Test::minimizeAndRestore, false},
        {"another window and back", &Test::activateAnotherWindow, false},
        {"About opened and closed", &Test::openAbout, false},
        {"other decimal places", &Test::changeTheDecimalPlaces, false},
        {"saved to a file", &Test::saveToAFile, false},
        {"resized", &Test::resizeTheWindow, false},
        {"the list expanded", &Test::expandTheList, false},
    };
    return all;
}

/// Each leads out of the field that is edited.
const QVector<LookingTest::Way> &LookingTest::leavings()
{
    using Test = LookingTest;
    static const QVector<Way> all{
        {"by Tab", &Test::leaveByTab, false},
        {"by another field", &Test::clickEveryField, true},
        {"by another page", &Test::visitEveryOtherPage, false},
        {"by a menu", &Test::openEveryMenu, false},
        {"by another window", &Test::activateAnotherWindow, false},
        {"by minimizing", &Test::minimizeAndRestore, false},
        {"by About", &Test::openAbout, false},
        {"by Save...", &Test::saveToAFile, false},
        {"by Quit", &Test::leaveByQuit, false},
        {"by closing the window", &Test::leaveByClosing, false},
        {"by the end of the window", &Test::leaveByTheEndOfTheWindow, false},
    };
    return all;
}

/// Typed and calculated at four digits. To calculate again from any of the results would show: a
/// mismatch loss of 0.18 dB belongs to a return loss of 13.91 dB as well.
void LookingTest::fillModules()
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

/// As a new session finds the values.
void LookingTest::openPage(int page)
{
    fillModules();
    m_profile.setCurrentModule(page);
    {
        QSettings settings;
        m_profile.saveSettings(settings);
    }
    openWindow();
}

QList<QLineEdit *> LookingTest::shownFields() const
{
    QList<QLineEdit *> fields;
    const QList<QLineEdit *> all = page().findChildren<QLineEdit *>();
    for (QLineEdit *field : all) {
        if (field->isVisible() && field->isEnabled())
            fields.append(field);
    }
    return fields;
}

LookingTest::Values LookingTest::shownValues() const
{
    Values values;
    const QList<QLineEdit *> fields = m_window->findChildren<QLineEdit *>();
    for (const QLineEdit *field : fields)
        values.insert(nameWithPage(field), field->text());
    const QList<QComboBox *> selectors = m_window->findChildren<QComboBox *>();
    for (const QComboBox *selector : selectors)
        values.insert(nameWithPage(selector), selector->currentText());
    const QList<QAbstractButton *> buttons = m_window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isCheckable())
            values.insert(nameWithPage(button) + button->text(),
                          button->isChecked() ? QStringLiteral("checked") : QString());
    }
    return values;
}

LookingTest::Values LookingTest::moduleValues(const QSettings &store)
{
    Values values;
    const QStringList keys = store.allKeys();
    for (const QString &key : keys) {
        if (!key.startsWith(QStringLiteral("MainProfile/")))
            values.insert(key, store.value(key).toString());
    }
    return values;
}

LookingTest::Values LookingTest::savedValues() const
{
    return moduleValues(QSettings(m_file, QSettings::IniFormat));
}

/// What every leaving of P2 and V2 calculates anew.
void LookingTest::forgetSecondOperands(Values *values)
{
    const QStringList keys = values->keys();
    for (const QString &key : keys) {
        for (const char *end : {"pRatio", "pDb", "pLatestRun", "vRatio", "vDb", "vLatestRun",
                                "pRatioLineEdit", "pDbLineEdit", "vRatioLineEdit", "vDbLineEdit"}) {
            if (key.contains(QStringLiteral("bConverter")) && key.endsWith(QLatin1String(end)))
                values->remove(key);
        }
    }
}

void LookingTest::visitEveryOtherPage()
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

void LookingTest::goRound(Qt::Key key, Qt::KeyboardModifiers held)
{
    constexpr int kMoreStopsThanAnyPageHas = 60;
    const QWidget *const start = QApplication::focusWidget();
    for (int i = 0; i < kMoreStopsThanAnyPageHas; ++i) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
        if (QApplication::focusWidget() == start)
            return;
    }
    QFAIL("the way does not lead round");
}

/// On every tab of the page.
void LookingTest::clickEveryField()
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

void LookingTest::openEveryMenu()
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

void LookingTest::openEveryUnitList()
{
    const QList<QComboBox *> selectors = page().findChildren<QComboBox *>();
    for (QComboBox *selector : selectors) {
        if (!selector->isVisible())
            continue;
        QTest::mouseClick(selector, Qt::LeftButton);
        closePopup();
    }
}

/// As when the page is scrolled in a small window.
void LookingTest::turnTheWheelOverEverySelector()
{
    const QList<QComboBox *> selectors = page().findChildren<QComboBox *>();
    for (QComboBox *selector : selectors) {
        const QPointF middle = selector->rect().center();
        QWheelEvent down(middle, selector->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, -120),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(selector, &down);
    }
}

void LookingTest::minimizeAndRestore()
{
    m_window->showMinimized();
    QCoreApplication::processEvents();
    m_window->showNormal();
    m_window->activateWindow();
    // A compositor of Wayland brings windows back in its own time.
    if (hasScreenPositions())
        QVERIFY(waitForKeyboard(*m_window));
}

void LookingTest::activateAnotherWindow()
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

void LookingTest::openAbout()
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

void LookingTest::changeTheDecimalPlaces()
{
    auto *menu = child<QMenu>("menuDecimal_Places");
    Q_EMIT menu->aboutToShow();
    menu->actions().at(kDigits + 2)->trigger();
    QCOMPARE(m_profile.decimalPlaces(), kDigits + 2);
    // the fields are entered and left after the change, too
    if (!qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        QFAIL("no field has the focus");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
}

void LookingTest::saveToAFile()
{
    QTimer untilItIsThere;
    connect(&untilItIsThere, &QTimer::timeout, m_window.get(), [this] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog && !m_window->isActiveWindow()) {
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(m_file);
            static_cast<QDialog *>(dialog)->accept();
        }
    });
    untilItIsThere.start(0);
    QFile::remove(m_file);
    child<QAction>("actionSave")->trigger();
    QVERIFY(QFile::exists(m_file));
}

void LookingTest::resizeTheWindow()
{
    const QSize before = m_window->size();
    for (const QSize &size : {QSize(1400, 900), QSize(600, 413), before}) {
        m_window->resize(size);
        QCoreApplication::processEvents();
    }
}

void LookingTest::expandTheList()
{
    for (const int width : {160, 40}) {
        QTest::mouseClick(child("changeWindowModeButton"), Qt::LeftButton);
        QTRY_COMPARE(child("menuWidget")->minimumWidth(), width);
    }
}

void LookingTest::lookingKeepsEveryValue_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("way");

    const QStringList pages{QStringLiteral("dBm calculator"), QStringLiteral("voltage calculator"),
                            QStringLiteral("unit converter"), QStringLiteral("dB converter"),
                            QStringLiteral("VSWR converter")};
    for (int page = 0; page < kPages; ++page) {
        for (int way = 0; way < ways().size(); ++way)
            QTest::addRow("%s: %s", qPrintable(pages.at(page)), ways().at(way).name) << page << way;
    }
}

void LookingTest::lookingKeepsEveryValue()
{
    QFETCH(int, page);
    QFETCH(int, way);

    openPage(page);
    Values shown = shownValues();
    Values stored = moduleValues(QSettings());
    QVERIFY(!shown.key(QStringLiteral("0.1995")).isEmpty());
    QVERIFY(!stored.key(QStringLiteral("0.1995")).isEmpty());

    (this->*ways().at(way).go)();
    if (QTest::currentTestFailed())
        return;
    CalculationFiles::save(m_profile, m_file);
    Values shownThen = shownValues();
    m_window->close();
    m_window.reset();
    Values storedThen = moduleValues(QSettings());
    Values savedThen = savedValues();

    // The cursor comes to P2 or V2 by these ways, and by the arrow from P1.
    if (page == kDbConverter) {
        for (Values *values : {&shown, &shownThen, &stored, &storedThen, &savedThen}) {
            if (ways().at(way).visitsEveryField ||
                ways().at(way).go == &LookingTest::changeTheDecimalPlaces)
                forgetSecondOperands(values);
        }
    }
    QCOMPARE(shownThen, shown);
    QCOMPARE(storedThen, stored);
    QCOMPARE(savedThen, stored);
}

void LookingTest::anEditIsFinishedOnce_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("result");
    QTest::addColumn<int>("leaving");

    for (int i = 0; i < leavings().size(); ++i) {
        const char *name = leavings().at(i).name;
        // 10 log10 20 = 13.01; 4 W / 3 W; 20 log10 0.5 = -6.02
        QTest::addRow("a power, left %s", name) << 2 << "wattLineEdit"
                                                << "20"
                                                << "UnitConverterProfile/logPower"
                                                << "13.01" << i;
        QTest::addRow("a first operand, left %s", name) << kDbConverter << "p1LineEdit"
                                                        << "4W"
                                                        << "DbConverterProfile/pRatio"
                                                        << "1.333" << i;
        QTest::addRow("a reflection coefficient, left %s", name) << 4 << "rLineEdit"
                                                                 << "0.5"
                                                                 << "VswrConverterProfile/ar"
                                                                 << "6.02" << i;
    }
}

void LookingTest::anEditIsFinishedOnce()
{
    QFETCH(int, page);
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, key);
    QFETCH(QString, result);
    QFETCH(int, leaving);

    openPage(page);
    auto *edit = m_window->findChild<KelLineEdit *>(field);
    QSignalSpy finished(edit, &QLineEdit::editingFinished);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    QCOMPARE(finished.count(), 0);
    (this->*leavings().at(leaving).go)();
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 1);
    if (m_window)
        m_window->close();
    m_window.reset();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(QSettings().value(key).toString(), result);
}

/// A spin box waits in its own event handler until its menu is closed.
QFont LookingTest::fontOfContextMenu(QWidget &field)
{
    QFont font;
    bool isShown = false;
    QTimer untilItIsThere;
    connect(&untilItIsThere, &QTimer::timeout, m_window.get(), [&] {
        if (!QApplication::activePopupWidget())
            return;
        font = QApplication::activePopupWidget()->font();
        isShown = true;
        closePopup();
    });
    untilItIsThere.start(0);
    const QPoint middle = field.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, field.mapToGlobal(middle));
    QCoreApplication::sendEvent(&field, &event);
    return QTest::qWaitFor([&isShown] { return isShown; }) ? font : QFont();
}

void LookingTest::menusOfFieldsHaveTheFontOfMenus()
{
    for (int page = 0; page < kPages; ++page) {
        openPage(page);
        auto *expected = child<QMenu>("menuFile");
        expected->ensurePolished();
        const QList<QLineEdit *> fields = shownFields();
        for (QLineEdit *field : fields)
            QCOMPARE(fontOfContextMenu(*field).toString(), expected->font().toString());
        m_window.reset();
    }
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return runTestMain<KelApplication, LookingTest>(argc, argv, true);
}

#include "tst_looking.moc"
