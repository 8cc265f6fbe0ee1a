// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

namespace {

/// A calculation file with one module's value and a window that the program must not take over.
constexpr char kExample[] = "[MainProfile]\ncurrentModule=1\ndecimalPlaces=9\n"
                            "[DbConverterProfile]\np1=5W\n";

void write(const QString &fileName)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(kExample) > 0);
}

} // namespace

/// What a double click on a calculation file does: the desktop starts the program with its name.
class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensOneFile_data();
    void opensOneFile();
    void readsTheModulesOnly();
    void ignoresAllElse_data();
    void ignoresAllElse();
    void aFileThatCannotBeReadGivesTheDefaults_data();
    void aFileThatCannotBeReadGivesTheDefaults();

private:
    /// Opens what follows the program's own name, as main() does after the window is shown.
    static void start(const QStringList &arguments);
    QString p1Text() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

/// The window shows "1W" before the file is opened.
void CommandLineTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    MainProfile::instance().dbConverter().setP1(QStringLiteral("1W"));
}

void CommandLineTest::cleanup()
{
    m_window.reset();
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void CommandLineTest::start(const QStringList &arguments)
{
    CalculationFiles::openFromCommandLine(MainProfile::instance(),
                                          QStringList(QStringLiteral("dezimo")) + arguments);
}

QString CommandLineTest::p1Text() const
{
    return m_window->findChild<QLineEdit *>(QStringLiteral("p1LineEdit"))->text();
}

void CommandLineTest::opensOneFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("absolute");

    QTest::newRow("an absolute name") << QStringLiteral("a.dezimo") << true;
    QTest::newRow("a name relative to the current folder") << QStringLiteral("a.dezimo") << false;
    QTest::newRow("a name in a folder above and below")
        << QStringLiteral("sub/../a.dezimo") << false;
    QTest::newRow("a name with spaces") << QStringLiteral("two  antennas .dezimo") << true;
    QTest::newRow("a name beyond ASCII")
        << QString::fromUtf8("Dämpfung 10 µW – 测量.dezimo") << true;
    QTest::newRow("a name with a hyphen in it") << QStringLiteral("a-b.dezimo") << false;
    QTest::newRow("a name with another extension") << QStringLiteral("a.ini") << false;
    QTest::newRow("a name with a percent sign") << QStringLiteral("100%20.dezimo") << true;
}

void CommandLineTest::opensOneFile()
{
    QFETCH(QString, name);
    QFETCH(bool, absolute);

    QVERIFY(QDir().mkdir(QStringLiteral("sub")));
    write(name);
    start({absolute ? m_folder->filePath(name) : name});
    QCOMPARE(p1Text(), QStringLiteral("5W"));
}

void CommandLineTest::readsTheModulesOnly()
{
    MainProfile &profile = MainProfile::instance();
    profile.setCurrentModule(3);
    profile.setDecimalPlaces(4);
    write(QStringLiteral("a.dezimo"));
    start({QStringLiteral("a.dezimo")});
    QCOMPARE(p1Text(), QStringLiteral("5W"));
    QCOMPARE(profile.currentModule(), 3);
    QCOMPARE(profile.decimalPlaces(), 4);
}

void CommandLineTest::ignoresAllElse_data()
{
    QTest::addColumn<QStringList>("arguments");

    const QString name = QStringLiteral("a.dezimo");
    QTest::newRow("no argument") << QStringList();
    QTest::newRow("an empty argument") << QStringList(QString());
    QTest::newRow("an option") << QStringList(QStringLiteral("--help"));
    QTest::newRow("two names") << QStringList({name, name});
    QTest::newRow("a name after an option") << QStringList({QStringLiteral("--open"), name});
    QTest::newRow("a name and an empty argument") << QStringList({name, QString()});
}

void CommandLineTest::ignoresAllElse()
{
    QFETCH(QStringList, arguments);

    write(QStringLiteral("a.dezimo"));
    start(arguments);
    QCOMPARE(p1Text(), QStringLiteral("1W"));
}

void CommandLineTest::aFileThatCannotBeReadGivesTheDefaults_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a file that does not exist") << QStringLiteral("none.dezimo");
    QTest::newRow("a folder") << QStringLiteral(".");
    QTest::newRow("a name too long for a file") << QString(5000, QLatin1Char('x'));
}

void CommandLineTest::aFileThatCannotBeReadGivesTheDefaults()
{
    QFETCH(QString, name);

    start({name});
    QCOMPARE(p1Text(), QString());
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, CommandLineTest>(argc, argv, true);
}

#include "tst_commandline.moc"
