// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "aboutwindowcase.h"
#include "palette.h"
#include "resources.h"
#include "table.h"
#include "testmain.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QUrl>

/// The ways to the maker's support: the copied text, the web page and the mail.
class KelAboutWindowSupportTest : public AboutWindowCase
{
    Q_OBJECT

public Q_SLOTS:
    void openLink(const QUrl &link) { m_openedLinks.append(link); }

private Q_SLOTS:
    void initTestCase();

    void copiesTheSupportText();
    void collectsOnceToShow();
    void everyCopyCollectsAnew();
    void slotsByName();
    void copyReplacesAllFormats();
    void onlyTheButtonItselfCopies();
    void linksToTheProductPage();
    void linksToTheSupportMail();
    void linksOpenByKeyboard_data() { links(); }
    void linksOpenByKeyboard();
    void linksOpenByAssistiveTechnology_data() { links(); }
    void linksOpenByAssistiveTechnology();
    void linksAreReadableInBothThemes();
    void linksCannotBeBrokenOutOf();
    void asksThePlatformByItself();

private:
    static void links();

    QVector<QUrl> m_openedLinks;
};

namespace {

const char kSupportText[] = "*** Global Setup ***\n"
                            "Product: Dezimo\n"
                            "Version: 3.2.1.0\n"
                            "Date: 2022\n"
                            "\n"
                            "*** Operating System ***\n"
                            "Product name: Debian GNU/Linux 12\n"
                            "Admin rights: No\n"
                            "\n"
                            "*** VISA ***\n"
                            "Version: ---\n"
                            "\n";

} // namespace

void KelAboutWindowSupportTest::initTestCase()
{
    initDezimoResources();
}

void KelAboutWindowSupportTest::copiesTheSupportText()
{
    open();
    const QVector<Message> messages = pressCopy();
    QCOMPARE(messages.size(), 1);
    const Message &message = messages.constFirst();
    QCOMPARE(message.title, QStringLiteral("Support information copied to clipboard."));
    QCOMPARE(message.text,
             QStringLiteral("Support information copied to clipboard.\nUse <CTRL+V> to paste the "
                            "information in your mail program or text editor."));
    QCOMPARE(message.buttons, QDialogButtonBox::Ok);
    QCOMPARE(message.state, KelMessageBox::StateNormal);
    QVERIFY(!message.hasParent);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromLatin1(kSupportText));
}

void KelAboutWindowSupportTest::collectsOnceToShow()
{
    open();
    QStringList questions{QStringLiteral("drivers"), QStringLiteral("system")};
    QCOMPARE(m_facts.questions, questions);
    // A new theme only changes colors, so the window does not ask again.
    m_window->onThemeChanged(Dark);
    QCOMPARE(m_facts.questions, questions);

    for (int copy = 0; copy < 2; ++copy) {
        pressCopy();
        questions.append(QStringLiteral("system"));
        QCOMPARE(m_facts.questions, questions);
    }
}

void KelAboutWindowSupportTest::everyCopyCollectsAnew()
{
    open();
    QCOMPARE(pressCopy().size(), 1);
    m_facts.system = {{QStringLiteral("A"), {{QStringLiteral("b"), QStringLiteral("µ c")}}}, {}};
    QGuiApplication::clipboard()->setText(QStringLiteral("something else"));
    QCOMPARE(pressCopy().size(), 1);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("*** Global Setup ***\nProduct: Dezimo\nVersion: 3.2.1.0\nDate: 2022\n"
                            "\n*** A ***\nb: µ c\n\n***  ***\n\n"));
    // The window still shows what it did before.
    QCOMPARE(plainText(cell(0, 0)), QStringLiteral("Operating System"));
}

void KelAboutWindowSupportTest::slotsByName()
{
    open();
    const QVector<Message> messages =
        messagesOf([this] { QMetaObject::invokeMethod(m_window, "copy_clicked"); });
    QCOMPARE(messages.size(), 1);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromLatin1(kSupportText));
    QVERIFY(m_window->metaObject()->indexOfSlot("onThemeChanged(ApplicationTheme)") >= 0);
}

void KelAboutWindowSupportTest::copyReplacesAllFormats()
{
    open();
    auto *earlier = new QMimeData;
    earlier->setHtml(QStringLiteral("<b>earlier</b>"));
    QGuiApplication::clipboard()->setMimeData(earlier);
    pressCopy();
    // Some window systems add a second format, which names the encoding.
    const QStringList formats = QGuiApplication::clipboard()->mimeData()->formats();
    QVERIFY(formats.contains(QStringLiteral("text/plain")));
    for (const QString &format : formats)
        QVERIFY2(format.startsWith(QLatin1String("text/plain")), qPrintable(format));
}

void KelAboutWindowSupportTest::onlyTheButtonItselfCopies()
{
    open();
    child<QTabWidget>("tabs")->setCurrentIndex(2);
    const auto *button = child<QWidget>("scroll_content")->findChild<QPushButton *>();
    QVERIFY(button->isVisible());
    // A default button would react to Return anywhere in the dialog.
    QVERIFY(!button->isDefault());
    QTest::keyClick(m_window, Qt::Key_Return);
    QVERIFY(QGuiApplication::clipboard()->text().isEmpty());
    QVERIFY(m_window->isVisible());
}

void KelAboutWindowSupportTest::linksToTheProductPage()
{
    open();
    const auto *label = child<QLabel>("product_page");
    QCOMPARE(plainText(label), QStringLiteral("Product page"));
    QCOMPARE(markupFormat(label).anchorHref(), QStringLiteral(DEZIMO_PRODUCT_PAGE "/7TK31"));
}

void KelAboutWindowSupportTest::linksToTheSupportMail()
{
    open();
    const auto *label = child<QLabel>("mail");
    QCOMPARE(plainText(label), QStringLiteral("Support mail"));
    QCOMPARE(markupFormat(label).anchorHref(),
             QStringLiteral("mailto:" DEZIMO_SUPPORT_MAIL "?subject=Application Note 7TK31"
                            "&body=<put your message here>\n\n"
                            "----------------------------------------\n") +
                 QString::fromLatin1(kSupportText));
}

void KelAboutWindowSupportTest::links()
{
    columns<QString, QString>({"label", "scheme"});
    row("the product page", "product_page", QUrl(QStringLiteral(DEZIMO_PRODUCT_PAGE)).scheme());
    row("the support mail", "mail", "mailto");
}

void KelAboutWindowSupportTest::linksOpenByKeyboard()
{
    QFETCH(QString, label);
    QFETCH(QString, scheme);

    m_openedLinks.clear();
    open();
    QDesktopServices::setUrlHandler(scheme, this, "openLink");
    auto *link = m_window->findChild<QLabel *>(label);
    QCOMPARE(link->focusPolicy(), Qt::StrongFocus);
    link->setFocus(Qt::TabFocusReason);
    QTest::keyClick(link, Qt::Key_Tab);
    QTest::keyClick(link, Qt::Key_Return);
    QDesktopServices::unsetUrlHandler(scheme);
    QCOMPARE(m_openedLinks.size(), 1);
    QCOMPARE(m_openedLinks.constFirst(), QUrl(markupFormat(link).anchorHref()));
}

void KelAboutWindowSupportTest::linksOpenByAssistiveTechnology()
{
    QFETCH(QString, label);
    QFETCH(QString, scheme);

    m_openedLinks.clear();
    open();
    QDesktopServices::setUrlHandler(scheme, this, "openLink");
    auto *link = m_window->findChild<QLabel *>(label);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(link);
    QCOMPARE(accessible->role(), QAccessible::Link);
    QAccessibleActionInterface *actions = accessible->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_openedLinks.isEmpty());
    QCOMPARE(actions->actionNames().constFirst(), QAccessibleActionInterface::pressAction());
    actions->doAction(QAccessibleActionInterface::pressAction());
    QDesktopServices::unsetUrlHandler(scheme);
    QCOMPARE(m_openedLinks, QVector<QUrl>{QUrl(markupFormat(link).anchorHref())});
}

void KelAboutWindowSupportTest::linksAreReadableInBothThemes()
{
    open();
    for (const char *name : {"product_page", "mail"}) {
        const auto *label = child<QLabel>(name);
        m_window->onThemeChanged(Dark);
        QCOMPARE(markupFormat(label).foreground().color(),
                 QColor(QLatin1String(Palette::accentText.dark)));
        m_window->onThemeChanged(Bright);
        QCOMPARE(markupFormat(label).foreground().color(),
                 QColor(QLatin1String(Palette::accentText.bright)));
    }
}

void KelAboutWindowSupportTest::linksCannotBeBrokenOutOf()
{
    const QString hostile = QStringLiteral("\"><b>1 & 2</b>&amp;%20'");
    m_product = {hostile, hostile, hostile, hostile, hostile};
    m_facts.system = {{hostile, {{hostile, hostile}}}};
    open();
    QCOMPARE(plainText(child<QLabel>("product_page")), QStringLiteral("Product page"));
    QCOMPARE(markupFormat(child<QLabel>("product_page")).anchorHref(),
             QStringLiteral(DEZIMO_PRODUCT_PAGE "/") + hostile);
    QCOMPARE(plainText(child<QLabel>("mail")), QStringLiteral("Support mail"));
    const QString mail = markupFormat(child<QLabel>("mail")).anchorHref();
    pressCopy();
    QVERIFY(mail.endsWith(QLatin1Char('\n') + QGuiApplication::clipboard()->text()));
}

void KelAboutWindowSupportTest::asksThePlatformByItself()
{
    QWidget parent;
    m_window = new KelAboutWindow(QStringLiteral("P"), QStringLiteral("S"), QStringLiteral("1.0"),
                                  QStringLiteral("2022"), QStringLiteral("N1"), &parent);
    QCOMPARE(m_window->parentWidget(), &parent);
    QCOMPARE(child<QLabel>("subtitle")->text(), QStringLiteral("S"));
    QVERIFY(
        markupFormat(child<QLabel>("product_page")).anchorHref().endsWith(QLatin1String("/N1")));
    pressCopy();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(
        QLatin1String("*** Global Setup ***\nProduct: P\nVersion: 1.0\nDate: 2022\n\n"
                      "*** Operating System ***\nProduct name: ")));
    delete m_window;
}

DEZIMO_TEST_MAIN(QApplication, KelAboutWindowSupportTest)

#include "tst_kelaboutwindowsupport.moc"
