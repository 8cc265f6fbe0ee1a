// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "stylesheets.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

class StyleSheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void joinsTheFilesInTheOrderOfTheirNamesIgnoringCase();
    void choosesByTheSuffix_data();
    void choosesByTheSuffix();
    void readsLatin1UpToTheFirstZeroByte();
    void skipsWhatCannotBeOpened();
    void aMissingFolderGivesNothing();

private:
    void write(const char *name, const QByteArray &bytes);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void StyleSheetsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void StyleSheetsTest::write(const char *name, const QByteArray &bytes)
{
    QFile file(m_folder->filePath(QString::fromLatin1(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void StyleSheetsTest::joinsTheFilesInTheOrderOfTheirNamesIgnoringCase()
{
    write("b.qss", "B");
    write("A.qss", "A");
    write("c.qss", "C");
    write("a.txt", "not a style sheet");
    QCOMPARE(StyleSheets::combined(m_folder->path(), Bright), QStringLiteral("ABC"));
}

void StyleSheetsTest::choosesByTheSuffix_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("inBright");
    QTest::addColumn<bool>("inDark");

    const auto row = [](const char *tag, const char *name, bool inBright, bool inDark) {
        QTest::newRow(tag) << QByteArray(name) << inBright << inDark;
    };
    row("no suffix: both themes", "global.qss", true, true);
    row("_bright: the bright theme only", "global_bright.qss", true, false);
    row("_dark: the dark theme only", "global_dark.qss", false, true);
    row("the suffix counts with its case: _Dark is none", "global_Dark.qss", true, true);
    row("the suffix stands at the end only", "global_dark_more.qss", true, true);
    row("a name without the underscore is no theme's", "dark.qss", true, true);
}

void StyleSheetsTest::choosesByTheSuffix()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, inBright);
    QFETCH(bool, inDark);

    write(name.constData(), "x");
    QCOMPARE(!StyleSheets::combined(m_folder->path(), Bright).isEmpty(), inBright);
    QCOMPARE(!StyleSheets::combined(m_folder->path(), Dark).isEmpty(), inDark);
}

void StyleSheetsTest::readsLatin1UpToTheFirstZeroByte()
{
    write("a.qss", QByteArray("\xB5\0after", 7));
    write("b.qss", "B");
    QCOMPARE(StyleSheets::combined(m_folder->path(), Bright), QStringLiteral(u"\u00B5B"));
}

void StyleSheetsTest::skipsWhatCannotBeOpened()
{
    write("a.qss", "A");
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("b.qss")));
    write("c.qss", "C");
    QCOMPARE(StyleSheets::combined(m_folder->path(), Bright), QStringLiteral("AC"));
    QVERIFY(!StyleSheets::read(m_folder->filePath(QStringLiteral("b.qss"))));
    QVERIFY(!StyleSheets::read(m_folder->filePath(QStringLiteral("missing.qss"))));
}

void StyleSheetsTest::aMissingFolderGivesNothing()
{
    QCOMPARE(StyleSheets::combined(m_folder->filePath(QStringLiteral("none")), Bright), QString());
}

DEZIMO_TEST_MAIN(QCoreApplication, StyleSheetsTest)

#include "tst_stylesheets.moc"
