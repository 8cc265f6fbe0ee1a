// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "mainwindowcase.h"
#include "stylesheets.h"
#include "testmain.h"

#include <QLayout>
#include <QListWidget>
#include <QMargins>
#include <QTest>
#include <QToolButton>

Q_DECLARE_METATYPE(QMargins)

class MainWindowFormTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void appliesBothThemes_data();
    void appliesBothThemes();
    void theFormHasItsNumbers_data();
    void theFormHasItsNumbers();
    void theFormHasItsMargins_data();
    void theFormHasItsMargins();
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
    const QString word = themeWord(ApplicationTheme(theme));
    const auto drawing = [](const QIcon &icon) {
        return icon.pixmap(16, 16).toImage();
    };
    const QStringList icons{
        QStringLiteral(":/dbmcalc_16_%1.svg"), QStringLiteral(":/voltagecalc_16_%1.svg"),
        QStringLiteral(":/unitconv_16_%1.svg"), QStringLiteral(":/dbconv_16_%1.svg"),
        QStringLiteral(":/vswrconv_16_%1.svg")};
    for (int row = 0; row < icons.size(); ++row)
        QCOMPARE(drawing(list->item(row)->icon()), drawing(QIcon(icons.at(row).arg(word))));
    const QIcon add(QStringLiteral(":/Global/Icons_SVG/%1/Icon_Add_16_%1.svg").arg(word));
    QCOMPARE(drawing(child<QToolButton>("changeWindowModeButton")->icon()), drawing(add));
}

void MainWindowFormTest::theFormHasItsNumbers_data()
{
    QTest::addColumn<QByteArray>("object");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *object, const char *property, const QVariant &value) {
        QTest::newRow(QByteArray(object).append(' ').append(property).constData())
            << QByteArray(object) << QByteArray(property) << value;
    };
    row("menuItemsWidget", "iconSize", QSize(16, 16));
    row("menuItemsWidget", "verticalScrollBarPolicy", int(Qt::ScrollBarAlwaysOff));
    row("menuItemsWidget", "horizontalScrollBarPolicy", int(Qt::ScrollBarAlwaysOff));
    row("menuItemsWidget", "sortingEnabled", false);
    row("widget_8", "minimumWidth", 79);
    row("widget_8", "maximumWidth", 79);
    row("label", "minimumHeight", 22);
    row("menuWidget", "maximumWidth", 40);
    row("verticalLayout_2", "spacing", 1);
    row("gridLayout", "spacing", 0);
    row("pageLayout_1", "spacing", 0);
    row("pageLayout_2", "spacing", 0);
    row("pageLayout_3", "spacing", 0);
    row("pageLayout_4", "spacing", 0);
    row("pageLayout_5", "spacing", 0);
}

void MainWindowFormTest::theFormHasItsNumbers()
{
    QFETCH(QByteArray, object);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);

    openWindow();
    const auto *found = child<QObject>(object.constData());
    QVERIFY(found);
    const QVariant present = found->property(property.constData());
    QVERIFY(present.isValid());
    QCOMPARE(value.userType() == QMetaType::Int ? QVariant(present.toInt()) : present, value);
}

void MainWindowFormTest::theFormHasItsMargins_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<QMargins>("margins");

    QTest::newRow("the list leaves a gap at its right")
        << QByteArray("verticalLayout_2") << QMargins(0, 0, 3, 0);
    for (const char *layout : {"gridLayout", "pageLayout_1", "pageLayout_2", "pageLayout_3",
                               "pageLayout_4", "pageLayout_5"})
        QTest::newRow(layout) << QByteArray(layout) << QMargins();
}

void MainWindowFormTest::theFormHasItsMargins()
{
    QFETCH(QByteArray, layout);

    openWindow();
    QTEST(child<QLayout>(layout.constData())->contentsMargins(), "margins");
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, MainWindowFormTest>(argc, argv, true);
}

#include "tst_mainwindowform.moc"
