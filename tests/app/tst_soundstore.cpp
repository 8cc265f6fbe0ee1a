// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "soundstore.h"
#include "testmain.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

#include <sys/stat.h>

namespace {

constexpr int kMebibyte = 1024 * 1024;

/// @p value of the key p1 of the dB converter, and sound neighbors before and after it.
QByteArray amongNeighbors(const QByteArray &value)
{
    return "[DbConverterProfile]\np2=7W\np1=" + value + "\npDb=3.00\ncurrentMode=1\n";
}

QByteArray escapedInteger(quint32 value)
{
    QByteArray bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes += "\\x" + QByteArray::number((value >> unsigned(shift)) & 0xffU, 16);
    return bytes;
}

/// A list that holds a list that holds a list and so on; each level is the type's number and
/// the count of elements.
QByteArray deeplyNestedLists()
{
    const QByteArray level = escapedInteger(QMetaType::QVariantList) + escapedInteger(1);
    return "@Variant(" + level.repeated(200000) + ")";
}

/// Several types say of themselves that they have four thousand million elements.
QByteArray hugeCount(int type)
{
    return "@Variant(" + escapedInteger(quint32(type)) + escapedInteger(0xfffffffeU) + ")";
}

QByteArray manyGroups()
{
    QByteArray text;
    for (int group = 0; group < 30000; ++group)
        text.append("[g").append(QByteArray::number(group)).append("]\np1=5W\n");
    return text + amongNeighbors("5W");
}

void write(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(fileName));
}

QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Files that nobody in his senses made, as calculation files and as the application settings.
class SoundStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aBadValueLeavesItsNeighbors_data();
    void aBadValueLeavesItsNeighbors();
    void bytesWithoutKeysGiveTheDefaults_data();
    void bytesWithoutKeysGiveTheDefaults();
    void theSettingsAreReadAsCarefully_data();
    void theSettingsAreReadAsCarefully();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();
    void aPipeIsNotOpened();
    void theDamagedSettingsAreKeptBeside();
    void savingOverADamagedFileKeepsItBeside();
    void aDamagedFileThatCannotBeKeptIsLeftAlone();
    void saveKeepsForeignKeys();
    void hugeFilesAreLeftAlone();

private:
    static QString settingsFile() { return QSettings().fileName(); }
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    void restart();
    QString fieldText(const char *name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void SoundStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(QFileInfo(settingsFile()).path()).removeRecursively();
    MainProfile::instance().setWindowPosition({});
    restart();
    MainProfile::instance().dbConverter().setP1(QStringLiteral("1W"));
}

void SoundStoreTest::cleanup()
{
    m_window.reset();
}

/// A new window reads what is stored now.
void SoundStoreTest::restart()
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
}

QString SoundStoreTest::fieldText(const char *name) const
{
    return m_window->findChild<QLineEdit *>(QLatin1String(name))->text();
}

void SoundStoreTest::aBadValueLeavesItsNeighbors_data()
{
    QTest::addColumn<QByteArray>("value");

    QTest::newRow("lists within lists, two hundred thousand deep") << deeplyNestedLists();
    QTest::newRow("a list of a huge count") << hugeCount(QMetaType::QVariantList);
    QTest::newRow("a list of texts of a huge count") << hugeCount(QMetaType::QStringList);
    QTest::newRow("a map of a huge count") << hugeCount(QMetaType::QVariantMap);
    QTest::newRow("bytes of a huge count") << hugeCount(QMetaType::QByteArray);
    QTest::newRow("a text of a huge count") << hugeCount(QMetaType::QString);
    QTest::newRow("bits of a huge count") << hugeCount(QMetaType::QBitArray);
    QTest::newRow("an image") << hugeCount(QMetaType::QImage);
    QTest::newRow("an unknown type") << hugeCount(0x7fff);
    QTest::newRow("a time") << QByteArray("@DateTime(\\0\\0\\0\\x10\\xff\\xff\\xff\\xff)");
    QTest::newRow("bytes") << QByteArray("@ByteArray(5W)");
    QTest::newRow("a list") << QByteArray("5W, 6W");
    QTest::newRow("a list of a million commas") << QByteArray(1000000, ',');
    QTest::newRow("a text of 1 MiB") << QByteArray(kMebibyte, '5');
    QTest::newRow("a text of 100 MiB") << QByteArray(100 * kMebibyte, '5');
}

void SoundStoreTest::aBadValueLeavesItsNeighbors()
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

void SoundStoreTest::bytesWithoutKeysGiveTheDefaults_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("100 MiB of zeros") << QByteArray(100 * kMebibyte, '\0');
    QTest::newRow("quotes that are never closed") << QByteArray("\"") + amongNeighbors("5W");
    QTest::newRow("brackets that are never closed") << QByteArray(kMebibyte, '[');
    QTest::newRow("backslashes") << QByteArray(kMebibyte, '\\');
    QTest::newRow("equals signs") << QByteArray(kMebibyte, '=');
}

void SoundStoreTest::bytesWithoutKeysGiveTheDefaults()
{
    QFETCH(QByteArray, text);

    const QString name = path("a.dezimo");
    write(name, text);
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("p2LineEdit"), QString());
}

void SoundStoreTest::theSettingsAreReadAsCarefully_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("p1");
    QTest::addColumn<QString>("p2");

    const QString none;
    QTest::newRow("lists within lists") << amongNeighbors(deeplyNestedLists()) << none << "7W";
    QTest::newRow("a huge count") << amongNeighbors(hugeCount(QMetaType::QVariantList)) << none
                                  << "7W";
    QTest::newRow("100 MiB of one key")
        << amongNeighbors(QByteArray(100 * kMebibyte, '5')) << none << "7W";
    QTest::newRow("100 MiB of zeros") << QByteArray(100 * kMebibyte, '\0') << none << none;
    QTest::newRow("thirty thousand groups") << manyGroups() << "5W"
                                            << "7W";
    QTest::newRow("noise") << QByteArray("\0\1\2\377\376[[[==\n\r\\x", 15) << none << none;
    QTest::newRow("a window of impossible kinds")
        << QByteArray("[MainProfile]\nwindowPosition=@Size(1 2)\nwindowSize=@Variant(\n"
                      "windowMode=9999999999\ncurrentModule=@Rect(1 2 3 4)\ndecimalPlaces=nan\n") +
               amongNeighbors("5W")
        << "5W"
        << "7W";
}

void SoundStoreTest::theSettingsAreReadAsCarefully()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, p1);
    QFETCH(QString, p2);

    m_window.reset();
    write(settingsFile(), text);
    m_window = std::make_unique<MainWindow>();
    QCOMPARE(fieldText("p1LineEdit"), p1);
    QCOMPARE(fieldText("p2LineEdit"), p2);
    QCOMPARE(MainProfile::instance().windowMode(), 0);
    QCOMPARE(MainProfile::instance().currentModule(), 0);
    QCOMPARE(MainProfile::instance().decimalPlaces(), 3);

    MainProfile::instance().dbConverter().setP1(QStringLiteral("2W"));
    restart();
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("2W"));
    QCOMPARE(fieldText("p2LineEdit"), p2);
}

void SoundStoreTest::whatIsNoFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a device that never ends") << QStringLiteral("/dev/zero");
    QTest::newRow("a device that is always full") << QStringLiteral("/dev/full");
    QTest::newRow("a folder") << QStringLiteral("/");
}

void SoundStoreTest::whatIsNoFileIsLeftAlone()
{
    QFETCH(QString, name);

    CalculationFiles::save(MainProfile::instance(), name);
    QVERIFY(!QFileInfo(name).isFile());
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("1W"));
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
}

/// Opening one would wait for somebody to write into it.
void SoundStoreTest::aPipeIsNotOpened()
{
    const QString name = path("pipe.dezimo");
    QCOMPARE(mkfifo(qPrintable(name), S_IRUSR | S_IWUSR), 0);
    CalculationFiles::save(MainProfile::instance(), name);
    CalculationFiles::open(MainProfile::instance(), name);
    QCOMPARE(fieldText("p1LineEdit"), QString());
}

void SoundStoreTest::theDamagedSettingsAreKeptBeside()
{
    m_window.reset();
    const QByteArray damaged = amongNeighbors("@Variant(\\0)") + "[Other]\nkey=1\n";
    write(settingsFile(), damaged);
    m_window = std::make_unique<MainWindow>();
    QCOMPARE(read(settingsFile()), damaged);
    QVERIFY(!QFileInfo::exists(settingsFile() + QStringLiteral(".damaged")));
    m_window.reset();
    QCOMPARE(read(settingsFile() + QStringLiteral(".damaged")), damaged);
    const QSettings settings;
    QCOMPARE(settings.value(QStringLiteral("DbConverterProfile/p1")).toString(), QString());
    QCOMPARE(settings.value(QStringLiteral("DbConverterProfile/p2")).toString(),
             QStringLiteral("7W"));
    QCOMPARE(settings.value(QStringLiteral("Other/key")).toString(), QStringLiteral("1"));
}

void SoundStoreTest::savingOverADamagedFileKeepsItBeside()
{
    const QString name = path("a.dezimo");
    const QByteArray damaged = amongNeighbors(deeplyNestedLists());
    write(name, damaged);
    CalculationFiles::save(MainProfile::instance(), name);
    QCOMPARE(read(path("a.dezimo.damaged")), damaged);
    const QSettings file(name, QSettings::IniFormat);
    QCOMPARE(file.value(QStringLiteral("DbConverterProfile/p1")).toString(), QStringLiteral("1W"));
}

void SoundStoreTest::aDamagedFileThatCannotBeKeptIsLeftAlone()
{
    const QString name = path("a.dezimo");
    const QByteArray damaged = amongNeighbors(deeplyNestedLists());
    write(name, damaged);
    QVERIFY(QDir().mkpath(path("a.dezimo.damaged/folder")));
    CalculationFiles::save(MainProfile::instance(), name);
    QCOMPARE(read(name), damaged);
}

void SoundStoreTest::saveKeepsForeignKeys()
{
    const QString name = path("a.dezimo");
    write(name, "[Other]\nlist=1, 2\nbytes=@ByteArray(a)\n");
    CalculationFiles::save(MainProfile::instance(), name);
    QVERIFY(!QFileInfo::exists(path("a.dezimo.damaged")));
    QVERIFY(read(name).contains("[Other]\nbytes=@ByteArray(a)\nlist=1, 2\n"));
    QVERIFY(read(name).contains("\np1=1W\n"));
}

/// A sparse file takes no room on the disk, yet would take the memory.
void SoundStoreTest::hugeFilesAreLeftAlone()
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
    return runTestMain<KelApplication, SoundStoreTest>(argc, argv, true);
}

#include "tst_soundstore.moc"
