// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessibletree.h"
#include "expectedmessages.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "words.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

/// Tests what a screen reader finds in the window: every control by role, name, unit and state.
class AccessibleWindowTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlOfAPage_data();
    void everyControlOfAPage();
    void theUnitBelongsToTheValue_data();
    void theUnitBelongsToTheValue();
    void anErrorHasAReasonInPlaceOfAUnit();
    void theModules();
    void aModuleSelectedByAScreenReaderOpens();
    void theModeButtonSaysWhatItDoes();
    void theMenus_data();
    void theMenus();
    void theNumbersOfDecimalPlaces();

private:
    QWidget *page() const { return child<QStackedWidget>("stackedWidget")->currentWidget(); }
    void openPage(int module, int tab = 0);
};

namespace {

/// The names as one text, so that the log shows a difference.
QString listed(const QStringList &names)
{
    return names.join(QLatin1Char('\n'));
}

/// The controls without what the page tells about its fields, for which the hint line has tests of
/// its own.
QStringList withoutHints(QStringList controls)
{
    const QRegularExpression hint(QStringLiteral(" / .*?(?= \\[|$)"));
    for (QString &control : controls) {
        if (!control.contains(QLatin1String(" Result / ")))
            control.remove(hint);
    }
    return controls;
}

QString listed(const char *names)
{
    return listed(lines(names));
}

} // namespace

void AccessibleWindowTest::openPage(int module, int tab)
{
    openWindow();
    m_profile.setCurrentModule(module);
    if (auto *tabs = page()->findChild<QTabWidget *>())
        tabs->setCurrentIndex(tab);
}

void AccessibleWindowTest::everyControlOfAPage_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("controls");

    QTest::newRow("the dBm calculator") << 0 << 0 << listed(R"(
        EditableText Expression
        EditableText Result / dBm [read-only]
        ComboBox Result unit
        ComboBox Calculation mode
        Button dBm
        Button dB
        Button mW
        Button W
        Button 7
        Button 8
        Button 9
        Button Backspace
        Button Clear
        Button 4
        Button 5
        Button 6
        Button Plus
        Button 1
        Button 2
        Button 3
        Button Minus
        Button Change sign
        Button 0
        Button Decimal point
        Button Calculate)");
    QTest::newRow("the voltage calculator") << 1 << 0 << listed(R"(
        EditableText Expression
        EditableText Result / mV [read-only]
        ComboBox Result unit
        ComboBox Calculation mode
        SpinBox Phase in degrees
        Button V
        Button mV
        Button 7
        Button 8
        Button 9
        Button Backspace
        Button Clear
        Button 4
        Button 5
        Button 6
        Button Plus
        Button 1
        Button 2
        Button 3
        Button Minus
        Button Change sign
        Button 0
        Button Decimal point
        Button Calculate)");
    QTest::newRow("the unit converter") << 2 << 0 << listed(R"(
        EditableText Logarithmic power
        ComboBox Logarithmic power unit
        EditableText Linear power
        ComboBox Linear power unit
        EditableText Impedance in ohms
        Grouping Voltage mode
        RadioButton Vrms [checked]
        RadioButton Vpp
        RadioButton Vavg
        EditableText Logarithmic voltage
        ComboBox Logarithmic voltage unit
        EditableText Linear voltage
        ComboBox Linear voltage unit)");
    QTest::newRow("the dB converter's powers") << 3 << 0 << listed(R"(
        EditableText Power 1
        EditableText Power ratio
        EditableText Power ratio in dB
        EditableText Power 2
        PageTabList Powers
        PageTab Powers
        PageTab Voltages)");
    QTest::newRow("the dB converter's voltages") << 3 << 1 << listed(R"(
        EditableText Voltage 1
        EditableText Voltage ratio
        EditableText Voltage ratio in dB
        EditableText Voltage 2
        PageTabList Voltages
        PageTab Powers
        PageTab Voltages)");
    QTest::newRow("the VSWR converter's powers") << 4 << 0 << listed(R"(
        EditableText Voltage standing wave ratio
        EditableText Reflection coefficient
        EditableText Reflected power in percent
        EditableText Return loss in dB
        EditableText Mismatch loss in dB
        EditableText Forward power
        ComboBox Forward power unit
        EditableText Reflected power
        ComboBox Reflected power unit
        EditableText Absorbed power
        ComboBox Absorbed power unit
        PageTabList Powers
        PageTab Powers
        PageTab Voltages)");
    QTest::newRow("the VSWR converter's voltages") << 4 << 1 << listed(R"(
        EditableText Voltage standing wave ratio
        EditableText Reflection coefficient
        EditableText Reflected power in percent
        EditableText Return loss in dB
        EditableText Mismatch loss in dB
        EditableText Forward voltage
        ComboBox Forward voltage unit
        EditableText Reflected voltage
        ComboBox Reflected voltage unit
        EditableText Absorbed voltage
        ComboBox Absorbed voltage unit
        PageTabList Voltages
        PageTab Powers
        PageTab Voltages)");
}

void AccessibleWindowTest::everyControlOfAPage()
{
    QFETCH(int, module);
    QFETCH(int, tab);

    openPage(module, tab);
    QTEST(listed(withoutHints(AccessibleTree::controls(page()))), "controls");
}

void AccessibleWindowTest::theUnitBelongsToTheValue_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("unit");

    QTest::newRow("of the logarithmic power") << 2 << 0 << "Logarithmic power"
                                              << "dBW";
    QTest::newRow("of the linear power") << 2 << 0 << "Linear power"
                                         << "W";
    QTest::newRow("of the logarithmic voltage") << 2 << 0 << "Logarithmic voltage"
                                                << "dBµV";
    QTest::newRow("of the linear voltage") << 2 << 0 << "Linear voltage"
                                           << "V";
    QTest::newRow("of the forward power") << 4 << 0 << "Forward power"
                                          << "dBW";
    QTest::newRow("of the reflected power") << 4 << 0 << "Reflected power"
                                            << "dBW";
    QTest::newRow("of the absorbed power") << 4 << 0 << "Absorbed power"
                                           << "dBW";
    QTest::newRow("of the forward voltage") << 4 << 1 << "Forward voltage"
                                            << "dBµV";
    QTest::newRow("of the reflected voltage") << 4 << 1 << "Reflected voltage"
                                              << "dBµV";
    QTest::newRow("of the absorbed voltage") << 4 << 1 << "Absorbed voltage"
                                             << "dBµV";
}

/// Each selector starts at its first unit, so the test chooses the second one.
void AccessibleWindowTest::theUnitBelongsToTheValue()
{
    QFETCH(int, module);
    QFETCH(int, tab);
    QFETCH(QString, field);
    QFETCH(QString, unit);

    openPage(module, tab);
    const QAccessibleInterface *value =
        AccessibleTree::find(page(), QAccessible::EditableText, field);
    QAccessibleInterface *selector =
        AccessibleTree::find(page(), QAccessible::ComboBox, field + QLatin1String(" unit"));
    QVERIFY(value && selector);
    selector->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    const QString description = value->text(QAccessible::Description);
    QVERIFY2(description.contains(QLatin1String(" in ") + unit), qPrintable(description));
    QCOMPARE(selector->text(QAccessible::Value), unit);
}

void AccessibleWindowTest::anErrorHasAReasonInPlaceOfAUnit()
{
    openPage(0);
    auto *expression = page()->findChild<QLineEdit *>(QStringLiteral("inputLineEdit"));
    QTest::keyClicks(expression, QStringLiteral("3 dBm + 3 dBm"));
    // A combiner calculates the mean of two incoherent powers.
    const QAccessibleInterface *result =
        AccessibleTree::find(page(), QAccessible::EditableText, QStringLiteral("Result"));
    QCOMPARE(result->text(QAccessible::Value), QStringLiteral("3.00"));
    QCOMPARE(result->text(QAccessible::Description), QStringLiteral("dBm"));

    QTest::keyClicks(expression, QStringLiteral("+"));
    QCOMPARE(result->text(QAccessible::Value), QStringLiteral("invalid input"));
    QCOMPARE(result->text(QAccessible::Description),
             QStringLiteral("A value is missing after '+'"));
}

void AccessibleWindowTest::theModules()
{
    openPage(3);
    QCOMPARE(listed(AccessibleTree::controls(child("menuWidget"))), listed(R"(
        List Modules
        ListItem dBm Calculator
        ListItem Voltage Calculator
        ListItem Unit Converter
        ListItem dB Converter [selected]
        ListItem VSWR Converter
        Button Show module names / Show module names)"));
}

void AccessibleWindowTest::aModuleSelectedByAScreenReaderOpens()
{
    openPage(0);
    QAccessibleInterface *item = AccessibleTree::find(child("menuWidget"), QAccessible::ListItem,
                                                      QStringLiteral("Unit Converter"));
    QVERIFY(item);
    item->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 2);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Dezimo [Unit Converter]"));
}

void AccessibleWindowTest::theModeButtonSaysWhatItDoes()
{
    openPage(0);
    const QAccessibleInterface *button =
        QAccessible::queryAccessibleInterface(child("changeWindowModeButton"));
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Show module names"));
    child<QToolButton>("changeWindowModeButton")->click();
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Hide module names"));
}

void AccessibleWindowTest::theMenus_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("entries");

    QTest::newRow("File") << "menuFile" << listed(R"(
        PopupMenu File
        MenuItem Load Defaults
        MenuItem Open...
        MenuItem Save...
        MenuItem Quit)");
    QTest::newRow("Options") << "menuOptions" << listed(R"(
        PopupMenu Options
        MenuItem Decimal Places)");
    QTest::newRow("Help") << "menuHelp" << listed(R"(
        PopupMenu Help
        MenuItem About)");
}

void AccessibleWindowTest::theMenus()
{
    QFETCH(QString, menu);

    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    QCOMPARE(listed(AccessibleTree::controls(child("menubar"))), listed(R"(
        MenuBar Menus
        MenuItem File
        MenuItem Options
        MenuItem Help)"));
    auto *popup = m_window->findChild<QMenu *>(menu);
    popup->popup(QPoint());
    QTEST(listed(AccessibleTree::controls(popup)), "entries");
    popup->close();
}

void AccessibleWindowTest::theNumbersOfDecimalPlaces()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    openWindow();
    m_profile.setDecimalPlaces(3);
    auto *menu = child<QMenu>("menuDecimal_Places");
    menu->popup(QPoint());
    QCOMPARE(listed(AccessibleTree::controls(menu)), listed(R"(
        PopupMenu Decimal Places
        MenuItem 0
        MenuItem 1
        MenuItem 2
        MenuItem 3 [checked]
        MenuItem 4
        MenuItem 5
        MenuItem 6
        MenuItem 7
        MenuItem 8
        MenuItem 9
        MenuItem 10)"));
    menu->close();
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, AccessibleWindowTest>(argc, argv, true);
}

#include "tst_accessiblewindow.moc"
