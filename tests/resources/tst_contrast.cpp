// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "colorcontrast.h"
#include "palette.h"
#include "resources.h"
#include "table.h"
#include "testmain.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>
#include <QTest>

#include <cmath>

namespace {

/// The lowest contrast ratios that the Web Content Accessibility Guidelines 2.1 allow.
constexpr double kText = 4.5;
constexpr double kMark = 3.0;      ///< large text, borders of controls, icons, the focus mark
constexpr double kNoMinimum = 1.0; ///< inactive text, shades and lines that mean nothing alone

/// Two colors that meet on the screen.
struct Pair
{
    const char *use;
    Palette::Role foreground;
    Palette::Role background;
    double minimum;
};

const Pair kPairs[] = {
    {"text on the window", Palette::text, Palette::window, kText},
    {"text in a field", Palette::text, Palette::surface, kText},
    {"text under the pointer and on function keys", Palette::text, Palette::pointer, kText},
    {"text of a chosen item", Palette::text, Palette::chosen, kText},
    {"muted text on the window", Palette::mutedText, Palette::window, kText},
    {"placeholder in a field", Palette::mutedText, Palette::surface, kText},
    {"chosen tab on the window", Palette::accentText, Palette::window, kText},
    {"heading and link of the guide", Palette::accentText, Palette::surface, kText},
    {"unit key", Palette::accentText, Palette::surface, kText},
    {"unit key under the pointer", Palette::accentText, Palette::pointer, kText},
    {"chosen module", Palette::accentText, Palette::chosen, kText},
    {"calculate key, selected text, checked segment", Palette::inverseText, Palette::accentText,
     kText},
    {"calculate key under the pointer", Palette::inverseText, Palette::accentPointer, kText},
    {"error on the window while one types", Palette::mutedText, Palette::window, kText},
    {"error on the window", Palette::error, Palette::window, kText},
    {"error in a field", Palette::error, Palette::surface, kText},
    {"border of a field on the window", Palette::border, Palette::window, kMark},
    {"border of a field against its inside", Palette::border, Palette::surface, kMark},
    {"border under the pointer", Palette::strongBorder, Palette::window, kMark},
    {"focus mark on the window", Palette::accent, Palette::window, kMark},
    {"focus mark in a field", Palette::accent, Palette::surface, kMark},
    {"bar of the chosen module", Palette::accent, Palette::chosen, kMark},
    {"sign of what is done", Palette::done, Palette::window, kMark},
    {"sign of a warning", Palette::warning, Palette::window, kMark},
    {"sign of an error", Palette::error, Palette::window, kMark},
    {"inside of the sign of what is done", Palette::inverseText, Palette::done, kMark},
    {"inside of the sign of a warning", Palette::inverseText, Palette::warning, kMark},
    {"inside of the sign of an error", Palette::inverseText, Palette::error, kMark},
    {"inactive text", Palette::inactiveText, Palette::window, kNoMinimum},
    {"quiet line", Palette::quietLine, Palette::window, kNoMinimum},
};

QString textOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Every color in the sheets, as "#rrggbb", as a function or as a name. No pair names the last two,
/// so a sheet that uses them fails the test.
QSet<QString> colorsOf(const QStringList &files)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression color(
        QStringLiteral("#[0-9a-fA-F]{3,8}\\b(?=[^{}]*;)|\\b(?:rgba?|hsva?|hsla?)\\([^)]*\\)"));
    static const QRegularExpression word(QStringLiteral("[\\s:]([a-zA-Z]+)(?=[^{}]*;)"));
    const QStringList names = QColor::colorNames();
    QSet<QString> colors;
    for (const QString &file : files) {
        const QString sheet = textOf(file).remove(comment);
        for (auto it = color.globalMatch(sheet); it.hasNext();)
            colors += it.next().captured().toLower();
        for (auto it = word.globalMatch(sheet); it.hasNext();) {
            const QString name = it.next().captured(1).toLower();
            if (names.contains(name) && name != QLatin1String("transparent"))
                colors += name;
        }
    }
    return colors;
}

/// Every "#rrggbb" of a text in which this can only be a color.
QSet<QString> plainColorsIn(const QString &text)
{
    static const QRegularExpression color(QStringLiteral("#[0-9a-f]{6}\\b"));
    QSet<QString> colors;
    for (auto it = color.globalMatch(text); it.hasNext();)
        colors += it.next().captured();
    return colors;
}

QSet<QString> iconColors(bool dark)
{
    QDirIterator files(QStringLiteral(":/"),
                       {dark ? QStringLiteral("*_dark.svg") : QStringLiteral("*_bright.svg")},
                       QDir::Files, QDirIterator::Subdirectories);
    QSet<QString> colors;
    while (files.hasNext())
        colors += plainColorsIn(textOf(files.next()));
    return colors;
}

/// The sheets that belong to one theme only.
QStringList themeSheets(bool dark)
{
    const QDir folder(QStringLiteral(":/Global/Style/"));
    QStringList files{dark ? QStringLiteral(":/main_dark.qss") : QStringLiteral(":/main_light.qss"),
                      dark ? QStringLiteral(":/Global/Html/guide_dark.css")
                           : QStringLiteral(":/Global/Html/guide_bright.css")};
    const QStringList names =
        folder.entryList({dark ? QStringLiteral("*_dark.qss") : QStringLiteral("*_bright.qss")});
    for (const QString &name : names)
        files += folder.filePath(name);
    return files;
}

QString colorOf(const Palette::Role &role, bool dark)
{
    return QString::fromLatin1(dark ? role.dark : role.bright);
}

QSet<QString> colorsOfPairs(bool dark)
{
    QSet<QString> colors;
    for (const Pair &pair : kPairs)
        colors << colorOf(pair.foreground, dark) << colorOf(pair.background, dark);
    return colors;
}

QString sourcePath(const char *name)
{
    return QStringLiteral(DEZIMO_SOURCE_DIR "/") + QLatin1String(name);
}

QStringList sourceFiles(const char *folder, const QStringList &patterns)
{
    QDirIterator files(sourcePath(folder), patterns, QDir::Files, QDirIterator::Subdirectories);
    QStringList names;
    while (files.hasNext())
        names += files.next();
    return names;
}

/// Every color that the code and the forms write.
QStringList colorsOfCode()
{
    static const QRegularExpression color(
        QStringLiteral("#[0-9a-fA-F]{6}\\b|\\brgba?\\([^)]*\\)|\\bQColor\\([0-9][^)]*\\)"));
    QStringList colors;
    for (const char *folder : {"app", "profiles", "sysinfo", "views", "widgets"}) {
        const QStringList names = sourceFiles(
            folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")});
        for (const QString &name : names) {
            const QString text = textOf(name);
            for (auto it = color.globalMatch(text); it.hasNext();)
                colors += it.next().captured();
        }
    }
    return colors;
}

QStringList sorted(const QSet<QString> &set)
{
    QStringList list = set.values();
    list.sort();
    return list;
}

} // namespace

class ContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void computesTheRatioOfTheGuidelines();
    void everyPairIsReadable_data();
    void everyPairIsReadable();
    void everyColorOfTheSheetsIsInAPair_data();
    void everyColorOfTheSheetsIsInAPair();
    void theDesignPageShowsThePalette();
    void codeWritesNoColorButTheAccent();
    void findsEveryWayToWriteAColor();
    void sheetsAndIconsNameRolesInsteadOfColors();
};

void ContrastTest::initTestCase()
{
    initDezimoResources();
}

void ContrastTest::computesTheRatioOfTheGuidelines()
{
    QCOMPARE(ColorContrast::ratio(Qt::white, Qt::black), 21.0);
    QCOMPARE(ColorContrast::ratio(Qt::black, Qt::black), 1.0);
    // The gray that just passes the guidelines: #767676 on white has 4.54:1.
    QCOMPARE(std::round(ColorContrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white) * 100), 454.0);
}

void ContrastTest::everyPairIsReadable_data()
{
    columns<QColor, QColor, double>({"foreground", "background", "minimum"});
    for (const bool dark : {false, true}) {
        for (const Pair &pair : kPairs)
            row(QByteArray(dark ? "dark: " : "bright: ").append(pair.use).constData(),
                QColor(colorOf(pair.foreground, dark)), QColor(colorOf(pair.background, dark)),
                pair.minimum);
    }
}

void ContrastTest::everyPairIsReadable()
{
    QFETCH(QColor, foreground);
    QFETCH(QColor, background);
    QFETCH(double, minimum);

    const double ratio = ColorContrast::ratio(foreground, background);
    QVERIFY2(ratio >= minimum, QByteArray::number(ratio).constData());
}

void ContrastTest::everyColorOfTheSheetsIsInAPair_data()
{
    columns<bool>({"dark"});
    row("bright", false);
    row("dark", true);
}

void ContrastTest::everyColorOfTheSheetsIsInAPair()
{
    QFETCH(bool, dark);

    const QSet<QString> used = colorsOf(themeSheets(dark)) + iconColors(dark);
    // The sets must be equal: a pair whose color no sheet or icon uses would prove nothing.
    QCOMPARE(sorted(used), sorted(colorsOfPairs(dark)));
}

void ContrastTest::theDesignPageShowsThePalette()
{
    static const QRegularExpression row(
        QStringLiteral("^([a-z-]+) +(#[0-9a-f]+) +(#[0-9a-f]+) +(.*)$"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression line(QStringLiteral("^\\|.*`#.*\\|$"),
                                         QRegularExpression::MultilineOption);
    QStringList expected;
    const QString palette = textOf(sourcePath("resources/style/palette.txt"));
    for (auto it = row.globalMatch(palette); it.hasNext();) {
        const QStringList cells = it.next().capturedTexts();
        expected += QStringLiteral("| %1 | `%2` | `%3` | %4 |")
                        .arg(cells.at(1), cells.at(2), cells.at(3), cells.at(4));
    }
    QStringList shown;
    const QString page = textOf(sourcePath("docs/design.md"));
    for (auto it = line.globalMatch(page); it.hasNext();)
        shown += it.next().captured();
    QVERIFY(!expected.isEmpty());
    QCOMPARE(shown, expected);
}

void ContrastTest::codeWritesNoColorButTheAccent()
{
    const QString accent = QStringLiteral("rgb(0, 142, 214)");
    QCOMPARE(colorsOfCode(), (QStringList{accent, accent}));
    QCOMPARE(QColor(QLatin1String(Palette::accent.bright)), QColor(0, 142, 214));
    QCOMPARE(QColor(QLatin1String(Palette::accent.dark)), QColor(0, 142, 214));
}

void ContrastTest::findsEveryWayToWriteAColor()
{
    QTemporaryFile sheet;
    QVERIFY(sheet.open());
    sheet.write("#id { color: #ABCDEF; } /* red */ a { border: 1px solid white; top: 1px; }"
                "b { background: rgba(1, 2, 3, 4); border-color: transparent; image: url(:/x); }");
    sheet.close();
    QCOMPARE(sorted(colorsOf({sheet.fileName()})),
             (QStringList{QStringLiteral("#abcdef"), QStringLiteral("rgba(1, 2, 3, 4)"),
                          QStringLiteral("white")}));
}

void ContrastTest::sheetsAndIconsNameRolesInsteadOfColors()
{
    const QStringList sheets =
        sourceFiles("resources/style", {QStringLiteral("*.qss"), QStringLiteral("*.css")});
    QVERIFY(sheets.size() > 10);
    QCOMPARE(sorted(colorsOf(sheets)), QStringList());
    const QStringList icons = sourceFiles("resources/icons", {QStringLiteral("*_??.svg")});
    QVERIFY(icons.size() > 10);
    for (const QString &icon : icons)
        QVERIFY2(plainColorsIn(textOf(icon)).isEmpty(), qPrintable(icon));
}

DEZIMO_TEST_MAIN(QCoreApplication, ContrastTest)

#include "tst_contrast.moc"
