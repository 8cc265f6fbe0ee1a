// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

/// A value that is copied from elsewhere, with its unit and as typographers write it, is a value in
/// every field of the window.
class PastedValuesTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldTakesAValue_data();
    void aFieldTakesAValue();
    void everyFieldCleansWhatIsPasted();
    void aPastedExpressionIsCalculated();
    void aPastedValueIsCalculated();

private:
    QWidget *openPage(int module);
    static void paste(QWidget *field, const QString &text);
};

QWidget *PastedValuesTest::openPage(int module)
{
    openWindow();
    m_profile.setCurrentModule(module);
    return child<QStackedWidget>("stackedWidget")->currentWidget();
}

void PastedValuesTest::paste(QWidget *field, const QString &text)
{
    QApplication::clipboard()->setText(text);
    QTest::keySequence(field, QKeySequence::Paste);
}

void PastedValuesTest::aFieldTakesAValue_data()
{
    columns<int, QString, QString, QString, QString>({"module", "field", "unit", "pasted", "text"});
    row("an expression keeps its units", 0, "inputLineEdit", "", "10 dBm + 3 dB", "10dBm+3dB");
    row("powers know the micro sign", 0, "inputLineEdit", "", "5 µW − 1 μW", "5µW-1μW");
    row("voltages do not", 1, "inputLineEdit", "", "1.2 µV + 3 mV", "1.2uV+3mV");
    row("a level in the chosen unit", 2, "dbmLineEdit", "dBm", "−57 dBm", "-57");
    row("a level in another unit", 2, "dbmLineEdit", "dBW", "−57 dBm", "-57dBm");
    row("a power with a prefix", 2, "wattLineEdit", "W", "5 µW", "5u");
    row("a power in milliwatts", 2, "wattLineEdit", "mW", "5 mW", "5");
    row("a voltage", 2, "voltLineEdit", "V", "100 mV", "100m");
    row("a voltage level with a micro sign", 2, "dbvLineEdit", "dBµV", "106.99 dBµV", "106.99");
    row("a voltage level without a micro sign", 2, "dbvLineEdit", "dBu", "10.8 dBu", "10.8");
    row("an impedance with its sign", 2, "impedanceLineEdit", "", "75 Ω", "75");
    row("an impedance with its word", 2, "impedanceLineEdit", "", "75 ohm", "75");
    row("an operand has its unit in the field", 3, "p1LineEdit", "", "10 dBm", "10dBm");
    row("a micro sign in an operand", 3, "p2LineEdit", "", "5 µW", "5uW");
    row("a voltage operand", 3, "v1LineEdit", "", "5 m", "5m");
    row("a ratio of powers in dB", 3, "pDbLineEdit", "", "−3.01 dB", "-3.01");
    row("a ratio of voltages in dB", 3, "vDbLineEdit", "", "6,02 dB", "6,02");
    row("a VSWR", 4, "vswrLineEdit", "", " 1.5\n", "1.5");
    row("a percentage", 4, "r2LineEdit", "", "3.98 %", "3.98");
    row("a return loss", 4, "arLineEdit", "", "14 dB", "14");
    row("a mismatch loss", 4, "amLineEdit", "", "0.18dB", "0.18");
    row("a forward power", 4, "forwardPowerLineEdit", "W", "50 W", "50");
    row("a reflected power", 4, "reflectedPowerLineEdit", "dBm", "36 dBm", "36");
    row("an absorbed power", 4, "absorbedPowerLineEdit", "dBW", "19.8 dBW", "19.8");
    row("a forward voltage", 4, "forwardVoltageLineEdit", "mV", "50 mV", "50");
    row("a reflected voltage", 4, "reflectedVoltageLineEdit", "dBV", "36 dBV", "36");
    row("an absorbed voltage", 4, "absorbedVoltageLineEdit", "dBµV", "9 dBuV", "9");
}

void PastedValuesTest::aFieldTakesAValue()
{
    QFETCH(int, module);
    QFETCH(QString, field);
    QFETCH(QString, unit);
    QFETCH(QString, pasted);

    const QWidget *page = openPage(module);
    auto *edit = page->findChild<QLineEdit *>(field);
    if (!unit.isEmpty()) {
        const QString selector = field.replace(QLatin1String("LineEdit"), QLatin1String("Unit"));
        page->findChild<QComboBox *>(selector + QLatin1String("ComboBox"))->setCurrentText(unit);
    }
    edit->selectAll();
    paste(edit, pasted);
    QTEST(edit->text(), "text");
}

void PastedValuesTest::everyFieldCleansWhatIsPasted()
{
    int fields = 0;
    openWindow();
    const QList<QLineEdit *> edits = child("stackedWidget")->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (edit->isReadOnly())
            continue;
        ++fields;
        edit->selectAll();
        paste(edit, QStringLiteral(" \u22121\u00A000\r\n"));
        const auto *box = qobject_cast<QSpinBox *>(edit->parent());
        const QString text = box ? box->cleanText() : edit->text();
        QVERIFY2(text == QStringLiteral("-100"), qPrintable(edit->objectName()));
    }
    QCOMPARE(fields, 2 + 1 + 5 + 8 + 11);
}

void PastedValuesTest::aPastedExpressionIsCalculated()
{
    const QWidget *page = openPage(0);
    paste(page->findChild<QLineEdit *>(QStringLiteral("inputLineEdit")),
          QStringLiteral("30 dBm – 3 dB\n"));
    QCOMPARE(page->findChild<QLineEdit *>(QStringLiteral("outputLineEdit"))->text(),
             QStringLiteral("27.00"));
}

void PastedValuesTest::aPastedValueIsCalculated()
{
    const QWidget *page = openPage(2);
    auto *level = page->findChild<QLineEdit *>(QStringLiteral("dbmLineEdit"));
    paste(level, QStringLiteral("\u221230.00 dBm"));
    QTest::keyClick(level, Qt::Key_Tab);
    QCOMPARE(page->findChild<QLineEdit *>(QStringLiteral("wattLineEdit"))->text(),
             QStringLiteral("0.001")); // mW
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, PastedValuesTest>(argc, argv, true);
}

#include "tst_pastedvalues.moc"
