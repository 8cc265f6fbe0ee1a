// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "vswrconverterwidget.h"
#include "words.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Dezimo;

class VswrConverterWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatTheModelHeldBefore();
    void typingOnlyStores_data() { addRows(); }
    void typingOnlyStores();
    void typingKeepsTheCursor();
    void finishingChecksItsOwnRow_data() { addRows(); }
    void finishingChecksItsOwnRow();
    void leavingTheVswrFillsTheReflectionGroup_data();
    void leavingTheVswrFillsTheReflectionGroup();
    void aForwardPowerFillsTheOtherPowers();
    void aForwardVoltageFillsTheOtherVoltages();

    void aChosenUnitRewritesItsRowOnly_data() { addUnits(); }
    void aChosenUnitRewritesItsRowOnly();
    void aMirroredUnitIsShown_data() { addUnits(); }
    void aMirroredUnitIsShown();
    void aChosenTabIsStored();
    void aMirroredTabIsShown();
    void aLoadedFileIsShownAsItIs();
    void aChangeOfLanguageEmptiesTheVswrFieldOnly();
    void finishesTheEditWhenItGoes();

private:
    ConverterPage open();
    static void addRows();
    static void addUnits();
    QStringList lines(const PropertyValues &changes = {}) const
    {
        return propertyLines(m_model, changes);
    }

    VswrConverterProfile &m_model = MainProfile::instance().vswrConverter();
    std::unique_ptr<VswrConverterWidget> m_page;
};

namespace {

const QString kVswr = QStringLiteral("vswrLineEdit");
const QString kTabs = QStringLiteral("mainTab");

/// These texts do not belong together, so any calculation would show.
const PropertyValues &unrelatedTexts()
{
    static const PropertyValues value{
        {"vswr", "1.01"},     {"r", "0.02"},          {"r2", "3.03"},         {"ar", "4.04"},
        {"am", "5.05"},       {"pForward", "6.06"},   {"pReflected", "7.07"}, {"pAbsorbed", "8.08"},
        {"vForward", "9.09"}, {"vReflected", "10.1"}, {"vAbsorbed", "11.1"}};
    return value;
}

const PropertyValues &otherSelections()
{
    static const PropertyValues value{
        {"currentMode", 1},  {"pForwardUnit", 1},   {"pReflectedUnit", 2}, {"pAbsorbedUnit", 3},
        {"vForwardUnit", 3}, {"vReflectedUnit", 2}, {"vAbsorbedUnit", 1}};
    return value;
}

const QString kUnrelatedFields =
    QStringLiteral("1.01 | 0.02 | 3.03 | 4.04 | 5.05 | 6.06 | 7.07 | 8.08 | 9.09 | 10.1 | 11.1");

} // namespace

void VswrConverterWidgetTest::init()
{
    loadDefaults();
}

void VswrConverterWidgetTest::cleanup()
{
    m_page.reset();
}

ConverterPage VswrConverterWidgetTest::open()
{
    m_page = std::make_unique<VswrConverterWidget>();
    return ConverterPage(*m_page);
}

void VswrConverterWidgetTest::addRows()
{
    columns<QString, QString, int>({"field", "property", "tab"});
    row("VSWR", "vswrLineEdit", "vswr", 0);
    row("reflection coefficient", "rLineEdit", "r", 0);
    row("its square", "r2LineEdit", "r2", 0);
    row("return loss", "arLineEdit", "ar", 0);
    row("mismatch loss", "amLineEdit", "am", 0);
    row("forward power", "forwardPowerLineEdit", "pForward", 0);
    row("reflected power", "reflectedPowerLineEdit", "pReflected", 0);
    row("absorbed power", "absorbedPowerLineEdit", "pAbsorbed", 0);
    row("forward voltage", "forwardVoltageLineEdit", "vForward", 1);
    row("reflected voltage", "reflectedVoltageLineEdit", "vReflected", 1);
    row("absorbed voltage", "absorbedVoltageLineEdit", "vAbsorbed", 1);
}

void VswrConverterWidgetTest::addUnits()
{
    columns<QString, QString, int>({"row", "text", "tab"});
    row("forward power", "forwardPower", "pForward", 0);
    row("reflected power", "reflectedPower", "pReflected", 0);
    row("absorbed power", "absorbedPower", "pAbsorbed", 0);
    row("forward voltage", "forwardVoltage", "vForward", 1);
    row("reflected voltage", "reflectedVoltage", "vReflected", 1);
    row("absorbed voltage", "absorbedVoltage", "vAbsorbed", 1);
}

void VswrConverterWidgetTest::showsWhatTheModelHeldBefore()
{
    setProperties(m_model, otherSelections());
    setProperties(m_model, unrelatedTexts());
    const QStringList before = lines();
    const ConverterPage page = open();
    QCOMPARE(page.fieldTexts(), kUnrelatedFields);
    QCOMPARE(page.child<QTabWidget>(kTabs).currentIndex(), 1);
    QCOMPARE(page.combo(QStringLiteral("absorbedPowerUnitComboBox")).currentIndex(), 3);
    QCOMPARE(page.combo(QStringLiteral("absorbedVoltageUnitComboBox")).currentIndex(), 1);
    QCOMPARE(lines(), before);
}

void VswrConverterWidgetTest::typingOnlyStores()
{
    QFETCH(QString, field);
    QFETCH(QString, property);
    QFETCH(int, tab);

    const ConverterPage page = open();
    m_model.setCurrentMode(tab);
    page.focus(field);
    setProperties(m_model, unrelatedTexts());
    const QStringList expected = lines({{property.toLatin1(), "0.5x"}});
    page.type(field, QStringLiteral("0.5x"));
    QCOMPARE(lines(), expected);
}

void VswrConverterWidgetTest::typingKeepsTheCursor()
{
    const ConverterPage page = open();
    page.type(kVswr, QStringLiteral("19"));
    QTest::keyClick(&page.field(kVswr), Qt::Key_Left);
    QTest::keyClicks(&page.field(kVswr), QStringLiteral("23"));
    QCOMPARE(page.field(kVswr).text(), QStringLiteral("1239"));
    QCOMPARE(m_model.vswr(), QStringLiteral("1239"));
}

void VswrConverterWidgetTest::finishingChecksItsOwnRow()
{
    QFETCH(QString, field);
    QFETCH(QString, property);
    QFETCH(int, tab);

    const ConverterPage page = open();
    m_model.setCurrentMode(tab);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}) {
        page.type(field, QStringLiteral("x"));
        QVERIFY(!page.field(field).hasError());
        QTest::keyClick(&page.field(field), key);
        QCOMPARE(page.field(field).text(), QStringLiteral("invalid input"));
        QVERIFY(page.field(field).hasError());
        QCOMPARE(lines().filter(QStringLiteral("invalid input")),
                 QStringList{property + QStringLiteral(" = invalid input")});
    }
}

void VswrConverterWidgetTest::leavingTheVswrFillsTheReflectionGroup_data()
{
    columns<int>({"key"});
    row("with Tab", int(Qt::Key_Tab));
    row("with Return, without leaving it", int(Qt::Key_Return));
}

void VswrConverterWidgetTest::leavingTheVswrFillsTheReflectionGroup()
{
    QFETCH(int, key);

    const ConverterPage page = open();
    page.type(kVswr, QStringLiteral("2"));
    QCOMPARE(page.fieldTexts(), QStringLiteral("2 |  |  |  |  |  |  |  |  |  | "));
    QTest::keyClick(&page.field(kVswr), Qt::Key(key));
    // Γ = (2 - 1) / (2 + 1), Γ² = 11.1 %, -10 log10(1 - Γ²) = 0.51 dB. Only a VSWR of 1 fills the
    // return loss.
    QCOMPARE(page.fieldTexts(), QStringLiteral("2 | 0.333 | 11.1 |  | 0.51 |  |  |  |  |  | "));
}

void VswrConverterWidgetTest::aForwardPowerFillsTheOtherPowers()
{
    const QString field = QStringLiteral("forwardPowerLineEdit");
    const ConverterPage page = open();
    page.type(QStringLiteral("rLineEdit"), QStringLiteral("0.5"));
    page.type(field, QStringLiteral("40"));
    QTest::keyClick(&page.field(field), Qt::Key_Return);
    // VSWR 1.5 / 0.5 = 3. Of 10 W, 2.5 W = 33.98 dBm come back and 7.5 W = 38.75 dBm stay.
    QCOMPARE(page.fieldTexts(),
             QStringLiteral("3 | 0.5 | 25 | 6.02 | 1.25 | 40 | 34 | 38.8 |  |  | "));
}

void VswrConverterWidgetTest::aForwardVoltageFillsTheOtherVoltages()
{
    const QString field = QStringLiteral("forwardVoltageLineEdit");
    const ConverterPage page = open();
    m_model.setCurrentMode(1);
    page.type(QStringLiteral("rLineEdit"), QStringLiteral("0.5"));
    page.press(QStringLiteral("forwardVoltageUnitComboBox"), Qt::Key_End);
    page.press(QStringLiteral("reflectedVoltageUnitComboBox"), Qt::Key_End);
    page.press(QStringLiteral("absorbedVoltageUnitComboBox"), Qt::Key_End);
    page.type(field, QStringLiteral("100"));
    QTest::keyClick(&page.field(field), Qt::Key_Return);
    // A quarter of 100 mV comes back.
    QCOMPARE(page.fieldTexts(),
             QStringLiteral("3 | 0.5 | 25 | 6.02 | 1.25 |  |  |  | 100 | 25 | 75"));
}

void VswrConverterWidgetTest::aChosenUnitRewritesItsRowOnly()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QFETCH(int, tab);

    const QString combo = row + QStringLiteral("UnitComboBox");
    const ConverterPage page = open();
    m_model.setCurrentMode(tab);
    page.focus(combo);
    setProperties(m_model, unrelatedTexts());
    setProperties(m_model, {{text.toLatin1(), "10"}});
    // 10 dBm = 0.01 W; 10 dBV = 10^0.5 V = 3.16 V
    const QStringList expected =
        lines({{text.toLatin1() + "Unit", 2}, {text.toLatin1(), tab == 0 ? "0.01" : "3.16"}});
    page.press(combo, Qt::Key_Down, 2);
    QCOMPARE(page.combo(combo).currentIndex(), 2);
    QCOMPARE(lines(), expected);
}

/// The model rewrites the text for the new unit by itself, and only once.
void VswrConverterWidgetTest::aMirroredUnitIsShown()
{
    QFETCH(QString, row);
    QFETCH(QString, text);

    const ConverterPage page = open();
    setProperties(m_model, unrelatedTexts());
    const QByteArray name = text.toLatin1();
    setProperties(m_model, {{name, "x"}});
    const QStringList others = lines({{name + "Unit", 3}, {name, ""}});
    ChangeLog changes(m_model);
    setProperties(m_model, {{name + "Unit", 3}});
    QCOMPARE(page.combo(row + QStringLiteral("UnitComboBox")).currentIndex(), 3);
    QCOMPARE(changes.take().filter(QStringLiteral("Unit")),
             QStringList{text + QStringLiteral("Unit")});
    QCOMPARE(lines({{name, ""}}), others);
}

void VswrConverterWidgetTest::aChosenTabIsStored()
{
    const ConverterPage page = open();
    setProperties(m_model, unrelatedTexts());
    page.focus(kTabs);
    const QStringList expected = lines({{"currentMode", 1}});
    ChangeLog changes(m_model);
    page.press(kTabs, Qt::Key_Right);
    QCOMPARE(page.child<QTabWidget>(kTabs).currentIndex(), 1);
    QCOMPARE(lines(), expected);
    QCOMPARE(changes.take(), QStringList{QStringLiteral("currentMode")});

    page.press(kTabs, Qt::Key_Left);
    QCOMPARE(m_model.currentMode(), 0);
}

void VswrConverterWidgetTest::aMirroredTabIsShown()
{
    const ConverterPage page = open();
    setProperties(m_model, unrelatedTexts());
    const QStringList expected = lines({{"currentMode", 1}});
    m_model.setCurrentMode(1);
    QCOMPARE(page.child<QTabWidget>(kTabs).currentIndex(), 1);
    QVERIFY(page.field(QStringLiteral("forwardVoltageLineEdit")).isVisible());
    QCOMPARE(lines(), expected);
}

void VswrConverterWidgetTest::aLoadedFileIsShownAsItIs()
{
    const ConverterPage page = open();
    setProperties(m_model, {{"vswr", "2"}, {"pForward", "10"}, {"vForward", "20"}});
    QStringList file;
    for (const PropertyValues &values : {unrelatedTexts(), otherSelections()}) {
        for (const PropertyValue &value : values) {
            file.append(QStringLiteral("VswrConverterProfile/") + QString::fromLatin1(value.name) +
                        QLatin1Char('=') + value.value.toString());
        }
    }
    loadFile(file);
    QCOMPARE(page.fieldTexts(), kUnrelatedFields);
    QCOMPARE(page.child<QTabWidget>(kTabs).currentIndex(), 1);
    QStringList units;
    const QStringList rows = words("forwardPower reflectedPower absorbedPower"
                                   " forwardVoltage reflectedVoltage absorbedVoltage");
    for (const QString &row : rows)
        units += page.combo(row + QStringLiteral("UnitComboBox")).currentText();
    QCOMPARE(units, words("dBW W mW mV V dBµV"));
    QCOMPARE(lines(unrelatedTexts()), lines());
    QCOMPARE(lines(otherSelections()), lines());
}

void VswrConverterWidgetTest::aChangeOfLanguageEmptiesTheVswrFieldOnly()
{
    const ConverterPage page = open();
    setProperties(m_model, otherSelections());
    setProperties(m_model, unrelatedTexts());
    const QStringList before = lines();
    page.label(QStringLiteral("amLabel")).setText(QStringLiteral("Fehlanpassung"));

    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_page.get(), &change);
    QCOMPARE(page.label(QStringLiteral("amLabel")).text(), QStringLiteral("Mismatch Loss"));
    QCOMPARE(page.field(kVswr).text(), QString());
    QCOMPARE(page.fieldTexts(), kUnrelatedFields.mid(QStringLiteral("1.01").size()));
    QCOMPARE(page.child<QTabWidget>(kTabs).currentIndex(), 1);
    QCOMPARE(page.combo(QStringLiteral("absorbedPowerUnitComboBox")).currentText(),
             QStringLiteral("mW"));
    QCOMPARE(page.combo(QStringLiteral("absorbedVoltageUnitComboBox")).currentText(),
             QStringLiteral("dBµV"));
    QCOMPARE(page.field(kVswr).findChild<QLabel *>(QStringLiteral("prefixLabel"))->text(),
             QStringLiteral("1 : "));
    QCOMPARE(lines(), before);
}

void VswrConverterWidgetTest::finishesTheEditWhenItGoes()
{
    const ConverterPage page = open();
    page.type(kVswr, QStringLiteral("2"));
    m_page.reset();
    QCOMPARE(m_model.r(), QStringLiteral("0.333"));
}

DEZIMO_TEST_MAIN(QApplication, VswrConverterWidgetTest)

#include "tst_vswrconverterwidget.moc"
