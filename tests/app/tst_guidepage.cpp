// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "kelapplication.h"
#include "kelguidewindow.h"
#include "palette.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>

#include <algorithm>

Q_DECLARE_METATYPE(ApplicationTheme)

/// Tests the page of the guide as the program shows it.
class GuidePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void saysAllThatTheGuideSays();
    void everyTableIsThere();
    void headingsHaveTheAnchorsOfCodeHosts();
    void everyLinkLeadsToItsHeading_data();
    void everyLinkLeadsToItsHeading();
    void noOtherLinkIsFollowed_data();
    void noOtherLinkIsFollowed();
    void goesBackToWhereALinkWas();
    void everyPictureFits_data();
    void everyPictureFits();
    void scaledPicturesAreSmooth();
    void aChangedWidthKeepsTheLineAtTheTop();
    void isWrittenInTheTypeOfTheProgram();
    void hasOnlyColorsOfThePalette_data() { themes(); }
    void hasOnlyColorsOfThePalette();
    void anotherThemeKeepsThePlace();

private:
    static void themes();
    void resizeTo(int width);
    QString topLine() const;

    std::unique_ptr<ExpectedMessages> m_messages;
    std::unique_ptr<KelGuideWindow> m_window;
    QTextBrowser *m_browser = nullptr;
};

namespace {

/// Where a heading is that a link leads to.
constexpr int kFirstWidth = 860;
constexpr int kMargin = 20;
constexpr int kTop = 16;

/// The guide as it is written.
QString source()
{
    QFile file(QStringLiteral(DEZIMO_SOURCE_DIR "/docs/guide.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The words without any markup, and without the pictures.
QString wordsOf(QString text)
{
    static const QRegularExpression picture(QStringLiteral("!\\[[^]]*\\]\\([^)]*\\)"));
    static const QRegularExpression target(QStringLiteral("\\]\\([^)]*\\)"));
    // What ^ and $ take for the end of a line depends on how the system's expressions were built.
    static const QRegularExpression line(
        QStringLiteral("(?<![^\n])(\\|?[-|]+\\|(?![^\n])|#+ |- )"));
    static const QRegularExpression mark(
        QStringLiteral("\\*\\*|\\*(?=empty)|(?<=empty)\\*|[\\[`|]"));
    static const QRegularExpression blanks(QStringLiteral("[\\s\\x{FFFC}\\x{2028}]+"));
    return text.remove(picture).remove(target).remove(line).remove(mark).replace(
        blanks, QStringLiteral(" "));
}

/// A heading in small letters with hyphens for blanks.
QString anchorFor(const QString &heading)
{
    return heading.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

QStringList headingsIn(const QTextDocument &document)
{
    QStringList headings;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0)
            headings += block.text();
    }
    return headings;
}

template <typename Visit>
void eachFragment(const QTextDocument &document, const Visit &visit)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            visit(it.fragment());
    }
}

QVector<QTextTable *> tablesIn(const QTextDocument &document)
{
    QVector<QTextTable *> tables;
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame))
            tables += table;
    }
    return tables;
}

/// Where the pictures are, in pixels of the page.
QVector<QRectF> picturesIn(const QTextDocument &document)
{
    QVector<QRectF> rects;
    eachFragment(document, [&](const QTextFragment &fragment) {
        if (!fragment.charFormat().isImageFormat())
            return;
        const QTextBlock block = document.findBlock(fragment.position());
        rects += document.documentLayout()->blockBoundingRect(block);
    });
    return rects;
}

QString colorName(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush ? QString() : brush.color().name();
}

} // namespace

void GuidePageTest::themes()
{
    columns<ApplicationTheme>({"theme"});
    row("bright", Bright);
    row("dark", Dark);
}

void GuidePageTest::initTestCase()
{
    m_messages = std::make_unique<ExpectedMessages>(offscreenPopupMessages());
    m_window = std::make_unique<KelGuideWindow>();
    m_browser = m_window->findChild<QTextBrowser *>();
    m_window->openAt(QString());
    QVERIFY(waitForKeyboard(*m_window));
}

/// Every test function begins at the beginning of the page.
void GuidePageTest::init()
{
    resizeTo(kFirstWidth);
    m_window->openAt(QString());
    QCOMPARE(m_browser->verticalScrollBar()->value(), 0);
}

void GuidePageTest::cleanupTestCase()
{
    m_window.reset();
    m_messages.reset();
}

void GuidePageTest::resizeTo(int width)
{
    m_window->resize(width, m_window->height());
    QVERIFY(!m_browser->horizontalScrollBar()->isVisible());
    QTRY_COMPARE(m_window->width(), width);
    QCoreApplication::processEvents();
}

QString GuidePageTest::topLine() const
{
    return m_browser->cursorForPosition(QPoint(kMargin, kTop)).block().text();
}

void GuidePageTest::saysAllThatTheGuideSays()
{
    const QString words = wordsOf(source());
    QVERIFY(words.size() > 10000);
    QCOMPARE(wordsOf(m_browser->toPlainText()).simplified(), words.simplified());
}

void GuidePageTest::everyTableIsThere()
{
    const int rules = source().count(QRegularExpression(QStringLiteral("\n\\|-")));
    const int lines = source().count(QRegularExpression(QStringLiteral("\n\\|")));
    const QVector<QTextTable *> tables = tablesIn(*m_browser->document());
    int rows = 0;
    for (const QTextTable *table : tables)
        rows += table->rows();
    QCOMPARE(tables.size(), rules);
    QCOMPARE(rows, lines - rules);
}

void GuidePageTest::headingsHaveTheAnchorsOfCodeHosts()
{
    QStringList expected;
    const QStringList headings = headingsIn(*m_browser->document());
    for (const QString &heading : headings)
        expected += anchorFor(heading);
    QStringList anchors;
    eachFragment(*m_browser->document(), [&anchors](const QTextFragment &fragment) {
        anchors += fragment.charFormat().anchorNames();
    });
    QVERIFY(expected.size() > 10);
    QCOMPARE(anchors, expected);
}

void GuidePageTest::everyLinkLeadsToItsHeading_data()
{
    columns<QString>({"anchor"});
    static const QRegularExpression link(QStringLiteral("[^!]\\[[^]]*\\]\\(([^)]*)\\)"));
    for (auto it = link.globalMatch(source()); it.hasNext();) {
        const QString target = it.next().captured(1);
        QTest::newRow(qPrintable(target)) << target;
    }
    QTest::newRow("the last heading, which is above the end")
        << QStringLiteral("#an-antenna-that-is-not-matched");
}

/// The last chapters are shorter than the window, so their headings cannot come to its top.
void GuidePageTest::everyLinkLeadsToItsHeading()
{
    QFETCH(QString, anchor);

    QVERIFY2(anchor.startsWith(QLatin1Char('#')), "not a place of the guide");
    Q_EMIT m_browser->anchorClicked(m_browser->source().resolved(QUrl(anchor)));
    const QScrollBar &bar = *m_browser->verticalScrollBar();
    QVERIFY(bar.value() > 0);
    if (bar.value() < bar.maximum())
        QCOMPARE(QLatin1Char('#') + anchorFor(topLine()), anchor);
}

void GuidePageTest::noOtherLinkIsFollowed_data()
{
    columns<QString>({"link"});
    row("a page of the internet", "https://www.vantrel.example/appnote");
    row("a file that the program does not have", "qrc:/Global/Html/use-the-models.md");
    row("a place in another page", "qrc:/Global/Html/License.html#guide");
}

void GuidePageTest::noOtherLinkIsFollowed()
{
    QFETCH(QString, link);

    const QUrl before = m_browser->source();
    Q_EMIT m_browser->anchorClicked(QUrl(link));
    QCOMPARE(m_browser->source(), before);
    QVERIFY(m_browser->toPlainText().startsWith(QLatin1String("Guide\n")));
}

void GuidePageTest::goesBackToWhereALinkWas()
{
    Q_EMIT m_browser->anchorClicked(
        m_browser->source().resolved(QUrl(QStringLiteral("#keyboard"))));
    QCOMPARE(topLine(), QStringLiteral("Keyboard"));
    QTest::keyClick(m_browser, Qt::Key_Left, Qt::AltModifier);
    QTRY_COMPARE(topLine(), QStringLiteral("Guide"));
}

void GuidePageTest::everyPictureFits_data()
{
    columns<int>({"windowWidth"});
    row("in the smallest window", 520);
    row("at first", kFirstWidth);
    row("in a window that is wider than the text", 1600);
}

/// The document scrolls sideways as soon as one thing on it is too wide.
void GuidePageTest::everyPictureFits()
{
    QFETCH(int, windowWidth);

    resizeTo(windowWidth);
    const QTextDocument &document = *m_browser->document();
    int pictures = 0;
    eachFragment(document, [&](const QTextFragment &fragment) {
        if (!fragment.charFormat().isImageFormat())
            return;
        ++pictures;
        const QUrl name(fragment.charFormat().toImageFormat().name());
        QVERIFY2(!m_browser->document()
                      ->resource(QTextDocument::ImageResource, name)
                      .value<QPixmap>()
                      .isNull(),
                 qPrintable(name.toString()));
    });
    QCOMPARE(pictures, 5);
    QTRY_COMPARE(m_browser->horizontalScrollBar()->maximum(), 0);
    QTRY_VERIFY(document.idealWidth() <= m_browser->viewport()->width());
    QVERIFY(m_browser->viewport()->width() <= 800);
    const QVector<QRectF> rects = picturesIn(document);
    for (const QRectF &rect : rects)
        QVERIFY2(rect.height() > rect.width() * 0.6 && rect.height() < rect.width() * 0.7,
                 qPrintable(QString::number(rect.height())));
}

/// Leaving out pixels would make lines of one pixel vanish. A smooth picture has the shades between
/// its colors, of which the drawn one has few.
void GuidePageTest::scaledPicturesAreSmooth()
{
    Q_EMIT m_browser->anchorClicked(
        m_browser->source().resolved(QUrl(QStringLiteral("#unit-converter"))));
    const QImage shown = m_browser->viewport()->grab().toImage();
    const QImage own(QStringLiteral(":/Global/Html/pictures/unit-converter.png"));
    const auto colors = [](const QImage &image) {
        QSet<QRgb> found;
        for (int y = 40; y < image.height() * 2 / 3; ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += image.pixel(x, y);
        }
        return found.size();
    };
    QVERIFY2(colors(shown) > 2 * colors(own), QByteArray::number(colors(shown)).constData());
}

void GuidePageTest::aChangedWidthKeepsTheLineAtTheTop()
{
    Q_EMIT m_browser->anchorClicked(
        m_browser->source().resolved(QUrl(QStringLiteral("#vswr-converter"))));
    for (const int width : {860, 700, 520, 600, 650, 1200, 1600, 860}) {
        resizeTo(width);
        QCOMPARE(topLine(), QStringLiteral("VSWR Converter"));
    }
}

void GuidePageTest::isWrittenInTheTypeOfTheProgram()
{
    QMap<QString, QString> texts; // by style
    eachFragment(*m_browser->document(), [&texts](const QTextFragment &fragment) {
        const QFont font = fragment.charFormat().font();
        const QFontInfo info(font);
        QVERIFY2(info.family() == QLatin1String("Tessan"),
                 qPrintable(info.family() + QLatin1String(": ") + fragment.text()));
        if (!fragment.charFormat().isImageFormat())
            texts[info.bold()     ? QStringLiteral("Bold")
                  : info.italic() ? QStringLiteral("Italic")
                                  : QStringLiteral("Regular")] += fragment.text();
    });
    QCOMPARE(texts.keys(), (QStringList{QStringLiteral("Bold"), QStringLiteral("Italic"),
                                        QStringLiteral("Regular")}));
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const QRawFont font =
            QRawFont::fromFont(QFontDatabase().font(QStringLiteral("Tessan"), it.key(), 14));
        const QVector<uint> characters = it.value().toUcs4();
        for (const uint character : characters)
            QVERIFY2(font.supportsCharacter(character) || character < 0x20,
                     qPrintable(QStringLiteral("U+%1, %2").arg(character, 4, 16).arg(it.key())));
    }
}

void GuidePageTest::hasOnlyColorsOfThePalette()
{
    QFETCH(ApplicationTheme, theme);

    const auto apply = [this](ApplicationTheme chosen) {
        qobject_cast<KelApplication *>(qApp)->installStyleSheet(chosen);
        m_window->onThemeChanged(chosen);
    };
    const auto leave = qScopeGuard([&apply] { apply(Bright); });
    apply(theme);
    const auto name = [theme](const Palette::Role &role) {
        return QString::fromLatin1(theme == Dark ? role.dark : role.bright);
    };
    QCOMPARE(m_browser->palette().color(QPalette::Base).name(), name(Palette::surface));
    QCOMPARE(m_browser->palette().color(QPalette::Text).name(), name(Palette::text));

    QSet<QString> foregrounds;
    QSet<QString> backgrounds;
    eachFragment(*m_browser->document(), [&](const QTextFragment &fragment) {
        foregrounds += colorName(fragment.charFormat().foreground());
        backgrounds += colorName(fragment.charFormat().background());
    });
    QCOMPARE(foregrounds, (QSet<QString>{QString(), name(Palette::accentText)}));
    QCOMPARE(backgrounds,
             (QSet<QString>{QString(), name(Palette::pointer), name(Palette::window)}));

    QSet<QString> cells;
    QSet<QString> borders;
    const QVector<QTextTable *> tables = tablesIn(*m_browser->document());
    for (QTextTable *table : tables) {
        for (int i = 0; i < table->rows() * table->columns(); ++i) {
            const QTextTableCellFormat cell =
                table->cellAt(i / table->columns(), i % table->columns())
                    .format()
                    .toTableCellFormat();
            cells += colorName(cell.background());
            borders << colorName(cell.topBorderBrush()) << colorName(cell.rightBorderBrush())
                    << colorName(cell.bottomBorderBrush()) << colorName(cell.leftBorderBrush());
        }
    }
    QCOMPARE(cells, (QSet<QString>{QString(), name(Palette::window)}));
    QCOMPARE(borders, QSet<QString>{name(Palette::quietLine)});
}

void GuidePageTest::anotherThemeKeepsThePlace()
{
    m_window->openAt(QStringLiteral("error-words"));
    QScrollBar &bar = *m_browser->verticalScrollBar();
    bar.setValue(bar.value() + 100);
    const int value = bar.value();
    m_window->onThemeChanged(Dark);
    QCOMPARE(bar.value(), value);
    m_window->onThemeChanged(Bright);
    QCOMPARE(bar.value(), value);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, GuidePageTest>(argc, argv, true);
}

#include "tst_guidepage.moc"
