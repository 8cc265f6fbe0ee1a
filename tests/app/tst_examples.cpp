// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

#include <vector>

using namespace Dezimo;

namespace {

/// Rows of the module list.
enum Module { DbmCalculator, VoltageCalculator, UnitConverter, DbConverter, VswrConverter };

/// A field of a page and a text that is typed into it or that it shows.
struct Entry
{
    Module module;
    const char *field;
    const char *text;
};
using Entries = std::vector<Entry>;

QString textOf(const QWidget &field)
{
    if (const auto *selector = qobject_cast<const QComboBox *>(&field))
        return selector->currentText();
    return static_cast<const QLineEdit &>(field).text();
}

/// A calculator follows every keystroke, and Return would make its result the next input. A
/// converter waits for Return.
void enter(QWidget &field, const Entry &entry)
{
    const QString text = QString::fromUtf8(entry.text);
    if (auto *selector = qobject_cast<QComboBox *>(&field)) {
        selector->setCurrentText(text);
        return;
    }
    field.setFocus();
    QTest::keyClicks(&field, text);
    if (entry.module != DbmCalculator && entry.module != VoltageCalculator)
        QTest::keyClick(&field, Qt::Key_Return);
}

/// What a calculation file holds of the modules. The window group is left out, because it depends
/// on the screen.
QMap<QString, QVariant> moduleValues(const QString &fileName)
{
    const QSettings file(fileName, QSettings::IniFormat);
    QMap<QString, QVariant> values;
    const QStringList keys = file.allKeys();
    for (const QString &key : keys) {
        if (!key.startsWith(QLatin1String("MainProfile/")))
            values.insert(key, file.value(key));
    }
    return values;
}

QString exampleFile(const QString &name)
{
    return QStringLiteral(DEZIMO_EXAMPLES) + QLatin1Char('/') + name + QStringLiteral(".dezimo");
}

} // namespace

Q_DECLARE_METATYPE(Entries)

/// The calculation files that come with the program show what the guide says about them. They are
/// what the program saves if a person types the guide's inputs.
class ExamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsWhatTheGuideSays_data();
    void showsWhatTheGuideSays();
    void isWhatTheProgramSaves_data();
    void isWhatTheProgramSaves();

private:
    QWidget &field(const Entry &entry) const;
    void enterAll(const Entries &entries);

    std::unique_ptr<MainWindow> m_window;
};

void ExamplesTest::init()
{
    m_window.reset();
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(waitForKeyboard(*m_window));
}

QWidget &ExamplesTest::field(const Entry &entry) const
{
    const auto *pages = m_window->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    auto *widget = pages->widget(entry.module)->findChild<QWidget *>(QLatin1String(entry.field));
    if (widget == nullptr)
        qFatal("no field %s", entry.field);
    return *widget;
}

void ExamplesTest::enterAll(const Entries &entries)
{
    for (const Entry &entry : entries) {
        MainProfile::instance().setCurrentModule(entry.module);
        enter(field(entry), entry);
    }
}

void ExamplesTest::showsWhatTheGuideSays_data()
{
    QTest::addColumn<Entries>("shown");

    // -97 dBm - 1 dB + 20 dB - 2 dB - 7 dB + 30 dB = -57 dBm; 10^(-5.7) mW = 2.00 nW,
    // sqrt(2.00 nW * 50 ohm) = 316 uV, 20 * log10(316 uV / 1 uV) = 49.99
    QTest::newRow("receiver-chain") << Entries{
        {DbmCalculator, "inputLineEdit", "-97dBm-1dB+20dB-2dB-7dB+30dB"},
        {DbmCalculator, "outputLineEdit", "-57.00"},
        {DbmCalculator, "outputUnitComboBox", "dBm"},
        {UnitConverter, "dbmLineEdit", "-57"},
        {UnitConverter, "impedanceLineEdit", "50"},
        {UnitConverter, "voltLineEdit", "0.316"},
        {UnitConverter, "voltUnitComboBox", "mV"},
        {UnitConverter, "dbvLineEdit", "49.99"},
        {UnitConverter, "dbvUnitComboBox", "dBµV"},
    };

    // (10 W + 5 W) / 2 = 7.5 W, 10 * log10(7500) = 38.75 dBm; 15 W / 7.5 W = 2, 3.01 dB;
    // sqrt(3 mV * 3 mV + 4 mV * 4 mV) = 5 mV
    QTest::newRow("two-transmitters") << Entries{
        {DbmCalculator, "inputLineEdit", "10W+5W"},
        {DbmCalculator, "calcModeComboBox", "Incoherent Powers (Combiner)"},
        {DbmCalculator, "outputLineEdit", "38.75"},
        {DbmCalculator, "outputUnitComboBox", "dBm"},
        {DbConverter, "p1LineEdit", "15W"},
        {DbConverter, "p2LineEdit", "7.5W"},
        {DbConverter, "pRatioLineEdit", "2"},
        {DbConverter, "pDbLineEdit", "3.01"},
        {VoltageCalculator, "inputLineEdit", "3mV+4mV"},
        {VoltageCalculator, "calcModeComboBox", "Uncorrelated Voltages"},
        {VoltageCalculator, "outputLineEdit", "5"},
        {VoltageCalculator, "outputUnitComboBox", "mV"},
    };

    // 10^(-14/20) = 0.200, (1 + 0.1995) / (1 - 0.1995) = 1.50, 0.1995^2 = 3.98 %,
    // -10 * log10(1 - 0.0398) = 0.18 dB; 50 dBm - 14 dB = 36 dBm, 50 dBm - 0.18 dB = 49.8 dBm
    QTest::newRow("antenna-mismatch") << Entries{
        {VswrConverter, "arLineEdit", "14"},
        {VswrConverter, "vswrLineEdit", "1.5"},
        {VswrConverter, "rLineEdit", "0.2"},
        {VswrConverter, "r2LineEdit", "3.98"},
        {VswrConverter, "amLineEdit", "0.18"},
        {VswrConverter, "forwardPowerLineEdit", "50"},
        {VswrConverter, "forwardPowerUnitComboBox", "dBm"},
        {VswrConverter, "reflectedPowerLineEdit", "36"},
        {VswrConverter, "absorbedPowerLineEdit", "49.8"},
    };
}

void ExamplesTest::showsWhatTheGuideSays()
{
    QFETCH(Entries, shown);

    const QString name = exampleFile(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(QFileInfo::exists(name));
    CalculationFiles::open(MainProfile::instance(), name);
    for (const Entry &entry : shown)
        QCOMPARE(textOf(field(entry)), QString::fromUtf8(entry.text));
}

void ExamplesTest::isWhatTheProgramSaves_data()
{
    QTest::addColumn<Entries>("typed");

    QTest::newRow("receiver-chain") << Entries{
        {DbmCalculator, "inputLineEdit", "-97dBm-1dB+20dB-2dB-7dB+30dB"},
        {UnitConverter, "voltUnitComboBox", "mV"},
        {UnitConverter, "dbvUnitComboBox", "dBµV"},
        {UnitConverter, "dbmLineEdit", "-57"},
    };
    QTest::newRow("two-transmitters") << Entries{
        {DbmCalculator, "inputLineEdit", "10W+5W"},
        {DbConverter, "p1LineEdit", "15W"},
        {DbConverter, "p2LineEdit", "7.5W"},
        {VoltageCalculator, "inputLineEdit", "3mV+4mV"},
    };
    QTest::newRow("antenna-mismatch") << Entries{
        {VswrConverter, "arLineEdit", "14"},
        {VswrConverter, "forwardPowerLineEdit", "50"},
    };
}

void ExamplesTest::isWhatTheProgramSaves()
{
    QFETCH(Entries, typed);

    enterAll(typed);
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    const QTemporaryDir folder;
    const QString saved = folder.filePath(name);
    CalculationFiles::save(MainProfile::instance(), saved);
    QCOMPARE(moduleValues(saved), moduleValues(exampleFile(name)));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, ExamplesTest>(argc, argv, true);
}

#include "tst_examples.moc"
