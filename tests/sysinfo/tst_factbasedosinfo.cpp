// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "daytext.h"
#include "factbasedosinfo.h"
#include "sectionlines.h"
#include "table.h"
#include "testmain.h"

#include <QMap>
#include <QTest>

#include <limits>

using Fact = FactBasedOSInfo::Fact;
using DriverKind = FactBasedOSInfo::DriverKind;
using Driver = FactBasedOSInfo::Driver;

Q_DECLARE_METATYPE(Fact)
Q_DECLARE_METATYPE(DriverKind)

namespace {

class FakeOSInfo final : public FactBasedOSInfo
{
public:
    using FactBasedOSInfo::momentText;
    using FactBasedOSInfo::yesOrNo;

    QMap<Fact, QString> facts;
    bool knowsDrivers = true;
    QMap<DriverKind, QVector<Driver>> found;

protected:
    QString fact(Fact fact) const override { return facts.value(fact); }
    std::optional<QVector<Driver>> drivers(DriverKind kind) const override
    {
        if (!knowsDrivers)
            return std::nullopt;
        return found.value(kind);
    }
};

FakeOSInfo withEveryFact()
{
    FakeOSInfo info;
    info.facts = {
        {Fact::ProductName, QStringLiteral("Some System 12")},
        {Fact::InstallDate, QStringLiteral("Thu Jan  1 02:00:00 1970")},
        {Fact::AdminRights, QStringLiteral("Yes")},
        {Fact::Country, QStringLiteral("Austria")},
        {Fact::Language, QStringLiteral("German")},
        {Fact::LocaleId, QStringLiteral("00000C07")},
        {Fact::VbRuntime, QStringLiteral("1.0")},
        {Fact::CviRuntime, QStringLiteral("2.0")},
        {Fact::MsiRuntime, QStringLiteral("3.0")},
        {Fact::InternetExplorer, QStringLiteral("4.0")},
        {Fact::NiAnalysis, QStringLiteral("5.0")},
        {Fact::NiUserInterface, QStringLiteral("6.0")},
        {Fact::Ni3dGraph, QStringLiteral("7.0")},
        {Fact::VisaName, QStringLiteral("A VISA")},
        {Fact::VisaVersion, QStringLiteral("8.0")},
        {Fact::VisaCompany, QStringLiteral("A company")},
        {Fact::IeeeDriver, QStringLiteral("9.0")},
        {Fact::RemoteControl, QStringLiteral("10.0")},
        {Fact::SensorControl, QStringLiteral("11.0")},
    };
    info.found = {
        {DriverKind::VxiPnp, {{QStringLiteral("kelvxi.dll"), QStringLiteral("1.2.3")}}},
        {DriverKind::Ivi, {{QStringLiteral("kelivi.dll"), QStringLiteral("4.5")}}},
        {DriverKind::Usb, {{QStringLiteral("kelusb.SYS"), QStringLiteral("6.7")}}},
    };
    return info;
}

QStringList linesWithEveryFact()
{
    return {
        QStringLiteral("[Operating System]"),
        QStringLiteral("Product name: Some System 12"),
        QStringLiteral("Installed: Thu Jan  1 02:00:00 1970"),
        QStringLiteral("Admin rights: Yes"),
        QStringLiteral("[Language Settings]"),
        QStringLiteral("Country: Austria"),
        QStringLiteral("Language: German"),
        QStringLiteral("Local ID: 00000C07"),
        QStringLiteral("[DLL and EXE versions]"),
        QStringLiteral("VB runtime: 1.0"),
        QStringLiteral("CVI runtime: 2.0"),
        QStringLiteral("MSI runtime: 3.0"),
        QStringLiteral("Internet Explorer: 4.0"),
        QStringLiteral("Support Tool: 3.1.0.0"),
        QStringLiteral("Qt: 5.12.2"),
        QStringLiteral("[NI ActiveX versions]"),
        QStringLiteral("NI Analysis: 5.0"),
        QStringLiteral("NI UI: 6.0"),
        QStringLiteral("NI 3d graph: 7.0"),
        QStringLiteral("[VISA]"),
        QStringLiteral("Name: A VISA"),
        QStringLiteral("Version: 8.0"),
        QStringLiteral("Company: A company"),
        QStringLiteral("[Remote Control]"),
        QStringLiteral("IEEE driver: 9.0"),
        QStringLiteral("Remote control: 10.0"),
        QStringLiteral("Sensor control: 11.0"),
        QStringLiteral("[Kel USB Drivers]"),
        QStringLiteral("Drivers: kelusb.SYS (Version 6.7)"),
    };
}

} // namespace

class FactBasedOSInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFactPresent();
    void everyFactMissing();
    void oneFactMissing_data();
    void oneFactMissing();
    void singleOperations();
    void singleOperationsWithoutFacts();
    void driverSearches_data();
    void driverSearches();
    void severalDriversOfAKind();
    void driverWithoutVersion();
    void platformWithoutDrivers();
    void collectsAnewOnEveryCall();
    void momentTexts_data();
    void momentTexts();
    void yesOrNo();
};

void FactBasedOSInfoTest::initTestCase()
{
    // A zone two hours east of UTC, so that local time shows.
    qputenv("TZ", "XYZ-2");
}

void FactBasedOSInfoTest::everyFactPresent()
{
    QCOMPARE(sectionLines(withEveryFact().systemInformation()), linesWithEveryFact());
}

void FactBasedOSInfoTest::everyFactMissing()
{
    const QStringList expected = {
        QStringLiteral("[Operating System]"),
        QStringLiteral("Product name: ---"),
        QStringLiteral("Installed: ---"),
        QStringLiteral("Admin rights: ---"),
        QStringLiteral("[Language Settings]"),
        QStringLiteral("Country: ---"),
        QStringLiteral("Language: ---"),
        QStringLiteral("Local ID: ---"),
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
        QStringLiteral("Name: ---"),
        QStringLiteral("Version: ---"),
        QStringLiteral("Company: ---"),
        QStringLiteral("[Remote Control]"),
        QStringLiteral("IEEE driver: ---"),
        QStringLiteral("Remote control: ---"),
        QStringLiteral("Sensor control: ---"),
        QStringLiteral("[Kel USB Drivers]"),
        QStringLiteral("Drivers: No USB driver found"),
    };
    QCOMPARE(sectionLines(FakeOSInfo().systemInformation()), expected);
}

void FactBasedOSInfoTest::oneFactMissing_data()
{
    columns<Fact, int, QString>({"fact", "lineNumber", "line"});

    const auto row = [](const char *tag, Fact fact, int lineNumber, const char *line) {
        QTest::newRow(tag) << fact << lineNumber << QString::fromLatin1(line);
    };
    row("the product name is missing", Fact::ProductName, 1, "Product name: ---");
    row("the install date is missing", Fact::InstallDate, 2, "Installed: ---");
    row("the administrator's rights is missing", Fact::AdminRights, 3, "Admin rights: ---");
    row("the country is missing", Fact::Country, 5, "Country: ---");
    row("the language is missing", Fact::Language, 6, "Language: ---");
    row("the locale is missing", Fact::LocaleId, 7, "Local ID: ---");
    row("the VB runtime is missing", Fact::VbRuntime, 9, "VB runtime: ---");
    row("the CVI runtime is missing", Fact::CviRuntime, 10, "CVI runtime: ---");
    row("the MSI runtime is missing", Fact::MsiRuntime, 11, "MSI runtime: ---");
    row("the browser is missing", Fact::InternetExplorer, 12, "Internet Explorer: ---");
    row("the analysis control is missing", Fact::NiAnalysis, 16, "NI Analysis: ---");
    row("the user interface control is missing", Fact::NiUserInterface, 17, "NI UI: ---");
    row("the graph control is missing", Fact::Ni3dGraph, 18, "NI 3d graph: ---");
    row("the VISA library's name is missing", Fact::VisaName, 20, "Name: ---");
    row("the VISA library's version is missing", Fact::VisaVersion, 21, "Version: ---");
    row("the VISA library's company is missing", Fact::VisaCompany, 22, "Company: ---");
    row("the IEEE driver is missing", Fact::IeeeDriver, 24, "IEEE driver: ---");
    row("the remote-control library is missing", Fact::RemoteControl, 25, "Remote control: ---");
    row("the sensor-control library is missing", Fact::SensorControl, 26, "Sensor control: ---");
}

void FactBasedOSInfoTest::oneFactMissing()
{
    QFETCH(Fact, fact);
    QFETCH(int, lineNumber);
    QFETCH(QString, line);

    FakeOSInfo info = withEveryFact();
    info.facts.remove(fact);
    QStringList expected = linesWithEveryFact();
    expected[lineNumber] = line;
    QCOMPARE(sectionLines(info.systemInformation()), expected);
}

void FactBasedOSInfoTest::singleOperations()
{
    const FakeOSInfo info = withEveryFact();
    QCOMPARE(info.productName(), QStringLiteral("Some System 12"));
    QCOMPARE(info.country(), QStringLiteral("Austria"));
    QCOMPARE(info.language(), QStringLiteral("German"));
    QCOMPARE(info.localeId(), QStringLiteral("00000C07"));
    QCOMPARE(info.sensorControlVersion(), QStringLiteral("11.0"));
}

void FactBasedOSInfoTest::singleOperationsWithoutFacts()
{
    const FakeOSInfo info;
    QCOMPARE(info.productName(), QStringLiteral("---"));
    QCOMPARE(info.country(), QStringLiteral("---"));
    QCOMPARE(info.language(), QStringLiteral("---"));
    QCOMPARE(info.localeId(), QStringLiteral("---"));
    QCOMPARE(info.sensorControlVersion(), QStringLiteral("---"));
}

void FactBasedOSInfoTest::driverSearches_data()
{
    columns<QVector<DriverKind>, QString, QString, QString>({"missing", "vxi", "ivi", "usb"});

    const QString vxi = QStringLiteral(": kelvxi.dll (Version 1.2.3)");
    const QString ivi = QStringLiteral(": kelivi.dll (Version 4.5)");
    const QString usb = QStringLiteral(": kelusb.SYS (Version 6.7)");
    const QString noVxi = QStringLiteral(": No VXI driver found");
    const QString noIvi = QStringLiteral(": No IVI driver found");
    const QString noUsb = QStringLiteral(": No USB driver found");
    using Kinds = QVector<DriverKind>;
    row("all kinds are found", Kinds{}, vxi, ivi, usb);
    row("no VXI driver", Kinds{DriverKind::VxiPnp}, noVxi, ivi, usb);
    row("no IVI driver", Kinds{DriverKind::Ivi}, vxi, noIvi, usb);
    row("no USB driver", Kinds{DriverKind::Usb}, vxi, ivi, noUsb);
    row("only a USB driver", Kinds{DriverKind::VxiPnp, DriverKind::Ivi}, noVxi, noIvi, usb);
    row("only an IVI driver", Kinds{DriverKind::VxiPnp, DriverKind::Usb}, noVxi, ivi, noUsb);
    row("only a VXI driver", Kinds{DriverKind::Ivi, DriverKind::Usb}, vxi, noIvi, noUsb);
}

void FactBasedOSInfoTest::driverSearches()
{
    QFETCH(QVector<DriverKind>, missing);
    QFETCH(QString, vxi);
    QFETCH(QString, ivi);
    QFETCH(QString, usb);

    FakeOSInfo info = withEveryFact();
    for (DriverKind kind : missing)
        info.found.remove(kind);
    const QStringList expected = {
        QStringLiteral("[Installed Vantrel VXI PnP drivers]"), vxi,
        QStringLiteral("[Installed Vantrel IVI drivers]"),     ivi,
        QStringLiteral("[Installed Vantrel USB drivers]"),     usb,
    };
    QCOMPARE(sectionLines(info.driverInformation()), expected);
}

void FactBasedOSInfoTest::severalDriversOfAKind()
{
    FakeOSInfo info;
    info.found[DriverKind::Usb] = {{QStringLiteral("kela.SYS"), QStringLiteral("1.0")},
                                   {QStringLiteral("kelb.SYS"), QStringLiteral("2.0")}};
    const QStringList expected = {
        QStringLiteral("[Installed Vantrel VXI PnP drivers]"),
        QStringLiteral(": No VXI driver found"),
        QStringLiteral("[Installed Vantrel IVI drivers]"),
        QStringLiteral(": No IVI driver found"),
        QStringLiteral("[Installed Vantrel USB drivers]"),
        QStringLiteral(": kela.SYS (Version 1.0)"),
        QStringLiteral(": kelb.SYS (Version 2.0)"),
    };
    QCOMPARE(sectionLines(info.driverInformation()), expected);
    QCOMPARE(sectionLines({info.systemInformation().constLast()}),
             QStringList({QStringLiteral("[Kel USB Drivers]"),
                          QStringLiteral("Drivers: kela.SYS (Version 1.0)"),
                          QStringLiteral("Drivers: kelb.SYS (Version 2.0)")}));
}

void FactBasedOSInfoTest::driverWithoutVersion()
{
    FakeOSInfo info;
    info.found[DriverKind::Ivi] = {{QStringLiteral("kelivi.dll"), QString()}};
    QCOMPARE(sectionLines(info.driverInformation()).at(3),
             QStringLiteral(": kelivi.dll (Version ---)"));
}

void FactBasedOSInfoTest::platformWithoutDrivers()
{
    FakeOSInfo info = withEveryFact();
    info.knowsDrivers = false;
    QStringList expected = linesWithEveryFact();
    expected.last() = QStringLiteral("Drivers: ---");
    QCOMPARE(sectionLines(info.systemInformation()), expected);
    QCOMPARE(sectionLines(info.driverInformation()), QStringList());
}

void FactBasedOSInfoTest::collectsAnewOnEveryCall()
{
    FakeOSInfo info;
    QCOMPARE(sectionLines(info.driverInformation()), QStringList());
    info = withEveryFact();
    QCOMPARE(sectionLines(info.driverInformation()).size(), 6);
    QCOMPARE(sectionLines(info.systemInformation()), linesWithEveryFact());
    info.facts[Fact::Country] = QStringLiteral("Chile");
    QCOMPARE(info.country(), QStringLiteral("Chile"));
}

void FactBasedOSInfoTest::momentTexts_data()
{
    columns<qint64, QString>({"seconds", "text"});
    row("the day of a month has two places", qint64(0),
        QStringLiteral("Thu Jan %1 02:00:00 1970").arg(dayText(1)));
    // 1700000000 s are 19675 days and 22:13:20: Nov 14, 2023, in UTC.
    row("local time may be in the next day", qint64(1700000000), "Wed Nov 15 00:13:20 2023");
    // 2^32 - 1 s, the last one of an unsigned count: Feb 7, 2106, 06:28:15 UTC.
    row("seconds beyond 2038 do not turn negative", qint64(4294967295),
        QStringLiteral("Sun Feb %1 08:28:15 2106").arg(dayText(7)));
    row("a year that the C library cannot write has no text", std::numeric_limits<qint64>::max(),
        QString());
}

void FactBasedOSInfoTest::momentTexts()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, text);

    QCOMPARE(FakeOSInfo::momentText(std::time_t(seconds)), text);
}

void FactBasedOSInfoTest::yesOrNo()
{
    QCOMPARE(FakeOSInfo::yesOrNo(true), QStringLiteral("Yes"));
    QCOMPARE(FakeOSInfo::yesOrNo(false), QStringLiteral("No"));
}

DEZIMO_TEST_MAIN(QCoreApplication, FactBasedOSInfoTest)

#include "tst_factbasedosinfo.moc"
