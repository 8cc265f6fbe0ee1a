// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "stylesheets.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QListWidget>
#include <QTest>
#include <QToolButton>

class MainWindowFormTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void appliesBothThemes_data();
    void appliesBothThemes();
    void theFormNamesItsObjects();
};

void MainWindowFormTest::appliesBothThemes_data()
{
    columns<int, QString>({"theme", "sheet"});
    row("bright", int(Bright), ":/main_light.qss");
    row("dark", int(Dark), ":/main_dark.qss");
}

void MainWindowFormTest::appliesBothThemes()
{
    QFETCH(int, theme);
    QFETCH(QString, sheet);

    openWindow();
    auto *list = child<QListWidget>("menuItemsWidget");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "onThemeChanged",
                                      Q_ARG(ApplicationTheme, ApplicationTheme(theme))));
    QCOMPARE(m_window->styleSheet(), *StyleSheets::read(sheet));
    const QString word = themeWord(ApplicationTheme(theme));
    const auto drawing = [](const QIcon &icon) {
        return icon.pixmap(16, 16).toImage();
    };
    const QStringList icons = words("dbmcalc voltagecalc unitconv dbconv vswrconv");
    for (int i = 0; i < icons.size(); ++i) {
        const QIcon icon(QStringLiteral(":/%1_16_%2.svg").arg(icons.at(i), word));
        QCOMPARE(drawing(list->item(i)->icon()), drawing(icon));
    }
    const QIcon add(QStringLiteral(":/Global/Icons_SVG/%1/Icon_Add_16_%1.svg").arg(word));
    QCOMPARE(drawing(child<QToolButton>("changeWindowModeButton")->icon()), drawing(add));
}

/// Only the form says how large its parts are, so this test checks nothing but their names.
void MainWindowFormTest::theFormNamesItsObjects()
{
    openWindow();
    const QStringList names = words("menuItemsWidget menuWidget changeWindowModeButton widget_8"
                                    " label verticalLayout_2 gridLayout pageLayout_1"
                                    " pageLayout_2 pageLayout_3 pageLayout_4 pageLayout_5");
    for (const QString &name : names)
        QVERIFY2(m_window->findChild<QObject *>(name), qPrintable(name));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowFormTest>(argc, argv, true);
}

#include "tst_mainwindowform.moc"
