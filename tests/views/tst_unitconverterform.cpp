// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "keltogglebutton.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterwidget.h"
#include "words.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <memory>

class UnitConverterFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheCaptions_data();
    void showsTheCaptions();
    void namesTheFieldsForScreenReaders_data();
    void namesTheFieldsForScreenReaders();
    void offersTheUnits_data();
    void offersTheUnits();
    void offersTheVoltageModes();
    void startsWithTheDefaults();
    void tabGoesFromTopToBottom();
    void fitsItsPage_data() { addPageSizes(); }
    void fitsItsPage();
    void framesTheConditionsOfBothRows_data() { addPageSizes(); }
    void framesTheConditionsOfBothRows();

private:
    ConverterPage open();

    std::unique_ptr<UnitConverterWidget> m_page;
};

void UnitConverterFormTest::init()
{
    loadDefaults();
}

void UnitConverterFormTest::cleanup()
{
    m_page.reset();
    qApp->setStyleSheet(QString());
}

ConverterPage UnitConverterFormTest::open()
{
    m_page = std::make_unique<UnitConverterWidget>();
    return ConverterPage(*m_page);
}

void UnitConverterFormTest::showsTheCaptions_data()
{
    columns<QString, QString, QString>({"label", "text", "buddy"});
    row("the heading of the powers", "powerHeading", "Power", "");
    row("the power level", "logPowerLabel", "Logarithmic Power", "dbmLineEdit");
    row("the power", "linPowerLabel", "Linear Power", "wattLineEdit");
    row("the impedance", "impedanceLabel", "Impedance:", "impedanceLineEdit");
    row("the heading of the voltages", "voltageHeading", "Voltage", "");
    row("the voltage level", "logVoltageLabel", "Logarithmic Voltage", "dbvLineEdit");
    row("the voltage", "linVoltageLabel", "Linear Voltage", "voltLineEdit");
}

void UnitConverterFormTest::showsTheCaptions()
{
    QFETCH(QString, label);
    QFETCH(QString, text);
    QFETCH(QString, buddy);

    const ConverterPage page = open();
    QCOMPARE(m_page->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(page.label(label).text(), text);
    QVERIFY(page.label(label).isVisible());
    const QWidget *named = page.label(label).buddy();
    QCOMPARE(named ? named->objectName() : QString(), buddy);
}

void UnitConverterFormTest::namesTheFieldsForScreenReaders_data()
{
    columns<QString, QString>({"widget", "name"});
    row("the power level", "dbmLineEdit", "Logarithmic power");
    row("its unit", "dbmUnitComboBox", "Logarithmic power unit");
    row("the power", "wattLineEdit", "Linear power");
    row("the power's unit", "wattUnitComboBox", "Linear power unit");
    row("the impedance", "impedanceLineEdit", "Impedance in ohms");
    row("the switch", "vModeToggle", "Voltage mode");
    row("the voltage level", "dbvLineEdit", "Logarithmic voltage");
    row("the voltage level's unit", "dbvUnitComboBox", "Logarithmic voltage unit");
    row("the voltage", "voltLineEdit", "Linear voltage");
    row("the voltage's unit", "voltUnitComboBox", "Linear voltage unit");
}

void UnitConverterFormTest::namesTheFieldsForScreenReaders()
{
    QFETCH(QString, widget);
    QFETCH(QString, name);

    QCOMPARE(open().child<QWidget>(widget).accessibleName(), name);
}

void UnitConverterFormTest::offersTheUnits_data()
{
    columns<QString, QString>({"combo", "units"});
    row("power levels", "dbmUnitComboBox", "dBm dBW");
    row("powers", "wattUnitComboBox", "mW W");
    row("voltages", "voltUnitComboBox", "mV V");
    row("voltage levels", "dbvUnitComboBox", "dBV dBµV dBu");
}

void UnitConverterFormTest::offersTheUnits()
{
    QFETCH(QString, combo);
    QFETCH(QString, units);

    const ConverterPage page = open();
    QCOMPARE(page.items(combo).join(QLatin1Char(' ')), units);
    QCOMPARE(page.combo(combo).currentIndex(), 0);
}

void UnitConverterFormTest::offersTheVoltageModes()
{
    const ConverterPage page = open();
    const auto &modes = page.child<KelToggleButton>(QStringLiteral("vModeToggle"));
    QStringList texts;
    const QList<QPushButton *> buttons = modes.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        texts.append(button->text());
    QCOMPARE(texts, words("Vrms Vpp Vavg"));
    QCOMPARE(modes.currentIndex(), 0);
}

void UnitConverterFormTest::startsWithTheDefaults()
{
    const ConverterPage page = open();
    const auto &suffix = page.field(QStringLiteral("impedanceLineEdit"));
    QCOMPARE(suffix.findChild<QLabel *>(QStringLiteral("suffixLabel"))->text(),
             QStringLiteral("Ω"));
    QCOMPARE(page.fieldTexts(), QStringLiteral(" |  | 50 |  | "));
}

void UnitConverterFormTest::tabGoesFromTopToBottom()
{
    // Of the switch, Tab visits the checked button only.
    QCOMPARE(open().tabStops(QStringLiteral("dbmLineEdit")),
             words("dbmLineEdit dbmUnitComboBox wattLineEdit wattUnitComboBox impedanceLineEdit"
                   " Vrms dbvLineEdit dbvUnitComboBox voltLineEdit voltUnitComboBox"));
}

void UnitConverterFormTest::fitsItsPage()
{
    QFETCH(QSize, size);

    applyStyleSheet();
    const ConverterPage page = open();
    page.resize(size);
    const auto &area = page.child<QScrollArea>(QStringLiteral("scrollArea"));
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    const QList<KelLineEdit *> fields = m_page->findChildren<KelLineEdit *>();
    QCOMPARE(fields.size(), 5);
    for (const KelLineEdit *field : fields) {
        QVERIFY2(field->height() >= 36, qPrintable(field->objectName()));
        QVERIFY2(field->width() >= 100 && field->width() <= 440, qPrintable(field->objectName()));
    }
    QCOMPARE(page.labelsTooNarrow(), QStringList());
}

/// The frame spans both columns, between the powers and the voltages, and each half of it ends or
/// begins where the column above it does.
void UnitConverterFormTest::framesTheConditionsOfBothRows()
{
    QFETCH(QSize, size);

    applyStyleSheet();
    const ConverterPage page = open();
    page.resize(size);
    const auto place = [&page, this](const char *name) {
        const auto &widget = page.child<QWidget>(QLatin1String(name));
        return QRect(widget.mapTo(m_page.get(), QPoint()), widget.size());
    };
    const auto &frame = page.child<QFrame>(QStringLiteral("conditionsFrame"));
    for (const char *name : {"impedanceLabel", "impedanceLineEdit", "vModeToggle"})
        QVERIFY(frame.isAncestorOf(&page.child<QWidget>(QLatin1String(name))));
    QCOMPARE(frame.findChildren<KelLineEdit *>().size(), 1);
    QVERIFY(place("dbmLineEdit").bottom() < place("conditionsFrame").top());
    QVERIFY(place("conditionsFrame").bottom() < place("voltageHeading").top());
    QCOMPARE(place("conditionsFrame").left(), place("dbmLineEdit").left());
    QCOMPARE(place("conditionsFrame").right(), place("wattUnitComboBox").right());
    QVERIFY(qAbs(place("impedanceLineEdit").right() - place("dbmUnitComboBox").right()) <= 1);
    QVERIFY(qAbs(place("vModeToggle").left() - place("wattLineEdit").left()) <= 1);
}

DEZIMO_TEST_MAIN(QApplication, UnitConverterFormTest)

#include "tst_unitconverterform.moc"
