// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "kellineedit.h"
#include "keltogglebutton.h"
#include "testmain.h"
#include "unitconverterwidget.h"

#include <QApplication>
#include <QComboBox>
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
    void fitsItsPage_data();
    void fitsItsPage();

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
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("buddy");

    QTest::newRow("the heading of the powers") << "powerHeading"
                                               << "Power"
                                               << "";
    QTest::newRow("the power level") << "logPowerLabel"
                                     << "Logarithmic Power"
                                     << "dbmLineEdit";
    QTest::newRow("the power") << "linPowerLabel"
                               << "Linear Power"
                               << "wattLineEdit";
    QTest::newRow("the impedance") << "impedanceLabel"
                                   << "Impedance:"
                                   << "impedanceLineEdit";
    QTest::newRow("the heading of the voltages") << "voltageHeading"
                                                 << "Voltage"
                                                 << "";
    QTest::newRow("the voltage level") << "logVoltageLabel"
                                       << "Logarithmic Voltage"
                                       << "dbvLineEdit";
    QTest::newRow("the voltage") << "linVoltageLabel"
                                 << "Linear Voltage"
                                 << "voltLineEdit";
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
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("name");

    QTest::newRow("the power level") << "dbmLineEdit"
                                     << "Logarithmic power";
    QTest::newRow("its unit") << "dbmUnitComboBox"
                              << "Logarithmic power unit";
    QTest::newRow("the power") << "wattLineEdit"
                               << "Linear power";
    QTest::newRow("the power's unit") << "wattUnitComboBox"
                                      << "Linear power unit";
    QTest::newRow("the impedance") << "impedanceLineEdit"
                                   << "Impedance in ohms";
    QTest::newRow("the switch") << "vModeToggle"
                                << "Voltage mode";
    QTest::newRow("the voltage level") << "dbvLineEdit"
                                       << "Logarithmic voltage";
    QTest::newRow("the voltage level's unit") << "dbvUnitComboBox"
                                              << "Logarithmic voltage unit";
    QTest::newRow("the voltage") << "voltLineEdit"
                                 << "Linear voltage";
    QTest::newRow("the voltage's unit") << "voltUnitComboBox"
                                        << "Linear voltage unit";
}

void UnitConverterFormTest::namesTheFieldsForScreenReaders()
{
    QFETCH(QString, widget);
    QFETCH(QString, name);

    QCOMPARE(open().child<QWidget>(widget).accessibleName(), name);
}

void UnitConverterFormTest::offersTheUnits_data()
{
    QTest::addColumn<QString>("combo");
    QTest::addColumn<QStringList>("units");

    QTest::newRow("power levels") << "dbmUnitComboBox"
                                  << QStringList{QStringLiteral("dBm"), QStringLiteral("dBW")};
    QTest::newRow("powers") << "wattUnitComboBox"
                            << QStringList{QStringLiteral("mW"), QStringLiteral("W")};
    QTest::newRow("voltages") << "voltUnitComboBox"
                              << QStringList{QStringLiteral("mV"), QStringLiteral("V")};
    QTest::newRow("voltage levels")
        << "dbvUnitComboBox"
        << QStringList{QStringLiteral("dBV"), QStringLiteral("dBµV"), QStringLiteral("dBu")};
}

void UnitConverterFormTest::offersTheUnits()
{
    QFETCH(QString, combo);
    QFETCH(QStringList, units);

    const ConverterPage page = open();
    QCOMPARE(page.items(combo), units);
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
    QCOMPARE(texts,
             (QStringList{QStringLiteral("Vrms"), QStringLiteral("Vpp"), QStringLiteral("Vavg")}));
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
             (QStringList{QStringLiteral("dbmLineEdit"), QStringLiteral("dbmUnitComboBox"),
                          QStringLiteral("wattLineEdit"), QStringLiteral("wattUnitComboBox"),
                          QStringLiteral("impedanceLineEdit"), QStringLiteral("Vrms"),
                          QStringLiteral("dbvLineEdit"), QStringLiteral("dbvUnitComboBox"),
                          QStringLiteral("voltLineEdit"), QStringLiteral("voltUnitComboBox")}));
}

void UnitConverterFormTest::fitsItsPage_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("at first") << QSize(918, 583);
    QTest::newRow("in a small window") << QSize(560, 430);
    QTest::newRow("on a large screen") << QSize(2400, 1300);
}

void UnitConverterFormTest::fitsItsPage()
{
    QFETCH(QSize, size);

    applyStyleSheet();
    const ConverterPage page = open();
    m_page->resize(size);
    QTRY_COMPARE(m_page->size(), size);
    QCoreApplication::processEvents();
    const auto &area = page.child<QScrollArea>(QStringLiteral("scrollArea"));
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    const QList<KelLineEdit *> fields = m_page->findChildren<KelLineEdit *>();
    QCOMPARE(fields.size(), 5);
    for (const KelLineEdit *field : fields) {
        QVERIFY2(field->height() >= 24, qPrintable(field->objectName()));
        QVERIFY2(field->width() >= 100 && field->width() <= 360, qPrintable(field->objectName()));
    }
    const QList<QLabel *> labels = m_page->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible())
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    }
}

DEZIMO_TEST_MAIN(QApplication, UnitConverterFormTest)

#include "tst_unitconverterform.moc"
