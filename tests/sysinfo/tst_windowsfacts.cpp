// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "sectionlines.h"
#include "testmain.h"
#include "win32host.h"
#include "windowsmachine.h"
#include "windowsosinfo.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

using Root = WindowsMachine::Root;

QString windowsNt()
{
    return QStringLiteral("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion");
}

/// A copy of one of the test's libraries. It is removed together with this object.
class CopiedFile
{
public:
    CopiedFile(const char *library, const QString &path) : m_path(path)
    {
        m_made = QFile::copy(WindowsMachine::library(library), path);
    }
    ~CopiedFile()
    {
        if (m_made)
            QFile::remove(m_path);
    }
    CopiedFile(const CopiedFile &) = delete;
    CopiedFile &operator=(const CopiedFile &) = delete;

    bool made() const { return m_made; }

private:
    QString m_path;
    bool m_made = false;
};

} // namespace

/**
 * The About window's facts as Windows itself gives them. Each fact is tested as present and as
 * missing. Some tests copy files into Windows' own folders and remove them again, which needs the
 * rights to do so.
 */
class WindowsFactsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void readsTheRegistry_data();
    void readsTheRegistry();
    void readsTheInstallDate();
    void readsTheVersionOfTheExplorer();
    void readsLibrariesOfTheSystemFolder_data();
    void readsLibrariesOfTheSystemFolder();
    void takesTheOlderIeeeDriverIfNeeded();
    void findsLibrariesOfDrivers_data();
    void findsLibrariesOfDrivers();
    void findsUsbDrivers();
    void aUsbDriverWithoutItsFileHasNoVersion();
    void aMachineWithoutDriversHasNoSections();

private:
    QStringList system() const { return sectionLines(m_info.systemInformation()); }
    QStringList drivers() const { return sectionLines(m_info.driverInformation()); }
    QString systemFile(const char *name) const;
    QString windowsFile(const char *name) const;

    WindowsMachine m_machine;
    WindowsOSInfo m_info{std::make_unique<Win32Host>()};
    std::unique_ptr<QTemporaryDir> m_folder;
};

void WindowsFactsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString WindowsFactsTest::systemFile(const char *name) const
{
    return Win32Host().systemFolder() + QLatin1Char('\\') + QLatin1String(name);
}

QString WindowsFactsTest::windowsFile(const char *name) const
{
    return Win32Host().windowsFolder() + QLatin1Char('\\') + QLatin1String(name);
}

void WindowsFactsTest::readsTheRegistry_data()
{
    QTest::addColumn<bool>("ofMachine");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");

    const QString international = QStringLiteral("Control Panel\\International");
    QTest::newRow("product") << true << windowsNt() << "ProductName"
                             << "Product name: ";
    QTest::newRow("country") << false << international << "sCountry"
                             << "Country: ";
    QTest::newRow("language") << false << international << "sLanguage"
                              << "Language: ";
    QTest::newRow("locale") << false << international << "Locale"
                            << "Local ID: ";
}

void WindowsFactsTest::readsTheRegistry()
{
    QFETCH(bool, ofMachine);
    QFETCH(QString, key);
    QFETCH(QString, name);
    QFETCH(QString, line);

    const Root root = ofMachine ? Root::Machine : Root::User;
    m_machine.setText(root, key, name, QStringLiteral("Österreich"));
    QVERIFY(system().contains(line + QStringLiteral("Österreich")));
    m_machine.removeValue(root, key, name);
    QVERIFY(system().contains(line + QStringLiteral("---")));
}

void WindowsFactsTest::readsTheInstallDate()
{
    const QString name = QStringLiteral("InstallDate");
    m_machine.setNumber(windowsNt(), name, 1700000000);
    // Nov 14, 2023, 22:13:20 in UTC; the day depends on the machine's time zone.
    QVERIFY(
        !system().filter(QRegularExpression(QStringLiteral("^Installed: .*:20 2023$"))).isEmpty());
    m_machine.removeValue(Root::Machine, windowsNt(), name);
    QVERIFY(system().contains(QStringLiteral("Installed: ---")));
}

void WindowsFactsTest::readsTheVersionOfTheExplorer()
{
    const QString key =
        QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\IEXPLORE.EXE");
    m_machine.setText(Root::Machine, key, QString(), WindowsMachine::library("withfields"));
    QVERIFY(system().contains(QStringLiteral("Internet Explorer: 1.2.3 beta")));
    m_machine.setText(Root::Machine, key, QString(), WindowsMachine::library("absent"));
    QVERIFY(system().contains(QStringLiteral("Internet Explorer: ---")));
    m_machine.removeValue(Root::Machine, key, QString());
    QVERIFY(system().contains(QStringLiteral("Internet Explorer: ---")));
}

void WindowsFactsTest::readsLibrariesOfTheSystemFolder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *name, const char *line, const char *value) {
        QTest::addRow("%s, %s", line, name)
            << QByteArray(name) << QString::fromLatin1(line) + QLatin1String(": ")
            << QString::fromLatin1(value);
    };
    row("msvbvm60.dll", "VB runtime", "1.2.3 beta");
    row("cvirte.dll", "CVI runtime", "1.2.3 beta");
    row("msi.dll", "MSI runtime", "1.2.3 beta");
    row("cwanalysis.ocx", "NI Analysis", "1.2.3 beta");
    row("cwui.ocx", "NI UI", "1.2.3 beta");
    row("cw3dgrph.ocx", "NI 3d graph", "1.2.3 beta");
    row("visa32.dll", "Name", "the product");
    row("visa32.dll", "Version", "1.2.3 beta");
    row("visa32.dll", "Company", "the company");
    row("GPIB-32.dll", "IEEE driver", "1.2.3 beta");
    row("sicl32.dll", "IEEE driver", "1.2.3 beta");
    row("kelremote.dll", "Remote control", "1.2.3 beta");
    row("kelsensor.dll", "Sensor control", "1.2.3 beta");
}

void WindowsFactsTest::readsLibrariesOfTheSystemFolder()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, line);
    QFETCH(QString, value);

    const QString path = systemFile(name.constData());
    if (QFile::exists(path))
        QSKIP("this library belongs to the system that runs the test");
    {
        const CopiedFile library("withfields", path);
        if (!library.made())
            QSKIP("no right to write into the system folder");
        QVERIFY(system().contains(line + value));
    }
    QVERIFY(system().contains(line + QStringLiteral("---")));
}

void WindowsFactsTest::takesTheOlderIeeeDriverIfNeeded()
{
    const CopiedFile older("withfields", systemFile("sicl32.dll"));
    if (!older.made())
        QSKIP("no right to write into the system folder");
    {
        // The file is there but has no version.
        const CopiedFile newer("withoutfields", systemFile("GPIB-32.dll"));
        QVERIFY(newer.made());
        QVERIFY(system().contains(QStringLiteral("IEEE driver: 1.2.3 beta")));
    }
    QVERIFY(system().contains(QStringLiteral("IEEE driver: 1.2.3 beta")));
}

void WindowsFactsTest::findsLibrariesOfDrivers_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("notFound");

    const QString vxi = QStringLiteral("SOFTWARE\\VXIPNP_Alliance\\VXIPNP\\CurrentVersion");
    const QString ivi = QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion");
    QTest::newRow("VXI PnP") << vxi << "FRAMEWORK_PATH"
                             << "bin"
                             << "[Installed Vantrel VXI PnP drivers]"
                             << ": No VXI driver found";
    QTest::newRow("VXI PnP by its other name") << vxi << "FrameworkPath"
                                               << "bin"
                                               << "[Installed Vantrel VXI PnP drivers]"
                                               << ": No VXI driver found";
    QTest::newRow("IVI") << ivi << "ProgramFilesDir"
                         << "IVI/Bin"
                         << "[Installed Vantrel IVI drivers]"
                         << ": No IVI driver found";
}

void WindowsFactsTest::findsLibrariesOfDrivers()
{
    QFETCH(QString, key);
    QFETCH(QString, name);
    QFETCH(QString, below);
    QFETCH(QString, section);
    QFETCH(QString, notFound);

    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Treiber für µW/") + below));
    const QDir root(m_folder->filePath(QStringLiteral("Treiber für µW")));
    m_machine.setText(Root::Machine, key, name, QDir::toNativeSeparators(root.path()));
    QCOMPARE(drivers(), QStringList());
    {
        const QString folder = root.filePath(below) + QLatin1Char('/');
        const CopiedFile first("withfields", folder + QStringLiteral("kelgen.dll"));
        const CopiedFile second("withoutfields", folder + QStringLiteral("kelmeter 2.dll"));
        const CopiedFile other("withfields", folder + QStringLiteral("other.dll"));
        const QStringList lines = drivers();
        QCOMPARE(lines.mid(lines.indexOf(section) + 1, 2),
                 QStringList({QStringLiteral(": kelgen.dll (Version 1.2.3 beta)"),
                              QStringLiteral(": kelmeter 2.dll (Version ---)")}));
        QCOMPARE(lines.filter(notFound), QStringList());
        QCOMPARE(lines.filter(QStringLiteral("driver found")).size(), 2);
    }
    m_machine.removeValue(Root::Machine, key, name);
    QCOMPARE(drivers(), QStringList());
}

void WindowsFactsTest::findsUsbDrivers()
{
    {
        const CopiedFile setUp("withoutfields", windowsFile("INF\\keltest.inf"));
        const CopiedFile driver("withfields", windowsFile("SYSTEM32\\Drivers\\keltest.SYS"));
        if (!setUp.made() || !driver.made())
            QSKIP("no right to write into the folders of drivers");
        QCOMPARE(system().last(), QStringLiteral("Drivers: keltest.SYS (Version 1.2.3 beta)"));
        QCOMPARE(drivers().last(), QStringLiteral(": keltest.SYS (Version 1.2.3 beta)"));
    }
    QCOMPARE(system().last(), QStringLiteral("Drivers: No USB driver found"));
}

void WindowsFactsTest::aUsbDriverWithoutItsFileHasNoVersion()
{
    {
        const CopiedFile setUp("withoutfields", windowsFile("INF\\keltest.inf"));
        if (!setUp.made())
            QSKIP("no right to write into the folders of drivers");
        QCOMPARE(system().last(), QStringLiteral("Drivers: keltest.SYS (Version ---)"));
    }
    // If no set-up file names a driver file, it is not the maker's.
    const CopiedFile driver("withfields", windowsFile("SYSTEM32\\Drivers\\keltest.SYS"));
    QVERIFY(driver.made());
    QCOMPARE(system().last(), QStringLiteral("Drivers: No USB driver found"));
}

void WindowsFactsTest::aMachineWithoutDriversHasNoSections()
{
    QCOMPARE(drivers(), QStringList());
}

DEZIMO_TEST_MAIN(QCoreApplication, WindowsFactsTest)

#include "tst_windowsfacts.moc"
