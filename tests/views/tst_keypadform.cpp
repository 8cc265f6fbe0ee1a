// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "table.h"
#include "testmain.h"
#include "voltagecalculatorwidget.h"
#include "words.h"

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
    void keysThatTakeAwayAreAsLargeAsADigit_data() { pages(); }
    void keysThatTakeAwayAreAsLargeAsADigit();
    void unitKeysAreAsWideOnBothPages_data();
    void unitKeysAreAsWideOnBothPages();

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

const char *const kEveryPlainKey = "0 1 2 3 4 5 6 7 8 9 point plus minus plusMinus back C calc";

/// The object names of the keys in a list like "V mV".
QStringList keyNames(const char *keys)
{
    QStringList names = words(keys);
    for (QString &name : names)
        name.prepend(QStringLiteral("pushButton_"));
    return names;
}

} // namespace

void KeypadFormTest::pages()
{
    columns<QString, QString>({"page", "units"});
    row("the dBm calculator", "dBm", "dBm dB mW W");
    row("the voltage calculator", "voltage", "V mV");
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
    columns<QString, QString, QStringList>({"page", "container", "widgets"});
    const struct
    {
        const char *page;
        const char *keypad;
        const char *units;
    } pages[] = {{"dBm", "keyboard_db_calc", "dBm dB mW W"}, {"voltage", "keyboard", "V mV"}};
    for (const auto &page : pages) {
        const auto add = [&page](const char *container, const QStringList &widgets) {
            const QByteArray tag = QByteArray(container) + " of the " + page.page + " page";
            row(tag.constData(), page.page, container, widgets);
        };
        const QStringList unitKeys = keyNames(page.units);
        add("input_widget", words("inputWidget inputLineEdit"));
        add("inputWidget", words("inputLineEdit"));
        add("outputWidget", words("outputLineEdit outputUnitComboBox"));
        add("unitWidget", unitKeys);
        add(page.keypad, unitKeys + keyNames(kEveryPlainKey));
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

void KeypadFormTest::keysThatTakeAwayAreAsLargeAsADigit()
{
    QFETCH(QString, page);

    CalculatorPage calculator = newPage(page);
    calculator.show();
    const QSize digit = calculator.key(QStringLiteral("7")).size();
    for (const char *name : {"C", "back"}) {
        const QSize key = calculator.key(QLatin1String(name)).size();
        QVERIFY2(qAbs(key.width() - digit.width()) <= 1, name);
        QCOMPARE(key.height(), digit.height());
    }
}

void KeypadFormTest::unitKeysAreAsWideOnBothPages_data()
{
    columns<QSize>({"size"});
    row("a small page", QSize(560, 388));
    row("the first size", QSize(918, 580));
    row("a large page", QSize(1560, 975));
}

void KeypadFormTest::unitKeysAreAsWideOnBothPages()
{
    QFETCH(QSize, size);

    CalculatorPage powers = newPage(QStringLiteral("dBm"));
    CalculatorPage voltages = newPage(QStringLiteral("voltage"));
    for (CalculatorPage *page : {&powers, &voltages}) {
        page->show();
        page->widget().resize(size);
        QCoreApplication::processEvents();
    }
    const QStringList pairs[] = {words("dBm V"), words("dB mV")};
    for (const QStringList &pair : pairs) {
        const QRect power = powers.key(pair.first()).geometry();
        const QRect voltage = voltages.key(pair.last()).geometry();
        QVERIFY(qAbs(power.width() - voltage.width()) <= 1);
        QVERIFY(qAbs(power.left() - voltage.left()) <= 1);
    }
}

DEZIMO_TEST_MAIN(QApplication, KeypadFormTest)
#include "tst_keypadform.moc"
