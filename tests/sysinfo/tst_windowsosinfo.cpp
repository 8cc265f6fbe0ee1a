// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "daytext.h"
#include "fakehost.h"
#include "sectionlines.h"
#include "table.h"
#include "testmain.h"
#include "windowsosinfo.h"

#include <QTest>

namespace {

constexpr char kWindowsNt[] = "HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
constexpr char kWindows[] = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
constexpr char kInternational[] = "HKCU\\Control Panel\\International\\";
constexpr char kVxiPnp[] = "HKLM\\SOFTWARE\\VXIPNP_Alliance\\VXIPNP\\CurrentVersion\\";
constexpr char kIexplore[] =
    "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\IEXPLORE.EXE\\";

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString joined(const char *key, const char *value)
{
    return text(key) + QLatin1String(value);
}

Machine wholeMachine()
{
    Machine machine;
    machine.texts = {
        {joined(kWindowsNt, "ProductName"), text("Windows 10 Pro")},
        {joined(kInternational, "sCountry"), text("Austria")},
        {joined(kInternational, "sLanguage"), text("DEA")},
        {joined(kInternational, "Locale"), text("00000C07")},
        {text(kIexplore), text("C:\\Program Files\\Explorer\\IEXPLORE.EXE")},
        {joined(kVxiPnp, "FRAMEWORK_PATH"), text("C:\\VXIPNP\\WinNT")},
        {joined(kWindows, "ProgramFilesDir"), text("C:\\Program Files")},
    };
    machine.numbers = {{joined(kWindowsNt, "InstallDate"), 1700000000}};
    machine.fileVersions = {
        {text("C:\\Windows\\system32\\msvbvm60.dll"), text("1.0")},
        {text("C:\\Windows\\system32\\cvirte.dll"), text("2.0")},
        {text("C:\\Windows\\system32\\msi.dll"), text("3.0")},
        {text("C:\\Program Files\\Explorer\\IEXPLORE.EXE"), text("4.0")},
        {text("C:\\Windows\\system32\\cwanalysis.ocx"), text("5.0")},
        {text("C:\\Windows\\system32\\cwui.ocx"), text("6.0")},
        {text("C:\\Windows\\system32\\cw3dgrph.ocx"), text("7.0")},
        {text("C:\\Windows\\system32\\visa32.dll"), text("8.0")},
        {text("C:\\Windows\\system32\\GPIB-32.dll"), text("9.0")},
        {text("C:\\Windows\\system32\\sicl32.dll"), text("9.5")},
        {text("C:\\Windows\\system32\\kelremote.dll"), text("10.0")},
        {text("C:\\Windows\\system32\\kelsensor.dll"), text("11.0")},
        {text("C:\\VXIPNP\\WinNT\\bin\\kelvxi.dll"), text("12.0")},
        {text("C:\\Program Files\\IVI\\Bin\\kelivi.dll"), text("13.0")},
        {text("C:\\Windows\\SYSTEM32\\Drivers\\kelusb.SYS"), text("14.0")},
    };
    machine.productNames = {{text("C:\\Windows\\system32\\visa32.dll"), text("A VISA")}};
    machine.companyNames = {{text("C:\\Windows\\system32\\visa32.dll"), text("A company")}};
    machine.files = {
        {text("C:\\VXIPNP\\WinNT\\bin\\kel*.dll"), {text("kelvxi.dll")}},
        {text("C:\\Program Files\\IVI\\Bin\\kel*.dll"), {text("kelivi.dll")}},
        {text("C:\\Windows\\INF\\kel*.inf"), {text("kelusb.inf")}},
    };
    return machine;
}

WindowsOSInfo infoOf(const Machine &machine)
{
    return WindowsOSInfo(std::make_unique<FakeHost>(machine));
}

QStringList systemLines(const Machine &machine)
{
    return sectionLines(infoOf(machine).systemInformation());
}

QStringList driverLines(const Machine &machine)
{
    return sectionLines(infoOf(machine).driverInformation());
}

/// The value of the one line of the system information that begins with @p key.
QString systemValue(const Machine &machine, const char *key)
{
    const QString beginning = joined(key, ": ");
    const QStringList found = systemLines(machine).filter(beginning);
    return found.size() == 1 ? found.first().mid(beginning.size()) : text("not one line");
}

} // namespace

class WindowsOSInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wholeSystemInformation();
    void wholeDriverInformation();
    void sensorControlVersion();
    void nothingCanBeRead();
    void administratorRights_data();
    void administratorRights();
    void installDateIsUnsigned();
    void internetExplorerInQuotes();
    void ieeeDriver_data();
    void ieeeDriver();
    void vxiFrameworkFolder_data();
    void vxiFrameworkFolder();
    void usbDriverFile_data();
    void usbDriverFile();
    void namesAreSorted();
    void longerExtensionsDoNotCount();
    void libraryWithoutVersion();
    void noFolderNoSearch();
    void folderThatEndsWithABackslash();
};

void WindowsOSInfoTest::initTestCase()
{
    // A zone two hours east of UTC, so that local time shows.
    qputenv("TZ", "XYZ-2");
}

void WindowsOSInfoTest::wholeSystemInformation()
{
    const QStringList expected = {
        text("[Operating System]"),
        text("Product name: Windows 10 Pro"),
        // 1700000000 s are 19675 days and 22:13:20: Nov 14, 2023, in UTC.
        text("Installed: Wed Nov 15 00:13:20 2023"),
        text("Admin rights: No"),
        text("[Language Settings]"),
        text("Country: Austria"),
        text("Language: DEA"),
        text("Local ID: 00000C07"),
        text("[DLL and EXE versions]"),
        text("VB runtime: 1.0"),
        text("CVI runtime: 2.0"),
        text("MSI runtime: 3.0"),
        text("Internet Explorer: 4.0"),
        text("Support Tool: 3.1.0.0"),
        text("Qt: 5.12.2"),
        text("[NI ActiveX versions]"),
        text("NI Analysis: 5.0"),
        text("NI UI: 6.0"),
        text("NI 3d graph: 7.0"),
        text("[VISA]"),
        text("Name: A VISA"),
        text("Version: 8.0"),
        text("Company: A company"),
        text("[Remote Control]"),
        text("IEEE driver: 9.0"),
        text("Remote control: 10.0"),
        text("Sensor control: 11.0"),
        text("[Kel USB Drivers]"),
        text("Drivers: kelusb.SYS (Version 14.0)"),
    };
    QCOMPARE(systemLines(wholeMachine()), expected);
}

void WindowsOSInfoTest::wholeDriverInformation()
{
    const QStringList expected = {
        text("[Installed Vantrel VXI PnP drivers]"), text(": kelvxi.dll (Version 12.0)"),
        text("[Installed Vantrel IVI drivers]"),     text(": kelivi.dll (Version 13.0)"),
        text("[Installed Vantrel USB drivers]"),     text(": kelusb.SYS (Version 14.0)"),
    };
    QCOMPARE(driverLines(wholeMachine()), expected);
}

void WindowsOSInfoTest::sensorControlVersion()
{
    Machine machine = wholeMachine();
    QCOMPARE(infoOf(machine).sensorControlVersion(), text("11.0"));
    machine.fileVersions.remove(text("C:\\Windows\\system32\\kelsensor.dll"));
    QCOMPARE(infoOf(machine).sensorControlVersion(), text("---"));
}

void WindowsOSInfoTest::nothingCanBeRead()
{
    Machine machine;
    machine.membership = WindowsHost::Membership::Unknown;
    machine.systemFolder.clear();
    machine.windowsFolder.clear();
    const QStringList lines = systemLines(machine);
    QCOMPARE(lines.size(), 29);
    // 29 lines, less 7 headings, 2 fixed texts and the drivers.
    QCOMPARE(lines.filter(text(": ---")).size(), 19);
    QCOMPARE(lines.last(), text("Drivers: No USB driver found"));
    QCOMPARE(driverLines(machine), QStringList());
}

void WindowsOSInfoTest::administratorRights_data()
{
    using Membership = WindowsHost::Membership;
    columns<int, QString>({"membership", "expected"});

    const auto row = [](const char *tag, Membership membership, const char *expected) {
        QTest::newRow(tag) << int(membership) << text(expected);
    };
    row("a member of the group", Membership::Member, "Yes");
    row("not a member of the group", Membership::NotMember, "No");
    row("the test itself fails", Membership::Unknown, "---");
    row("the group's SID cannot be built", Membership::NoSid,
        "Unable to allocate & initialize SID struct");
}

void WindowsOSInfoTest::administratorRights()
{
    QFETCH(int, membership);
    QFETCH(QString, expected);

    Machine machine = wholeMachine();
    machine.membership = WindowsHost::Membership(membership);
    QCOMPARE(systemValue(machine, "Admin rights"), expected);
}

void WindowsOSInfoTest::installDateIsUnsigned()
{
    Machine machine = wholeMachine();
    // 2^32 - 1 s: Feb 7, 2106, 06:28:15 UTC.
    machine.numbers[joined(kWindowsNt, "InstallDate")] = 4294967295;
    QCOMPARE(systemValue(machine, "Installed"), text("Sun Feb %1 08:28:15 2106").arg(dayText(7)));
}

void WindowsOSInfoTest::internetExplorerInQuotes()
{
    Machine machine = wholeMachine();
    machine.texts[text(kIexplore)] = text("\"C:\\Program Files\\Explorer\\IEXPLORE.EXE\"");
    QCOMPARE(systemValue(machine, "Internet Explorer"), text("4.0"));
}

void WindowsOSInfoTest::ieeeDriver_data()
{
    columns<bool, bool, QString>({"gpib", "sicl", "expected"});
    row("the GPIB library goes before the SICL library", true, true, "9.0");
    row("the GPIB library alone", true, false, "9.0");
    row("the SICL library alone", false, true, "9.5");
    row("neither library", false, false, "---");
}

void WindowsOSInfoTest::ieeeDriver()
{
    QFETCH(bool, gpib);
    QFETCH(bool, sicl);
    QFETCH(QString, expected);

    Machine machine = wholeMachine();
    if (!gpib)
        machine.fileVersions.remove(text("C:\\Windows\\system32\\GPIB-32.dll"));
    if (!sicl)
        machine.fileVersions.remove(text("C:\\Windows\\system32\\sicl32.dll"));
    QCOMPARE(systemValue(machine, "IEEE driver"), expected);
}

void WindowsOSInfoTest::vxiFrameworkFolder_data()
{
    columns<QString, QString, QString>({"frameworkUnderscorePath", "frameworkPath", "expected"});

    const QString folder = text("C:\\VXIPNP\\WinNT");
    const QString found = text(": kelvxi.dll (Version 12.0)");
    const QString notFound = text(": No VXI driver found");
    row("FRAMEWORK_PATH is asked first", folder, "C:\\Elsewhere", found);
    row("FrameworkPath is asked without it", QString(), folder, found);
    row("FrameworkPath is not asked beside it", "C:\\Elsewhere", folder, notFound);
    row("without a framework nothing is found", QString(), QString(), notFound);
}

void WindowsOSInfoTest::vxiFrameworkFolder()
{
    QFETCH(QString, frameworkUnderscorePath);
    QFETCH(QString, frameworkPath);
    QFETCH(QString, expected);

    Machine machine = wholeMachine();
    machine.texts[joined(kVxiPnp, "FRAMEWORK_PATH")] = frameworkUnderscorePath;
    machine.texts[joined(kVxiPnp, "FrameworkPath")] = frameworkPath;
    QCOMPARE(driverLines(machine).at(1), expected);
}

void WindowsOSInfoTest::usbDriverFile_data()
{
    columns<QString, QString, QString>({"setUpFile", "driverFile", "expected"});
    row("the driver has the stem of its set-up file", "kelusb.inf", "kelusb.SYS",
        "kelusb.SYS (Version 1.5)");
    row("a set-up file in capitals", "KELUSB.INF", "KELUSB.SYS", "KELUSB.SYS (Version 1.5)");
    row("a stem with a dot in it", "kel.usb.inf", "kel.usb.SYS", "kel.usb.SYS (Version 1.5)");
    row("a set-up file whose driver is missing", "kelusb.inf", "other.SYS",
        "kelusb.SYS (Version ---)");
}

void WindowsOSInfoTest::usbDriverFile()
{
    QFETCH(QString, setUpFile);
    QFETCH(QString, driverFile);
    QFETCH(QString, expected);

    Machine machine;
    machine.files[text("C:\\Windows\\INF\\kel*.inf")] = {setUpFile};
    machine.fileVersions[text("C:\\Windows\\SYSTEM32\\Drivers\\") + driverFile] = text("1.5");
    QCOMPARE(systemValue(machine, "Drivers"), expected);
    QCOMPARE(driverLines(machine).constLast(), QString(QLatin1String(": ") + expected));
}

void WindowsOSInfoTest::namesAreSorted()
{
    Machine machine;
    machine.files[text("C:\\Windows\\INF\\kel*.inf")] = {text("kelc.inf"), text("KelB.inf"),
                                                         text("kela.inf")};
    QCOMPARE(driverLines(machine).mid(5),
             QStringList({text(": kela.SYS (Version ---)"), text(": KelB.SYS (Version ---)"),
                          text(": kelc.SYS (Version ---)")}));
}

void WindowsOSInfoTest::longerExtensionsDoNotCount()
{
    Machine machine = wholeMachine();
    machine.files[text("C:\\Windows\\INF\\kel*.inf")] = {text("kelusb.inf_old")};
    machine.files[text("C:\\Program Files\\IVI\\Bin\\kel*.dll")] = {text("kelivi.dll_")};
    QCOMPARE(driverLines(machine).at(3), text(": No IVI driver found"));
    QCOMPARE(driverLines(machine).at(5), text(": No USB driver found"));
}

void WindowsOSInfoTest::libraryWithoutVersion()
{
    Machine machine = wholeMachine();
    machine.fileVersions.remove(text("C:\\VXIPNP\\WinNT\\bin\\kelvxi.dll"));
    QCOMPARE(driverLines(machine).at(1), text(": kelvxi.dll (Version ---)"));
}

void WindowsOSInfoTest::noFolderNoSearch()
{
    Machine machine;
    machine.windowsFolder.clear();
    machine.systemFolder.clear();
    // Without a folder, a search would start at the root of the current drive and find these files.
    machine.files = {
        {text("\\bin\\kel*.dll"), {text("kelvxi.dll")}},
        {text("\\IVI\\Bin\\kel*.dll"), {text("kelivi.dll")}},
        {text("\\INF\\kel*.inf"), {text("kelusb.inf")}},
        {text("\\kel*.dll"), {text("kelvxi.dll")}},
        {text("\\kel*.inf"), {text("kelusb.inf")}},
    };
    machine.fileVersions = {{text("\\msi.dll"), text("3.0")}};
    QCOMPARE(driverLines(machine), QStringList());
    QCOMPARE(systemValue(machine, "MSI runtime"), text("---"));
}

void WindowsOSInfoTest::folderThatEndsWithABackslash()
{
    Machine machine = wholeMachine();
    machine.texts[joined(kVxiPnp, "FRAMEWORK_PATH")] = text("C:\\VXIPNP\\WinNT\\");
    QCOMPARE(driverLines(machine).at(1), text(": kelvxi.dll (Version 12.0)"));
}

DEZIMO_TEST_MAIN(QCoreApplication, WindowsOSInfoTest)

#include "tst_windowsosinfo.moc"
