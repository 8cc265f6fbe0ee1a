// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "sectionlines.h"
#include "testmain.h"
#include "unixosinfo.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

namespace {

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// When the file at @p path was created, in seconds since 1970. 0 if that is not known.
std::time_t birthSeconds(const QString &path)
{
#ifdef STATX_BTIME
    struct statx status = {};
    if (statx(AT_FDCWD, QFile::encodeName(path).constData(), 0, STATX_BTIME, &status) == 0 &&
        (status.stx_mask & STATX_BTIME))
        return std::time_t(status.stx_btime.tv_sec);
#endif
    return 0;
}

/// The line of the system information that begins with @p key.
QString systemLine(const OSInfo &info, const char *key)
{
    const QStringList found = sectionLines(info.systemInformation())
                                  .filter(QString::fromLatin1(key) + QLatin1String(": "));
    return found.size() == 1 ? found.first() : QStringLiteral("not one line");
}

QString effectiveRights()
{
    return QLatin1String("Admin rights: ") + QLatin1String(geteuid() == 0 ? "Yes" : "No");
}

} // namespace

class UnixOSInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everythingIsThere();
    void nothingIsThere();
    void theFirstFileThatNamesTheSystemHolds();
    void birthOfTheRootFolder();
    void singleOperations();
    void readsTheSettingsAnewOnEveryCall();
    void factoryOfThisPlatform();

private:
    /// Places in the test's own folder, none of which exists yet.
    UnixPlaces places() const;
    QString path(const char *name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

UnixPlaces UnixOSInfoTest::places() const
{
    UnixPlaces places;
    places.osReleaseFiles = QStringList{path("first"), path("second")};
    places.rootFolder = path("root");
    places.machineIdFile = path("machine-id");
    places.libraryFolders = QStringList{path("lib")};
    return places;
}

QString UnixOSInfoTest::path(const char *name) const
{
    return m_folder->filePath(QString::fromLatin1(name));
}

void UnixOSInfoTest::initTestCase()
{
    // A zone two hours east of UTC, so that local time shows.
    qputenv("TZ", "XYZ-2");
}

void UnixOSInfoTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char *variable : {"LC_ALL", "LC_NUMERIC", "LANG"})
        qunsetenv(variable);
}

void UnixOSInfoTest::everythingIsThere()
{
    QVERIFY(write(path("first"), "PRETTY_NAME=\"Some System 12\"\n"));
    QFile machineId(path("machine-id"));
    QVERIFY(machineId.open(QIODevice::WriteOnly));
    // 1700000000 s are 19675 days and 22:13:20: Nov 14, 2023, in UTC.
    QVERIFY(machineId.setFileTime(QDateTime::fromSecsSinceEpoch(1700000000),
                                  QFile::FileModificationTime));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("lib")));
    QVERIFY(write(path("lib/libvisa.so.7.2"), QByteArray()));
    qputenv("LANG", "de_AT.UTF-8");

    const QStringList expected = {
        QStringLiteral("[Operating System]"),
        QStringLiteral("Product name: Some System 12"),
        QStringLiteral("Installed: Wed Nov 15 00:13:20 2023"),
        effectiveRights(),
        QStringLiteral("[Language Settings]"),
        QStringLiteral("Country: Austria"),
        QStringLiteral("Language: German"),
        QStringLiteral("Local ID: de_AT.UTF-8"),
        QStringLiteral("[DLL and EXE versions]"),
        QStringLiteral("VB runtime: ---"),
        QStringLiteral("CVI runtime: ---"),
        QStringLiteral("MSI runtime: ---"),
        QStringLiteral("Internet Explorer: ---"),
        QStringLiteral("Support Tool: 3.1.0.0"),
        QStringLiteral("Qt: 5.12.2"),
        QStringLiteral("[NI ActiveX versions]"),
        QStringLiteral("NI Analysis: ---"),
        QStringLiteral("NI UI: ---"),
        QStringLiteral("NI 3d graph: ---"),
        QStringLiteral("[VISA]"),
        QStringLiteral("Name: libvisa"),
        QStringLiteral("Version: 7.2"),
        QStringLiteral("Company: ---"),
        QStringLiteral("[Remote Control]"),
        QStringLiteral("IEEE driver: ---"),
        QStringLiteral("Remote control: ---"),
        QStringLiteral("Sensor control: ---"),
        QStringLiteral("[Kel USB Drivers]"),
        QStringLiteral("Drivers: ---"),
    };
    const UnixOSInfo info(places());
    QCOMPARE(sectionLines(info.systemInformation()), expected);
    QCOMPARE(sectionLines(info.driverInformation()), QStringList());
}

void UnixOSInfoTest::nothingIsThere()
{
    const UnixOSInfo info(places());
    const QStringList lines = sectionLines(info.systemInformation());
    QCOMPARE(lines.size(), 29);
    // 29 lines, less 7 headings, 2 fixed texts and the rights of the user.
    QCOMPARE(lines.filter(QStringLiteral(": ---")).size(), 19);
    QCOMPARE(systemLine(info, "Admin rights"), effectiveRights());
    QCOMPARE(sectionLines(info.driverInformation()), QStringList());
}

void UnixOSInfoTest::theFirstFileThatNamesTheSystemHolds()
{
    QVERIFY(write(path("first"), "ID=system\n"));
    QVERIFY(write(path("second"), "NAME=Second\n"));
    QCOMPARE(UnixOSInfo(places()).productName(), QStringLiteral("Second"));
    QVERIFY(write(path("first"), "NAME=First\n"));
    QCOMPARE(UnixOSInfo(places()).productName(), QStringLiteral("First"));
}

void UnixOSInfoTest::birthOfTheRootFolder()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("root")));
    const std::time_t birth = birthSeconds(path("root"));
    // Not every file system stores when a folder was created.
    QString expected = QStringLiteral("---");
    if (birth > 0)
        expected = QString::fromLatin1(std::ctime(&birth)).chopped(1);
    QCOMPARE(systemLine(UnixOSInfo(places()), "Installed"),
             QString(QLatin1String("Installed: ") + expected));
}

void UnixOSInfoTest::singleOperations()
{
    qputenv("LC_ALL", "fr_CH.UTF-8");
    const UnixOSInfo info(places());
    QCOMPARE(info.productName(), QStringLiteral("---"));
    QCOMPARE(info.country(), QStringLiteral("Switzerland"));
    QCOMPARE(info.language(), QStringLiteral("French"));
    QCOMPARE(info.localeId(), QStringLiteral("fr_CH.UTF-8"));
    QCOMPARE(info.sensorControlVersion(), QStringLiteral("---"));
}

void UnixOSInfoTest::readsTheSettingsAnewOnEveryCall()
{
    const UnixOSInfo info(places());
    QCOMPARE(info.country(), QStringLiteral("---"));
    qputenv("LANG", "it_IT.UTF-8");
    QCOMPARE(info.country(), QStringLiteral("Italy"));
}

void UnixOSInfoTest::factoryOfThisPlatform()
{
    const std::unique_ptr<OSInfo> info = createOsInfo();
    QVERIFY(dynamic_cast<UnixOSInfo *>(info.get()));
    QCOMPARE(sectionLines(info->systemInformation()).size(), 29);
    QCOMPARE(systemLine(*info, "Admin rights"), effectiveRights());
    QCOMPARE(sectionLines(info->driverInformation()), QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, UnixOSInfoTest)

#include "tst_unixosinfo.moc"
