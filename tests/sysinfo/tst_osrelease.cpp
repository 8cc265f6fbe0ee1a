// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "osrelease.h"
#include "testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kMillion = 1000000;

} // namespace

class OsReleaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void valueOfAMillionLines();
    void valueOfAMillionLetters();
    void nameInACompleteFile();
    void names_data();
    void names();
    void nothingToRead();
    void nameAtTheEndOfWhatIsRead();
    void nameBehindWhatIsRead();

private:
    QString written(const QByteArray &content);

    QTemporaryDir m_folder;
};

QString OsReleaseTest::written(const QByteArray &content)
{
    QFile file(m_folder.filePath(QStringLiteral("os-release")));
    const bool complete = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return complete ? file.fileName() : QString();
}

void OsReleaseTest::values_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const QByteArray &text, const char *expected) {
        QTest::newRow(tag) << text << QString::fromUtf8(expected);
    };
    row("a plain value", "NAME=System\n", "System");
    row("a value in double quotes", "NAME=\"Some System\"\n", "Some System");
    row("a value in single quotes", "NAME='Some System'\n", "Some System");
    row("a last line without its end", "NAME=System", "System");
    row("lines with carriage returns", "ID=x\r\nNAME=System\r\n", "System");
    row("blanks around the line", "  NAME=System  \n", "System");
    row("an empty line at the beginning", "\nID=x\nNAME=System\n", "System");
    row("a value in UTF-8", "NAME=\"Système µ\"\n", "Système µ");
    row("escaped quotes within double quotes", "NAME=\"A \\\"B\\\"\"\n", "A \"B\"");
    row("escaped dollar, backquote and backslash", "NAME=\"\\$\\`\\\\\"\n", "$`\\");
    row("another backslash is a letter", "NAME=\"A\\B\"\n", "A\\B");
    row("a backslash within single quotes is a letter", "NAME='A\\\"B'\n", "A\\\"B");
    row("the last of several lines holds", "NAME=First\nNAME=Second\n", "Second");
    row("a malformed line does not replace a good one", "NAME=First\nNAME=\"Second\n", "First");
    row("an equals sign in the value", "NAME=A=B\n", "A=B");
    row("an empty text", "", "");
    row("only line ends", "\n\n\n", "");
    row("an empty value", "NAME=\n", "");
    row("an empty value in quotes", "NAME=\"\"\n", "");
    row("a comment", "#NAME=System\n", "");
    row("a longer key", "PRETTY_NAME=System\nNAMES=System\n", "");
    row("a key without a value", "NAME\n", "");
    row("a blank before the equals sign", "NAME =System\n", "");
    row("double quotes that do not close", "NAME=\"System\n", "");
    row("single quotes that do not close", "NAME='System\n", "");
    row("a lone quote", "NAME=\"\n", "");
    row("quotes that close too early", "NAME=\"Some\" System\n", "");
    row("single quotes that close too early", "NAME='Some' System\n", "");
    row("a closing quote that is escaped", "NAME=\"System\\\"\n", "");
    row("a backslash at the end", "NAME=\"System\\\n", "");
    row("a control character in the value", "NAME=Sys\x01tem\n", "");
    row("a zero byte in the value", QByteArray("NAME=Sys\0tem\n", 13), "");
    row("an escaped zero byte", QByteArray("NAME=\"\\\0\"\n", 10), "");
    row("a value that is not UTF-8", "NAME=Sys\xfftem\n", "");
}

void OsReleaseTest::values()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);

    QCOMPARE(OsRelease::value(text, QByteArrayLiteral("NAME")), expected);
}

void OsReleaseTest::valueOfAMillionLines()
{
    const QByteArray text = QByteArray("NAME=\"x\"\n").repeated(kMillion) + "NAME=Last\n";
    QCOMPARE(OsRelease::value(text, QByteArrayLiteral("NAME")), QStringLiteral("Last"));
}

void OsReleaseTest::valueOfAMillionLetters()
{
    const QByteArray text = "NAME=\"" + QByteArray("\\\"").repeated(kMillion) + "\"";
    QCOMPARE(OsRelease::value(text, QByteArrayLiteral("NAME")),
             QString(kMillion, QLatin1Char('"')));
}

void OsReleaseTest::nameInACompleteFile()
{
    QCOMPARE(OsRelease::systemName(QStringLiteral(DEZIMO_TEST_FIXTURES "/os-release")),
             QStringLiteral("Some System 12 (sample)"));
}

void OsReleaseTest::names_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const QByteArray &content, const char *expected) {
        QTest::newRow(tag) << content << QString::fromUtf8(expected);
    };
    row("the name with its version goes first", "NAME=System\nPRETTY_NAME=\"System 12\"\n",
        "System 12");
    row("the plain name does without it", "NAME=System\nID=system\n", "System");
    row("a malformed name with version is passed over", "NAME=System\nPRETTY_NAME=\"System 12\n",
        "System");
    row("an empty file", "", "");
    row("a file without a name", "ID=system\n", "");
    row("a binary file", QByteArray("\x7f\x45LF\x02\x01\0\xff\xfe\n\0=", 12), "");
    row("a name among binary lines", QByteArray("\0\xff\n\x80=\0\nNAME=System\n\0\0", 21),
        "System");
    row("a file of zeros", QByteArray(kMillion, '\0'), "");
    row("one line of a million letters", QByteArray("NAME=") + QByteArray(kMillion, 'x'), "");
    row("a million empty lines", QByteArray(kMillion, '\n'), "");
    row("a name before a million lines",
        QByteArray("NAME=System\n") + QByteArray("ID=x\n").repeated(kMillion), "System");
}

void OsReleaseTest::names()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);

    QCOMPARE(OsRelease::systemName(written(content)), expected);
}

void OsReleaseTest::nothingToRead()
{
    QCOMPARE(OsRelease::systemName(m_folder.filePath(QStringLiteral("none"))), QString());
    QCOMPARE(OsRelease::systemName(m_folder.path()), QString());
    QCOMPARE(OsRelease::systemName(QString()), QString());
    QCOMPARE(OsRelease::systemName(QStringLiteral("/dev/zero")), QString());
}

void OsReleaseTest::nameAtTheEndOfWhatIsRead()
{
    // The line ends with the last byte that is read.
    const QByteArray line = "NAME=System\n";
    const QByteArray filling(65536 - line.size(), '\n');
    QCOMPARE(OsRelease::systemName(written(filling + line + "ID=x\n")), QStringLiteral("System"));
}

void OsReleaseTest::nameBehindWhatIsRead()
{
    // Reading stops just before the end of this line. The name may be incomplete, so it is ignored.
    const QByteArray line = "NAME=System\n";
    const QByteArray filling(65536 - line.size() + 1, '\n');
    QCOMPARE(OsRelease::systemName(written(filling + line)), QString());
}

DEZIMO_TEST_MAIN(QCoreApplication, OsReleaseTest)

#include "tst_osrelease.moc"
