// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "lookingcase.h"
#include "table.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QSettings>
#include <QTest>
#include <QVector>
#include <QWheelEvent>

/// Looking does not edit: whatever a person does without typing, every value stays the same.
class LookingTest : public LookingCase
{
    Q_OBJECT

private Q_SLOTS:
    void lookingKeepsEveryValue_data();
    void lookingKeepsEveryValue();

private:
    using Values = QMap<QString, QString>;
    struct Way
    {
        const char *name;
        void (LookingTest::*go)();
        bool visitsEveryField;
    };
    static const QVector<Way> &ways();

    Values shownValues() const;
    Values savedValues() const;
    static Values moduleValues(const QSettings &store);
    static void forgetSecondOperands(Values *values);

    void doNothing() {}
    void goRound(Qt::Key key, Qt::KeyboardModifiers held);
    void tabAllRound() { goRound(Qt::Key_Tab, Qt::NoModifier); }
    void tabBackAllRound() { goRound(Qt::Key_Backtab, Qt::ShiftModifier); }
    void openEveryUnitList();
    void turnTheWheelOverEverySelector();
    void changeTheDecimalPlaces();
    void resizeTheWindow();
    void expandTheList();
};

namespace {

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
    return moduleValues(QSettings(savedFile(), QSettings::IniFormat));
}

/// Removes the values that are calculated again whenever the cursor leaves P2 or V2.
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

/// Turns the wheel as if to scroll the page in a small window.
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

void LookingTest::changeTheDecimalPlaces()
{
    auto *menu = child<QMenu>("menuDecimal_Places");
    Q_EMIT menu->aboutToShow();
    menu->actions().at(kDigits + 2)->trigger();
    QCOMPARE(m_profile.decimalPlaces(), kDigits + 2);
    // The cursor also enters and leaves a field after the change.
    if (!qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        QFAIL("no field has the focus");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
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
    columns<int, int>({"page", "way"});
    const char *const pages[kPages] = {"dBm calculator", "voltage calculator", "unit converter",
                                       "dB converter", "VSWR converter"};
    for (int page = 0; page < kPages; ++page) {
        for (int way = 0; way < ways().size(); ++way)
            QTest::addRow("%s: %s", pages[page], ways().at(way).name) << page << way;
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
    CalculationFiles::save(m_profile, savedFile());
    Values shownThen = shownValues();
    m_window->close();
    m_window.reset();
    Values storedThen = moduleValues(QSettings());
    Values savedThen = savedValues();

    // These ways lead the cursor to P2 or V2, and so does the arrow from P1.
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

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return runTestMain<KelApplication, LookingTest>(argc, argv, true);
}

#include "tst_looking.moc"
