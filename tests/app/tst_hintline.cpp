// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "errortexts.h"
#include "hintline.h"
#include "kelapplication.h"
#include "kellineedit.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>

using namespace Dezimo;

/// Tests the line at the foot of each page that tells about the field with the focus.
class HintLineTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOnePlaceOnEveryPage();
    void itsLettersHaveOneHeightWithEveryQt();
    void everySentenceHasRoomInTheSmallestWindow();
    void aLongSentenceIsCutAndWholeInItsTip();
    void nothingMovesWhenItChanges();
    void tellsWhyWhileOneTypes();
    void aStoredErrorHasItsReason();
    void everyModeHasAnExampleThatIsRight_data();
    void everyModeHasAnExampleThatIsRight();
    void theModeWithTheFocusIsToldAbout();
    void aNewPageNamesTheGuide_data();
    void aNewPageNamesTheGuide();
    void everyFieldSaysTheSameToAScreenReader();
    void everySentenceFollowsTheLanguage();

private:
    QWidget *page() const { return child<QStackedWidget>("stackedWidget")->currentWidget(); }
    HintLine *line() const { return page()->findChild<HintLine *>(QStringLiteral("hintLine")); }
    QRect placeOfLine() const { return {line()->mapTo(m_window.get(), QPoint()), line()->size()}; }
    /// The fields that can be edited, on both tabs.
    QList<QWidget *> fields() const;
    /// All that the page tells, but the reasons that quote what was typed.
    QStringList sentences() const;
    template <typename Widget = QLineEdit>
    Widget *onPage(const char *name) const
    {
        return page()->findChild<Widget *>(QLatin1String(name));
    }
};

namespace {

constexpr int kModules = 5;

/// The places of all widgets within @p page.
QList<QRect> placesOn(const QWidget &page)
{
    QList<QRect> places;
    const QList<QWidget *> widgets = page.findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        places += widget->geometry();
    return places;
}

const QWidget *openTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->inherits("QTipLabel");
    });
    return tip == windows.end() ? nullptr : *tip;
}

/// The last row with ink on a plain ground.
int lowestInk(const QImage &image)
{
    const QRgb ground = image.pixel(0, 0);
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != ground)
                return y;
        }
    }
    return -1;
}

int indexOfLongestItem(const QComboBox &selector)
{
    int longest = 0;
    for (int i = 1; i < selector.count(); ++i) {
        if (selector.itemText(i).size() > selector.itemText(longest).size())
            longest = i;
    }
    return longest;
}

/// Translates what the pages tell, so that it can be told apart.
class Translator final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString source = QString::fromUtf8(text);
        return source.size() < 20 ? source : QLatin1String("translated ") + source;
    }
};

} // namespace

QStringList HintLineTest::sentences() const
{
    QStringList found;
    const QList<QWidget *> all = fields();
    for (QWidget *field : all) {
        found += field->toolTip();
        auto *edit = qobject_cast<KelLineEdit *>(field);
        // The reason of an expression quotes it.
        if (!edit || edit->objectName() == QLatin1String("inputLineEdit"))
            continue;
        const QStringList words = ErrorText::all();
        for (const QString &word : words) {
            edit->setText(word);
            found += edit->toolTip();
            edit->clear();
        }
    }
    if (const auto *modes = onPage<QComboBox>("calcModeComboBox")) {
        for (int mode = 0; mode < modes->count(); ++mode)
            found += modes->itemData(mode, Qt::ToolTipRole).toString();
    }
    if (const auto *toggle = onPage<QWidget>("vModeToggle"))
        found += toggle->toolTip();
    return found;
}

QList<QWidget *> HintLineTest::fields() const
{
    QList<QWidget *> found;
    const QList<QWidget *> widgets = page()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *edit = qobject_cast<QLineEdit *>(widget);
        const bool isPartOfSpinBox = qobject_cast<QAbstractSpinBox *>(widget->parentWidget());
        if ((edit && !edit->isReadOnly() && !isPartOfSpinBox) || qobject_cast<QSpinBox *>(widget))
            found += widget;
    }
    return found;
}

void HintLineTest::hasOnePlaceOnEveryPage()
{
    openWindow();
    for (const QSize &size : {QSize(1, 1), QSize(958, 605), QSize(1600, 1000)}) {
        m_window->resize(size);
        QCoreApplication::processEvents();
        QSet<QString> places;
        for (int module = 0; module < kModules; ++module) {
            m_profile.setCurrentModule(module);
            QCoreApplication::processEvents();
            QVERIFY(line()->isVisible());
            const QRect place = placeOfLine();
            places += QStringLiteral("%1 %2 %3 x %4")
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height());
            QCOMPARE(place.width(), qMin(page()->width() - 2 * 16, 800)); // as the forms
            QVERIFY(m_window->rect().contains(place));
        }
        QCOMPARE(places.size(), 1);
    }
}

/// 4 pixels are below the text, and 3 of its own below its feet.
void HintLineTest::itsLettersHaveOneHeightWithEveryQt()
{
    openWindow();
    line()->setText(QStringLiteral("HHH"));
    const QImage image = line()->grab().toImage();
    QCOMPARE(image.height() - 1 - lowestInk(image), 7);
}

/// With the longest unit and the key of the guide behind it, and the reasons of all words.
void HintLineTest::everySentenceHasRoomInTheSmallestWindow()
{
    openWindow();
    m_window->resize(1, 1);
    for (int module = 0; module < kModules; ++module) {
        m_profile.setCurrentModule(module);
        QCoreApplication::processEvents();
        const QList<QComboBox *> selectors = page()->findChildren<QComboBox *>();
        for (QComboBox *selector : selectors)
            selector->setCurrentIndex(indexOfLongestItem(*selector));
        const QStringList all = sentences();
        QVERIFY(all.size() > 2);
        for (const QString &sentence : all) {
            line()->setText(sentence + QLatin1String(" | F1: guide"));
            QVERIFY2(!line()->isCut(), qPrintable(line()->text()));
        }
    }
}

void HintLineTest::aLongSentenceIsCutAndWholeInItsTip()
{
    openWindow();
    line()->setText(QStringLiteral("long ").repeated(100));
    QVERIFY(line()->isCut());
    QVERIFY(line()->width() <= page()->width());
    QHelpEvent rest(QEvent::ToolTip, QPoint(), line()->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(line(), &rest);
    QCOMPARE(QToolTip::text(), line()->text());
    const QWidget *tip = openTip();
    QVERIFY(tip);
    QCOMPARE(tip->font().family(), line()->font().family());
    QCOMPARE(tip->font().pixelSize(), 14);
    QToolTip::hideText();
}

void HintLineTest::nothingMovesWhenItChanges()
{
    openWindow();
    for (int module = 0; module < kModules; ++module) {
        m_profile.setCurrentModule(module);
        QCoreApplication::processEvents();
        const QList<QRect> before = placesOn(*page());
        line()->setText(QStringLiteral("long ").repeated(100));
        QCoreApplication::processEvents();
        QCOMPARE(placesOn(*page()), before);
    }
}

void HintLineTest::tellsWhyWhileOneTypes()
{
    openWindow();
    auto *input = onPage("inputLineEdit");
    const QString takes =
        QStringLiteral("Level, power or ratio: 10dBm, 3dBW, 5kW, 3dB. Join with + and -; "
                       "brackets work.");
    QCOMPARE(line()->text(), takes + QLatin1String(" | F1: guide"));
    QCOMPARE(input->toolTip(), takes);
    QTest::keyClicks(input, QStringLiteral("10dBm"));
    QCOMPARE(line()->text(), QStringLiteral("One value alone needs brackets: (10dBm)"));
    QCOMPARE(input->toolTip(), line()->text());
    QCOMPARE(input->accessibleDescription(), line()->text());
    QTest::keyClicks(input, QStringLiteral("+3dB"));
    QCOMPARE(line()->text(), takes);
    QCOMPARE(input->accessibleDescription(), takes);
}

/// The program was ended while the result was an error word.
void HintLineTest::aStoredErrorHasItsReason()
{
    openWindow();
    QTest::keyClicks(onPage("inputLineEdit"), QStringLiteral("1mW+1"));
    m_window.reset();
    openWindow();
    QCOMPARE(onPage("outputLineEdit")->text(), QStringLiteral("unit missing"));
    QCOMPARE(line()->text(), QStringLiteral("'1' has no unit, but '1mW' has one"));
    QCOMPARE(onPage("outputLineEdit")->toolTip(), line()->text());
}

void HintLineTest::everyModeHasAnExampleThatIsRight_data()
{
    columns<int, int>({"module", "mode"});
    row("incoherent powers", 0, 0);
    row("coherent powers", 0, 1);
    row("powers as numbers", 0, 2);
    row("uncorrelated voltages", 1, 0);
    row("correlated voltages", 1, 1);
    row("peak voltages", 1, 2);
}

/// "mean of the inputs: 10dBm + 10dBm = 10dBm"
void HintLineTest::everyModeHasAnExampleThatIsRight()
{
    QFETCH(int, module);
    QFETCH(int, mode);

    openWindow();
    m_profile.setCurrentModule(module);
    auto *modes = onPage<QComboBox>("calcModeComboBox");
    modes->setCurrentIndex(mode);
    const QString tip = modes->itemData(mode, Qt::ToolTipRole).toString();
    const QStringList sides = tip.section(QLatin1String(": "), 1).split(QLatin1String(" = "));
    QCOMPARE(sides.size(), 2);

    QTest::keyClicks(onPage("inputLineEdit"), sides.first());
    QString promised = sides.last().section(QLatin1Char(' '), 0, 0);
    auto *units = onPage<QComboBox>("outputUnitComboBox");
    const QString unit = promised.endsWith(QLatin1String("dBm")) ? QStringLiteral("dBm")
                         : module == 0                           ? QStringLiteral("W")
                                                                 : QStringLiteral("mV");
    QVERIFY(promised.endsWith(unit));
    units->setCurrentText(unit);
    promised.chop(unit.size());
    QCOMPARE(onPage("outputLineEdit")->text().toDouble(), promised.toDouble());
}

void HintLineTest::theModeWithTheFocusIsToldAbout()
{
    openWindow();
    QTest::keyClicks(onPage("inputLineEdit"), QStringLiteral("1+1"));
    auto *modes = onPage<QComboBox>("calcModeComboBox");
    modes->setFocus(Qt::TabFocusReason);
    QCOMPARE(line()->text(), modes->itemData(0, Qt::ToolTipRole).toString());
    QTest::keyClick(modes, Qt::Key_Down);
    QCOMPARE(line()->text(), modes->itemData(1, Qt::ToolTipRole).toString());
    QCOMPARE(modes->toolTip(), line()->text());
}

void HintLineTest::aNewPageNamesTheGuide_data()
{
    columns<int>({"module"});
    row("the dBm calculator", 0);
    row("the voltage calculator", 1);
    row("the unit converter", 2);
    row("the dB converter", 3);
    row("the VSWR converter", 4);
}

void HintLineTest::aNewPageNamesTheGuide()
{
    QFETCH(int, module);

    openWindow();
    m_profile.setCurrentModule(module);
    QVERIFY2(line()->text().endsWith(QLatin1String("F1: guide")), qPrintable(line()->text()));
    const QList<QWidget *> all = fields();
    const auto visible = std::find_if(all.begin(), all.end(),
                                      [](const QWidget *field) { return field->isVisible(); });
    QVERIFY(visible != all.end());
    QWidget *field = *visible;
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("1"));
    QVERIFY2(!line()->text().contains(QLatin1String("F1: guide")), qPrintable(line()->text()));
}

void HintLineTest::everyFieldSaysTheSameToAScreenReader()
{
    openWindow();
    int count = 0;
    for (int module = 0; module < kModules; ++module) {
        m_profile.setCurrentModule(module);
        auto *tabs = page()->findChild<QTabWidget *>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs)
                tabs->setCurrentIndex(tab);
            const QList<QWidget *> all = fields();
            for (QWidget *field : all) {
                if (!field->isVisible())
                    continue;
                field->setFocus(Qt::TabFocusReason);
                QVERIFY2(!field->toolTip().isEmpty(), qPrintable(field->objectName()));
                QCOMPARE(
                    QAccessible::queryAccessibleInterface(field)->text(QAccessible::Description),
                    field->toolTip());
                QVERIFY2(line()->text().startsWith(field->toolTip()),
                         qPrintable(field->objectName()));
                ++count;
            }
        }
    }
    // The two inputs, the phase, five fields, eight on the tabs, and 11 of which five are on both.
    QCOMPARE(count, 3 + 5 + 8 + 16);
}

void HintLineTest::everySentenceFollowsTheLanguage()
{
    openWindow();
    Translator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    for (int module = 0; module < kModules; ++module) {
        m_profile.setCurrentModule(module);
        const QStringList all = sentences();
        for (const QString &sentence : all)
            QVERIFY2(sentence.startsWith(QLatin1String("translated ")), qPrintable(sentence));
    }
    QCoreApplication::removeTranslator(&translator);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, HintLineTest>(argc, argv, true);
}

#include "tst_hintline.moc"
