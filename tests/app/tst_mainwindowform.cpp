// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "stylesheets.h"
#include "testmain.h"

#include <QListWidget>
#include <QTest>
#include <QToolButton>

class MainWindowFormTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void appliesBothThemes_data();
    void appliesBothThemes();
};

void MainWindowFormTest::appliesBothThemes_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("sheet");

    QTest::newRow("bright") << int(Bright) << ":/main_light.qss";
    QTest::newRow("dark") << int(Dark) << ":/main_dark.qss";
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
    const QIcon expected(
        QStringLiteral(":/vswrconv_16_%1.svg").arg(themeWord(ApplicationTheme(theme))));
    QCOMPARE(list->item(4)->icon().pixmap(16, 16).toImage(), expected.pixmap(16, 16).toImage());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowFormTest>(argc, argv, true);
}

#include "tst_mainwindowform.moc"
