// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "damagedstorecase.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "table.h"
#include "testmain.h"

#include <QFileInfo>
#include <QTest>

#include <functional>

using namespace Dezimo;

using namespace DamagedStore;

namespace {

QByteArray manyGroups()
{
    QByteArray text;
    for (int group = 0; group < 30000; ++group)
        text.append("[g").append(QByteArray::number(group)).append("]\np1=5W\n");
    return text + amongNeighbors("5W");
}

/// Makes a file of that name and returns whether that succeeded.
using Make = std::function<bool(const QString &)>;

} // namespace

Q_DECLARE_METATYPE(Make)

/// Makes harmful files of the application settings, and of those that QSettings reads in addition.
class DamagedSettingsTest : public DamagedStoreCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSettingsAreReadAsCarefully_data();
    void theSettingsAreReadAsCarefully();
    void settingsThatCannotBeReadAreLeftAlone_data();
    void settingsThatCannotBeReadAreLeftAlone();
    void theOrganizationsSettingsAreReadAsCarefully_data();
    void theOrganizationsSettingsAreReadAsCarefully();
    void theDefaultsAreReadAsCarefully();
    void theDamagedSettingsAreKeptBeside();
};

void DamagedSettingsTest::theSettingsAreReadAsCarefully_data()
{
    columns<QByteArray, QString, QString>({"text", "p1", "p2"});

    const QString none;
    row("lists within lists", amongNeighbors(deeplyNestedLists()), none, "7W");
    row("a huge count", amongNeighbors(hugeCount(QMetaType::QVariantList)), none, "7W");
    row("100 MiB of one key", amongNeighbors(QByteArray(100 * kMebibyte, '5')), none, "7W");
    row("100 MiB of zeros", QByteArray(100 * kMebibyte, '\0'), none, none);
    row("thirty thousand groups", manyGroups(), "5W", "7W");
    row("noise", QByteArray("\0\1\2\377\376[[[==\n\r\\x", 15), none, none);
    row("a window of impossible kinds",
        QByteArray("[MainProfile]\nwindowPosition=@Size(1 2)\nwindowSize=@Variant(\n"
                   "windowMode=9999999999\ncurrentModule=@Rect(1 2 3 4)\ndecimalPlaces=nan\n") +
            amongNeighbors("5W"),
        "5W", "7W");
}

void DamagedSettingsTest::theSettingsAreReadAsCarefully()
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

void DamagedSettingsTest::settingsThatCannotBeReadAreLeftAlone_data()
{
    columns<Make>({"make"});
    row("a pipe", Make(makePipe));
    row("5 GiB of zeros", Make(makeHuge));
    row("a device that never ends",
        Make([](const QString &name) { return QFile::link(QStringLiteral("/dev/zero"), name); }));
}

/// A QSettings object reads its file as soon as it is made, so the test must not make one.
void DamagedSettingsTest::settingsThatCannotBeReadAreLeftAlone()
{
    QFETCH(Make, make);

    const QString name = settingsFile();
    m_window.reset();
    QVERIFY(QFile::remove(name));
    QVERIFY(make(name));
    const qint64 size = QFileInfo(name).size();
    restart();
    QCOMPARE(fieldText("p1LineEdit"), QString());
    m_window.reset();
    QCOMPARE(QFileInfo(name).size(), size);
    QVERIFY(!QFileInfo::exists(name + QStringLiteral(".damaged")));
    QVERIFY(QFile::remove(name));
}

void DamagedSettingsTest::theOrganizationsSettingsAreReadAsCarefully_data()
{
    columns<Make, QString>({"make", "p2"});

    const auto writes = [](const QByteArray &text) {
        return Make([text](const QString &name) {
            write(name, text);
            return true;
        });
    };
    row("texts", writes(amongNeighbors("5W")), "7W");
    row("lists within lists", writes(amongNeighbors(deeplyNestedLists())), QString());
    row("a pipe", Make(makePipe), QString());
    row("5 GiB of zeros", Make(makeHuge), QString());
}

/// QSettings looks in the organization's settings for keys that the program's own settings lack.
void DamagedSettingsTest::theOrganizationsSettingsAreReadAsCarefully()
{
    QFETCH(Make, make);
    QFETCH(QString, p2);

    const QString own = settingsFile();
    const QString name = QFileInfo(own).path() + QStringLiteral(".conf");
    m_window.reset();
    write(own, "[DbConverterProfile]\nv1=3V\n");
    QVERIFY(make(name));
    m_window = std::make_unique<MainWindow>();
    QCOMPARE(fieldText("v1LineEdit"), QStringLiteral("3V"));
    QCOMPARE(fieldText("p2LineEdit"), p2);
    m_window.reset();
    QVERIFY(QFile::remove(name));
}

void DamagedSettingsTest::theDefaultsAreReadAsCarefully()
{
    const QString organization = QFileInfo(settingsFile()).path();
    const QString name = QFileInfo(organization).path() + QStringLiteral("/none.conf");
    QVERIFY(makePipe(name));
    CalculationFiles::loadDefaults(MainProfile::instance());
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QVERIFY(QFile::remove(name));
}

void DamagedSettingsTest::theDamagedSettingsAreKeptBeside()
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

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, DamagedSettingsTest>(argc, argv, true);
}

#include "tst_damagedsettings.moc"
