// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "iniformat.h"
#include "mainprofile.h"
#include "testmain.h"

#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Dezimo;

/// A calculation file has the same bytes on every system.
class CalculationBytesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSavedFileIsTheSameEverywhere();
    void aSavedFileKeepsWhatOthersWroteIntoIt();
    void readsFilesOfEitherSystem_data();
    void readsFilesOfEitherSystem();
};

namespace {

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString example()
{
    return QStringLiteral(DEZIMO_TEST_DATA "/saved-on-linux.dezimo");
}

} // namespace

/// The example was saved on Linux, with every group and with values beyond ASCII.
void CalculationBytesTest::aSavedFileIsTheSameEverywhere()
{
    MainProfile &profile = MainProfile::instance();
    QSettings settings(example(), IniFormat::ofFiles());
    profile.loadSettings(settings);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("Zwei Geräte, 10 µW.dezimo"));
    CalculationFiles::save(profile, fileName);
    QCOMPARE(bytesOf(fileName), bytesOf(example()));
}

void CalculationBytesTest::aSavedFileKeepsWhatOthersWroteIntoIt()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("a.dezimo"));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[ZNotes]\r\nof=\"a colleague, 5 \\xb5W\"\r\n");
    file.close();
    CalculationFiles::save(MainProfile::instance(), fileName);
    QVERIFY(bytesOf(fileName).endsWith("\n\n[ZNotes]\nof=\"a colleague, 5 \\xb5W\"\n"));
}

void CalculationBytesTest::readsFilesOfEitherSystem_data()
{
    QTest::addColumn<QByteArray>("lineEnd");

    QTest::newRow("saved on Linux") << QByteArray("\n");
    QTest::newRow("passed through an editor of Windows") << QByteArray("\r\n");
}

void CalculationBytesTest::readsFilesOfEitherSystem()
{
    QFETCH(QByteArray, lineEnd);

    CalculationFiles::loadDefaults(MainProfile::instance());
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("a.dezimo"));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytesOf(example()).replace('\n', lineEnd));
    file.close();
    CalculationFiles::open(MainProfile::instance(), fileName);
    QCOMPARE(MainProfile::instance().dbConverter().p1(), QStringLiteral("47µW"));
    CalculationFiles::save(MainProfile::instance(), fileName);
    const QByteArray modules = bytesOf(fileName);
    // The window group comes from this run, because opening a file does not read it.
    QCOMPARE(modules.left(modules.indexOf("[MainProfile]")),
             bytesOf(example()).left(bytesOf(example()).indexOf("[MainProfile]")));
}

DEZIMO_TEST_MAIN(QGuiApplication, CalculationBytesTest)

#include "tst_calculationbytes.moc"
