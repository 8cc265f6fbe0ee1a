// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"
#include "dbconverterwidget.h"
#include "errortexts.h"
#include "kellineedit.h"
#include "mainprofile.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterwidget.h"
#include "vswrconverterwidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Dezimo;

/// Tests what the converters' pages tell about their fields.
class FieldHintsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theExamplesOfAFieldAreTaken_data();
    void theExamplesOfAFieldAreTaken();
    void theLineTellsAboutTheFieldWithTheFocus();
    void theUnitIsTheChosenOne();
    void anErrorWordSaysWhy_data();
    void anErrorWordSaysWhy();
    void everyErrorWordOfEveryFieldHasAReason();
    void aLevelBelowZeroSaysWhy();
    void aNewReasonIsToldWhereverTheFocusIs();
    void anOldReasonMakesRoom_data();
    void anOldReasonMakesRoom();
    void theReasonOfTheFieldWithTheFocusGoesFirst();
    void aFieldThatIsTurnedAwayIsNotToldAbout();
    void partsOfAFieldAreTheField();
    void anEmptyPageNamesTheGuide();
    void theDefaultImpedanceIsNothingTyped();

private:
    /// Opens the page with the object name @p field on it.
    ConverterPage open(const QString &field);
    QString line() const { return m_page->findChild<QLabel *>(QStringLiteral("hintLine"))->text(); }

    std::unique_ptr<QWidget> m_page;
};

namespace {

const QLatin1String kGuide(" | F1: guide");

} // namespace

void FieldHintsTest::init()
{
    loadDefaults();
}

void FieldHintsTest::cleanup()
{
    m_page.reset();
}

ConverterPage FieldHintsTest::open(const QString &field)
{
    std::unique_ptr<QWidget> pages[] = {std::make_unique<UnitConverterWidget>(),
                                        std::make_unique<DbConverterWidget>(),
                                        std::make_unique<VswrConverterWidget>()};
    for (std::unique_ptr<QWidget> &page : pages) {
        if (page->findChild<QWidget *>(field))
            m_page = std::move(page);
    }
    if (!m_page)
        qFatal("no page has a field %s", qPrintable(field));
    ConverterPage shown(*m_page);
    if (!shown.child<QWidget>(field).isVisible())
        m_page->findChild<QTabWidget *>()->setCurrentIndex(1);
    return shown;
}

void FieldHintsTest::theExamplesOfAFieldAreTaken_data()
{
    columns<QString, QString>({"field", "examples"});
    row("a level", "dbmLineEdit", "13.5, -30");
    row("a power", "wattLineEdit", "22.4, 500u");
    row("a voltage level", "dbvLineEdit", "-13, 107");
    row("a voltage", "voltLineEdit", "2.5, 100u");
    row("a ratio of powers", "pRatioLineEdit", "2, 0.5, 1k");
    row("a ratio of powers in dB", "pDbLineEdit", "3, -20");
    row("the first voltage", "v1LineEdit", "2, 100m");
    row("the second voltage", "v2LineEdit", "2, 100m");
    row("a ratio of voltages", "vRatioLineEdit", "2, 0.5, 1k");
    row("a ratio of voltages in dB", "vDbLineEdit", "6, -20");
    row("a VSWR", "vswrLineEdit", "2, 1.5");
    row("a reflection coefficient", "rLineEdit", "0.33");
    row("a reflected power", "r2LineEdit", "11");
    row("a return loss", "arLineEdit", "9.5");
    row("a mismatch loss", "amLineEdit", "0.5");
}

/// None of them makes an error word, in the field or beside it.
void FieldHintsTest::theExamplesOfAFieldAreTaken()
{
    QFETCH(QString, field);
    QFETCH(QString, examples);

    const ConverterPage page = open(field);
    const KelLineEdit &edit = page.field(field);
    QVERIFY2(edit.toolTip().contains(QLatin1String(": ") + examples), qPrintable(edit.toolTip()));
    const QStringList list = examples.split(QLatin1String(", "));
    for (const QString &example : list) {
        page.type(field, example);
        QTest::keyClick(&page.field(field), Qt::Key_Return);
        QCOMPARE(edit.text(), example);
        const QList<KelLineEdit *> all = m_page->findChildren<KelLineEdit *>();
        for (const KelLineEdit *one : all)
            QVERIFY2(!one->hasError(), qPrintable(example + QLatin1String(" in ") + field));
    }
}

void FieldHintsTest::theLineTellsAboutTheFieldWithTheFocus()
{
    const ConverterPage page = open(QStringLiteral("impedanceLineEdit"));
    page.type(QStringLiteral("wattLineEdit"), QStringLiteral("20"));
    QCOMPARE(line(), page.field(QStringLiteral("wattLineEdit")).toolTip());
    page.focus(QStringLiteral("impedanceLineEdit"));
    QCOMPARE(line(), QStringLiteral("Impedance in ohms; a new one empties the four values"));

    // A selector has nothing to tell, so the line does not change on the way.
    page.focus(QStringLiteral("dbvUnitComboBox"));
    QCOMPARE(line(), QStringLiteral("Impedance in ohms; a new one empties the four values"));
}

void FieldHintsTest::theUnitIsTheChosenOne()
{
    const ConverterPage page = open(QStringLiteral("forwardPowerLineEdit"));
    const KelLineEdit &field = page.field(QStringLiteral("forwardPowerLineEdit"));
    QVERIFY(field.toolTip().startsWith(QStringLiteral("Forward power P→ in dBm;")));
    page.focus(QStringLiteral("forwardPowerLineEdit"));
    page.combo(QStringLiteral("forwardPowerUnitComboBox")).setCurrentIndex(2);
    QVERIFY(field.toolTip().startsWith(QStringLiteral("Forward power P→ in W;")));
    QCOMPARE(field.accessibleDescription(), field.toolTip());
    QCOMPARE(line(), field.toolTip() + kGuide);
}

void FieldHintsTest::anErrorWordSaysWhy_data()
{
    columns<QString, QString, QString, QString>({"field", "typed", "marked", "reason"});
    row("a decimal comma", "dbmLineEdit", "1,5", "dbmLineEdit",
        "The logarithmic power is a number without a unit, with a point: 13.5, -30");
    row("a negative voltage", "voltLineEdit", "-1", "voltLineEdit",
        "The linear voltage is a number from 0 up, without a unit, with a point: 2.5, 100u");
    row("a VSWR below 1", "vswrLineEdit", "0.5", "vswrLineEdit",
        "The VSWR is a number from 1 up, with a point: 2, 1.5");
    row("a voltage with a unit", "v1LineEdit", "1 V", "v1LineEdit",
        "V1 is a number of volts without a unit, and with a point: 2.5, 100m");
    row("a ratio that is no number, said in the field beside it", "pRatioLineEdit", "two",
        "pDbLineEdit", "The ratio P1/P2 is a number with a point: 2, 0.5, 1k");
    row("a ratio in dB that is no number", "vDbLineEdit", "x", "vRatioLineEdit",
        "The ratio of the voltages in dB is a number with a point: -3, 1.5");
}

void FieldHintsTest::anErrorWordSaysWhy()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, marked);
    QFETCH(QString, reason);

    const ConverterPage page = open(field);
    page.type(field, typed);
    QTest::keyClick(&page.field(field), Qt::Key_Return);
    const KelLineEdit &error = page.field(marked);
    QVERIFY(error.hasError());
    QCOMPARE(line(), reason);
    QCOMPARE(error.toolTip(), reason);
    QCOMPARE(error.accessibleDescription(), reason);

    page.type(marked, QStringLiteral("2"));
    QVERIFY2(line() != reason, qPrintable(line()));
    QVERIFY(error.toolTip() != reason);
}

/// A calculation file may put any of the words into any of the fields.
void FieldHintsTest::everyErrorWordOfEveryFieldHasAReason()
{
    for (const char *field : {"dbmLineEdit", "p1LineEdit", "vswrLineEdit"}) {
        open(QLatin1String(field));
        const QList<KelLineEdit *> edits = m_page->findChildren<KelLineEdit *>();
        QVERIFY(edits.size() >= 5);
        for (KelLineEdit *edit : edits) {
            const QString takes = edit->toolTip();
            QVERIFY2(!takes.isEmpty(), qPrintable(edit->objectName()));
            const QStringList words = ErrorText::all();
            for (const QString &word : words) {
                edit->setText(word);
                QVERIFY2(edit->toolTip() != takes,
                         qPrintable(edit->objectName() + QLatin1Char(' ') + word));
            }
            edit->clear();
            QCOMPARE(edit->toolTip(), takes);
        }
    }
}

/// More power is absorbed than arrives, so none is left to come back.
void FieldHintsTest::aLevelBelowZeroSaysWhy()
{
    const ConverterPage page = open(QStringLiteral("forwardPowerLineEdit"));
    page.type(QStringLiteral("forwardPowerLineEdit"), QStringLiteral("10"));
    page.type(QStringLiteral("absorbedPowerLineEdit"), QStringLiteral("20"));
    page.focus(QStringLiteral("vswrLineEdit"));
    QCOMPARE(page.field(QStringLiteral("reflectedPowerLineEdit")).text(), ErrorText::kNotANumber);
    QCOMPARE(line(), QStringLiteral("No reflected power fits: it would be below zero, or Γ² is 0"));
}

/// The person has left the field when its word appears.
void FieldHintsTest::aNewReasonIsToldWhereverTheFocusIs()
{
    const ConverterPage page = open(QStringLiteral("p1LineEdit"));
    page.type(QStringLiteral("p1LineEdit"), QStringLiteral("5"));
    page.type(QStringLiteral("p2LineEdit"), QStringLiteral("2W"));
    page.focus(QStringLiteral("pDbLineEdit"));
    QCOMPARE(page.field(QStringLiteral("p2LineEdit")).text(), ErrorText::kUnitMismatch);
    QCOMPARE(line(), QStringLiteral("P1 and P2 must both have a unit, or neither"));

    page.type(QStringLiteral("p2LineEdit"), QStringLiteral("2"));
    QCOMPARE(line(), page.field(QStringLiteral("p2LineEdit")).toolTip());
}

void FieldHintsTest::anOldReasonMakesRoom_data()
{
    columns<QString>({"how"});
    row("when the person types in another field", "types");
    row("when the person goes to a third field", "goes on");
}

/// The word stays in its field, and so does its reason in the tip.
void FieldHintsTest::anOldReasonMakesRoom()
{
    QFETCH(QString, how);

    const ConverterPage page = open(QStringLiteral("wattLineEdit"));
    page.type(QStringLiteral("wattLineEdit"), QStringLiteral("-1"));
    QTest::keyClick(&page.field(QStringLiteral("wattLineEdit")), Qt::Key_Return);
    const QString reason = line();
    page.focus(QStringLiteral("voltLineEdit"));
    QCOMPARE(line(), reason);

    const bool isTyping = how == QLatin1String("types");
    if (isTyping)
        QTest::keyClicks(&page.field(QStringLiteral("voltLineEdit")), QStringLiteral("2"));
    else
        page.focus(QStringLiteral("impedanceLineEdit"));
    const QWidget *focused = QApplication::focusWidget();
    QCOMPARE(line(), focused->toolTip());
    QCOMPARE(page.field(QStringLiteral("wattLineEdit")).toolTip(), reason);

    page.focus(QStringLiteral("wattLineEdit"));
    QCOMPARE(line() == reason, !isTyping); // leaving the voltage calculates the power
}

void FieldHintsTest::theReasonOfTheFieldWithTheFocusGoesFirst()
{
    const ConverterPage page = open(QStringLiteral("vswrLineEdit"));
    page.field(QStringLiteral("vswrLineEdit")).setText(ErrorText::kInvalidInput);
    page.focus(QStringLiteral("vswrLineEdit"));
    page.field(QStringLiteral("amLineEdit")).setText(ErrorText::kInvalidInput);
    QCOMPARE(line(), page.field(QStringLiteral("vswrLineEdit")).toolTip());
}

/// The focus stays on the row of tabs meanwhile.
void FieldHintsTest::aFieldThatIsTurnedAwayIsNotToldAbout()
{
    const ConverterPage page = open(QStringLiteral("p1LineEdit"));
    page.type(QStringLiteral("p1LineEdit"), QStringLiteral("x"));
    QTest::keyClick(&page.field(QStringLiteral("p1LineEdit")), Qt::Key_Return);
    const QString reason = line();
    QCOMPARE(reason, page.field(QStringLiteral("p1LineEdit")).toolTip());
    QTabBar *tabs = page.child<QTabWidget>(QStringLiteral("mainTab")).tabBar();
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Right);
    QCOMPARE(line(), QStringLiteral("F1: guide"));
    QTest::keyClick(tabs, Qt::Key_Left);
    QCOMPARE(line(), reason);
}

void FieldHintsTest::partsOfAFieldAreTheField()
{
    const ConverterPage page = open(QStringLiteral("vModeToggle"));
    page.type(QStringLiteral("wattLineEdit"), QStringLiteral("1"));
    auto &toggle = page.child<QWidget>(QStringLiteral("vModeToggle"));
    const auto buttons = toggle.findChildren<QAbstractButton *>();
    QVERIFY(!buttons.isEmpty());
    buttons.first()->setFocus();
    QVERIFY(!toggle.toolTip().isEmpty());
    QCOMPARE(line(), toggle.toolTip());
    for (const QWidget *button : buttons)
        QCOMPARE(button->accessibleDescription(), toggle.toolTip());
}

void FieldHintsTest::anEmptyPageNamesTheGuide()
{
    const ConverterPage page = open(QStringLiteral("vswrLineEdit"));
    const KelLineEdit &field = page.field(QStringLiteral("vswrLineEdit"));
    page.focus(QStringLiteral("vswrLineEdit"));
    QCOMPARE(line(), field.toolTip() + kGuide);
    QTest::keyClicks(&page.field(QStringLiteral("vswrLineEdit")), QStringLiteral("2"));
    QCOMPARE(line(), field.toolTip());
    QTest::keyClick(&page.field(QStringLiteral("vswrLineEdit")), Qt::Key_Backspace);
    QCOMPARE(line(), field.toolTip() + kGuide);
}

void FieldHintsTest::theDefaultImpedanceIsNothingTyped()
{
    const ConverterPage page = open(QStringLiteral("impedanceLineEdit"));
    const QString tip = page.field(QStringLiteral("impedanceLineEdit")).toolTip();
    page.focus(QStringLiteral("impedanceLineEdit"));
    QCOMPARE(line(), tip + kGuide);
    page.type(QStringLiteral("impedanceLineEdit"), QStringLiteral("75"));
    QCOMPARE(line(), tip);
}

DEZIMO_TEST_MAIN(QApplication, FieldHintsTest)

#include "tst_fieldhints.moc"
