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
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Dezimo;

/// The switch between RMS, peak to peak and average on the unit converter's page.
class UnitConverterModesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aChosenModeCalculatesFromTheLinearPower_data();
    void aChosenModeCalculatesFromTheLinearPower();
    void theModeAlreadyChosenCalculatesAgain();
    void aMirroredModeCalculatesNothing();

private:
    ConverterPage open();
    QPushButton &mode(const QString &text) const;
    QStringList lines(const PropertyValues &changes = {}) const
    {
        return propertyLines(m_model, changes);
    }

    UnitConverterProfile &m_model = MainProfile::instance().unitConverter();
    std::unique_ptr<UnitConverterWidget> m_page;
};

namespace {

/// These values do not belong together, so any calculation would show.
PropertyValues unrelatedValues()
{
    return {
        {"logPower", "10.00"}, {"linPower", "1"}, {"linVoltage", "500"}, {"logVoltage", "0.00"}};
}

} // namespace

void UnitConverterModesTest::init()
{
    loadDefaults();
}

void UnitConverterModesTest::cleanup()
{
    m_page.reset();
}

ConverterPage UnitConverterModesTest::open()
{
    m_page = std::make_unique<UnitConverterWidget>();
    return ConverterPage(*m_page);
}

QPushButton &UnitConverterModesTest::mode(const QString &text) const
{
    const QList<QPushButton *> buttons =
        m_page->findChild<KelToggleButton *>()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text)
            return *button;
    }
    qFatal("no such mode: %s", qPrintable(text));
}

void UnitConverterModesTest::aChosenModeCalculatesFromTheLinearPower_data()
{
    columns<int, QString>({"steps", "results"});
    // 1 mW at 50 ohm: 223.607 mV RMS. Times 2.82842714: 632.456 mV, -3.98 dBV.
    row("peak to peak", 1, "voltageMode=1, logPower=0.00, linVoltage=632, logVoltage=-3.98");
    // 632.456 mV / pi = 201.317 mV
    row("average", 2, "voltageMode=2, logPower=0.00, linVoltage=201, logVoltage=-13.92");
}

void UnitConverterModesTest::aChosenModeCalculatesFromTheLinearPower()
{
    QFETCH(int, steps);
    QFETCH(QString, results);

    const ConverterPage page = open();
    mode(QStringLiteral("Vrms")).setFocus(Qt::TabFocusReason);
    setProperties(m_model, unrelatedValues());
    const QStringList expected = lines(values(results));
    for (int i = 0; i < steps; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QCOMPARE(lines(), expected);
    QCOMPARE(page.field(QStringLiteral("voltLineEdit")).text(), m_model.linVoltage());
}

void UnitConverterModesTest::theModeAlreadyChosenCalculatesAgain()
{
    open();
    QPushButton &chosen = mode(QStringLiteral("Vrms"));
    chosen.setFocus(Qt::TabFocusReason);
    setProperties(m_model, unrelatedValues());
    // 1 mW at 50 ohm: 223.607 mV, 20 log10 of 0.223607 V
    const QStringList expected =
        lines({{"logPower", "0.00"}, {"linVoltage", "224"}, {"logVoltage", "-13.01"}});
    const QSignalSpy modes(&m_model, &UnitConverterProfile::voltageModeChanged);

    QTest::mouseClick(&chosen, Qt::LeftButton);

    QCOMPARE(lines(), expected);
    QCOMPARE(modes.count(), 0);
}

void UnitConverterModesTest::aMirroredModeCalculatesNothing()
{
    const ConverterPage page = open();
    setProperties(m_model, unrelatedValues());
    const QStringList expected = lines({{"voltageMode", 2}});
    m_model.setVoltageMode(2);
    QCOMPARE(page.child<KelToggleButton>(QStringLiteral("vModeToggle")).currentIndex(), 2);
    QCOMPARE(lines(), expected);
}

DEZIMO_TEST_MAIN(QApplication, UnitConverterModesTest)

#include "tst_unitconvertermodes.moc"
