// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "kellineedit.h"
#include "mainwindowcase.h"
#include "table.h"
#include "testmain.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>

/// How large the values of the converters are, and that the smallest window has room for them.
class PageColumnTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void noPageScrollsInTheSmallestWindow();
    void valuesAreLargerThanCaptions_data();
    void valuesAreLargerThanCaptions();

private:
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

} // namespace

void PageColumnTest::openWindow(const QSize &size)
{
    store("windowSize", size);
    MainWindowCase::openWindow();
    QCOMPARE(m_window->size(), size);
}

QWidget &PageColumnTest::showPage(int module)
{
    m_profile.setCurrentModule(module);
    QCoreApplication::processEvents();
    const QWidget *frame = child<QStackedWidget>("stackedWidget")->currentWidget();
    return *frame->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
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

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, PageColumnTest>(argc, argv, true);
}

#include "tst_pagecolumn.moc"
