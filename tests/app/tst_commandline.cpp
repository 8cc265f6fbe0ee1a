// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "table.h"
#include "testmain.h"
#include "words.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

using namespace Dezimo;

namespace {

/// A calculation file with one module's value and window settings that the program must ignore.
constexpr char kExample[] = "[MainProfile]\ncurrentModule=1\ndecimalPlaces=9\n"
                            "[DbConverterProfile]\np1=5W\n";

void write(const QString &fileName, const QByteArray &text = kExample)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

} // namespace

/// Tests what a double click on a calculation file does: the desktop starts the program with the
/// file's name.
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
    void aFileThatCannotBeReadChangesNothing_data();
    void aFileThatCannotBeReadChangesNothing();
    void theComplaintIsOneLineWhateverTheName_data();
    void theComplaintIsOneLineWhateverTheName();
    void aFileThatHoldsNoCalculationGivesTheDefaults_data();
    void aFileThatHoldsNoCalculationGivesTheDefaults();

private:
    /// Opens the file in the arguments, as main() does after showing the window, and returns what
    /// main() then prints.
    static QString start(const QStringList &arguments);
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

QString CommandLineTest::start(const QStringList &arguments)
{
    return CalculationFiles::openFromCommandLine(MainProfile::instance(),
                                                 QStringList(QStringLiteral("dezimo")) + arguments);
}

QString CommandLineTest::p1Text() const
{
    return m_window->findChild<QLineEdit *>(QStringLiteral("p1LineEdit"))->text();
}

void CommandLineTest::opensOneFile_data()
{
    columns<QString, bool>({"name", "absolute"});
    row("an absolute name", "a.dezimo", true);
    row("a name relative to the current folder", "a.dezimo", false);
    row("a name in a folder above and below", "sub/../a.dezimo", false);
    row("a name with spaces", "two  antennas .dezimo", true);
    row("a name beyond ASCII", "Dämpfung 10 µW – 测量.dezimo", true);
    row("a name with a hyphen in it", "a-b.dezimo", false);
    row("a name with another extension", "a.ini", false);
    row("a name with a percent sign", "100%20.dezimo", true);
}

void CommandLineTest::opensOneFile()
{
    QFETCH(QString, name);
    QFETCH(bool, absolute);

    QVERIFY(QDir().mkdir(QStringLiteral("sub")));
    write(name);
    QCOMPARE(start({absolute ? m_folder->filePath(name) : name}), QString());
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
    columns<QStringList>({"arguments"});

    const QString name = QStringLiteral("a.dezimo");
    row("no argument", QStringList());
    row("an empty argument", QStringList(QString()));
    row("an option", words("--help"));
    row("two names", QStringList({name, name}));
    row("a name after an option", QStringList({QStringLiteral("--open"), name}));
    row("a name and an empty argument", QStringList({name, QString()}));
}

void CommandLineTest::ignoresAllElse()
{
    QFETCH(QStringList, arguments);

    write(QStringLiteral("a.dezimo"));
    QCOMPARE(start(arguments), QString());
    QCOMPARE(p1Text(), QStringLiteral("1W"));
}

/// tst_damagedfiles has the files that cannot be read for other reasons. Most exist only on Unix.
void CommandLineTest::aFileThatCannotBeReadChangesNothing_data()
{
    columns<QString, QString>({"name", "reason"});
    // The system gives the other reasons in its own language, so the test does not compare them.
    const QString ofTheSystem;
    row("a file that does not exist", "none.dezimo", ofTheSystem);
    row("a file in a folder that does not exist", "none/a.dezimo", ofTheSystem);
    row("a name too long for a file", QString(5000, QLatin1Char('x')), ofTheSystem);
    row("a name with a percent sign", "%2%1.dezimo", ofTheSystem);
    row("a folder", ".", "It is a folder");
}

void CommandLineTest::aFileThatCannotBeReadChangesNothing()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);

    const QString said = start({name});
    const QString beginning = QStringLiteral("dezimo: cannot open %1: ").arg(name);
    QCOMPARE(said.left(beginning.size()), beginning);
    if (reason.isEmpty())
        QVERIFY(said.size() > beginning.size());
    else
        QCOMPARE(said.mid(beginning.size()), reason);
    QCOMPARE(p1Text(), QStringLiteral("1W"));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void CommandLineTest::theComplaintIsOneLineWhateverTheName_data()
{
    columns<QString, QString>({"name", "shown"});
    row("letters beyond ASCII", "Dämpfung–测量", "Dämpfung–测量");
    row("a letter beyond 16 bits", "a😀", "a😀");
    row("line breaks", "a\r\nb", "a??b");
    row("a separator of lines", "a\u2028b", "a?b");
    row("a separator of paragraphs", "a\u2029b", "a?b");
    row("what a terminal takes for a command", "\x1b[2Ja", "?[2Ja");
    row("what turns the direction of a text", "a\u202eb", "a?b");
}

void CommandLineTest::theComplaintIsOneLineWhateverTheName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);

    const QString beginning = QStringLiteral("dezimo: cannot open %1: ").arg(shown);
    QCOMPARE(start({name}).left(beginning.size()), beginning);
}

void CommandLineTest::aFileThatHoldsNoCalculationGivesTheDefaults_data()
{
    columns<QByteArray>({"text"});
    row("an empty file", QByteArray());
    row("prose", QByteArray("It was a dark and stormy night.\n"));
    row("bytes", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe[[[===", 24));
    row("another program's groups", QByteArray("[Other]\np1=5W\n"));
}

/// Such a file opens without an error, as it does by Open... in the menu.
void CommandLineTest::aFileThatHoldsNoCalculationGivesTheDefaults()
{
    QFETCH(QByteArray, text);

    write(QStringLiteral("a.dezimo"), text);
    QCOMPARE(start({QStringLiteral("a.dezimo")}), QString());
    QCOMPARE(p1Text(), QString());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, CommandLineTest>(argc, argv, true);
}

#include "tst_commandline.moc"
