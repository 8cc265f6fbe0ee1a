// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpagebrowser.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <memory>

/// A page of any text. tst_guidepage and tst_guidewindow test the browser with the guide.
class KelPageBrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aLinkToAnotherPageLeadsNowhere();
    void theTopStaysAtTheTop();
    void aLineKeepsItsPlace();
    void theSameLineComesBackAfterManyWidths();
    void aNarrowColumnTakesAllTheRoom();

private:
    void write(const QString &name, const QString &page) const;
    void showParagraphs();
    /// How far the paragraph is below the upper edge of what can be seen.
    int topOf(int paragraph) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<KelPageBrowser> m_browser;
};

void KelPageBrowserTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_browser = std::make_unique<KelPageBrowser>();
    m_browser->resize(600, 300);
    m_browser->show();
    QVERIFY(waitForKeyboard(*m_browser));
}

void KelPageBrowserTest::cleanup()
{
    m_browser.reset();
}

void KelPageBrowserTest::write(const QString &name, const QString &page) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(page.toUtf8());
}

/// Each takes several lines, the more the narrower the browser is.
void KelPageBrowserTest::showParagraphs()
{
    const QString paragraph =
        QStringLiteral("<p>%1</p>").arg(QStringLiteral("some words ").repeated(40));
    m_browser->setHtml(paragraph.repeated(20));
}

int KelPageBrowserTest::topOf(int paragraph) const
{
    const QTextBlock block = m_browser->document()->findBlockByNumber(paragraph);
    return m_browser->cursorRect(QTextCursor(block)).top();
}

/// The file is there, so the browser could show it.
void KelPageBrowserTest::aLinkToAnotherPageLeadsNowhere()
{
    write(QStringLiteral("other.html"), QStringLiteral("another page"));
    write(QStringLiteral("page.html"), QStringLiteral("<a href=\"other.html\">a link</a>"));
    m_browser->setSource(QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("page.html"))));
    QTest::keyClick(m_browser.get(), Qt::Key_Tab);
    QCOMPARE(m_browser->textCursor().selectedText(), QStringLiteral("a link"));
    QTest::keyClick(m_browser.get(), Qt::Key_Return);
    QCOMPARE(m_browser->toPlainText(), QStringLiteral("a link"));
}

/// The line below the first one is farther down in a narrow browser, but nobody has scrolled to it.
void KelPageBrowserTest::theTopStaysAtTheTop()
{
    showParagraphs();
    for (const int width : {300, 900, 250}) {
        m_browser->resize(width, 300);
        QCOMPARE(m_browser->verticalScrollBar()->value(), 0);
    }
}

void KelPageBrowserTest::aLineKeepsItsPlace()
{
    showParagraphs();
    QScrollBar &bar = *m_browser->verticalScrollBar();
    const int below = m_browser->fontMetrics().height() / 2;
    bar.setValue(bar.value() + topOf(10) - below);
    QCOMPARE(topOf(10), below);
    for (const int width : {300, 900, 250}) {
        m_browser->resize(width, 300);
        QCOMPARE(topOf(10), below);
    }
}

/// In other widths the line begins with earlier words, and these must not take its place.
void KelPageBrowserTest::theSameLineComesBackAfterManyWidths()
{
    showParagraphs();
    QScrollBar &bar = *m_browser->verticalScrollBar();
    bar.setValue(bar.value() + topOf(10) + 2 * m_browser->fontMetrics().lineSpacing());
    const int value = bar.value();
    for (const int width : {560, 520, 480, 440, 400, 360, 320, 600}) {
        m_browser->resize(width, 300);
        QVERIFY(bar.value() > 0);
    }
    QCOMPARE(bar.value(), value);
}

void KelPageBrowserTest::aNarrowColumnTakesAllTheRoom()
{
    QCOMPARE(m_browser->viewport()->geometry(), m_browser->contentsRect());
}

DEZIMO_TEST_MAIN(QApplication, KelPageBrowserTest)

#include "tst_kelpagebrowser.moc"
