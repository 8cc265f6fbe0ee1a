// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "colorcontrast.h"
#include "resources.h"
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

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace {

/// The least ratio that a pair needs, after the Web Content Accessibility Guidelines 2.1.
constexpr double kText = 4.5;
constexpr double kMark = 3.0;      ///< large text, borders of controls, icons, the focus mark
constexpr double kNoMinimum = 1.0; ///< inactive text, shades and lines that tell nothing alone

/// Two colors that meet on the screen.
struct Pair
{
    const char *use;
    const char *foreground;
    const char *background;
    double minimum;
};

const std::vector<Pair> &brightPairs()
{
    static const std::vector<Pair> pairs{
        {"text on the window", "#1e2328", "#f5f7f9", kText},
        {"text in a field", "#1e2328", "#ffffff", kText},
        {"text under the pointer and on function keys", "#1e2328", "#e8edf1", kText},
        {"text of a chosen item", "#1e2328", "#e0f0fa", kText},
        {"muted text on the window", "#56606a", "#f5f7f9", kText},
        {"placeholder in a field", "#56606a", "#ffffff", kText},
        {"chosen tab on the window", "#00669b", "#f5f7f9", kText},
        {"unit key", "#00669b", "#ffffff", kText},
        {"unit key under the pointer", "#00669b", "#e8edf1", kText},
        {"chosen module", "#00669b", "#e0f0fa", kText},
        {"calculate key, selected text, checked segment", "#ffffff", "#00669b", kText},
        {"calculate key under the pointer", "#ffffff", "#00557f", kText},
        {"error on the window", "#b3261e", "#f5f7f9", kText},
        {"error in a field", "#b3261e", "#ffffff", kText},
        {"border of a field on the window", "#7e8994", "#f5f7f9", kMark},
        {"border of a field against its inside", "#7e8994", "#ffffff", kMark},
        {"border under the pointer", "#3b4650", "#f5f7f9", kMark},
        {"focus mark on the window", "#008ed6", "#f5f7f9", kMark},
        {"focus mark in a field", "#008ed6", "#ffffff", kMark},
        {"bar of the chosen module", "#008ed6", "#e0f0fa", kMark},
        {"sign of what is done", "#1c7c3c", "#f5f7f9", kMark},
        {"sign of a warning", "#b35c00", "#f5f7f9", kMark},
        {"sign of an error", "#b3261e", "#f5f7f9", kMark},
        {"inside of the sign of what is done", "#ffffff", "#1c7c3c", kMark},
        {"inside of the sign of a warning", "#ffffff", "#b35c00", kMark},
        {"inside of the sign of an error", "#ffffff", "#b3261e", kMark},
        {"inactive text", "#8b959e", "#f5f7f9", kNoMinimum},
        {"quiet line", "#d5dbe1", "#f5f7f9", kNoMinimum},
    };
    return pairs;
}

const std::vector<Pair> &darkPairs()
{
    static const std::vector<Pair> pairs{
        {"text on the window", "#e8ecf0", "#1e2328", kText},
        {"text in a field", "#e8ecf0", "#262c33", kText},
        {"text under the pointer and on function keys", "#e8ecf0", "#333c45", kText},
        {"text of a chosen item", "#e8ecf0", "#17394f", kText},
        {"muted text on the window", "#a9b4bf", "#1e2328", kText},
        {"placeholder in a field", "#a9b4bf", "#262c33", kText},
        {"chosen tab on the window", "#5ab8ec", "#1e2328", kText},
        {"unit key", "#5ab8ec", "#262c33", kText},
        {"unit key under the pointer", "#5ab8ec", "#333c45", kText},
        {"chosen module", "#5ab8ec", "#17394f", kText},
        {"calculate key, selected text, checked segment", "#1e2328", "#5ab8ec", kText},
        {"calculate key under the pointer", "#1e2328", "#8accf2", kText},
        {"error on the window", "#ff8a80", "#1e2328", kText},
        {"error in a field", "#ff8a80", "#262c33", kText},
        {"border of a field on the window", "#7d8893", "#1e2328", kMark},
        {"border of a field against its inside", "#7d8893", "#262c33", kMark},
        {"border under the pointer", "#dfe5ea", "#1e2328", kMark},
        {"focus mark on the window", "#008ed6", "#1e2328", kMark},
        {"focus mark in a field", "#008ed6", "#262c33", kMark},
        {"bar of the chosen module", "#008ed6", "#17394f", kMark},
        {"sign of what is done", "#5cc98a", "#1e2328", kMark},
        {"sign of a warning", "#f0a83c", "#1e2328", kMark},
        {"sign of an error", "#ff8a80", "#1e2328", kMark},
        {"inside of the sign of what is done", "#1e2328", "#5cc98a", kMark},
        {"inside of the sign of a warning", "#1e2328", "#f0a83c", kMark},
        {"inside of the sign of an error", "#1e2328", "#ff8a80", kMark},
        {"inactive text", "#6b7680", "#1e2328", kNoMinimum},
        {"quiet line", "#3a424b", "#1e2328", kNoMinimum},
    };
    return pairs;
}

bool isOfTheme(const QString &fileName, bool dark)
{
    const bool isDark = fileName.contains(QLatin1String("_dark."));
    const bool isBright =
        fileName.contains(QLatin1String("_bright.")) || fileName.contains(QLatin1String("_light."));
    return dark ? isDark : isBright;
}

QString textOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Every color that sheets write: "#rrggbb", and any other way of writing a color, by a function or
/// by its name, which no pair can name.
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

/// Every "#rrggbb" of a text in which it means nothing but a color.
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

QStringList sheets(const std::function<bool(const QString &)> &wanted)
{
    QStringList files{QStringLiteral(":/main_light.qss"), QStringLiteral(":/main_dark.qss")};
    const QDir folder(QStringLiteral(":/Global/Style/"));
    const QStringList names = folder.entryList({QStringLiteral("*.qss")});
    for (const QString &name : names)
        files += folder.filePath(name);
    QStringList chosen;
    std::copy_if(files.begin(), files.end(), std::back_inserter(chosen), wanted);
    return chosen;
}

QSet<QString> colorsIn(const std::vector<Pair> &pairs)
{
    QSet<QString> colors;
    for (const Pair &pair : pairs)
        colors << QString::fromLatin1(pair.foreground) << QString::fromLatin1(pair.background);
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
    void thePaletteHoldsTheSameColors();
    void findsEveryWayToWriteAColor();
    void commonSheetsHoldNoColor();
};

void ContrastTest::initTestCase()
{
    initDezimoResources();
}

void ContrastTest::computesTheRatioOfTheGuidelines()
{
    QCOMPARE(ColorContrast::ratio(Qt::white, Qt::black), 21.0);
    QCOMPARE(ColorContrast::ratio(Qt::black, Qt::black), 1.0);
    // The guidelines' own borderline gray: #767676 on white has 4.54:1.
    QCOMPARE(std::round(ColorContrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white) * 100), 454.0);
}

void ContrastTest::everyPairIsReadable_data()
{
    QTest::addColumn<QColor>("foreground");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<double>("minimum");

    const auto rows = [](const char *theme, const std::vector<Pair> &pairs) {
        for (const Pair &pair : pairs)
            QTest::newRow(QByteArray(theme).append(pair.use).constData())
                << QColor(QLatin1String(pair.foreground)) << QColor(QLatin1String(pair.background))
                << pair.minimum;
    };
    rows("bright: ", brightPairs());
    rows("dark: ", darkPairs());
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
    QTest::addColumn<bool>("dark");

    QTest::newRow("bright") << false;
    QTest::newRow("dark") << true;
}

void ContrastTest::everyColorOfTheSheetsIsInAPair()
{
    QFETCH(bool, dark);

    const QSet<QString> used =
        colorsOf(sheets([dark](const QString &name) { return isOfTheme(name, dark); })) +
        iconColors(dark);
    // Equal both ways: a pair whose color no sheet or icon uses any more would prove nothing.
    QCOMPARE(sorted(used), sorted(colorsIn(dark ? darkPairs() : brightPairs())));
}

void ContrastTest::thePaletteHoldsTheSameColors()
{
    const QSet<QString> palette =
        plainColorsIn(textOf(QStringLiteral(DEZIMO_SOURCE_DIR "/docs/design.md")));
    QCOMPARE(sorted(palette), sorted(colorsIn(brightPairs()) + colorsIn(darkPairs())));
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

void ContrastTest::commonSheetsHoldNoColor()
{
    QCOMPARE(sorted(colorsOf(sheets([](const QString &name) {
                 return !isOfTheme(name, true) && !isOfTheme(name, false);
             }))),
             QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, ContrastTest)

#include "tst_contrast.moc"
