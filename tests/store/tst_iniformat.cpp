// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "iniformat.h"
#include "settingsfile.h"
#include "table.h"
#include "testmain.h"

#include <QFile>
#include <QMap>
#include <QPoint>
#include <QRect>
#include <QScopeGuard>
#include <QSize>
#include <QTest>

#include <algorithm>

using namespace Dezimo;

/// Whether the program reads and writes the same bytes whatever version of Qt it was built with.
/// The stored bytes were made by a build with Qt 5.15.
class IniFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheStoredBytes();
    void readsTheStoredBytes();
    void keepsTheStoredBytesOfOthers();
    void readsAnyBytes_data();
    void readsAnyBytes();
    void readsUtf8BehindAByteOrderMark();
    void everyUnitComesBack();
    void theSettingsAreWhereTheNativeOnesAre();
    void needsNoFolderForTemporaryFiles();
};

namespace {

/// The 16-bit units from @p begin on. Among them are halves of characters in an order that makes
/// none.
QString units(uint begin, uint count)
{
    QString text;
    for (uint unit = begin; unit < begin + count; ++unit)
        text += QChar(ushort(unit));
    return text;
}

QMap<QString, QVariant> storedValues()
{
    const QString half(QChar(0xd83d));
    QMap<QString, QVariant> values;
    const auto add = [&values](const char *key, const QVariant &value) {
        values.insert(QString::fromUtf8(key), value);
    };
    add("Texts/first units", units(0, 0x120));
    add("Texts/letters", QStringLiteral("47\u00b5W, 50\u2126, \u221212 dB"));
    add("Texts/digits behind escapes",
        QStringLiteral("\u00b5a\u00b5g\u00b50\u00b5F1\u0001c\u007f9"));
    add("Texts/beyond 16 bits", QStringLiteral("1\U0001F6002\U0010FFFFf\U00100041"));
    add("Texts/halves", QString(half + QLatin1Char('x') + QChar(0xde00) + half));
    add("Texts/signs", QStringLiteral("\"quoted\" \\x41 a;b,c=d [e] #f %41 @g"));
    add("Texts/blanks", QStringLiteral("  \t a\r\nb "));
    add("Texts/like a kind", QStringLiteral("@Size(1 2)"));
    add("Texts/nothing", QString());
    add("Lists/texts", QStringList{QStringLiteral("\u00e4,b"), QStringLiteral("c"), QString()});
    add("Lists/others", QVariantList{QStringLiteral("\u00df"), QPoint(1, -2)});
    add("Kinds/bytes", QByteArray("\0\x7f\x80\xff"
                                  "a",
                                  5));
    add("Kinds/size", QSize(3, 4));
    add("Kinds/rectangle", QRect(1, 2, 3, 4));
    add("Kinds/third", 1.0 / 3.0);
    add("Kinds/large", 1e22);
    add("Kinds/number", -7);
    add("Kinds/truth", true);
    add("G\u00fc/k\u00e4 \u03a9 \U0001F600/a", 1);
    return values;
}

QString storedFile()
{
    return QStringLiteral(DEZIMO_TEST_DATA "/made-with-qt5.ini");
}

QByteArray storedBytes()
{
    QFile file(storedFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void IniFormatTest::writesTheStoredBytes()
{
    SettingsFile file;
    const QMap<QString, QVariant> values = storedValues();
    for (auto value = values.begin(); value != values.end(); ++value)
        file.settings().setValue(value.key(), value.value());
    QCOMPARE(file.text(), storedBytes());
}

void IniFormatTest::readsTheStoredBytes()
{
    const QSettings settings(storedFile(), IniFormat::ofFiles());
    const QMap<QString, QVariant> values = storedValues();
    QCOMPARE(settings.allKeys().size(), values.size());
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QVariant read = settings.value(value.key());
        if (value.value().userType() == QMetaType::QVariantList)
            QCOMPARE(read.toList().size(), value.value().toList().size());
        else if (value.value().userType() == QMetaType::QByteArray)
            QCOMPARE(read.toByteArray(), value.value().toByteArray());
        else if (value.value().canConvert<QString>())
            QCOMPARE(read.toString(), value.value().toString());
        else
            QCOMPARE(read, value.value());
    }
}

void IniFormatTest::keepsTheStoredBytesOfOthers()
{
    const QString key = QStringLiteral("Kinds/number");
    SettingsFile file(storedBytes());
    file.settings().setValue(key, 8);
    QVERIFY(file.text() != storedBytes());
    file.settings().setValue(key, storedValues().value(key));
    QCOMPARE(file.text(), storedBytes());
}

void IniFormatTest::readsAnyBytes_data()
{
    columns<QByteArray, QString>({"stored", "read"});
    row("a byte beyond ASCII is a letter of Latin-1", QByteArray("5\xb5W"), "5\u00b5W");
    row("and so are the bytes of UTF-8", QByteArray("5\xc2\xb5W"), "5\u00c2\u00b5W");
    row("and bytes that are no UTF-8", QByteArray("\xff\xfe\x80"), "\u00ff\u00fe\u0080");
    row("and a byte order mark", QByteArray("a\xef\xbb\xbf"), "a\u00ef\u00bb\u00bf");
    row("a byte behind an escape", QByteArray("\\xb5\xb5"), "\u00b5\u00b5");
    row("a backslash before a byte takes it away", QByteArray("a\\\xb5z"), "az");
    row("two backslashes are one", QByteArray("a\\\\\xb5z"), "a\\\u00b5z");
    row("an escape of more than 16 bits overflows", QByteArray("\\x1f600"), "\uf600");
    row("quotes in the midst", QByteArray("\xe4\"\xf6;\"\xfc"), "\u00e4\u00f6;\u00fc");
    row("a kind of bytes beyond ASCII", QByteArray("@String(\xe4)"), "\u00e4");
}

void IniFormatTest::readsAnyBytes()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, read);

    SettingsFile file("[a]\nb=" + stored + "\nc=d\n");
    QCOMPARE(file.settings().value(QStringLiteral("a/b")).toString(), read);
    QCOMPARE(file.settings().value(QStringLiteral("a/c")).toString(), QStringLiteral("d"));
}

void IniFormatTest::readsUtf8BehindAByteOrderMark()
{
    SettingsFile file("\xef\xbb\xbf[a]\nb=5\xc2\xb5W \xf0\x9f\x98\x80\n");
    QCOMPARE(file.settings().value(QStringLiteral("a/b")).toString(),
             QStringLiteral("5\u00b5W \U0001F600"));
}

void IniFormatTest::everyUnitComesBack()
{
    constexpr uint kCount = 0x1000;
    for (uint begin = 0; begin < 0x10000; begin += kCount) {
        const QString key = QStringLiteral("key");
        SettingsFile file;
        file.settings().setValue(key, units(begin, kCount));
        const QByteArray text = file.text();
        QVERIFY(std::none_of(text.begin(), text.end(), [](char c) { return c < 0 || c == 0x7f; }));
        SettingsFile copy(text);
        QCOMPARE(copy.settings().value(key).toString(), units(begin, kCount));
    }
}

void IniFormatTest::theSettingsAreWhereTheNativeOnesAre()
{
    const QSettings settings(IniFormat::ofSettings(), QSettings::UserScope,
                             QStringLiteral("Vantrel"), QStringLiteral("Dezimo"));
    QCOMPARE(settings.fileName(), QSettings().fileName());
}

/// The folder that is meant for them may be full. Nobody can make a file in this one.
void IniFormatTest::needsNoFolderForTemporaryFiles()
{
    const QString key = QStringLiteral("a/b");
    SettingsFile file("[a]\nb=1\n[other]\nc=2\n");
    const QByteArray folder = qgetenv("TMPDIR");
    const auto restore = qScopeGuard([&folder] { qputenv("TMPDIR", folder); });
    qputenv("TMPDIR", "/proc");
    QCOMPARE(file.settings().value(key).toInt(), 1);
    file.settings().setValue(key, 3);
    QCOMPARE(file.text(), QByteArray("[a]\nb=3\n\n[other]\nc=2\n"));
    QCOMPARE(file.settings().status(), QSettings::NoError);
}

DEZIMO_TEST_MAIN(QCoreApplication, IniFormatTest)

#include "tst_iniformat.moc"
