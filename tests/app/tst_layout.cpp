// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "errortexts.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTest>
#include <QTextDocument>
#include <QtMath>

/**
 * Every page at several sizes of the window, by geometry: no text is wider than the widget that
 * shows it, no two visible neighbors overlap, and no field is stretched into the absurd. CTest runs
 * it once per device pixel ratio. With DEZIMO_PICTURES naming a folder, each page is saved there.
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

private:
    void check(const MainWindow &window);
};

namespace {

constexpr int kWidestField = 960; ///< the keypad's lines; see the design page

/// What was found wrong on the page that is being checked.
QStringList &complaints()
{
    static QStringList list;
    return list;
}

QString nameOf(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + QLatin1Char(' ') +
           widget.objectName();
}

int textWidth(const QLabel &label)
{
    if (!Qt::mightBeRichText(label.text()))
        return label.fontMetrics().size(0, label.text()).width();
    QTextDocument document;
    document.setDefaultFont(label.font());
    document.setDocumentMargin(0);
    document.setHtml(label.text());
    return qCeil(document.idealWidth());
}

/// A label that wraps needs its height, any other its width.
void checkLabel(const QLabel &label)
{
    if (label.wordWrap()) {
        if (label.heightForWidth(label.width()) > label.height())
            complaints() += nameOf(label) + QStringLiteral(" is too low");
    } else if (textWidth(label) > label.contentsRect().width()) {
        complaints() += nameOf(label) + QStringLiteral(" is too narrow for ") + label.text();
    }
}

void checkTabs(const QTabBar &tabs)
{
    for (int i = 0; i < tabs.count(); ++i) {
        if (tabs.fontMetrics().horizontalAdvance(tabs.tabText(i)) > tabs.tabRect(i).width())
            complaints() += nameOf(tabs) + QStringLiteral(" clips ") + tabs.tabText(i);
    }
}

int roomForText(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

/// Qt keeps two pixels on either side of a line edit's text.
int roomForText(const QLineEdit &edit)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    const QRect contents =
        edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    return contents.width() - edit.textMargins().left() - edit.textMargins().right() - 2 * 2;
}

void checkItems(const QComboBox &box)
{
    for (int i = 0; i < box.count(); ++i) {
        if (box.fontMetrics().horizontalAdvance(box.itemText(i)) > roomForText(box))
            complaints() += nameOf(box) + QStringLiteral(" clips ") + box.itemText(i);
    }
}

void checkText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        checkLabel(*label);
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        checkTabs(*tabs);
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        checkItems(*box);
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        if (button->fontMetrics().horizontalAdvance(button->text()) > button->width())
            complaints() += nameOf(*button) + QStringLiteral(" is too narrow");
    }
    if (const auto *area = qobject_cast<const QScrollArea *>(&widget)) {
        if (area->horizontalScrollBar()->maximum() > 0)
            complaints() += nameOf(*area) + QStringLiteral(" scrolls sideways");
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        if (edit->width() > kWidestField)
            complaints() += nameOf(*edit) + QStringLiteral(" is stretched");
        if (edit->height() < 24 && !edit->parentWidget()->inherits("QAbstractSpinBox"))
            complaints() += nameOf(*edit) + QStringLiteral(" is too low");
    }
}

/// The labels inside a line edit lie over it by design; so do the parts of Qt's own widgets.
bool laysOutChildren(const QWidget &widget)
{
    return widget.layout() != nullptr;
}

void checkOverlap(const QWidget &parent)
{
    const QList<QWidget *> children =
        parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (int i = 0; i < children.size(); ++i) {
        for (int j = i + 1; j < children.size(); ++j) {
            const QWidget *a = children.at(i);
            const QWidget *b = children.at(j);
            if (a->isVisible() && b->isVisible() && a->geometry().intersects(b->geometry()))
                complaints() += nameOf(*a) + QStringLiteral(" overlaps ") + nameOf(*b);
        }
    }
}

} // namespace

void LayoutTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
    complaints().clear();
}

/// The checks below find something where something is wrong.
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
    check(window);
    const QString found = complaints().join(QLatin1Char('\n'));
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
    profile.dbmCalculator().setOutput(QStringLiteral("-13.00"));
    QCoreApplication::processEvents();

    check(window);
    const QString folder = qEnvironmentVariable("DEZIMO_PICTURES");
    if (!folder.isEmpty())
        window.grab().save(QStringLiteral("%1/%2@%3.png")
                               .arg(folder, QString::fromLatin1(QTest::currentDataTag()))
                               .arg(window.devicePixelRatioF()));
    QCOMPARE(complaints().join(QLatin1Char('\n')), QString());
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

    int fields = 0;
    const QList<QLineEdit *> edits = window.findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (!edit->isVisible())
            continue;
        ++fields;
        edit->setText(ErrorText::invalidInput());
        if (edit->fontMetrics().horizontalAdvance(edit->text()) > roomForText(*edit))
            complaints() += nameOf(*edit) + QStringLiteral(" clips ") + edit->text();
    }
    QVERIFY(fields >= 4);
    QCOMPARE(complaints().join(QLatin1Char('\n')), QString());
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

/// The selector is as wide as its widest unit needs, and hardly wider.
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
    const int spare = roomForText(*units) - widest;
    QVERIFY2(spare >= 0 && spare <= 8, QByteArray::number(spare).constData());
}

void LayoutTest::check(const MainWindow &window)
{
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    QVERIFY(widgets.size() > 50);
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        checkText(*widget);
        if (laysOutChildren(*widget))
            checkOverlap(*widget);
    }
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, LayoutTest>(argc, argv, true);
}

#include "tst_layout.moc"
