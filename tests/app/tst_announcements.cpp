// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessibletree.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "words.h"

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <utility>

namespace {

QStringList &heard()
{
    static QStringList lines;
    return lines;
}

QString newText(QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::TextInserted:
        return static_cast<QAccessibleTextInsertEvent *>(event)->textInserted();
    case QAccessible::TextUpdated:
        return static_cast<QAccessibleTextUpdateEvent *>(event)->textInserted();
    case QAccessible::ValueChanged:
        return static_cast<QAccessibleValueChangeEvent *>(event)->value().toString();
    default:
        return {};
    }
}

/// Notes each change of a control's text or value as "name: text".
void listen(QAccessibleEvent *event)
{
    const bool isChange =
        event->type() == QAccessible::TextInserted || event->type() == QAccessible::TextUpdated ||
        event->type() == QAccessible::TextRemoved || event->type() == QAccessible::ValueChanged;
    if (!isChange)
        return;
    // A label with markup announces its text when it is first laid out, but it is no control.
    const QAccessibleInterface *interface = event->accessibleInterface();
    if (interface->role() != QAccessible::StaticText)
        heard() += interface->text(QAccessible::Name) + QLatin1String(": ") + newText(event);
}

} // namespace

/// The window announces each result and error word that changes, and nothing that stays the same.
class AnnouncementsTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void aCalculatorTellsItsResultWithEveryKey();
    void aResultThatStaysIsNotToldAgain();
    void anErrorWordIsTold();
    void anotherUnitIsToldWithTheResult();
    void typingInAConverterTellsNothingElse();
    void aConverterTellsEveryResultOnce_data();
    void aConverterTellsEveryResultOnce();
    void aConverterTellsAnErrorWord();
    void aChosenUnitTellsTheUnitAndItsValue();
    void aPageThatOpensTellsNoValues();

private:
    QLineEdit *field(const QString &name) const;
    void openPage(int module);
    QStringList heardAfterTyping(QLineEdit *edit, const QString &text) const;
};

/// Qt sends events only if assistive technology listens, and the offscreen platform never says so
/// by itself.
void AnnouncementsTest::initTestCase()
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    QAccessible::installUpdateHandler(listen);
}

void AnnouncementsTest::cleanupTestCase()
{
    QAccessible::installUpdateHandler(nullptr);
}

void AnnouncementsTest::openPage(int module)
{
    openWindow();
    m_profile.setCurrentModule(module);
    heard().clear();
}

QLineEdit *AnnouncementsTest::field(const QString &name) const
{
    const QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    const QAccessibleInterface *found = AccessibleTree::find(page, QAccessible::EditableText, name);
    return found ? qobject_cast<QLineEdit *>(found->object()) : nullptr;
}

/// Everything that is announced, except what is typed into the field itself.
QStringList AnnouncementsTest::heardAfterTyping(QLineEdit *edit, const QString &text) const
{
    QTest::keyClicks(edit, text);
    QStringList others;
    for (const QString &line : std::as_const(heard())) {
        if (!line.startsWith(edit->accessibleName() + QLatin1Char(':')))
            others += line;
    }
    return others;
}

void AnnouncementsTest::aCalculatorTellsItsResultWithEveryKey()
{
    openPage(0);
    QLineEdit *expression = field(QStringLiteral("Expression"));
    QTest::keyClicks(expression, QStringLiteral("3 dBm + "));
    heard().clear();
    // A combiner calculates the mean of two incoherent powers.
    const QStringList told = heardAfterTyping(expression, QStringLiteral("3 dBm"));
    QCOMPARE(told.isEmpty() ? QString() : told.last(), QStringLiteral("Result: 3.00"));
    QVERIFY2(heard().size() <= 2 * 5,
             "each of the 5 keys is told once, and the result at most once");
}

void AnnouncementsTest::aResultThatStaysIsNotToldAgain()
{
    openPage(0);
    QLineEdit *expression = field(QStringLiteral("Expression"));
    QTest::keyClicks(expression, QStringLiteral("3 dBm + 3 dBm"));
    heard().clear();
    QCOMPARE(heardAfterTyping(expression, QStringLiteral("  ")), QStringList());
}

void AnnouncementsTest::anErrorWordIsTold()
{
    openPage(0);
    QLineEdit *expression = field(QStringLiteral("Expression"));
    QTest::keyClicks(expression, QStringLiteral("3 dBm + 3 dBm"));
    heard().clear();
    QCOMPARE(heardAfterTyping(expression, QStringLiteral("+")),
             QStringList(QStringLiteral("Result: invalid input")));
}

void AnnouncementsTest::anotherUnitIsToldWithTheResult()
{
    openPage(0);
    QTest::keyClicks(field(QStringLiteral("Expression")), QStringLiteral("30 dBm + 30 dBm"));
    heard().clear();
    QTest::keyClick(
        child("dbmCalculatorWidget")->findChild<QComboBox *>(QStringLiteral("outputUnitComboBox")),
        Qt::Key_Down);
    // 10^(30/10) mW = 1000 mW, of which three digits are shown
    heard().sort();
    QCOMPARE(heard(), lines("Result unit: mW\nResult: 1E+03"));
}

void AnnouncementsTest::typingInAConverterTellsNothingElse()
{
    openPage(2);
    QCOMPARE(heardAfterTyping(field(QStringLiteral("Logarithmic power")), QStringLiteral("30")),
             QStringList());
}

void AnnouncementsTest::aConverterTellsEveryResultOnce_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("told");

    // 1 W over 50 ohms: sqrt(50) V = 7.07 V, 20*log10(7.07) = 16.99 dBV
    QTest::newRow("the unit converter") << 2 << "Logarithmic power"
                                        << "30" << lines(R"(
        Linear power: 1E+03
        Linear voltage: 7.07E+03
        Logarithmic voltage: 16.99)");
    // |Γ| = (2-1)/(2+1), Γ² = 11.1 %, mismatch loss -10*log10(1 - 1/9) = 0.51 dB
    QTest::newRow("the VSWR converter") << 4 << "Voltage standing wave ratio"
                                        << "2" << lines(R"(
        Mismatch loss in dB: 0.51
        Reflected power in percent: 11.1
        Reflection coefficient: 0.333)");
}

void AnnouncementsTest::aConverterTellsEveryResultOnce()
{
    QFETCH(int, module);
    QFETCH(QString, name);
    QFETCH(QString, text);

    openPage(module);
    QTest::keyClicks(field(name), text);
    heard().clear();
    QTest::keyClick(field(name), Qt::Key_Return);
    heard().sort();
    QTEST(heard(), "told");
}

void AnnouncementsTest::aConverterTellsAnErrorWord()
{
    openPage(3);
    QTest::keyClicks(field(QStringLiteral("Power 1")), QStringLiteral("1W"));
    QTest::keyClicks(field(QStringLiteral("Power 2")), QStringLiteral("0W"));
    heard().clear();
    QTest::keyClick(field(QStringLiteral("Power 2")), Qt::Key_Return);
    QCOMPARE(heard(), QStringList(QStringLiteral("Power ratio: NAN")));
}

void AnnouncementsTest::aChosenUnitTellsTheUnitAndItsValue()
{
    openPage(4);
    QLineEdit *power = field(QStringLiteral("Forward power"));
    QTest::keyClicks(power, QStringLiteral("10"));
    heard().clear();
    QTest::keyClick(m_window->findChild<QComboBox *>(QStringLiteral("forwardPowerUnitComboBox")),
                    Qt::Key_Down);
    // 10 dBm - 30 dB = -20 dBW
    heard().sort();
    QCOMPARE(heard(), lines("Forward power unit: dBW\nForward power: -20"));
}

void AnnouncementsTest::aPageThatOpensTellsNoValues()
{
    openPage(0);
    for (const int module : {1, 2, 3, 4, 0})
        m_profile.setCurrentModule(module);
    QCOMPARE(heard(), QStringList());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, AnnouncementsTest>(argc, argv, true);
}

#include "tst_announcements.moc"
