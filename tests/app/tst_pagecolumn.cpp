// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "kellineedit.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

/// Where the pages put their contents, and how large the values of the converters are.
class PageColumnTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageStandsInOneColumn_data() { sizes(); }
    void everyPageStandsInOneColumn();
    void bothRowsOfTabsStandAlike_data() { sizes(); }
    void bothRowsOfTabsStandAlike();
    void noPageScrollsInTheSmallestWindow();
    void noPageNeedsTheWholeHeight_data();
    void noPageNeedsTheWholeHeight();
    void valuesAreLargerThanCaptions_data();
    void valuesAreLargerThanCaptions();
    void aPlaceholderDoesNotLookLikeAValue_data();
    void aPlaceholderDoesNotLookLikeAValue();

private:
    static void sizes();
    void openWindow(const QSize &size);
    QWidget &showPage(int module);
};

namespace {

constexpr int kModules = 5;

template <typename Widget>
QList<Widget *> visible(const QWidget &page)
{
    QList<Widget *> found = page.findChildren<Widget *>();
    found.erase(std::remove_if(found.begin(), found.end(),
                               [](const Widget *widget) { return !widget->isVisible(); }),
                found.end());
    return found;
}

QRect placeOf(const QWidget &widget, const QWidget &page)
{
    return {widget.mapTo(&page, QPoint()), widget.size()};
}

/// What encloses all that a person sees in the containers of the page.
QRect contentsOf(const QWidget &page)
{
    QRect contents;
    const QList<QWidget *> widgets = visible<QWidget>(page);
    for (const QWidget *widget : widgets) {
        const bool isSeen =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
            qobject_cast<const QComboBox *>(widget) || qobject_cast<const QPushButton *>(widget) ||
            qobject_cast<const QTabBar *>(widget);
        if (isSeen && widget->parentWidget() != &page)
            contents |= placeOf(*widget, page);
    }
    return contents;
}

} // namespace

void PageColumnTest::sizes()
{
    columns<QSize, int>({"size", "listMode"});
    row("the smallest window", QSize(600, 413), 0);
    row("the first size", QSize(958, 605), 0);
    row("the first size, expanded list", QSize(958, 605), 1);
    row("1280 x 800", QSize(1280, 800), 0);
    row("1600 x 1000", QSize(1600, 1000), 0);
}

void PageColumnTest::openWindow(const QSize &size)
{
    store("windowSize", size);
    MainWindowCase::openWindow();
    // The menus are 3 px higher on Windows.
    const int menus = QGuiApplication::platformName() == QLatin1String("windows") ? 3 : 0;
    QCOMPARE(m_window->size(), size.expandedTo(QSize(600, 413 + menus)));
}

QWidget &PageColumnTest::showPage(int module)
{
    m_profile.setCurrentModule(module);
    QCoreApplication::processEvents();
    const QWidget *frame = child<QStackedWidget>("stackedWidget")->currentWidget();
    return *frame->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

void PageColumnTest::everyPageStandsInOneColumn()
{
    QFETCH(QSize, size);
    QFETCH(int, listMode);

    store("windowMode", listMode);
    openWindow(size);
    for (int module = 0; module < kModules; ++module) {
        const QWidget &page = showPage(module);
        const QRect contents = contentsOf(page);
        const int width = qMin(page.width() - 2 * 16, 800);
        QCOMPARE(contents.top(), 16);
        QCOMPARE(contents.left(), (page.width() - width) / 2);
        QCOMPARE(contents.width(), width);
    }
}

void PageColumnTest::bothRowsOfTabsStandAlike()
{
    QFETCH(QSize, size);
    QFETCH(int, listMode);

    store("windowMode", listMode);
    openWindow(size);
    QList<QRect> places;
    for (const int module : {3, 4}) {
        const QWidget &page = showPage(module);
        places += placeOf(*page.findChild<QTabWidget *>(), page);
    }
    QCOMPARE(places.first().left(), places.last().left());
    QCOMPARE(places.first().width(), places.last().width());
}

void PageColumnTest::noPageScrollsInTheSmallestWindow()
{
    openWindow(QSize(600, 413));
    int areas = 0;
    for (int module = 0; module < kModules; ++module) {
        const QList<QScrollArea *> all = visible<QScrollArea>(showPage(module));
        for (const QScrollArea *area : all) {
            ++areas;
            QVERIFY2(area->verticalScrollBar()->maximum() == 0, qPrintable(area->objectName()));
        }
    }
    QCOMPARE(areas, 3);
}

void PageColumnTest::noPageNeedsTheWholeHeight_data()
{
    columns<int, QString, int>({"module", "container", "outside"});
    row("dBm calculator", 0, "contentWidget", 16 + 8);
    row("voltage calculator", 1, "contentWidget", 16 + 8);
    row("unit converter", 2, "scrollAreaWidgetContents_3", 0);
    row("dB converter", 3, "mainTab", 16 + 8);
    row("VSWR converter", 4, "scrollAreaWidgetContents_3", 0);
}

/// In the smallest window a line of 24 px at the foot finds room without moving anything.
void PageColumnTest::noPageNeedsTheWholeHeight()
{
    QFETCH(int, module);
    QFETCH(QString, container);
    QFETCH(int, outside);

    openWindow(QSize(600, 413));
    const QWidget &page = showPage(module);
    const auto *contents = page.findChild<QWidget *>(container);
    const int needed = contents->minimumSizeHint().height() + outside;
    QVERIFY2(needed <= 388 - 24, QByteArray::number(needed).constData());
}

void PageColumnTest::valuesAreLargerThanCaptions_data()
{
    columns<int, int, int>({"module", "values", "captions"});
    row("unit converter", 2, 5, 5);
    row("dB converter", 3, 4, 0); // its symbols are a formula
    row("VSWR converter", 4, 8, 16);
}

void PageColumnTest::valuesAreLargerThanCaptions()
{
    QFETCH(int, module);

    openWindow(QSize(958, 605));
    const QWidget &page = showPage(module);
    const QList<KelLineEdit *> fields = visible<KelLineEdit>(page);
    QTEST(int(fields.size()), "values");
    for (KelLineEdit *field : fields) {
        field->setText(QStringLiteral("1"));
        QCOMPARE(field->font().pixelSize(), 20);
        QVERIFY(field->height() >= 36);
        const QList<QLabel *> units = field->findChildren<QLabel *>();
        for (const QLabel *unit : units)
            QCOMPARE(unit->font().pixelSize(), 20);
    }
    const QList<QComboBox *> units = visible<QComboBox>(page);
    for (const QComboBox *unit : units) {
        QCOMPARE(unit->font().pixelSize(), 20);
        QCOMPARE(unit->height(), fields.first()->height());
    }
    int captions = 0;
    const QList<QLabel *> labels = visible<QLabel>(page);
    for (const QLabel *label : labels)
        captions += label->buddy() && label->font().pixelSize() == 14 ? 1 : 0;
    QTEST(captions, "captions");
}

void PageColumnTest::aPlaceholderDoesNotLookLikeAValue_data()
{
    columns<int>({"module"});
    row("dB converter", 3);
    row("VSWR converter", 4);
}

void PageColumnTest::aPlaceholderDoesNotLookLikeAValue()
{
    QFETCH(int, module);

    openWindow(QSize(600, 413));
    const QList<KelLineEdit *> fields = visible<KelLineEdit>(showPage(module));
    QVERIFY(!fields.isEmpty());
    for (KelLineEdit *field : fields) {
        QVERIFY2(!field->placeholderText().isEmpty(), qPrintable(field->objectName()));
        for (int round = 0; round < 2; ++round) {
            QVERIFY(field->font().italic());
            QCOMPARE(field->font().pixelSize(), 14);
            QVERIFY(field->palette().color(QPalette::PlaceholderText) !=
                    field->palette().color(QPalette::Text));
            const int height = field->height();
            field->setText(QStringLiteral("1"));
            QVERIFY(!field->font().italic());
            QCOMPARE(field->height(), height);
            field->clear();
        }
    }
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, PageColumnTest>(argc, argv, true);
}

#include "tst_pagecolumn.moc"
