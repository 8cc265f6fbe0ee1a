// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"

#include <QApplication>
#include <QTest>

/// How the forms of the two calculators are built, before any style sheet of the program.
class KeypadFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theInputStartsWithoutAFontSize_data() { pages(); }
    void theInputStartsWithoutAFontSize();
    void unitKeysHaveTheProgramsFont_data() { pages(); }
    void unitKeysHaveTheProgramsFont();
    void aContainerHoldsItsWidgets_data();
    void aContainerHoldsItsWidgets();

private:
    static void pages();
};

namespace {

CalculatorPage newPage(const QString &name)
{
    if (name == QStringLiteral("dBm"))
        return CalculatorPage(std::make_unique<DbmCalculatorWidget>());
    return CalculatorPage(std::make_unique<VoltageCalculatorWidget>());
}

const QString kEveryPlainKey =
    QStringLiteral("0 1 2 3 4 5 6 7 8 9 point plus minus plusMinus back C calc");

/// The object names of the keys in a list like "V mV".
QStringList keyNames(const QString &keys)
{
    QStringList names;
    const QStringList ends = keys.split(QLatin1Char(' '));
    for (const QString &end : ends)
        names += QStringLiteral("pushButton_") + end;
    return names;
}

} // namespace

void KeypadFormTest::pages()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("units");

    QTest::newRow("the dBm calculator") << "dBm"
                                        << "dBm dB mW W";
    QTest::newRow("the voltage calculator") << "voltage"
                                            << "V mV";
}

void KeypadFormTest::theInputStartsWithoutAFontSize()
{
    QFETCH(QString, page);

    QCOMPARE(newPage(page).input().styleSheet(), QStringLiteral("font-size: none"));
}

void KeypadFormTest::unitKeysHaveTheProgramsFont()
{
    QFETCH(QString, page);
    QFETCH(QString, units);

    const CalculatorPage calculator = newPage(page);
    const QStringList names = units.split(QLatin1Char(' '));
    for (const QString &name : names)
        QCOMPARE(calculator.key(name).font().family(), QStringLiteral("Tessan"));
}

void KeypadFormTest::aContainerHoldsItsWidgets_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("container");
    QTest::addColumn<QStringList>("widgets");

    const struct
    {
        const char *page;
        const char *keypad;
        const char *units;
    } pages[] = {{"dBm", "keyboard_db_calc", "dBm dB mW W"}, {"voltage", "keyboard", "V mV"}};
    for (const auto &page : pages) {
        const auto row = [&page](const char *container, const QStringList &widgets) {
            QTest::addRow("%s of the %s page", container, page.page)
                << QString::fromLatin1(page.page) << QString::fromLatin1(container) << widgets;
        };
        const QStringList unitKeys = keyNames(QLatin1String(page.units));
        row("input_widget", {QStringLiteral("inputWidget"), QStringLiteral("inputLineEdit")});
        row("inputWidget", {QStringLiteral("inputLineEdit")});
        row("outputWidget",
            {QStringLiteral("outputLineEdit"), QStringLiteral("outputUnitComboBox")});
        row("unitWidget", unitKeys);
        row(page.keypad, unitKeys + keyNames(kEveryPlainKey));
    }
}

void KeypadFormTest::aContainerHoldsItsWidgets()
{
    QFETCH(QString, page);
    QFETCH(QString, container);
    QFETCH(QStringList, widgets);

    const CalculatorPage calculator = newPage(page);
    const auto &parent = calculator.find<QWidget>(qPrintable(container));
    for (const QString &name : widgets)
        QVERIFY2(parent.findChild<QWidget *>(name), qPrintable(name));
}

DEZIMO_TEST_MAIN(QApplication, KeypadFormTest)
#include "tst_keypadform.moc"
