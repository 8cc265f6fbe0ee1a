// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "aboutwindowcase.h"
#include "kellatepages.h"
#include "resources.h"
#include "table.h"
#include "testmain.h"
#include "ui_kelaboutwindow.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>

class KelAboutWindowTest : public AboutWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void isAPlainDialogOfFixedSize();
    void form();
    void designTexts();
    void tellsTheProduct();
    void tabsInOrder();
    void hasNoDriverTabWithoutDrivers();
    void listsTheDrivers();
    void listsTheSystem();
    void headingsAreLargeAndBold();
    void valuesCanBeSelected();
    void valuesAreNoMarkup();
    void showsTheLegalPage();
    void legalPageNamesTheLicenses_data();
    void legalPageNamesTheLicenses();
    void showsNothingWithoutALegalPage();
    void fitsItsContents_data();
    void fitsItsContents();
    void isNamedForScreenReaders();
    void isDestroyedWhenClosed_data();
    void isDestroyedWhenClosed();
};

namespace {

QString heading(const QString &name)
{
    return QStringLiteral("<span style=\" font-weight:600;color: rgb(0, 142, 214);\">") + name +
           QStringLiteral("</span>");
}

/// The texts of the labels that are direct children, in the order of the layout.
QStringList labelTexts(const QWidget *content)
{
    QStringList texts;
    for (int i = 0; i < content->layout()->count(); ++i) {
        if (const auto *label = qobject_cast<QLabel *>(content->layout()->itemAt(i)->widget()))
            texts.append(label->text());
    }
    return texts;
}

} // namespace

// The resource macros must not stand inside a class or a namespace.
static void removeLegalPage()
{
    Q_CLEANUP_RESOURCE(html);
}

static void restoreLegalPage()
{
    Q_INIT_RESOURCE(html);
}

void KelAboutWindowTest::initTestCase()
{
    initDezimoResources();
    addApplicationFonts();
}

void KelAboutWindowTest::isAPlainDialogOfFixedSize()
{
    open();
    QCOMPARE(int(m_window->windowFlags() & ~Qt::WindowType_Mask), 0x08003000);
    QCOMPARE(m_window->windowType(), Qt::Dialog);
    QVERIFY(!m_window->isModal());
    QCOMPARE(m_window->size(), QSize(570, 370));
    QCOMPARE(m_window->minimumSize(), QSize(570, 370));
    QCOMPARE(m_window->maximumSize(), QSize(570, 370));
}

void KelAboutWindowTest::form()
{
    open();
    QCOMPARE(m_window->objectName(), QStringLiteral("AboutWindow"));
    QCOMPARE(m_window->layout()->objectName(), QStringLiteral("verticalLayout_4"));
    QCOMPARE(m_window->layout()->itemAt(0)->widget(), child<QWidget>("centralWidget"));
    QCOMPARE(child<QWidget>("tab_legal")->layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(child<QWidget>("tab_driver")->layout()->objectName(),
             QStringLiteral("verticalLayout_2"));
    QCOMPARE(child<QWidget>("tab_system")->layout()->objectName(),
             QStringLiteral("verticalLayout_3"));
    QCOMPARE(child<QScrollArea>("scroll_driver")->widget(), child<QWidget>("driver_content"));
    QCOMPARE(child<QScrollArea>("scroll_system")->widget(), child<QWidget>("scroll_content"));
    QVERIFY(child<QScrollArea>("scroll_driver")->widgetResizable());
    QVERIFY(child<QScrollArea>("scroll_system")->widgetResizable());
    QCOMPARE(child<QWidget>("scroll_system")->styleSheet(),
             QStringLiteral("#scroll_system {background-color:transparent;}"));
    QCOMPARE(child<QWidget>("scroll_content")->styleSheet(),
             QStringLiteral("#scroll_content {background-color:transparent;}"));
    QCOMPARE(child<QLabel>("title")->styleSheet(),
             QStringLiteral("color: rgb(0, 142, 214);\nfont-family: Tessan;\nfont-size: 28px;\n"
                            "font-weight:bold;"));
    for (const char *name : {"title", "version", "subtitle", "product_page", "mail"})
        QVERIFY2(child<QLabel>(name)->alignment() == (Qt::AlignRight | Qt::AlignVCenter), name);
    QVERIFY(child<QLabel>("product_page")->openExternalLinks());
    QVERIFY(child<QLabel>("mail")->openExternalLinks());
    QVERIFY(child<QTextEdit>("license_box")->isReadOnly());
    for (const char *name : {"license_box", "scroll_driver", "scroll_system"})
        QVERIFY2(
            qobject_cast<KelScrollBar *>(child<QAbstractScrollArea>(name)->verticalScrollBar()),
            name);
}

void KelAboutWindowTest::designTexts()
{
    QDialog dialog;
    Ui::AboutWindow form;
    form.setupUi(&dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("AboutWindow"));
    QCOMPARE(form.title->text(), QStringLiteral("SupportTool"));
    QCOMPARE(form.version->text(), QStringLiteral("Version 2.0.0 (01.03.2014)"));
    // The form itself has this typing error.
    QCOMPARE(form.subtitle->text(), QStringLiteral("a tool to get imortant system information"));
    QCOMPARE(form.product_page->text(), QStringLiteral("Product page"));
    QCOMPARE(form.mail->text(), QStringLiteral("Support mail"));
}

void KelAboutWindowTest::tellsTheProduct()
{
    open();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Information about Dezimo"));
    QCOMPARE(child<QLabel>("title")->text(), QStringLiteral("Dezimo"));
    QCOMPARE(child<QLabel>("title")->font().styleStrategy(), QFont::PreferAntialias);
    QCOMPARE(child<QLabel>("title")->font().pixelSize(), 28);
    QCOMPARE(child<QLabel>("subtitle")->text(), QStringLiteral("calculates levels"));
    QCOMPARE(child<QLabel>("version")->text(), QStringLiteral("Version 3.2.1.0 64 bit (2022)"));
}

void KelAboutWindowTest::tabsInOrder()
{
    open();
    const auto *tabs = child<QTabWidget>("tabs");
    QCOMPARE(tabs->count(), 3);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Legal Information"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Driver Information"));
    QCOMPARE(tabs->tabText(2), QStringLiteral("System Information"));
    QCOMPARE(tabs->widget(0), child<QWidget>("tab_legal"));
    QCOMPARE(tabs->widget(1), child<QWidget>("tab_driver"));
    QCOMPARE(tabs->widget(2), child<QWidget>("tab_system"));
    QCOMPARE(tabs->currentIndex(), 0);
}

void KelAboutWindowTest::hasNoDriverTabWithoutDrivers()
{
    m_facts.drivers.clear();
    open();
    const auto *tabs = child<QTabWidget>("tabs");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Legal Information"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("System Information"));
    QCOMPARE(tabs->currentIndex(), 0);
}

void KelAboutWindowTest::listsTheDrivers()
{
    open();
    QVERIFY(qobject_cast<QVBoxLayout *>(child<QWidget>("driver_content")->layout()));
    const QStringList expected{heading(QStringLiteral("VXI drivers")),
                               QStringLiteral("kela.dll (Version 1.0)"),
                               QStringLiteral("kelb.dll (Version 2.0)"),
                               QString(),
                               heading(QStringLiteral("USB drivers")),
                               QStringLiteral("No USB driver found"),
                               QString()};
    QCOMPARE(labelTexts(child<QWidget>("driver_content")), expected);
}

void KelAboutWindowTest::listsTheSystem()
{
    open();
    // By row and column. A label with a row of its own is in both columns.
    QCOMPARE(cell(0, 0)->text(), heading(QStringLiteral("Operating System")));
    QCOMPARE(cell(0, 1), cell(0, 0));
    QCOMPARE(cell(1, 0)->text(), QStringLiteral("Product name"));
    QCOMPARE(cell(1, 1)->text(), QStringLiteral("Debian GNU/Linux 12"));
    QCOMPARE(cell(2, 0)->text(), QStringLiteral("Admin rights"));
    QCOMPARE(cell(2, 1)->text(), QStringLiteral("No"));
    QCOMPARE(cell(3, 0)->text(), QString());
    QCOMPARE(cell(4, 0)->text(), heading(QStringLiteral("VISA")));
    QCOMPARE(cell(4, 1), cell(4, 0));
    QCOMPARE(cell(5, 0)->text(), QStringLiteral("Version"));
    QCOMPARE(cell(5, 1)->text(), QStringLiteral("---"));
    QCOMPARE(cell(6, 0)->text(), QString());

    const auto *grid = qobject_cast<QGridLayout *>(child<QWidget>("scroll_content")->layout());
    const auto *button = qobject_cast<QPushButton *>(grid->itemAtPosition(7, 0)->widget());
    QVERIFY(button);
    QCOMPARE(grid->itemAtPosition(7, 1)->widget(), button);
    QCOMPARE(button->text(), QStringLiteral("copy support information to clipboard"));
    // 2 headings, 3 entries of two labels, 2 spacers and the button
    QCOMPARE(grid->count(), 11);
}

void KelAboutWindowTest::headingsAreLargeAndBold()
{
    open();
    // Bold text is large from 19 pixels on.
    QCOMPARE(cell(0, 0)->font().pixelSize(), 19);
    const QTextCharFormat format = markupFormat(cell(0, 0));
    // The markup's 600 is bold in Qt 5 and a little less in Qt 6, whose fonts are drawn bold as
    // well.
    QVERIFY(format.font().bold());
    QCOMPARE(format.foreground().color(), QColor(0, 142, 214));
}

void KelAboutWindowTest::valuesCanBeSelected()
{
    open();
    QCOMPARE(cell(1, 1)->textInteractionFlags(),
             Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    child<QTabWidget>("tabs")->setCurrentIndex(2);
    QTest::mouseDClick(cell(2, 1), Qt::LeftButton, {}, QPoint(3, cell(2, 1)->height() / 2));
    QCOMPARE(cell(2, 1)->selectedText(), QStringLiteral("No"));
}

void KelAboutWindowTest::valuesAreNoMarkup()
{
    const QString hostile = QStringLiteral("\"><b>1 & 2</b>&amp;%20'");
    m_product = {hostile, hostile, hostile, hostile, hostile};
    m_facts.system = {{hostile, {{hostile, hostile}}}};
    m_facts.drivers = {{hostile, {{QString(), hostile}}}};
    open();
    QCOMPARE(child<QLabel>("title")->textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>("subtitle")->textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>("version")->textFormat(), Qt::PlainText);
    QCOMPARE(cell(1, 0)->textFormat(), Qt::PlainText);
    QCOMPARE(cell(1, 1)->textFormat(), Qt::PlainText);
    QCOMPARE(cell(1, 1)->text(), hostile);
    QCOMPARE(plainText(cell(0, 0)), hostile);
    QCOMPARE(labelTexts(child<QWidget>("driver_content")).at(1), hostile);
}

void KelAboutWindowTest::showsTheLegalPage()
{
    open();
    QTextDocument page;
    page.setHtml(fileText(QStringLiteral(":/Global/Html/License.html")));
    QVERIFY(page.toPlainText().startsWith(QStringLiteral("Dezimo\n")));
    QCOMPARE(child<QTextEdit>("license_box")->toPlainText(), page.toPlainText());
}

void KelAboutWindowTest::legalPageNamesTheLicenses_data()
{
    columns<QString>({"words"});
    row("of the program itself", "Dezimo is free software under the MIT License:");
    row("of Qt", "under the GNU Lesser General Public License, version 3.");
    row("the text of Qt's license", "GNU LESSER GENERAL PUBLIC LICENSE Version 3, 29 June 2007");
    row("the text of the license that Qt's builds on",
        "GNU GENERAL PUBLIC LICENSE Version 3, 29 June 2007");
    row("where Qt's source is", "The source code of Qt can be had from the Debian source packages "
                                "qtbase-opensource-src and qtsvg-opensource-src");
    row("of the fonts' outlines", "Apache License, Version 2.0");
    row("of the fonts' added glyphs", "DejaVu fonts license");
}

void KelAboutWindowTest::legalPageNamesTheLicenses()
{
    QFETCH(QString, words);

    open();
    // Line breaks and non-breaking blanks only concern the layout.
    const QString page = child<QTextEdit>("license_box")->toPlainText().simplified();
    QVERIFY2(page.contains(words), qPrintable(words));
}

void KelAboutWindowTest::showsNothingWithoutALegalPage()
{
    removeLegalPage();
    open();
    restoreLegalPage();
    QCOMPARE(child<QTextEdit>("license_box")->toPlainText(), QString());
    QVERIFY(!QApplication::activeModalWidget());
}

void KelAboutWindowTest::fitsItsContents_data()
{
    columns<QString>({"otherTheme"});
    row("in the bright theme", "_dark");
    row("in the dark theme", "_bright");
}

void KelAboutWindowTest::fitsItsContents()
{
    QFETCH(QString, otherTheme);

    m_product.subtitle = QStringLiteral(
        "application for calculating with logarithmic and linear power and voltage values");
    m_facts.system[0].entries[0].value = QStringLiteral("a system with a long name ").repeated(20);
    qApp->setStyleSheet(themeSheet(otherTheme));
    open();
    auto *tabs = child<QTabWidget>("tabs");
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        const auto labels = m_window->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->isVisible())
                continue;
            const int height = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->minimumSizeHint().height();
            QVERIFY2(label->height() >= height, qPrintable(label->text()));
            QVERIFY2(label->width() >= label->minimumSizeHint().width(), qPrintable(label->text()));
            QVERIFY2(label->parentWidget()->rect().contains(label->geometry()),
                     qPrintable(label->text()));
        }
    }
    // A long value takes more lines, not more width.
    QVERIFY(child<QWidget>("scroll_content")->width() <=
            child<QScrollArea>("scroll_system")->viewport()->width());
}

void KelAboutWindowTest::isNamedForScreenReaders()
{
    open();
    QCOMPARE(cell(1, 1)->accessibleName(), QStringLiteral("Product name: Debian GNU/Linux 12"));
    QCOMPARE(cell(0, 0)->accessibleName(), QStringLiteral("Operating System"));
    for (const char *name : {"tabs", "license_box", "scroll_driver", "scroll_system", "bg_image"})
        QVERIFY2(!child<QWidget>(name)->accessibleName().isEmpty(), name);
}

void KelAboutWindowTest::isDestroyedWhenClosed_data()
{
    columns<bool>({"byEscape"});
    row("by Escape", true);
    row("by its title bar", false);
}

void KelAboutWindowTest::isDestroyedWhenClosed()
{
    QFETCH(bool, byEscape);

    open();
    QCOMPARE(m_facts.providers, 1);
    QVERIFY(m_window->testAttribute(Qt::WA_DeleteOnClose));
    if (byEscape)
        QTest::keyClick(m_window, Qt::Key_Escape);
    else
        m_window->close();
    QTRY_VERIFY(m_window.isNull());
    QCOMPARE(m_facts.providers, 0);
}

DEZIMO_TEST_MAIN(QApplication, KelAboutWindowTest)

#include "tst_kelaboutwindow.moc"
