// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "table.h"
#include "testmain.h"
#include "visalibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class VisaLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsByName_data();
    void findsByName();
    void findsThroughLinks();
    void theFirstFolderWithALibraryHolds();
    void missingFolders();
    void usualFolders();
    void ownArchitectureComesFirst();
};

namespace {

bool touch(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

} // namespace

void VisaLibraryTest::findsByName_data()
{
    columns<QStringList, QString, QString>({"files", "name", "version"});

    const auto row = [](const char *tag, const char *files, const char *name, const char *version) {
        QTest::newRow(tag) << QString::fromLatin1(files).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                           << QString::fromLatin1(name) << QString::fromLatin1(version);
    };
    row("a whole version", "libvisa.so.7.2.0", "libvisa", "7.2.0");
    row("a version of one number", "libvisa.so.7", "libvisa", "7");
    row("the longest of the usual names tells most", "libvisa.so libvisa.so.7 libvisa.so.7.2.0",
        "libvisa", "7.2.0");
    row("the highest version, by number", "libvisa.so.9 libvisa.so.10.1 libvisa.so.10", "libvisa",
        "10.1");
    row("no version in the name", "libvisa.so", "libvisa", "");
    row("other libraries are not it", "libvisa32.so libvisafoo.so.1 xlibvisa.so.1 libvisa.a", "",
        "");
    row("words are no version", "libvisa.so.old libvisa.so.7-bak libvisa.so. libvisa.so.7.", "",
        "");
    row("numbers beyond any version", "libvisa.so.99999999999999999999", "", "");
    row("capital letters are another name", "LIBVISA.SO.7", "", "");
    row("an empty folder", "", "", "");
}

void VisaLibraryTest::findsByName()
{
    QFETCH(QStringList, files);
    QFETCH(QString, name);
    QFETCH(QString, version);

    const QTemporaryDir folder;
    for (const QString &file : files)
        QVERIFY(touch(folder.filePath(file)));
    const VisaLibrary library = VisaLibrary::find({folder.path()});
    QCOMPARE(library.name, name);
    QCOMPARE(library.version, version);
}

void VisaLibraryTest::findsThroughLinks()
{
    const QTemporaryDir elsewhere;
    QVERIFY(touch(elsewhere.filePath(QStringLiteral("library"))));
    const QTemporaryDir folder;
    QVERIFY(QFile::link(elsewhere.filePath(QStringLiteral("library")),
                        folder.filePath(QStringLiteral("libvisa.so.5"))));
    // A broken link and a folder are not libraries.
    QVERIFY(QFile::link(elsewhere.filePath(QStringLiteral("removed")),
                        folder.filePath(QStringLiteral("libvisa.so.6"))));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("libvisa.so.7")));
    QCOMPARE(VisaLibrary::find({folder.path()}).version, QStringLiteral("5"));
}

void VisaLibraryTest::theFirstFolderWithALibraryHolds()
{
    const QTemporaryDir empty;
    const QTemporaryDir first;
    const QTemporaryDir second;
    QVERIFY(touch(first.filePath(QStringLiteral("libvisa.so.1"))));
    QVERIFY(touch(second.filePath(QStringLiteral("libvisa.so.2"))));
    QCOMPARE(VisaLibrary::find({empty.path(), first.path(), second.path()}).version,
             QStringLiteral("1"));
    QCOMPARE(VisaLibrary::find({second.path(), first.path()}).version, QStringLiteral("2"));
}

void VisaLibraryTest::missingFolders()
{
    const QTemporaryDir folder;
    QCOMPARE(VisaLibrary::find({folder.filePath(QStringLiteral("none"))}).name, QString());
    QCOMPARE(VisaLibrary::find({}).name, QString());
    // A file where a folder is expected.
    const QString file = folder.filePath(QStringLiteral("file"));
    QVERIFY(touch(file));
    QCOMPARE(VisaLibrary::find({file}).name, QString());
}

void VisaLibraryTest::usualFolders()
{
    const QStringList folders = VisaLibrary::usualFolders();
    QVERIFY(folders.contains(QStringLiteral("/usr/lib")));
    QVERIFY(folders.contains(QStringLiteral("/usr/local/lib")));
    for (const QString &folder : folders)
        QVERIFY2(QDir::isAbsolutePath(folder), qPrintable(folder));
    QCOMPARE(folders.count(QString()), 0);
}

void VisaLibraryTest::ownArchitectureComesFirst()
{
    // A system with one folder for all libraries has no folder per architecture.
    const QString architecture = QStringLiteral(DEZIMO_LIBRARY_ARCHITECTURE);
    const QString first = architecture.isEmpty() ? QStringLiteral("/usr/local/vxipnp/linux/lib64")
                                                 : QStringLiteral("/usr/lib/") + architecture;
    const QStringList folders = VisaLibrary::usualFolders();
    QCOMPARE(folders.constFirst(), first);
    QCOMPARE(folders.count(first), 1);
}

DEZIMO_TEST_MAIN(QCoreApplication, VisaLibraryTest)

#include "tst_visalibrary.moc"
