// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Prints where a person has to click: one line "PAGE NAME X Y" for each module in the list, tab,
// field and unit list, in pixels of the window's contents at the size of a first start. The session
// test runs this on its own display, so that no source has to contain pixels.

#include "identity.h"
#include "kelapplication.h"
#include "mainwindow.h"
#include "testmain.h"
#include "withoutopengl.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QToolButton>

namespace {

class Printer
{
public:
    explicit Printer(const QWidget &window) : m_window(window) {}

    void print(int page, const QString &name, const QWidget &widget, const QPoint &place)
    {
        const QPoint point = widget.mapTo(&m_window, place);
        m_out << page << ' ' << name << ' ' << point.x() << ' ' << point.y() << '\n';
    }

    void print(int page, const QWidget &widget)
    {
        print(page, widget.objectName(), widget, widget.rect().center());
    }

private:
    const QWidget &m_window;
    QTextStream m_out{stdout};
};

bool isPartOfAnother(const QWidget &widget)
{
    return qobject_cast<QComboBox *>(widget.parentWidget()) ||
           qobject_cast<QAbstractSpinBox *>(widget.parentWidget());
}

void printControls(Printer &printer, int page, const QWidget &parent)
{
    const QList<QWidget *> widgets = parent.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const bool isControl = qobject_cast<const QLineEdit *>(widget) ||
                               qobject_cast<const QComboBox *>(widget) ||
                               qobject_cast<const QAbstractSpinBox *>(widget);
        if (isControl && widget->isVisible() && !isPartOfAnother(*widget))
            printer.print(page, *widget);
    }
}

void printPage(Printer &printer, int page, const QWidget &parent)
{
    auto *tabs = parent.findChild<QTabWidget *>();
    if (!tabs) {
        printControls(printer, page, parent);
        return;
    }
    for (int tab = tabs->count() - 1; tab >= 0; --tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        printer.print(page, QStringLiteral("tab%1").arg(tab), *tabs->tabBar(),
                      tabs->tabBar()->tabRect(tab).center());
        printControls(printer, page, parent);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    const TestHome home;
    const WithoutOpenGl asTheProgram; // because a graphics driver never frees what it loads
    KelApplication application(argc, argv, true);
    Identity::apply();
    MainWindow window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;

    Printer printer(window);
    auto *list = window.findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    auto *pages = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    printer.print(-1, *window.findChild<QToolButton *>(QStringLiteral("changeWindowModeButton")));
    for (int page = 0; page < list->count(); ++page) {
        const QRect row = list->visualItemRect(list->item(page)) & list->viewport()->rect();
        printer.print(-1, QStringLiteral("module%1").arg(page), *list->viewport(), row.center());
        list->setCurrentRow(page);
        QCoreApplication::processEvents();
        printPage(printer, page, *pages->currentWidget());
    }
    return 0;
}
