// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "testmain.h"
#include "win32host.h"
#include "windowsmachine.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>

using Field = WindowsHost::VersionField;
using Type = WindowsMachine::Type;

Q_DECLARE_METATYPE(Field)
Q_DECLARE_METATYPE(Type)

namespace {

constexpr int kLongestText = 32768;

/// A key that the tests use in either root.
QString key()
{
    return QStringLiteral("Software\\A maker\\Übertragung");
}

QString name()
{
    return QStringLiteral("Größe");
}

QByteArray bytesOf(quint64 number, int size)
{
    return QByteArray(reinterpret_cast<const char *>(&number), size);
}

QStringList sorted(const std::vector<QString> &names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list;
}

void makeFile(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no library at all") > 0);
}

} // namespace

/// Asks Windows itself, with a registry and libraries that the test prepares.
class Win32HostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsATextOfEitherRoot();
    void readsATextByItsType_data();
    void readsATextByItsType();
    void readsTheDefaultValueOfAKey();
    void readsNoTextOfAnAbsentKey();
    void readsANumberByItsType_data();
    void readsANumberByItsType();
    void readsNoNumberOfAnAbsentValue();
    void readsEveryVersionField_data();
    void readsEveryVersionField();
    void aLibraryWithoutATextHasNoVersion_data();
    void aLibraryWithoutATextHasNoVersion();
    void readsALibraryWithAnyPath();
    void findsFilesByPattern();
    void findsNothingInAnAbsentFolder();
    void knowsWhetherThePersonAdministers();
    void namesTheFoldersOfWindows();

private:
    WindowsMachine m_machine;
    Win32Host m_host;
};

void Win32HostTest::readsATextOfEitherRoot()
{
    m_machine.setText(WindowsMachine::Root::User, key(), name(), QStringLiteral("the user's"));
    m_machine.setText(WindowsMachine::Root::Machine, key(), name(), QStringLiteral("10 µW, 测量"));
    QCOMPARE(m_host.registryText(WindowsHost::Hive::CurrentUser, key(), name()),
             QStringLiteral("the user's"));
    QCOMPARE(m_host.registryText(WindowsHost::Hive::LocalMachine, key(), name()),
             QStringLiteral("10 µW, 测量"));
}

void Win32HostTest::readsATextByItsType_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const QString path = QStringLiteral("C:\\Program Files");
    const QByteArray whole = WindowsMachine::terminated(path);
    const QString longest(kLongestText - 1, QLatin1Char('x'));
    QTest::newRow("a text") << Type::Text << whole << path;
    QTest::newRow("a text without its terminator") << Type::Text << whole.chopped(2) << path;
    QTest::newRow("a text that ends before its bytes do")
        << Type::Text << whole + WindowsMachine::terminated(path) << path;
    QTest::newRow("an empty text") << Type::Text << WindowsMachine::terminated({}) << QString();
    QTest::newRow("no bytes at all") << Type::Text << QByteArray() << QString();
    QTest::newRow("the longest text")
        << Type::Text << WindowsMachine::terminated(longest) << longest;
    QTest::newRow("a text beyond the longest")
        << Type::Text << WindowsMachine::terminated(longest + longest) << QString();
    QTest::newRow("a text with a variable")
        << Type::TextWithVariables
        << WindowsMachine::terminated(QStringLiteral("%SystemRoot%\\kel"))
        << QDir::toNativeSeparators(qEnvironmentVariable("SystemRoot")) + QLatin1String("\\kel");
    QTest::newRow("a number instead") << Type::Number << bytesOf(65, 4) << QString();
    QTest::newRow("bytes instead") << Type::Bytes << whole << QString();
}

void Win32HostTest::readsATextByItsType()
{
    QFETCH(Type, type);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);

    m_machine.setValue(WindowsMachine::Root::Machine, key(), name(), type, bytes);
    QCOMPARE(m_host.registryText(WindowsHost::Hive::LocalMachine, key(), name()), text);
}

void Win32HostTest::readsTheDefaultValueOfAKey()
{
    m_machine.setText(WindowsMachine::Root::Machine, key(), QString(), QStringLiteral("default"));
    m_machine.setText(WindowsMachine::Root::Machine, key(), name(), QStringLiteral("named"));
    QCOMPARE(m_host.registryText(WindowsHost::Hive::LocalMachine, key(), QString()),
             QStringLiteral("default"));
}

void Win32HostTest::readsNoTextOfAnAbsentKey()
{
    QCOMPARE(m_host.registryText(WindowsHost::Hive::LocalMachine, QStringLiteral("absent"), name()),
             QString());
    QCOMPARE(m_host.registryText(WindowsHost::Hive::LocalMachine, key(), QStringLiteral("absent")),
             QString());
}

void Win32HostTest::readsANumberByItsType_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("32 bits") << Type::Number << bytesOf(0xFFFFFFFE, 4) << true;
    QTest::newRow("64 bits") << Type::LongNumber << bytesOf(0xFFFFFFFE, 8) << false;
    QTest::newRow("32 bits of a text") << Type::Text << bytesOf(0xFFFFFFFE, 4) << false;
    QTest::newRow("too few bits") << Type::Number << bytesOf(0xFFFFFFFE, 2) << false;
}

void Win32HostTest::readsANumberByItsType()
{
    QFETCH(Type, type);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isNumber);

    m_machine.setValue(WindowsMachine::Root::Machine, key(), name(), type, bytes);
    const auto number = m_host.registryNumber(WindowsHost::Hive::LocalMachine, key(), name());
    QCOMPARE(number.has_value(), isNumber);
    if (isNumber)
        QCOMPARE(*number, std::uint32_t(0xFFFFFFFE));
}

void Win32HostTest::readsNoNumberOfAnAbsentValue()
{
    QVERIFY(!m_host.registryNumber(WindowsHost::Hive::LocalMachine, QStringLiteral("absent"), {}));
}

void Win32HostTest::readsEveryVersionField_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("text");

    QTest::newRow("comments") << Field::Comments << "the comments";
    QTest::newRow("company") << Field::CompanyName << "the company";
    QTest::newRow("description, beyond ASCII")
        << Field::FileDescription << QStringLiteral("Meßgerätetreiber für µW");
    QTest::newRow("internal name") << Field::InternalName << "the internal name";
    QTest::newRow("copyright") << Field::LegalCopyright << "the copyright";
    QTest::newRow("trademarks") << Field::LegalTrademarks << "the trademarks";
    QTest::newRow("file name") << Field::OriginalFileName << "the file name";
    QTest::newRow("product") << Field::ProductName << "the product";
    QTest::newRow("private build") << Field::PrivateBuild << "the private build";
    QTest::newRow("special build") << Field::SpecialBuild << "the special build";
    QTest::newRow("version, as a text of the first language") << Field::FileVersion << "1.2.3 beta";
}

void Win32HostTest::readsEveryVersionField()
{
    QFETCH(Field, field);
    QFETCH(QString, text);

    QCOMPARE(m_host.versionField(WindowsMachine::library("withfields"), field), text);
}

void Win32HostTest::aLibraryWithoutATextHasNoVersion_data()
{
    QTest::addColumn<QString>("path");

    const QTemporaryDir folder;
    QTest::newRow("no version resource") << WindowsMachine::library("withoutresource");
    QTest::newRow("a resource without texts") << WindowsMachine::library("withoutfields");
    QTest::newRow("an absent file") << WindowsMachine::library("absent");
    QTest::newRow("a folder") << QDir::tempPath();
    QTest::newRow("no path") << QString();
}

void Win32HostTest::aLibraryWithoutATextHasNoVersion()
{
    QFETCH(QString, path);

    QCOMPARE(m_host.versionField(path, Field::FileVersion), QString());
}

void Win32HostTest::readsALibraryWithAnyPath()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("Zwei Geräte, 测量")));
    const QString copy = folder.filePath(QStringLiteral("Zwei Geräte, 测量/kel 10 µW.dll"));
    QVERIFY(QFile::copy(WindowsMachine::library("withfields"), copy));
    QCOMPARE(m_host.versionField(QDir::toNativeSeparators(copy), Field::FileVersion),
             QStringLiteral("1.2.3 beta"));
    makeFile(folder.filePath(QStringLiteral("text.dll")));
    QCOMPARE(m_host.versionField(folder.filePath(QStringLiteral("text.dll")), Field::FileVersion),
             QString());
}

void Win32HostTest::findsFilesByPattern()
{
    const QTemporaryDir folder;
    for (const char *file : {"kelone.dll", "KELTWO.DLL", "kel µW.dll", "other.dll", "kel.txt"})
        makeFile(folder.filePath(QString::fromUtf8(file)));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("kelfolder.dll")));
    const QString pattern = QDir::toNativeSeparators(folder.filePath(QStringLiteral("kel*.dll")));
    QCOMPARE(sorted(m_host.findFiles(pattern)),
             QStringList({QStringLiteral("KELTWO.DLL"), QStringLiteral("kel µW.dll"),
                          QStringLiteral("kelone.dll")}));
}

void Win32HostTest::findsNothingInAnAbsentFolder()
{
    QVERIFY(m_host.findFiles(QStringLiteral("C:\\absent\\kel*.dll")).empty());
    QVERIFY(m_host.findFiles(QString()).empty());
}

void Win32HostTest::knowsWhetherThePersonAdministers()
{
    const WindowsHost::Membership membership = m_host.administrators();
    QVERIFY(membership == WindowsHost::Membership::Member ||
            membership == WindowsHost::Membership::NotMember);
}

void Win32HostTest::namesTheFoldersOfWindows()
{
    QVERIFY(QFile::exists(m_host.systemFolder() + QStringLiteral("\\kernel32.dll")));
    QCOMPARE(m_host.windowsFolder().toLower(), qEnvironmentVariable("SystemRoot").toLower());
}

DEZIMO_TEST_MAIN(QCoreApplication, Win32HostTest)

#include "tst_win32host.moc"
