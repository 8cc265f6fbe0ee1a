// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "damagedstorecase.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "table.h"
#include "testmain.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

using namespace Dezimo;

using namespace DamagedStore;

/// Opens harmful files as calculation files.
class DamagedFilesTest : public DamagedStoreCase
{
    Q_OBJECT

private Q_SLOTS:
    void aBadValueLeavesItsNeighbors_data();
    void aBadValueLeavesItsNeighbors();
    void bytesWithoutKeysGiveTheDefaults_data();
    void bytesWithoutKeysGiveTheDefaults();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();
    void aPipeIsNotOpened();
    void theCommandLineLeavesAloneWhatCannotBeRead_data();
    void theCommandLineLeavesAloneWhatCannotBeRead();
    void savingOverADamagedFileKeepsItBeside();
    void aDamagedFileThatCannotBeKeptIsLeftAlone();
    void saveKeepsForeignKeys();
    void hugeFilesAreLeftAlone();
};

void DamagedFilesTest::aBadValueLeavesItsNeighbors_data()
{
    columns<QByteArray>({"value"});
    row("lists within lists, two hundred thousand deep", deeplyNestedLists());
    row("a list of a huge count", hugeCount(QMetaType::QVariantList));
    row("a list of texts of a huge count", hugeCount(QMetaType::QStringList));
    row("a map of a huge count", hugeCount(QMetaType::QVariantMap));
    row("bytes of a huge count", hugeCount(QMetaType::QByteArray));
    row("a text of a huge count", hugeCount(QMetaType::QString));
    row("bits of a huge count", hugeCount(QMetaType::QBitArray));
    row("an image", hugeCount(QMetaType::QImage));
    row("an unknown type", hugeCount(0x7fff));
    row("a time", QByteArray("@DateTime(\\0\\0\\0\\x10\\xff\\xff\\xff\\xff)"));
    row("bytes", QByteArray("@ByteArray(5W)"));
    row("a list", QByteArray("5W, 6W"));
    row("a list of a million commas", QByteArray(1000000, ','));
    row("a text of 1 MiB", QByteArray(kMebibyte, '5'));
    row("a text of 100 MiB", QByteArray(100 * kMebibyte, '5'));
}

void DamagedFilesTest::aBadValueLeavesItsNeighbors()
{
    QFETCH(QByteArray, value);

    const QString name = path("a.dezimo");
    write(name, amongNeighbors(value));
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("p2LineEdit"), QStringLiteral("7W"));
    QCOMPARE(fieldText("pDbLineEdit"), QStringLiteral("3.00"));
    QCOMPARE(MainProfile::instance().dbConverter().currentMode(), 1);
}

void DamagedFilesTest::bytesWithoutKeysGiveTheDefaults_data()
{
    columns<QByteArray>({"text"});
    row("100 MiB of zeros", QByteArray(100 * kMebibyte, '\0'));
    row("quotes that are never closed", QByteArray("\"") + amongNeighbors("5W"));
    row("brackets that are never closed", QByteArray(kMebibyte, '['));
    row("backslashes", QByteArray(kMebibyte, '\\'));
    row("equals signs", QByteArray(kMebibyte, '='));
}

void DamagedFilesTest::bytesWithoutKeysGiveTheDefaults()
{
    QFETCH(QByteArray, text);

    const QString name = path("a.dezimo");
    write(name, text);
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("p2LineEdit"), QString());
}

void DamagedFilesTest::whatIsNoFileIsLeftAlone_data()
{
    columns<QString>({"name"});
    row("a device that never ends", "/dev/zero");
    row("a device that is always full", "/dev/full");
    row("a folder", "/");
}

void DamagedFilesTest::whatIsNoFileIsLeftAlone()
{
    QFETCH(QString, name);

    CalculationFiles::save(MainProfile::instance(), name);
    QVERIFY(!QFileInfo(name).isFile());
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("1W"));
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
}

/// Opening a pipe would wait until somebody writes into it.
void DamagedFilesTest::aPipeIsNotOpened()
{
    const QString name = path("pipe.dezimo");
    QVERIFY(makePipe(name));
    CalculationFiles::save(MainProfile::instance(), name);
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
}

void DamagedFilesTest::theCommandLineLeavesAloneWhatCannotBeRead_data()
{
    columns<QString, QString>({"name", "reason"});

    const QString notRegular = QStringLiteral("It is not a regular file");
    row("a device that never ends", "/dev/zero", notRegular);
    row("a pipe", "pipe.dezimo", notRegular);
    row("5 GiB", "huge.dezimo", "It is larger than 256 MiB");
    row("a folder", "/", "It is a folder");
    row("a link to nothing", "link.dezimo", QString());
}

void DamagedFilesTest::theCommandLineLeavesAloneWhatCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);

    QVERIFY(makePipe(path("pipe.dezimo")));
    QVERIFY(makeHuge(path("huge.dezimo")));
    QVERIFY(QFile::link(QStringLiteral("nothing"), path("link.dezimo")));
    const QString file = QDir(QFileInfo(path("pipe.dezimo")).path()).filePath(name);
    const QString said = CalculationFiles::openFromCommandLine(MainProfile::instance(),
                                                               {QStringLiteral("dezimo"), file});
    QVERIFY2(said.startsWith(QStringLiteral("dezimo: cannot open %1: %2").arg(file, reason)),
             qPrintable(said));
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("1W"));
}

void DamagedFilesTest::savingOverADamagedFileKeepsItBeside()
{
    const QString name = path("a.dezimo");
    const QByteArray damaged = amongNeighbors(deeplyNestedLists());
    write(name, damaged);
    CalculationFiles::save(MainProfile::instance(), name);
    QCOMPARE(read(path("a.dezimo.damaged")), damaged);
    const QSettings file(name, QSettings::IniFormat);
    QCOMPARE(file.value(QStringLiteral("DbConverterProfile/p1")).toString(), QStringLiteral("1W"));
}

void DamagedFilesTest::aDamagedFileThatCannotBeKeptIsLeftAlone()
{
    const QString name = path("a.dezimo");
    const QByteArray damaged = amongNeighbors(deeplyNestedLists());
    write(name, damaged);
    QVERIFY(QDir().mkpath(path("a.dezimo.damaged/folder")));
    CalculationFiles::save(MainProfile::instance(), name);
    QCOMPARE(read(name), damaged);
}

void DamagedFilesTest::saveKeepsForeignKeys()
{
    const QString name = path("a.dezimo");
    write(name, "[Other]\nlist=1, 2\nbytes=@ByteArray(a)\n");
    CalculationFiles::save(MainProfile::instance(), name);
    QVERIFY(!QFileInfo::exists(path("a.dezimo.damaged")));
    QVERIFY(read(name).contains("[Other]\nbytes=@ByteArray(a)\nlist=1, 2\n"));
    QVERIFY(read(name).contains("\np1=1W\n"));
}

/// A sparse file takes no room on the disk, but reading it would take all memory.
void DamagedFilesTest::hugeFilesAreLeftAlone()
{
    const QString name = path("a.dezimo");
    const qint64 size = qint64(5) * 1024 * kMebibyte;
    write(name, amongNeighbors("5W"));
    QVERIFY(QFile::resize(name, size));
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
    CalculationFiles::save(MainProfile::instance(), name);
    QCOMPARE(QFileInfo(name).size(), size);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, DamagedFilesTest>(argc, argv, true);
}

#include "tst_damagedfiles.moc"
