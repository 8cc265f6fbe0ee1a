// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "expectedmessages.h"
#include "iniformat.h"
#include "mainprofile.h"
#include "settingsfile.h"
#include "settingstext.h"
#include "table.h"
#include "testmain.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <random>
#include <vector>

using namespace Dezimo;

namespace {

/// Tells what QSettings makes of many texts. They are files of one folder, because making and
/// removing a folder for each takes ten times as long as everything else.
class Judge
{
public:
    /// Whether QSettings rebuilds an integer from its packed bytes in @p text.
    bool findsPackedNumber(const QByteArray &text)
    {
        const QSettings settings(written(text), IniFormat::ofFiles());
        QStringList keys = settings.allKeys();
        keys.removeAll(QString()); // read, but never handed out
        return std::any_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
            const QVariant value = settings.value(key);
            const QVariantList elements = value.toList();
            return value.userType() == QMetaType::Int ||
                   std::any_of(elements.cbegin(), elements.cend(), [](const QVariant &element) {
                       return element.userType() == QMetaType::Int;
                   });
        });
    }

private:
    /// QSettings may not notice at once that a file has changed, so each text gets a new name.
    QString written(const QByteArray &text)
    {
        QFile file(m_folder.filePath(QString::number(++m_files)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    const QTemporaryDir m_folder;
    int m_files = 0;
};

} // namespace

/// Which lines of an INI file never reach QSettings, and that none of the others is harmful.
class SettingsTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsHarmlessText_data();
    void keepsHarmlessText();
    void dropsAHarmfulLine_data();
    void dropsAHarmfulLine();
    void findsTheEndOfALine_data();
    void findsTheEndOfALine();
    void dropsOverlongLines();
    void boundsTheWhole();
    void keepsNamedGroupsOnly_data();
    void keepsNamedGroupsOnly();
    void keepsWhatIsSaved();
    void leavesNothingPacked();
    void arranges_data();
    void arranges();
};

void SettingsTextTest::keepsHarmlessText_data()
{
    columns<QByteArray>({"text"});

    const auto row = [](const char *tag, const char *text) {
        QTest::newRow(tag) << QByteArray(text);
    };
    row("nothing", "");
    row("blanks only", " \n\t\r\n");
    row("no line break at the end", "[a]\nb=c");
    row("a key without a value", "a=\nb");
    row("blanks and quotes at the end", "a= \"\" ");
    row("a comment", "; a=@Variant(\nb=c\n");
    row("a comment behind a value", "a=b;c=@Variant(\nd=e\n");
    row("a comment after blanks", "  ;@Variant(\n\n;=@Variant(");
    row("a group", "[a=@Variant(]\nb=c\n");
    row("words", "a=Variant(b\nc=d@Variant(\n");
    row("an at sign as a text", "a=@@Variant(1)\nb=\"@@Variant(1,2)\"\n");
    row("points and sizes", "a=@Point(1 2)\nb=@Size(-1 -1)\n");
    row("other simple kinds", "a=@Rect(1 2 3 4)\nb=@ByteArray(c)\nd=@Invalid()\ne=@String(f)\n");
    row("blanks within quotes are a part of the text", "a=\" @Variant(\"\n");
    row("a list", "a=b, @@c, @Point(1 2), \"\", d\n");
    row("a comma within quotes", "a=\"b,@Variant(\"\n");
    row("a comma after a backslash", "a=b\\,@Variant(\n");
    row("escaped characters at the beginning", "a=\\x3a9\nb=\\n\nc=\\101\nd=\\\"\ne=\\x140z\n");
    row("escaped characters of one digit", "a=\\x0\nb=\\xa\nc=\\xf\nd=\\0\ne=\\7\n");
    // The letter does not belong to the octal escape, so there is no at sign.
    row("a letter after an octal escape", "a=\\11cVariant(\n");
    row("a key in words", "@Variant(=a\n");
    row("a second equals sign", "a=b=@Variant(\n");
    row("a second equals sign after no key", "=a=@Variant(\n");
    row("a byte order mark", "\xef\xbb\xbf[a]\nb=c\n");
}

void SettingsTextTest::keepsHarmlessText()
{
    QFETCH(QByteArray, text);

    QCOMPARE(SettingsText::harmless(text), text);
}

void SettingsTextTest::dropsAHarmfulLine_data()
{
    columns<QByteArray>({"line"});

    const auto row = [](const char *tag, const char *line) {
        QTest::newRow(tag) << QByteArray(line);
    };
    row("a packed value", "b=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)");
    row("a packed time", "b=@DateTime(\\0\\0\\0\\x10)");
    row("an unknown kind", "b=@Other(1)");
    row("an at sign alone", "b=@");
    row("blanks before", "b= \t @Variant(");
    row("within quotes", "b=\"@Variant(\"");
    row("empty quotes before", "b=\"\" @Variant(");
    row("quotes amid the kind", "b=@\"Variant(\"");
    row("a backslash amid the kind", "b=@\\x56ariant(");
    row("an escaped at sign", "b=\\x40Variant(");
    row("an escaped at sign of many digits", "b=\\x10040Variant(");
    row("an at sign escaped in capitals", "b=\\x0F0040Variant(");
    row("an at sign in base 8", "b=\\100Variant(");
    row("a backslash before a letter that means nothing", "b=\\q@Variant(");
    row("a backslash before an x without digits", "b=\\x@Variant(");
    row("a backslash before an x at the end", "b=\\x");
    row("a backslash before a digit beyond base 8", "b=\\8@Variant(");
    row("a continued line", "b=\\\n@Variant(");
    row("a line continued by two characters", "b=\\\r\n@Variant(");
    row("within a list", "b=c,@Variant(");
    row("within a list, after blanks and quotes", "b=c, \" \" , \"\"@Variant(");
    row("after a quoted comma", "b=\"c,\",@Variant(");
    row("behind a byte order mark", "b=\xef\xbb\xbf@Variant(");
    row("behind a byte order mark within quotes", "b=\"\xef\xbb\xbf@Variant(\"");
    row("no key", "=@Variant(");
    row("brackets after the beginning", "b[=@Variant(");
}

void SettingsTextTest::dropsAHarmfulLine()
{
    QFETCH(QByteArray, line);

    QCOMPARE(SettingsText::harmless("[a]\nbefore=1\n" + line + "\nafter=2\n"),
             QByteArray("[a]\nbefore=1\n\nafter=2\n"));
    QCOMPARE(SettingsText::harmless(line), QByteArray());
    QCOMPARE(SettingsText::harmless(line + ";c\n" + line + "\r\n"), QByteArray(";c\n\r\n"));
}

void SettingsTextTest::findsTheEndOfALine_data()
{
    columns<QByteArray, QByteArray>({"text", "harmless"});

    const auto row = [](const char *tag, const char *text, const char *harmless) {
        QTest::newRow(tag) << QByteArray(text) << QByteArray(harmless);
    };
    row("a line feed", "a=b\nc=@Variant(\nd=e", "a=b\n\nd=e");
    row("a carriage return", "a=b\rc=@Variant(\rd=e", "a=b\r\rd=e");
    row("a line break within quotes", "a=\"b\nc=@Variant(\"\nd=e", "a=\"b\nc=@Variant(\"\nd=e");
    row("quotes in a key", "a\"=b\nc=@Variant(\"=d\n", "a\"=b\nc=@Variant(\"=d\n");
    row("quotes after a backslash", "a=\\\"b\nc=@Variant(\n", "a=\\\"b\n\n");
    row("a backslash at the end", "a=@Variant(\\", "");
    row("nothing but a backslash at the end", "a=\\", "");
    row("quotes that are never closed", "a=@Variant(\"\nb=c\n", "");
    row("two line feeds after a backslash", "a=b\\\n\nc=@Variant(\n", "a=b\\\n\n\n");
    row("a pair of breaks after a backslash", "a=b\\\n\rc=@Variant(\n", "a=b\\\n\rc=@Variant(\n");
}

void SettingsTextTest::findsTheEndOfALine()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, harmless);

    QCOMPARE(SettingsText::harmless(text), harmless);
}

void SettingsTextTest::dropsOverlongLines()
{
    const QByteArray longest = "a=" + QByteArray(256 * 1024 - 2, 'b');
    QCOMPARE(SettingsText::harmless(longest + "\nc=d\n"), longest + "\nc=d\n");
    QCOMPARE(SettingsText::harmless(longest + "b\nc=d\n"), QByteArray("\nc=d\n"));
}

/// 32 MiB hold 128 of the longest lines. Comments and blanks do not count.
void SettingsTextTest::boundsTheWhole()
{
    const QByteArray longest = "a=" + QByteArray(256 * 1024 - 2, 'b') + ";\n";
    QCOMPARE(SettingsText::harmless(longest.repeated(128)).size(), 128 * longest.size());
    QCOMPARE(SettingsText::harmless(longest.repeated(128) + "c=d\n").size(),
             128 * longest.size() + 1);
}

void SettingsTextTest::keepsNamedGroupsOnly_data()
{
    columns<QByteArray, QByteArray>({"text", "harmless"});

    const auto row = [](const char *tag, const char *text, const char *harmless) {
        QTest::newRow(tag) << QByteArray(text) << QByteArray(harmless);
    };
    row("named ones", "[A]\na=1\n[B]\nb=2\n", "[A]\na=1\n[B]\nb=2\n");
    row("another one between", "[A]\na=1\n[C]\nc=1\n[B]\nb=2\n", "[A]\na=1\n\n\n[B]\nb=2\n");
    row("keys before the first", "a=0\n[A]\na=1\n", "\n[A]\na=1\n");
    row("one letter before the first", "a\n[A]\na=1\n", "\n[A]\na=1\n");
    row("one that comes again", "[A]\na=1\n[C]\n[A]\nd=2", "[A]\na=1\n\n[A]\nd=2");
    row("blanks about the name", "[ A\t]\na=1\n", "[ A\t]\na=1\n");
    row("words after the name", "[A] =C\na=1\n", "[A] =C\na=1\n");
    row("a bracket that is not closed", "[A\na=1\n", "\n\n");
    row("a bracket that is closed in the next line", "[A\n]a=1\n", "\n\n");
    row("a name that only begins so", "[AB]\na=1\n", "\n\n");
    row("a harmful line", "[A]\na=@Variant(\nb=2", "[A]\n\nb=2");
}

void SettingsTextTest::keepsNamedGroupsOnly()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, harmless);

    QCOMPARE(SettingsText::harmless(text, {"A", "B"}), harmless);
}

void SettingsTextTest::keepsWhatIsSaved()
{
    MainProfile profile;
    changeEverything(profile);
    const QStringList texts{QStringLiteral("@Variant(\n\r;=\"'\\"),
                            QStringLiteral(" @Variant(,a"),
                            QStringLiteral("@"),
                            QString(QChar(QChar::Null)),
                            QString(32767, QChar(0x3a9)),
                            QStringLiteral("\u03a9@Variant(")};
    for (const QString &text : texts) {
        profile.dbConverter().setP1(text);
        SettingsFile file;
        profile.saveSettings(file.settings());
        QCOMPARE(SettingsText::harmless(file.text()), file.text());
    }
}

/// QSettings itself judges random texts, made of everything that has a meaning for it.
void SettingsTextTest::leavesNothingPacked()
{
    const std::vector<QByteArray> pieces{
        "@",  "Variant(", "\\", "\n", "\r", "\"",      ",",     ";",
        "=",  "a=",       " ",  "[",  "]",  "b",       "\\x40", "\\x",
        "\t", "\\100",    "@@", "c=", "x",  "\n[d]\n", "e=\"",  "\xef\xbb\xbf",
    };
    const QByteArray packed = "@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)";
    // QSettings says so if it takes what follows the integer for a part of it.
    const ExpectedMessages unknownTypes({QStringLiteral("Trying to construct an instance of")});
    std::mt19937 random(20220531);
    Judge judge;
    int rebuilt = 0;
    for (int run = 0; run < 1000; ++run) {
        QByteArray text = run % 2 == 0 ? "" : "\xef\xbb\xbf";
        for (auto count = random() % 5; count > 0; --count)
            text += pieces.at(random() % pieces.size());
        text += "\na=";
        for (auto count = random() % 5; count > 0; --count)
            text += pieces.at(random() % pieces.size());
        text += packed;
        rebuilt += judge.findsPackedNumber(text) ? 1 : 0;
        QVERIFY2(!judge.findsPackedNumber(SettingsText::harmless(text)),
                 text.toPercentEncoding().constData());
    }
    QVERIFY(rebuilt > 100); // otherwise the judge sees too few
}

void SettingsTextTest::arranges_data()
{
    columns<QByteArray, QByteArray>({"text", "arranged"});

    const QByteArray two = "[A]\nx=1\ny=2\n\n[B]\nz=3\n";
    row("what Linux writes", two, two);
    row("line ends of Windows", QByteArray("[A]\r\nx=1\r\ny=2\r\n\r\n[B]\r\nz=3\r\n"), two);
    row("groups in another order", QByteArray("[B]\nz=3\n\n[A]\nx=1\ny=2\n"), two);
    row("keys in another order", QByteArray("[A]\ny=2\nx=1\n\n[B]\nz=3\n"), two);
    row("a key that begins as another one", QByteArray("[A]\np1=2\np=1\npDb=3\n"),
        QByteArray("[A]\np=1\np1=2\npDb=3\n"));
    row("equals signs and brackets in a value", QByteArray("[A]\nx=\"[B]=1=2\"\n"),
        QByteArray("[A]\nx=\"[B]=1=2\"\n"));
    row("nothing", QByteArray(), QByteArray());
}

void SettingsTextTest::arranges()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, arranged);

    QCOMPARE(SettingsText::arranged(text), arranged);
}

DEZIMO_TEST_MAIN(QCoreApplication, SettingsTextTest)

#include "tst_settingstext.moc"
