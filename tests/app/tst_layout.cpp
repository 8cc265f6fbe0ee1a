// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "errortexts.h"
#include "kelapplication.h"
#include "layoutcheck.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

using namespace Dezimo;

/**
 * Checks the geometry of every page at several sizes of the window: no text is wider than the
 * widget that shows it, no two visible neighbors overlap, and no field is stretched too far. CTest
 * runs it once per device pixel ratio. If DEZIMO_PICTURES names a folder, each page is saved there.
 */
class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void seesWhatIsWrong();
    void everyPageIsRight_data();
    void everyPageIsRight();
    void errorWordsFitTheSmallestFields_data();
    void errorWordsFitTheSmallestFields();
    void theArrowStandsBesideTheUnit_data();
    void theArrowStandsBesideTheUnit();
    void theExpandedListShowsTheWholeNames();
};

namespace {

/// Fills every page with values that occur at the bench.
void fill(MainProfile &profile)
{
    profile.dbmCalculator().setInput(QStringLiteral("-30dBm+20dB-3dB"));
    profile.dbmCalculator().calculate();
    profile.voltageCalculator().setInput(QStringLiteral("3mV+4mV"));
    profile.voltageCalculator().calculate();
    profile.unitConverter().setLogPower(QStringLiteral("13.5"));
    profile.unitConverter().calculateFromLogPower();
    profile.dbConverter().setP1(QStringLiteral("10dBm"));
    profile.dbConverter().setP2(QStringLiteral("-3.5dBm"));
    profile.dbConverter().calculateFromP2();
    profile.dbConverter().setV1(QStringLiteral("5"));
    profile.dbConverter().setV2(QStringLiteral("2m"));
    profile.dbConverter().calculateFromV2();
    profile.vswrConverter().setAr(QStringLiteral("14"));
    profile.vswrConverter().calculateFromAr();
    profile.vswrConverter().setPForward(QStringLiteral("50"));
    profile.vswrConverter().calculateFromPForward();
    profile.vswrConverter().setVForward(QStringLiteral("-10"));
    profile.vswrConverter().calculateFromVForward();
}

/// In both themes, if pictures are wanted at all. The program shows the bright one.
void savePictures(MainWindow &window, const QString &name)
{
    if (LayoutCheck::pictureFolder().isEmpty())
        return;
    for (const ApplicationTheme theme : {Dark, Bright}) {
        qobject_cast<KelApplication *>(qApp)->installStyleSheet(theme);
        QMetaObject::invokeMethod(&window, "onThemeChanged", Q_ARG(ApplicationTheme, theme));
        QCoreApplication::processEvents();
        LayoutCheck::savePicture(window, name + QLatin1String(theme == Dark ? ", dark" : ""));
    }
}

/// Only the operands of the dB converter can have different units.
QString longestWordOf(const QLineEdit &field)
{
    static const QStringList operands{QStringLiteral("p1LineEdit"), QStringLiteral("p2LineEdit"),
                                      QStringLiteral("v1LineEdit"), QStringLiteral("v2LineEdit")};
    return operands.contains(field.objectName()) ? ErrorText::kUnitMismatch
                                                 : ErrorText::kInvalidInput;
}

} // namespace

void LayoutTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
}

/// Proves that the checks find mistakes.
void LayoutTest::seesWhatIsWrong()
{
    MainWindow window;
    window.show();
    MainProfile::instance().setCurrentModule(4);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto child = [&window](const char *name) {
        return window.findChild<QWidget *>(QLatin1String(name));
    };
    child("amLabel")->setFixedWidth(20);
    child("rLineEdit")->setFixedHeight(20);
    child("arLineEdit")->setFixedWidth(1000);
    child("forwardPowerUnitComboBox")->setFixedWidth(30);
    QCoreApplication::processEvents();
    child("forwardPowerLineEdit")->move(0, 0);
    const QString found = LayoutCheck::complaints(window).join(QLatin1Char('\n'));
    for (const char *expected :
         {"QLabel amLabel is too narrow for Mismatch Loss", "KelLineEdit rLineEdit is too low",
          "KelLineEdit arLineEdit is stretched", "KelComboBox forwardPowerUnitComboBox clips dBm",
          "overlaps KelLineEdit forwardPowerLineEdit"})
        QVERIFY2(found.contains(QLatin1String(expected)), qPrintable(found));
}

void LayoutTest::everyPageIsRight_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("listMode");
    QTest::addColumn<int>("module");

    const QList<QPair<const char *, QSize>> sizes{{"first size", QSize(958, 605)},
                                                  {"smallest size", QSize(1, 1)},
                                                  {"1280 x 800", QSize(1280, 800)},
                                                  {"1600 x 1000", QSize(1600, 1000)},
                                                  {"2560 x 1440", QSize(2560, 1440)}};
    const QList<const char *> modules{"dBm calculator", "voltage calculator", "unit converter",
                                      "dB converter", "VSWR converter"};
    for (const auto &size : sizes) {
        for (int mode = 0; mode < 2; ++mode) {
            for (int module = 0; module < modules.size(); ++module)
                QTest::addRow("%s, %s, %s list", modules.at(module), size.first,
                              mode == 0 ? "compact" : "expanded")
                    << size.second << mode << module;
        }
    }
}

void LayoutTest::everyPageIsRight()
{
    QFETCH(QSize, size);
    QFETCH(int, listMode);
    QFETCH(int, module);

    MainProfile &profile = MainProfile::instance();
    QSettings settings;
    settings.setValue(QStringLiteral("MainProfile/windowMode"), listMode);
    settings.setValue(QStringLiteral("MainProfile/currentModule"), module);
    MainWindow window;
    window.resize(size);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    fill(profile);
    QCoreApplication::processEvents();

    QVERIFY(window.findChildren<QWidget *>().size() > 50);
    auto *tabs = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))
                     ->currentWidget()
                     ->findChild<QTabWidget *>();
    for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
        if (tabs != nullptr)
            tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        savePictures(
            window,
            QStringLiteral("%1, tab %2").arg(QLatin1String(QTest::currentDataTag())).arg(tab));
        QCOMPARE(LayoutCheck::complaints(window), QStringList());
    }
}

void LayoutTest::errorWordsFitTheSmallestFields_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<int>("tab");

    QTest::newRow("unit converter") << 2 << 0;
    QTest::newRow("dB converter, powers") << 3 << 0;
    QTest::newRow("dB converter, voltages") << 3 << 1;
    QTest::newRow("VSWR converter, powers") << 4 << 0;
    QTest::newRow("VSWR converter, voltages") << 4 << 1;
}

void LayoutTest::errorWordsFitTheSmallestFields()
{
    QFETCH(int, module);
    QFETCH(int, tab);

    MainWindow window;
    window.resize(1, 1);
    window.show();
    MainProfile &profile = MainProfile::instance();
    profile.dbConverter().setCurrentMode(tab);
    profile.vswrConverter().setCurrentMode(tab);
    profile.setCurrentModule(module);
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QStringList clipped;
    int fields = 0;
    const QList<QLineEdit *> edits = window.findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (!edit->isVisible())
            continue;
        ++fields;
        edit->setText(longestWordOf(*edit));
        if (edit->fontMetrics().horizontalAdvance(edit->text()) > LayoutCheck::roomForText(*edit))
            clipped += LayoutCheck::nameOf(*edit);
    }
    QVERIFY(fields >= 4);
    QCOMPARE(clipped, QStringList());
}

void LayoutTest::theArrowStandsBesideTheUnit_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QSize>("size");

    for (int module = 0; module < 2; ++module) {
        const char *name = module == 0 ? "dBm calculator" : "voltage calculator";
        QTest::addRow("%s, smallest size", name) << module << QSize(1, 1);
        QTest::addRow("%s, first size", name) << module << QSize(958, 605);
        QTest::addRow("%s, 2560 x 1440", name) << module << QSize(2560, 1440);
    }
}

/// The selector is as wide as its widest unit needs, and only a few pixels wider.
void LayoutTest::theArrowStandsBesideTheUnit()
{
    QFETCH(int, module);
    QFETCH(QSize, size);

    MainWindow window;
    window.resize(size);
    window.show();
    MainProfile &profile = MainProfile::instance();
    profile.dbmCalculator().setOutput(QStringLiteral("5.00"));
    profile.voltageCalculator().setOutput(QStringLiteral("5"));
    profile.setCurrentModule(module);
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QWidget *page =
        window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget();
    const auto *units = page->findChild<QComboBox *>(QStringLiteral("outputUnitComboBox"));
    QVERIFY(units->isVisible());
    int widest = 0;
    for (int i = 0; i < units->count(); ++i)
        widest = qMax(widest, units->fontMetrics().horizontalAdvance(units->itemText(i)));
    const int spare = LayoutCheck::roomForText(*units) - widest;
    QVERIFY2(spare >= 0 && spare <= 8, QByteArray::number(spare).constData());
}

/// The list has a fixed width, but that of a name depends on how the system rounds its letters.
void LayoutTest::theExpandedListShowsTheWholeNames()
{
    QSettings settings;
    settings.setValue(QStringLiteral("MainProfile/windowMode"), 1);
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *list = window.findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    const int wanted = list->sizeHintForColumn(0);
    QVERIFY2(wanted <= list->viewport()->width(), QByteArray::number(wanted).constData());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, LayoutTest>(argc, argv, true);
}

#include "tst_layout.moc"
