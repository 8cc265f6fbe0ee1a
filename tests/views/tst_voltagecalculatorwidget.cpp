// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

using namespace Dezimo;

class VoltageCalculatorWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void offersUnitsAndModes();
    void aKeyTypesItsTextAtTheCursor_data();
    void aKeyTypesItsTextAtTheCursor();
    void everyKeyIsNamedAndTakesNoFocus();
    void backspaceAndClear();
    void resultFollowsEveryKeystroke();
    void choosesTheUnit();
    void choosesTheMode();
    void aPlainNumberHidesTheSelector();
    void offersWhatMakesSense();
    void takesOverTheResult();
    void showsALoadedStateAsItWasStored_data();
    void showsALoadedStateAsItWasStored();

    void phaseIsInWholeDegrees();
    void aTypedPhaseCalculates();
    void aPhaseWithoutAResultCalculatesNothing();
    void aMirroredPhaseCalculatesNothing_data();
    void aMirroredPhaseCalculatesNothing();
    void canBeDestroyedWithTheFocusInAField_data();
    void canBeDestroyedWithTheFocusInAField();

private:
    VoltageCalculatorProfile &m_profile = MainProfile::instance().voltageCalculator();
};

namespace {

CalculatorPage shownPage()
{
    return CalculatorPage::shown<VoltageCalculatorWidget>();
}

QSpinBox &phaseOf(const CalculatorPage &page)
{
    return page.find<QSpinBox>("phaseSpinBox");
}

} // namespace

void VoltageCalculatorWidgetTest::initTestCase()
{
    // In the program's locale the phase never has the digits of the system's language.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::AnyCountry));
    applyStyleSheet();
}

void VoltageCalculatorWidgetTest::init()
{
    loadDefaults();
}

void VoltageCalculatorWidgetTest::offersUnitsAndModes()
{
    const CalculatorPage page = shownPage();
    const QStringList units{QStringLiteral("mV"), QStringLiteral("V")};
    const QStringList modes{QStringLiteral("Uncorrelated Voltages"),
                            QStringLiteral("Correlated Voltages"), QStringLiteral("Peak Voltages")};

    QCOMPARE(page.texts(page.unit()), units);
    QCOMPARE(page.texts(page.mode()), modes);
    QCOMPARE(page.result(), QStringLiteral("--- mV"));
}

void VoltageCalculatorWidgetTest::aKeyTypesItsTextAtTheCursor_data()
{
    addPlainKeys();
    row("the voltage unit", "V", "V");
    row("the small voltage unit", "mV", "mV");
}

void VoltageCalculatorWidgetTest::aKeyTypesItsTextAtTheCursor()
{
    CalculatorPage page = shownPage();
    checkTypedKey(page, m_profile);
}

void VoltageCalculatorWidgetTest::everyKeyIsNamedAndTakesNoFocus()
{
    const CalculatorPage page = shownPage();
    const QList<QPushButton *> keys = page.find<QWidget>("keyboard").findChildren<QPushButton *>();

    // 10 digits, point, plus, minus, sign, backspace, clear, calculate and 2 units.
    QCOMPARE(keys.size(), 19);
    for (const QPushButton *key : keys) {
        QVERIFY2(!key->text().isEmpty(), qPrintable(key->objectName()));
        QVERIFY2(key->focusPolicy() == Qt::NoFocus, qPrintable(key->objectName()));
    }
    QCOMPARE(page.key(QStringLiteral("back")).accessibleName(), QStringLiteral("Backspace"));
    QCOMPARE(phaseOf(page).accessibleName(), QStringLiteral("Phase in degrees"));
}

void VoltageCalculatorWidgetTest::backspaceAndClear()
{
    CalculatorPage page = shownPage();
    page.type("3mV+4mV");

    page.press(QStringLiteral("back"));
    QCOMPARE(page.input().text(), QStringLiteral("3mV+4m"));
    page.press(QStringLiteral("C"));
    QCOMPARE(page.input().text(), QString());
    QCOMPARE(page.result(), QString());
}

void VoltageCalculatorWidgetTest::resultFollowsEveryKeystroke()
{
    CalculatorPage page = shownPage();

    page.type("3mV+4");
    QCOMPARE(page.result(), QStringLiteral("unit missing"));
    // sqrt(3^2 + 4^2)
    page.type("mV");
    QCOMPARE(page.result(), QStringLiteral("5 mV"));
    page.type("+");
    QCOMPARE(page.result(), QStringLiteral("invalid input"));
}

void VoltageCalculatorWidgetTest::choosesTheUnit()
{
    CalculatorPage page = shownPage();
    page.type("300mV+400mV");
    page.unit().setFocus();

    page.type(Qt::Key_Down);
    QCOMPARE(page.result(), QStringLiteral("0.5 V"));
    QCOMPARE(m_profile.outputUnit(), 1);
    page.type(Qt::Key_Up);
    QCOMPARE(page.result(), QStringLiteral("500 mV"));
}

void VoltageCalculatorWidgetTest::choosesTheMode()
{
    CalculatorPage page = shownPage();
    page.type("3mV+4mV");
    page.mode().setFocus();

    // In phase, correlated voltages add as they are, and so do peak voltages.
    page.type(Qt::Key_Down);
    QCOMPARE(page.result(), QStringLiteral("7 mV"));
    QCOMPARE(m_profile.mode(), 1);
    page.type(Qt::Key_Down);
    QCOMPARE(page.result(), QStringLiteral("7 mV"));
    QCOMPARE(m_profile.mode(), 2);
}

void VoltageCalculatorWidgetTest::aPlainNumberHidesTheSelector()
{
    CalculatorPage page = shownPage();

    page.type("1+2");
    QCOMPARE(page.result(), QStringLiteral("3"));
    QCOMPARE(m_profile.outputUnit(), 2);
    page.enter("1mV+2mV");
    QVERIFY(!page.unit().isHidden());
}

void VoltageCalculatorWidgetTest::offersWhatMakesSense()
{
    CalculatorPage page = shownPage();
    const QStringList both{QStringLiteral("mV"), QStringLiteral("V")};

    page.type("1mV+2mV");
    QCOMPARE(page.offeredUnits(), both);
    page.enter("1+2");
    QCOMPARE(page.offeredUnits(), QStringList());
    m_profile.setValidUnits({{1, true}});
    QCOMPARE(page.offeredUnits(), QStringList{QStringLiteral("V")});
}

void VoltageCalculatorWidgetTest::takesOverTheResult()
{
    CalculatorPage page = shownPage();
    page.type("3mV+4mV");

    page.type(Qt::Key_Return);
    QCOMPARE(page.input().text(), QStringLiteral("5 mV"));
    QCOMPARE(page.result(), QStringLiteral("5 mV"));

    QTRY_COMPARE(page.result(), QString());
    // sqrt(5^2 + 12^2)
    page.type("+12mV");
    QCOMPARE(page.result(), QStringLiteral("13 mV"));
}

void VoltageCalculatorWidgetTest::showsALoadedStateAsItWasStored_data()
{
    columns<QString>({"output"});
    row("no result yet", "---");
    row("another result than the input has", "8.88");
    row("an empty result", "");
}

/// Loading must not calculate. Neither the text nor the phase, which the box shows without its
/// decimals, may cause that.
void VoltageCalculatorWidgetTest::showsALoadedStateAsItWasStored()
{
    QFETCH(QString, output);
    CalculatorPage page = shownPage();
    page.type("1V-2V");

    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("VoltageCalculatorProfile"));
    file.settings().setValue(QStringLiteral("input"), QStringLiteral(" 3mV+4mV "));
    file.settings().setValue(QStringLiteral("output"), output);
    file.settings().setValue(QStringLiteral("outputUnit"), 1);
    file.settings().setValue(QStringLiteral("mode"), 1);
    file.settings().setValue(QStringLiteral("phase"), 33.3);
    file.settings().endGroup();
    m_profile.loadSettings(file.settings());

    QCOMPARE(page.input().text(), QStringLiteral(" 3mV+4mV "));
    QCOMPARE(page.output().text(), output);
    QCOMPARE(m_profile.output(), output);
    QCOMPARE(page.unit().currentText(), QStringLiteral("V"));
    QCOMPARE(page.mode().currentIndex(), 1);
    QCOMPARE(phaseOf(page).value(), 33);
    QCOMPARE(m_profile.phase(), 33.3);
}

void VoltageCalculatorWidgetTest::phaseIsInWholeDegrees()
{
    const CalculatorPage page = shownPage();
    QSpinBox &phase = phaseOf(page);

    QCOMPARE(phase.text(), QStringLiteral("Phase= 0\u00B0"));
    QCOMPARE(phase.minimum(), -360);
    QCOMPARE(phase.maximum(), 360);
    m_profile.setPhase(-44.6);
    QCOMPARE(phase.text(), QStringLiteral("Phase= -45\u00B0"));
}

void VoltageCalculatorWidgetTest::aTypedPhaseCalculates()
{
    CalculatorPage page = shownPage();
    m_profile.setMode(1);
    page.type("3mV+4mV");
    QCOMPARE(page.result(), QStringLiteral("7 mV"));

    phaseOf(page).setFocus();
    phaseOf(page).selectAll();
    page.type("90");

    QCOMPARE(m_profile.phase(), 90.0);
    // at right angles: sqrt(3^2 + 4^2)
    QCOMPARE(page.result(), QStringLiteral("5 mV"));
}

void VoltageCalculatorWidgetTest::aPhaseWithoutAResultCalculatesNothing()
{
    CalculatorPage page = shownPage();
    page.type("3mV+4mV");
    m_profile.setOutput(QString());

    phaseOf(page).setFocus();
    page.type(Qt::Key_Up);

    QCOMPARE(m_profile.phase(), 1.0);
    QCOMPARE(page.result(), QString());
}

void VoltageCalculatorWidgetTest::aMirroredPhaseCalculatesNothing_data()
{
    columns<double, int>({"phase", "shown"});
    row("whole degrees", 30.0, 30);
    row("decimals stay in the model", 30.5, 31);
    row("beyond the range of the box", 1000.0, 360);
}

void VoltageCalculatorWidgetTest::aMirroredPhaseCalculatesNothing()
{
    QFETCH(double, phase);
    QFETCH(int, shown);
    const CalculatorPage page = shownPage();
    const QSignalSpy outputs(&m_profile, &ExpressionProfile::outputChanged);

    m_profile.setPhase(phase);

    QCOMPARE(phaseOf(page).value(), shown);
    QCOMPARE(m_profile.phase(), phase);
    QCOMPARE(outputs.count(), 0);
    QCOMPARE(page.result(), QStringLiteral("--- mV"));
}

void VoltageCalculatorWidgetTest::canBeDestroyedWithTheFocusInAField_data()
{
    columns<QByteArray>({"field"});
    for (const char *field : {"inputLineEdit", "outputLineEdit", "outputUnitComboBox",
                              "calcModeComboBox", "phaseSpinBox"})
        row(field, QByteArray(field));
}

void VoltageCalculatorWidgetTest::canBeDestroyedWithTheFocusInAField()
{
    QFETCH(QByteArray, field);
    CalculatorPage page = shownPage();
    page.type("3mV+4mV");
    page.find<QWidget>(field.constData()).setFocus();

    page.destroy();

    QCOMPARE(m_profile.input(), QStringLiteral("3mV+4mV"));
    QCOMPARE(m_profile.output(), QStringLiteral("5"));
}

DEZIMO_TEST_MAIN(QApplication, VoltageCalculatorWidgetTest)
#include "tst_voltagecalculatorwidget.moc"
