// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterwidget.h"
#include "dbmcalculatorwidget.h"
#include "kelapplication.h"
#include "keltogglebutton.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "unitconverterwidget.h"
#include "voltagecalculatorwidget.h"
#include "vswrconverterwidget.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <iterator>
#include <memory>

using namespace Dezimo;

/// Tests a change of the language while the program runs, and where the texts come from.
class LanguageChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void keepsEveryStateButTheVswrText();
    void everyPageIsTranslatedInItsOwnContext_data();
    void everyPageIsTranslatedInItsOwnContext();
    void theWindowUsesNoContextBesideItsPages();
};

namespace {

/// Notes for which contexts the program asks, without Qt's own classes, and translates nothing.
class ContextLog final : public QTranslator
{
public:
    ContextLog() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *, const char *, int) const override
    {
        const QString name = QString::fromLatin1(context);
        if (!name.startsWith(QLatin1Char('Q')) && !m_contexts.contains(name))
            m_contexts += name;
        return {};
    }

    QStringList sorted() const
    {
        QStringList contexts = m_contexts;
        contexts.sort();
        return contexts;
    }

private:
    mutable QStringList m_contexts;
};

struct Page
{
    const char *name;
    const char *className;
    QWidget *(*create)();
};

template <typename Widget>
QWidget *create()
{
    return new Widget;
}

const Page kPages[] = {
    {"dbmCalculatorWidget", "DbmCalculatorWidget", create<DbmCalculatorWidget>},
    {"voltageCalculatorWidget", "VoltageCalculatorWidget", create<VoltageCalculatorWidget>},
    {"unitConverterWidget", "UnitConverterWidget", create<UnitConverterWidget>},
    {"dbConverterWidget", "DbConverterWidget", create<DbConverterWidget>},
    {"vswrConverterWidget", "VswrConverterWidget", create<VswrConverterWidget>},
};

/// Sets the input first, because each change of it calculates and would overwrite the other values.
void fillModels()
{
    MainProfile &profile = MainProfile::instance();
    setProperties(profile.dbmCalculator(),
                  {{"input", "10dBm+10dBm"}, {"output", "7.77"}, {"outputUnit", 4}, {"mode", 2}});
    setProperties(
        profile.voltageCalculator(),
        {{"input", "3mV+4mV"}, {"output", "8.88"}, {"outputUnit", 1}, {"mode", 1}, {"phase", 90}});
    setProperties(profile.unitConverter(), {{"logPower", "1.1"},
                                            {"linPower", "2.2"},
                                            {"logVoltage", "3.3"},
                                            {"linVoltage", "4.4"},
                                            {"impedance", "75"},
                                            {"logPowerUnit", 1},
                                            {"linPowerUnit", 1},
                                            {"logVoltageUnit", 2},
                                            {"linVoltageUnit", 1},
                                            {"voltageMode", 2}});
    setProperties(profile.dbConverter(), {{"p1", "10dBm"},
                                          {"p2", "1mW"},
                                          {"pRatio", "5.5"},
                                          {"pDb", "6.6"},
                                          {"v1", "1V"},
                                          {"v2", "2V"},
                                          {"vRatio", "7.7"},
                                          {"vDb", "8.8"},
                                          {"currentMode", 1}});
    setProperties(profile.vswrConverter(), {{"pForwardUnit", 1},
                                            {"pReflectedUnit", 2},
                                            {"pAbsorbedUnit", 3},
                                            {"vForwardUnit", 1},
                                            {"vReflectedUnit", 2},
                                            {"vAbsorbedUnit", 3},
                                            {"currentMode", 1}});
    setProperties(profile.vswrConverter(), {{"vswr", "2"},
                                            {"r", "0.1"},
                                            {"r2", "0.2"},
                                            {"ar", "0.3"},
                                            {"am", "0.4"},
                                            {"pForward", "11"},
                                            {"pReflected", "12"},
                                            {"pAbsorbed", "13"},
                                            {"vForward", "14"},
                                            {"vReflected", "15"},
                                            {"vAbsorbed", "16"}});
}

QStringList modelLines()
{
    MainProfile &profile = MainProfile::instance();
    return propertyLines(profile.dbmCalculator()) + propertyLines(profile.voltageCalculator()) +
           propertyLines(profile.unitConverter()) + propertyLines(profile.dbConverter()) +
           propertyLines(profile.vswrConverter());
}

/// What @p widget shows of a person's choices and texts, if it is a widget for such.
QString state(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return QString::number(box->currentIndex());
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
        return QString::number(tabs->currentIndex());
    if (const auto *number = qobject_cast<const QSpinBox *>(widget))
        return QString::number(number->value());
    if (const auto *toggle = qobject_cast<const KelToggleButton *>(widget))
        return QString::number(toggle->currentIndex());
    return {};
}

QStringList shownLines(const QWidget &window)
{
    QStringList lines;
    for (const Page &page : kPages) {
        const QList<QWidget *> widgets =
            window.findChild<QWidget *>(QLatin1String(page.name))->findChildren<QWidget *>();
        for (const QWidget *widget : widgets)
            lines += widget->objectName() + QStringLiteral(" = ") + state(widget);
    }
    return lines;
}

} // namespace

/// QMetaProperty can read a property only if its type is registered.
void LanguageChangeTest::initTestCase()
{
    qRegisterMetaType<QMap<int, bool>>("QMap<int,bool>");
}

void LanguageChangeTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

/// Qt passes a window's event on to all its children.
void LanguageChangeTest::keepsEveryStateButTheVswrText()
{
    MainWindow window;
    fillModels();
    for (const Page &page : kPages)
        window.findChild<QWidget *>(QLatin1String(page.name))
            ->setWindowTitle(QStringLiteral("Formular"));
    const QStringList models = modelLines();
    QStringList expected = shownLines(window);
    const auto vswr = expected.indexOf(QStringLiteral("vswrLineEdit = 2"));
    QVERIFY(vswr >= 0);
    expected.replace(vswr, QStringLiteral("vswrLineEdit = "));

    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window, &change);

    // The title of each page shows that its texts were set again.
    for (const Page &page : kPages)
        QCOMPARE(window.findChild<QWidget *>(QLatin1String(page.name))->windowTitle(),
                 QStringLiteral("Form"));
    QCOMPARE(shownLines(window), expected);
    QCOMPARE(modelLines(), models);
}

void LanguageChangeTest::everyPageIsTranslatedInItsOwnContext_data()
{
    QTest::addColumn<int>("page");

    for (int i = 0; i < int(std::size(kPages)); ++i)
        QTest::newRow(kPages[i].className) << i;
}

void LanguageChangeTest::everyPageIsTranslatedInItsOwnContext()
{
    QFETCH(int, page);

    const ContextLog log;
    const std::unique_ptr<QWidget> widget(kPages[page].create());
    QCOMPARE(log.sorted(), QStringList(QLatin1String(kPages[page].className)));
}

void LanguageChangeTest::theWindowUsesNoContextBesideItsPages()
{
    const ContextLog log;
    const MainWindow window;
    const QStringList expected{QStringLiteral("DbConverterWidget"),
                               QStringLiteral("DbmCalculatorWidget"),
                               QStringLiteral("MainWindow"),
                               QStringLiteral("UnitConverterWidget"),
                               QStringLiteral("VoltageCalculatorWidget"),
                               QStringLiteral("VswrConverterWidget")};
    QCOMPARE(log.sorted(), expected);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, LanguageChangeTest>(argc, argv, true);
}

#include "tst_languagechange.moc"
