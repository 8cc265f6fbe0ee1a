// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "keltogglebutton.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterwidget.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include <memory>

using namespace Dezimo;

class UnitConverterWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatTheModelHeldBefore();

    void typingOnlyStores_data();
    void typingOnlyStores();
    void typingKeepsTheCursor();
    void finishingCalculates_data();
    void finishingCalculates();
    void aWrongNumberLooksLikeAnError();
    void finishingTheImpedanceEmptiesTheValues_data();
    void finishingTheImpedanceEmptiesTheValues();

    void aChosenUnitRewritesItsFieldOnly_data();
    void aChosenUnitRewritesItsFieldOnly();
    void aMirroredUnitRewritesNothing_data();
    void aMirroredUnitRewritesNothing();
    void aLoadedFileIsShownAsItIs();
    void aChangeOfLanguageKeepsEveryField();
    void finishesTheEditWhenItGoes();

private:
    ConverterPage open();
    QStringList lines(const PropertyValues &changes = {}) const
    {
        return propertyLines(m_model, changes);
    }

    UnitConverterProfile &m_model = MainProfile::instance().unitConverter();
    std::unique_ptr<UnitConverterWidget> m_page;
};

namespace {

const QString kFirstField = QStringLiteral("dbmLineEdit");

/// These values do not belong together, so any calculation would show.
PropertyValues unrelatedValues()
{
    return {
        {"logPower", "10.00"}, {"linPower", "1"}, {"linVoltage", "500"}, {"logVoltage", "0.00"}};
}

PropertyValues loadedValues()
{
    return {{"logPower", "1.234"},   {"linPower", "2.345"}, {"logVoltage", "3.456"},
            {"linVoltage", "4.567"}, {"logPowerUnit", 1},   {"linPowerUnit", 1},
            {"logVoltageUnit", 2},   {"linVoltageUnit", 1}, {"impedance", "75"},
            {"voltageMode", 1}};
}

PropertyValues otherSelections()
{
    return {{"logPowerUnit", 1},   {"linPowerUnit", 1}, {"logVoltageUnit", 2},
            {"linVoltageUnit", 1}, {"impedance", "75"}, {"voltageMode", 2}};
}

} // namespace

void UnitConverterWidgetTest::init()
{
    loadDefaults();
}

void UnitConverterWidgetTest::cleanup()
{
    m_page.reset();
}

ConverterPage UnitConverterWidgetTest::open()
{
    m_page = std::make_unique<UnitConverterWidget>();
    return ConverterPage(*m_page);
}

void UnitConverterWidgetTest::showsWhatTheModelHeldBefore()
{
    setProperties(m_model, unrelatedValues());
    setProperties(m_model, otherSelections());
    const QStringList before = lines();
    const ConverterPage page = open();
    QCOMPARE(lines(), before);
    QCOMPARE(page.fieldTexts(), QStringLiteral("10.00 | 1 | 75 | 0.00 | 500"));
    QCOMPARE(page.combo(QStringLiteral("dbmUnitComboBox")).currentIndex(), 1);
    QCOMPARE(page.combo(QStringLiteral("dbvUnitComboBox")).currentIndex(), 2);
    QCOMPARE(page.child<KelToggleButton>(QStringLiteral("vModeToggle")).currentIndex(), 2);
}

void UnitConverterWidgetTest::typingOnlyStores_data()
{
    columns<QString, QString>({"field", "property"});
    row("the power level", "dbmLineEdit", "logPower");
    row("the power", "wattLineEdit", "linPower");
    row("the voltage", "voltLineEdit", "linVoltage");
    row("the voltage level", "dbvLineEdit", "logVoltage");
    row("the impedance", "impedanceLineEdit", "impedance");
}

void UnitConverterWidgetTest::typingOnlyStores()
{
    QFETCH(QString, field);
    QFETCH(QString, property);

    const ConverterPage page = open();
    page.focus(field);
    setProperties(m_model, unrelatedValues());
    const QStringList expected = lines({{property.toLatin1(), "75x"}});
    page.type(field, QStringLiteral("75x"));
    QCOMPARE(lines(), expected);
}

void UnitConverterWidgetTest::typingKeepsTheCursor()
{
    const ConverterPage page = open();
    page.type(kFirstField, QStringLiteral("19"));
    page.press(kFirstField, Qt::Key_Left);
    QTest::keyClicks(&page.field(kFirstField), QStringLiteral("23"));
    QCOMPARE(m_model.logPower(), QStringLiteral("1239"));
}

void UnitConverterWidgetTest::finishingCalculates_data()
{
    columns<QString, QString, QString>({"field", "typed", "results"});
    // 10^1.3 = 19.9526 mW, sqrt(0.0199526 * 50) = 0.998815 V
    row("the power level", "dbmLineEdit", "13", "linPower=20, linVoltage=999, logVoltage=-0.01");
    // sqrt(0.001 * 50) = 0.223607 V
    row("the power", "wattLineEdit", "1", "logPower=0.00, linVoltage=224, logVoltage=-13.01");
    // 1 / 50 = 0.02 W
    row("the voltage", "voltLineEdit", "1k", "logPower=13.01, linPower=20, logVoltage=0.00");
    row("the voltage level", "dbvLineEdit", "0", "logPower=13.01, linPower=20, linVoltage=1E+03");
}

void UnitConverterWidgetTest::finishingCalculates()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, results);

    const ConverterPage page = open();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}) {
        loadDefaults();
        page.type(field, typed);
        const QStringList expected = lines(values(results));
        QTest::keyClick(&page.field(field), key);
        QCOMPARE(lines(), expected);
        QCOMPARE(page.fieldTexts(),
                 QStringList({m_model.logPower(), m_model.linPower(), QStringLiteral("50"),
                              m_model.logVoltage(), m_model.linVoltage()})
                     .join(QStringLiteral(" | ")));
    }
}

void UnitConverterWidgetTest::aWrongNumberLooksLikeAnError()
{
    const ConverterPage page = open();
    for (const char *name : {"dbmLineEdit", "wattLineEdit", "dbvLineEdit", "voltLineEdit"}) {
        const QString field = QString::fromLatin1(name);
        page.type(field, QStringLiteral("x"));
        QVERIFY2(!page.field(field).hasError(), name);
        QTest::keyClick(&page.field(field), Qt::Key_Return);
        QCOMPARE(page.field(field).text(), QStringLiteral("invalid input"));
        QVERIFY2(page.field(field).hasError(), name);
    }
    m_model.setImpedance(QStringLiteral("invalid"));
    QVERIFY(page.field(QStringLiteral("impedanceLineEdit")).hasError());
}

void UnitConverterWidgetTest::finishingTheImpedanceEmptiesTheValues_data()
{
    columns<int>({"key"});
    row("by Return", int(Qt::Key_Return));
    row("by leaving it", int(Qt::Key_Tab));
}

void UnitConverterWidgetTest::finishingTheImpedanceEmptiesTheValues()
{
    QFETCH(int, key);

    const QString field = QStringLiteral("impedanceLineEdit");
    const ConverterPage page = open();
    page.focus(field);
    setProperties(m_model, unrelatedValues());
    page.type(field, QStringLiteral("75"));
    QTest::keyClick(&page.field(field), Qt::Key(key));
    QCOMPARE(page.fieldTexts(), QStringLiteral(" |  | 75 |  | "));
    QCOMPARE(m_model.impedance(), QStringLiteral("75"));
}

void UnitConverterWidgetTest::aChosenUnitRewritesItsFieldOnly_data()
{
    columns<QString, int, QString>({"combo", "steps", "changes"});
    row("dBm to dBW", "dbmUnitComboBox", 1, "logPowerUnit=1, logPower=-20.00");
    row("mW to W", "wattUnitComboBox", 1, "linPowerUnit=1, linPower=0.001");
    row("mV to V", "voltUnitComboBox", 1, "linVoltageUnit=1, linVoltage=0.5");
    row("dBV to dBµV", "dbvUnitComboBox", 1, "logVoltageUnit=1, logVoltage=120.00");
    // 20 log10(1000 / 775) = 2.21
    row("dBV over dBµV to dBu", "dbvUnitComboBox", 2, "logVoltageUnit=2, logVoltage=2.21");
}

void UnitConverterWidgetTest::aChosenUnitRewritesItsFieldOnly()
{
    QFETCH(QString, combo);
    QFETCH(int, steps);
    QFETCH(QString, changes);

    const ConverterPage page = open();
    page.focus(combo);
    setProperties(m_model, unrelatedValues());
    const QStringList expected = lines(values(changes));
    page.press(combo, Qt::Key_Down, steps);
    QCOMPARE(lines(), expected);

    // The quantity has not changed, so the way back restores every text.
    page.press(combo, Qt::Key_Up, steps);
    QCOMPARE(lines(), lines(unrelatedValues()));
}

void UnitConverterWidgetTest::aMirroredUnitRewritesNothing_data()
{
    columns<QString, QString>({"combo", "property"});
    row("of the power level", "dbmUnitComboBox", "logPowerUnit");
    row("of the power", "wattUnitComboBox", "linPowerUnit");
    row("of the voltage", "voltUnitComboBox", "linVoltageUnit");
    row("of the voltage level", "dbvUnitComboBox", "logVoltageUnit");
}

void UnitConverterWidgetTest::aMirroredUnitRewritesNothing()
{
    QFETCH(QString, combo);
    QFETCH(QString, property);

    const ConverterPage page = open();
    setProperties(m_model, unrelatedValues());
    const PropertyValues change{{property.toLatin1(), 1}};
    const QStringList expected = lines(change);
    setProperties(m_model, change);
    QCOMPARE(page.combo(combo).currentIndex(), 1);
    QCOMPARE(lines(), expected);
}

void UnitConverterWidgetTest::aLoadedFileIsShownAsItIs()
{
    const QString chosen = QStringLiteral("dbvUnitComboBox");
    const ConverterPage page = open();
    page.focus(chosen);
    setProperties(m_model, unrelatedValues());
    const QStringList expected = lines(loadedValues());
    QStringList file;
    for (const PropertyValue &value : loadedValues()) {
        file.append(QStringLiteral("UnitConverterProfile/") + QString::fromLatin1(value.name) +
                    QLatin1Char('=') + value.value.toString());
    }
    loadFile(file);
    QCOMPARE(page.fieldTexts(), QStringLiteral("1.234 | 2.345 | 75 | 3.456 | 4.567"));
    QCOMPARE(lines(), expected);
    QCOMPARE(page.combo(chosen).currentText(), QStringLiteral("dBu"));
    QCOMPARE(page.child<KelToggleButton>(QStringLiteral("vModeToggle")).currentIndex(), 1);

    // The text is now in the loaded unit: 3.456 dBu = 0.775 V * 10^(3.456 / 20), and 20 log10 of
    // 1153.74 mV / 0.001 mV = 121.24 dBµV.
    page.press(chosen, Qt::Key_Up);
    QCOMPARE(m_model.logVoltage(), QStringLiteral("121.24"));
}

void UnitConverterWidgetTest::aChangeOfLanguageKeepsEveryField()
{
    const ConverterPage page = open();
    setProperties(m_model, unrelatedValues());
    setProperties(m_model, otherSelections());
    const QStringList before = lines();
    const QString texts = page.fieldTexts();
    page.label(QStringLiteral("linPowerLabel")).setText(QStringLiteral("Lineare Leistung"));

    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_page.get(), &change);
    QCOMPARE(page.label(QStringLiteral("linPowerLabel")).text(), QStringLiteral("Linear Power"));
    QCOMPARE(page.fieldTexts(), texts);
    QCOMPARE(lines(), before);
    for (const QString &unit :
         {QStringLiteral("dbmUnitComboBox"), QStringLiteral("wattUnitComboBox"),
          QStringLiteral("voltUnitComboBox")})
        QCOMPARE(page.combo(unit).currentIndex(), 1);
    QCOMPARE(page.combo(QStringLiteral("dbvUnitComboBox")).currentIndex(), 2);
    QCOMPARE(page.child<KelToggleButton>(QStringLiteral("vModeToggle")).currentIndex(), 2);
}

void UnitConverterWidgetTest::finishesTheEditWhenItGoes()
{
    const ConverterPage page = open();
    page.type(kFirstField, QStringLiteral("13"));
    m_page.reset();
    QCOMPARE(m_model.linPower(), QStringLiteral("20"));
}

DEZIMO_TEST_MAIN(QApplication, UnitConverterWidgetTest)

#include "tst_unitconverterwidget.moc"
