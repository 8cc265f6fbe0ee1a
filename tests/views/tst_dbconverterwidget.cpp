// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterwidget.h"
#include "mainprofile.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"
#include "words.h"

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace Dezimo;

class DbConverterWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void typingStoresTheTextAndForgetsTheLatestRun_data();
    void typingStoresTheTextAndForgetsTheLatestRun();
    void leavingAFieldCalculates_data();
    void leavingAFieldCalculates();
    void returnCalculates();
    void leavingAFieldAgainCalculatesOnceOnly();
    void leavingTheSecondOperandAgainCalculatesAgain();
    void tabbingOutAndBackTwiceCalculatesNothing();
    void finishingAMismatchTwiceFindsTheErrorTextInvalid();
    void leavingTheSecondOperandCalculatesWithoutAnEdit_data();
    void leavingTheSecondOperandCalculatesWithoutAnEdit();
    void tabbingThroughTheRatioKeepsTheDecibels();
    void showsWhatTheModelHolds_data();
    void showsWhatTheModelHolds();
    void aNewPageShowsTheModelAtOnce();
    void theTabIsKeptInTheModel();
    void aLoadedModeTurnsTheTab();
    void aLoadWithTheFocusInAFieldCalculatesNothing_data();
    void aLoadWithTheFocusInAFieldCalculatesNothing();
    void typingInTheMiddleKeepsTheCursor();
    void tabWalksFromFieldToField();
    void anErrorWordIsMarked();
    void everyFieldHasANameForAScreenReader();
    void aLanguageChangeKeepsTheFields();
    void goingAwayFinishesTheEdit();

private:
    QLineEdit *edit(const QString &name) const { return m_page->findChild<QLineEdit *>(name); }
    QLineEdit *edit(const char *name) const { return edit(QLatin1String(name)); }
    void show(int tab);

    DbConverterProfile &m_model = MainProfile::instance().dbConverter();
    std::unique_ptr<DbConverterWidget> m_page;
};

void DbConverterWidgetTest::init()
{
    QSettings none(QStringLiteral("none"), QString());
    MainProfile::instance().loadSettings(none);
    m_page = std::make_unique<DbConverterWidget>();
    show(0);
}

void DbConverterWidgetTest::cleanup()
{
    m_page.reset();
}

void DbConverterWidgetTest::show(int tab)
{
    m_page->findChild<QTabWidget *>(QStringLiteral("mainTab"))->setCurrentIndex(tab);
    m_page->show();
    QVERIFY(waitForKeyboard(*m_page));
}

void DbConverterWidgetTest::typingStoresTheTextAndForgetsTheLatestRun_data()
{
    columns<QString, QByteArray, int>({"property", "latestRun", "tab"});
    for (const char *name : {"p1", "p2", "pRatio", "pDb"})
        row(name, QString::fromLatin1(name), QByteArray("pLatestRun"), 0);
    for (const char *name : {"v1", "v2", "vRatio", "vDb"})
        row(name, QString::fromLatin1(name), QByteArray("vLatestRun"), 1);
}

void DbConverterWidgetTest::typingStoresTheTextAndForgetsTheLatestRun()
{
    QFETCH(QString, property);
    QFETCH(QByteArray, latestRun);
    QFETCH(int, tab);

    show(tab);
    m_model.setProperty(latestRun.constData(), 99);
    QTest::keyClicks(edit(property + QLatin1String("LineEdit")), QStringLiteral("12"));
    QCOMPARE(m_model.property(property.toLatin1().constData()).toString(), QStringLiteral("12"));
    QCOMPARE(m_model.property(latestRun.constData()).toInt(), 0);
    // The page calculates only when the person leaves the field.
    int filled = 0;
    for (const char *name : {"p1", "p2", "pRatio", "pDb", "v1", "v2", "vRatio", "vDb"})
        filled += m_model.property(name).toString().isEmpty() ? 0 : 1;
    QCOMPARE(filled, 1);
}

void DbConverterWidgetTest::leavingAFieldCalculates_data()
{
    columns<int, QString, QString, QString, QString, QString, QString>(
        {"tab", "partner", "partnerText", "finished", "text", "result", "resultText"});
    row("P1", 0, "p2", "0dBm", "p1", "10dBm", "pDb", "10.00");
    row("P2", 0, "p1", "10dBm", "p2", "0dBm", "pRatio", "10");
    row("power ratio", 0, "p2", "1W", "pRatio", "4", "p1", "4W");
    row("power ratio in dB", 0, "p2", "1W", "pDb", "20", "p1", "100W");
    row("V1", 1, "v2", "1", "v1", "10", "vDb", "20.00");
    row("V2", 1, "v1", "10", "v2", "1", "vRatio", "10");
    row("voltage ratio", 1, "v2", "2", "vRatio", "4", "v1", "8");
    row("voltage ratio in dB", 1, "v2", "2", "vDb", "20", "v1", "20");
}

void DbConverterWidgetTest::leavingAFieldCalculates()
{
    QFETCH(int, tab);
    QFETCH(QString, partner);
    QFETCH(QString, partnerText);
    QFETCH(QString, finished);
    QFETCH(QString, text);
    QFETCH(QString, result);
    QFETCH(QString, resultText);

    show(tab);
    const QString suffix = QStringLiteral("LineEdit");
    m_model.setProperty(partner.toLatin1().constData(), partnerText);
    edit(finished + suffix)->setFocus();
    QTest::keyClicks(edit(finished + suffix), text);
    QTest::keyClick(edit(finished + suffix), Qt::Key_Tab);
    QCOMPARE(edit(result + suffix)->text(), resultText);
}

void DbConverterWidgetTest::returnCalculates()
{
    QTest::keyClicks(edit("pDbLineEdit"), QStringLiteral("3"));
    QTest::keyClick(edit("pDbLineEdit"), Qt::Key_Return);
    QCOMPARE(edit("pRatioLineEdit")->text(), QStringLiteral("2"));
}

void DbConverterWidgetTest::leavingAFieldAgainCalculatesOnceOnly()
{
    m_model.setP2(QStringLiteral("1W"));
    QTest::keyClicks(edit("p1LineEdit"), QStringLiteral("4W"));
    QTest::keyClick(edit("p1LineEdit"), Qt::Key_Return);
    m_model.setPRatio(QStringLiteral("changed"));
    QTest::keyClick(edit("p1LineEdit"), Qt::Key_Return);
    QCOMPARE(edit("pRatioLineEdit")->text(), QStringLiteral("changed"));
}

void DbConverterWidgetTest::leavingTheSecondOperandAgainCalculatesAgain()
{
    m_model.setP1(QStringLiteral("4W"));
    QTest::keyClicks(edit("p2LineEdit"), QStringLiteral("1W"));
    QTest::keyClick(edit("p2LineEdit"), Qt::Key_Return);
    m_model.setPRatio(QStringLiteral("changed"));
    QTest::keyClick(edit("p2LineEdit"), Qt::Key_Return);
    QCOMPARE(edit("pRatioLineEdit")->text(), QStringLiteral("4"));
}

void DbConverterWidgetTest::leavingTheSecondOperandCalculatesWithoutAnEdit_data()
{
    columns<int, QString, QString, QString>({"tab", "first", "second", "ratio"});
    row("P2", 0, "p1", "p2", "pRatio");
    row("V2", 1, "v1", "v2", "vRatio");
}

void DbConverterWidgetTest::leavingTheSecondOperandCalculatesWithoutAnEdit()
{
    QFETCH(int, tab);
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, ratio);

    show(tab);
    m_model.setProperty(first.toLatin1().constData(), QStringLiteral("4"));
    m_model.setProperty(second.toLatin1().constData(), QStringLiteral("1"));
    for (const char *before : {"", "changed"}) {
        m_model.setProperty(ratio.toLatin1().constData(), QLatin1String(before));
        edit(second + QLatin1String("LineEdit"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(edit(ratio + QLatin1String("LineEdit"))->text(), QStringLiteral("4"));
    }
}

void DbConverterWidgetTest::tabbingOutAndBackTwiceCalculatesNothing()
{
    edit("p1LineEdit")->setFocus();
    QTest::keyClicks(edit("p1LineEdit"), QStringLiteral("4W"));
    QTest::keyClick(edit("p1LineEdit"), Qt::Key_Tab);
    QCOMPARE(m_model.pLatestRun(), 1);
    // P2 is empty. Leaving it only stores the code of P1 as the latest run, which it is already. A
    // calculation of P1 would now replace the text by an error.
    m_model.setP1(QStringLiteral("changed"));
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(edit("p1LineEdit")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(edit("p2LineEdit")->hasFocus());
    }
    QCOMPARE(edit("p1LineEdit")->text(), QStringLiteral("changed"));
    QCOMPARE(edit("pRatioLineEdit")->text(), QString());
}

/// Leaving the second operand always calculates, on purpose. So it reads the message in the field
/// as an operand.
void DbConverterWidgetTest::finishingAMismatchTwiceFindsTheErrorTextInvalid()
{
    m_model.setP1(QStringLiteral("1W"));
    QTest::keyClicks(edit("p2LineEdit"), QStringLiteral("2"));
    QTest::keyClick(edit("p2LineEdit"), Qt::Key_Return);
    QCOMPARE(edit("p2LineEdit")->text(), QStringLiteral("unit mismatch"));
    QTest::keyClick(edit("p2LineEdit"), Qt::Key_Return);
    QCOMPARE(edit("p2LineEdit")->text(), QStringLiteral("invalid input"));
}

/// The field shows a rounded ratio. Passing through it must not calculate from the rounded value.
void DbConverterWidgetTest::tabbingThroughTheRatioKeepsTheDecibels()
{
    MainProfile::instance().setDecimalPlaces(1);
    m_model.setP1(QStringLiteral("3W"));
    edit("p2LineEdit")->setFocus();
    QTest::keyClicks(edit("p2LineEdit"), QStringLiteral("2W"));
    QTest::keyClick(edit("p2LineEdit"), Qt::Key_Tab);
    QCOMPARE(edit("pRatioLineEdit")->text(), QStringLiteral("2")); // 1.5 with one digit
    QCOMPARE(edit("pDbLineEdit")->text(), QStringLiteral("1.76")); // 10 lg 1.5
    QTest::keyClick(edit("pRatioLineEdit"), Qt::Key_Tab);
    QCOMPARE(edit("pDbLineEdit")->text(), QStringLiteral("1.76"));
    // A person who types the 2 means it: 10 lg 2
    QTest::keyClick(edit("pDbLineEdit"), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClicks(edit("pRatioLineEdit"), QStringLiteral("2"));
    QTest::keyClick(edit("pRatioLineEdit"), Qt::Key_Tab);
    QCOMPARE(edit("pDbLineEdit")->text(), QStringLiteral("3.01"));
}

void DbConverterWidgetTest::showsWhatTheModelHolds_data()
{
    columns<QByteArray>({"property"});
    for (const char *name : {"p1", "p2", "pRatio", "pDb", "v1", "v2", "vRatio", "vDb"})
        row(name, QByteArray(name));
}

void DbConverterWidgetTest::showsWhatTheModelHolds()
{
    QFETCH(QByteArray, property);

    QLineEdit *field = edit(QLatin1String(property) + QLatin1String("LineEdit"));
    const QSignalSpy edited(field, &QLineEdit::textEdited);
    m_model.setProperty(property.constData(), QStringLiteral("from the model"));
    QCOMPARE(field->text(), QStringLiteral("from the model"));
    QCOMPARE(edited.count(), 0);
}

void DbConverterWidgetTest::aNewPageShowsTheModelAtOnce()
{
    m_model.setV1(QStringLiteral("5"));
    m_model.setCurrentMode(1);
    const DbConverterWidget page;
    QCOMPARE(page.findChild<QLineEdit *>(QStringLiteral("v1LineEdit"))->text(),
             QStringLiteral("5"));
    QCOMPARE(page.findChild<QTabWidget *>(QStringLiteral("mainTab"))->currentIndex(), 1);
}

void DbConverterWidgetTest::theTabIsKeptInTheModel()
{
    const QSignalSpy changed(&m_model, &DbConverterProfile::currentModeChanged);
    show(1);
    QCOMPARE(m_model.currentMode(), 1);
    show(0);
    QCOMPARE(m_model.currentMode(), 0);
    QCOMPARE(changed.count(), 2);
}

void DbConverterWidgetTest::aLoadedModeTurnsTheTab()
{
    m_model.setCurrentMode(1);
    QCOMPARE(m_page->findChild<QTabWidget *>(QStringLiteral("mainTab"))->currentIndex(), 1);
    m_model.setCurrentMode(17); // no such tab: the page stays
    QCOMPARE(m_page->findChild<QTabWidget *>(QStringLiteral("mainTab"))->currentIndex(), 1);
}

void DbConverterWidgetTest::aLoadWithTheFocusInAFieldCalculatesNothing_data()
{
    columns<QString, int>({"field", "tab"});
    for (const char *name : {"p1", "p2", "pRatio", "pDb"})
        row(name, QString::fromLatin1(name), 0);
    for (const char *name : {"v1", "v2", "vRatio", "vDb"})
        row(name, QString::fromLatin1(name), 1);
}

/// The values do not belong together, so that any calculation would show.
void DbConverterWidgetTest::aLoadWithTheFocusInAFieldCalculatesNothing()
{
    QFETCH(QString, field);
    QFETCH(int, tab);

    const QStringList names = words("p1 p2 pRatio pDb v1 v2 vRatio vDb");
    SettingsFile file;
    file.settings().beginGroup(QStringLiteral("DbConverterProfile"));
    for (int i = 0; i < names.size(); ++i)
        file.settings().setValue(names.at(i), QString::number(i + 2));
    file.settings().setValue(QStringLiteral("currentMode"), 1 - tab);
    file.settings().setValue(QStringLiteral("pLatestRun"), 9);
    file.settings().setValue(QStringLiteral("vLatestRun"), 9);
    file.settings().endGroup();

    show(tab);
    edit(field + QLatin1String("LineEdit"))->setFocus();
    m_model.loadSettings(file.settings());
    QCOMPARE(m_page->findChild<QTabWidget *>(QStringLiteral("mainTab"))->currentIndex(), 1 - tab);
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(edit(names.at(i) + QLatin1String("LineEdit"))->text(), QString::number(i + 2));
    QCOMPARE(m_model.pLatestRun(), 9);
    QCOMPARE(m_model.vLatestRun(), 9);
}

void DbConverterWidgetTest::typingInTheMiddleKeepsTheCursor()
{
    QLineEdit *field = edit("p1LineEdit");
    QTest::keyClicks(field, QStringLiteral("15W"));
    field->setCursorPosition(1);
    QTest::keyClicks(field, QStringLiteral("23"));
    QCOMPARE(field->text(), QStringLiteral("1235W"));
    QCOMPARE(field->cursorPosition(), 3);
}

void DbConverterWidgetTest::tabWalksFromFieldToField()
{
    for (const QStringList &names : {words("p1 p2 pRatio pDb"), words("v1 v2 vRatio vDb")}) {
        show(names.first().startsWith(QLatin1Char('v')) ? 1 : 0);
        edit(names.first() + QLatin1String("LineEdit"))->setFocus();
        for (int i = 1; i < names.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), edit(names.at(i) + QLatin1String("LineEdit")));
        }
    }
}

void DbConverterWidgetTest::anErrorWordIsMarked()
{
    QTest::keyClicks(edit("p1LineEdit"), QStringLiteral("abc"));
    QTest::keyClick(edit("p1LineEdit"), Qt::Key_Return);
    QCOMPARE(edit("p1LineEdit")->text(), QStringLiteral("invalid input"));
    QCOMPARE(edit("p1LineEdit")->property("error").toBool(), true);
    QCOMPARE(edit("p2LineEdit")->property("error").toBool(), false);
}

void DbConverterWidgetTest::everyFieldHasANameForAScreenReader()
{
    const QList<QLineEdit *> edits = m_page->findChildren<QLineEdit *>();
    QCOMPARE(edits.size(), 8);
    QStringList names;
    for (const QLineEdit *field : edits) {
        QVERIFY(!field->accessibleName().isEmpty());
        names += field->accessibleName();
    }
    QCOMPARE(names.removeDuplicates(), 0);
}

void DbConverterWidgetTest::aLanguageChangeKeepsTheFields()
{
    m_model.setP1(QStringLiteral("1W"));
    m_model.setVDb(QStringLiteral("6.02"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_page.get(), &change);
    QCOMPARE(edit("p1LineEdit")->text(), QStringLiteral("1W"));
    QCOMPARE(edit("vDbLineEdit")->text(), QStringLiteral("6.02"));
}

void DbConverterWidgetTest::goingAwayFinishesTheEdit()
{
    m_model.setP2(QStringLiteral("1W"));
    edit("p1LineEdit")->setFocus();
    QTest::keyClicks(edit("p1LineEdit"), QStringLiteral("4W"));
    m_page.reset();
    QCOMPARE(m_model.pRatio(), QStringLiteral("4"));
}

DEZIMO_TEST_MAIN(QApplication, DbConverterWidgetTest)

#include "tst_dbconverterwidget.moc"
