// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "words.h"

#include <QAccessible>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

/// Tab walks through a page in reading order, from there to the list of modules and back to the
/// page. Shift+Tab walks the same way backward. No control traps the keyboard.
class TabOrderTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void forward_data() { stops(); }
    void forward();
    void backward_data() { stops(); }
    void backward();
    void everyFieldStandsBelowOrRightOfTheOneBefore_data() { stops(); }
    void everyFieldStandsBelowOrRightOfTheOneBefore();

private:
    static void stops();
    void openPage();
    QVector<QWidget *> walk(bool forward) const;
};

namespace {

constexpr int kMoreStopsThanAnyPageHas = 40;

/// The names by which a screen reader announces the stops.
QStringList namesOf(const QVector<QWidget *> &widgets)
{
    QStringList names;
    for (QWidget *widget : widgets)
        names += QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    return names;
}

} // namespace

void TabOrderTest::stops()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("the dBm calculator") << 0 << 0 << lines(R"(
        Expression
        Result
        Result unit
        Calculation mode
        Modules
        Show module names)");
    QTest::newRow("the voltage calculator") << 1 << 0 << lines(R"(
        Expression
        Result
        Result unit
        Calculation mode
        Phase in degrees
        Modules
        Show module names)");
    QTest::newRow("the unit converter") << 2 << 0 << lines(R"(
        Logarithmic power
        Logarithmic power unit
        Linear power
        Linear power unit
        Impedance in ohms
        Vrms
        Logarithmic voltage
        Logarithmic voltage unit
        Linear voltage
        Linear voltage unit
        Modules
        Show module names)");
    QTest::newRow("the dB converter's powers") << 3 << 0 << lines(R"(
        Power 1
        Power 2
        Power ratio
        Power ratio in dB
        Modules
        Show module names
        Powers)");
    QTest::newRow("the dB converter's voltages") << 3 << 1 << lines(R"(
        Voltage 1
        Voltage 2
        Voltage ratio
        Voltage ratio in dB
        Modules
        Show module names
        Voltages)");
    QTest::newRow("the VSWR converter's powers") << 4 << 0 << lines(R"(
        Voltage standing wave ratio
        Reflection coefficient
        Reflected power in percent
        Return loss in dB
        Mismatch loss in dB
        Powers
        Forward power
        Forward power unit
        Reflected power
        Reflected power unit
        Absorbed power
        Absorbed power unit
        Modules
        Show module names)");
    QTest::newRow("the VSWR converter's voltages") << 4 << 1 << lines(R"(
        Voltage standing wave ratio
        Reflection coefficient
        Reflected power in percent
        Return loss in dB
        Mismatch loss in dB
        Voltages
        Forward voltage
        Forward voltage unit
        Reflected voltage
        Reflected voltage unit
        Absorbed voltage
        Absorbed voltage unit
        Modules
        Show module names)");
}

/// Opens the page of the row with the keyboard on its first field.
void TabOrderTest::openPage()
{
    QFETCH(int, module);
    QFETCH(int, tab);
    QFETCH(QStringList, names);

    openWindow();
    m_profile.setCurrentModule(module);
    QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    if (auto *tabs = page->findChild<QTabWidget *>())
        tabs->setCurrentIndex(tab);
    const QList<QLineEdit *> edits = page->findChildren<QLineEdit *>();
    const auto first = std::find_if(edits.begin(), edits.end(), [&names](const QLineEdit *edit) {
        return edit->accessibleName() == names.first();
    });
    QVERIFY(first != edits.end());
    (*first)->setFocus();
    QVERIFY((*first)->hasFocus());
}

/// Every stop until the first one comes round again. A trap would never let it, so the walk also
/// ends when the list is longer than any page's, and the comparison fails.
QVector<QWidget *> TabOrderTest::walk(bool forward) const
{
    QVector<QWidget *> stops;
    QWidget *focus = QApplication::focusWidget();
    while (stops.size() < kMoreStopsThanAnyPageHas) {
        stops += focus;
        QTest::keyClick(focus, forward ? Qt::Key_Tab : Qt::Key_Backtab,
                        forward ? Qt::NoModifier : Qt::ShiftModifier);
        focus = QApplication::focusWidget();
        if (!focus || focus == stops.first())
            break;
    }
    return stops;
}

void TabOrderTest::forward()
{
    QFETCH(QStringList, names);

    openPage();
    QCOMPARE(namesOf(walk(true)).join(QLatin1Char('\n')), names.join(QLatin1Char('\n')));
}

void TabOrderTest::backward()
{
    QFETCH(QStringList, names);

    openPage();
    std::reverse(names.begin() + 1, names.end()); // the same stops, the first one still first
    QCOMPARE(namesOf(walk(false)).join(QLatin1Char('\n')), names.join(QLatin1Char('\n')));
}

/// Reading order means that each stop is below the one before or to the right of it. A fraction is
/// read as one: its operands, then what it equals.
void TabOrderTest::everyFieldStandsBelowOrRightOfTheOneBefore()
{
    openPage();
    const QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    QVector<QWidget *> stops = walk(true);
    stops.erase(std::remove_if(stops.begin(), stops.end(),
                               [page](const QWidget *stop) { return !page->isAncestorOf(stop); }),
                stops.end());
    for (int i = 1; i < stops.size(); ++i) {
        const QRect before(stops.at(i - 1)->mapTo(page, QPoint()), stops.at(i - 1)->size());
        const QRect here(stops.at(i)->mapTo(page, QPoint()), stops.at(i)->size());
        const bool isTabBar = stops.at(i)->inherits("QTabBar") && i == stops.size() - 1;
        QVERIFY2(here.top() > before.bottom() || here.left() > before.right() || isTabBar,
                 qPrintable(namesOf({stops.at(i - 1), stops.at(i)}).join(QLatin1String(" -> "))));
    }
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, TabOrderTest>(argc, argv, true);
}

#include "tst_taborder.moc"
