// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculationfiles.h"
#include "kelapplication.h"
#include "kellatepages.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"
#include "words.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QVector>

#include <functional>

using namespace Dezimo;

class CalculationFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void openStartsInTheCurrentFolder();
    void saveAsksWithTodaysDate();
    void saveWritesAllGroups();
    void saveAddsTheExtension();
    void openAsksForAnExistingFile();
    void dialogsBeginWhereTheLastFileIs_data();
    void dialogsBeginWhereTheLastFileIs();
    void dialogsBeginElsewhereIfTheFolderIsGone();
    void dialogsScrollAlikeOnEveryDesktop_data();
    void dialogsScrollAlikeOnEveryDesktop();
    void proposedNamesScrollAsThePagesDo();
    void openRestoresTheModulesAndLeavesTheWindow();
    void aCancelledDialogDoesNothing_data();
    void aCancelledDialogDoesNothing();
    void aFileThatHoldsNothingGivesTheDefaults_data();
    void aFileThatHoldsNothingGivesTheDefaults();
    void aPathThatIsNoFileGivesTheDefaults_data();
    void aPathThatIsNoFileGivesTheDefaults();
    void aFileThatCannotBeWrittenIsNotReported();
    void loadDefaultsAnnouncesWhatChanges();
    void aMalformedKeyLeavesItsNeighbors();
    void loadDefaultsKeepsTheWindow();

private:
    using DialogAction = std::function<void(QFileDialog &)>;
    /// Triggers the action, which opens a modal dialog, and does @p answer to that dialog.
    void trigger(const char *action, const DialogAction &answer);
    static void choose(QFileDialog &dialog, const QString &fileName);
    QString folderOfDialog(const char *action);
    QVector<QImage> picturesOfScrollBars(const char *action, const QColor &desktop);
    void openFromCommandLine(const QString &fileName);
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QString fieldText(const char *name) const;
    void typeExample();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void CalculationFilesTest::init()
{
    QSettings settings;
    settings.clear();
    MainProfile::instance().loadSettings(settings);
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(waitForKeyboard(*m_window));
}

void CalculationFilesTest::cleanup()
{
    m_window.reset();
}

void CalculationFilesTest::trigger(const char *action, const DialogAction &answer)
{
    bool answered = false;
    QTimer soon;
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, m_window.get(), [&answer, &answered] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        answered = true;
        answer(*dialog);
        if (dialog->isVisible()) // a comparison failed before the answer was complete
            dialog->reject();
    });
    soon.start(0);
    m_window->findChild<QAction *>(QLatin1String(action))->trigger();
    QVERIFY(answered);
}

void CalculationFilesTest::choose(QFileDialog &dialog, const QString &fileName)
{
    // A file that the dialog has selected would count more than the name. Typing ends a selection.
    dialog.setDirectory(QFileInfo(fileName).absolutePath());
    auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    name->setText(fileName);
    static_cast<QDialog &>(dialog).accept();
}

QString CalculationFilesTest::fieldText(const char *name) const
{
    return m_window->findChild<QLineEdit *>(QLatin1String(name))->text();
}

void CalculationFilesTest::typeExample()
{
    DbConverterProfile &model = MainProfile::instance().dbConverter();
    model.setP1(QStringLiteral("10dBm"));
    model.setP2(QStringLiteral("0dBm"));
    model.calculateFromP1();
    model.setCurrentMode(1);
}

/// Only the first dialog of a run starts there, and later ones start where the last file is. So
/// this test comes first.
void CalculationFilesTest::openStartsInTheCurrentFolder()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    trigger("actionOpen", [](QFileDialog &dialog) {
        QCOMPARE(dialog.directory().absolutePath(), QDir::currentPath());
        dialog.reject();
    });
    QVERIFY(QDir::setCurrent(before));
}

void CalculationFilesTest::saveAsksWithTodaysDate()
{
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    trigger("actionSave", [this, &today](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Save dB Calulation ..."));
        QCOMPARE(dialog.parentWidget(), m_window.get());
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("dB Calulation (*.dezimo)")));
        QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("dB Calulation (*.dezimo)"));
        QCOMPARE(dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
                 today + QStringLiteral(".dezimo"));
        dialog.reject();
    });
}

void CalculationFilesTest::saveWritesAllGroups()
{
    typeExample();
    const QString name = path("a.dezimo");
    trigger("actionSave", [&name](QFileDialog &dialog) { choose(dialog, name); });
    const QSettings file(name, QSettings::IniFormat);
    QStringList groups = file.childGroups();
    groups.sort();
    QCOMPARE(
        groups,
        QStringList({QStringLiteral("DbConverterProfile"), QStringLiteral("DbmCalculatorProfile"),
                     QStringLiteral("MainProfile"), QStringLiteral("UnitConverterProfile"),
                     QStringLiteral("VoltageCalculatorProfile"),
                     QStringLiteral("VswrConverterProfile")}));
    QCOMPARE(file.value(QStringLiteral("DbConverterProfile/pDb")).toString(),
             QStringLiteral("10.00"));
}

void CalculationFilesTest::saveAddsTheExtension()
{
    const QString name = path("chain");
    trigger("actionSave", [&name](QFileDialog &dialog) { choose(dialog, name); });
    QVERIFY(QFileInfo::exists(path("chain.dezimo")));
    QVERIFY(!QFileInfo::exists(name));
}

void CalculationFilesTest::openAsksForAnExistingFile()
{
    trigger("actionOpen", [this](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Open dB Calulation ..."));
        QCOMPARE(dialog.parentWidget(), m_window.get());
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("dB Calulation (*.dezimo)")));
        dialog.reject();
    });
}

/// Leaves the dialog in another folder, by a click on Cancel.
QString CalculationFilesTest::folderOfDialog(const char *action)
{
    QString folder;
    trigger(action, [&folder](QFileDialog &dialog) {
        folder = dialog.directory().canonicalPath();
        dialog.setDirectory(QDir::rootPath());
        dialog.reject();
    });
    return folder;
}

void CalculationFilesTest::openFromCommandLine(const QString &fileName)
{
    QCOMPARE(CalculationFiles::openFromCommandLine(MainProfile::instance(),
                                                   {QStringLiteral("dezimo"), fileName}),
             QString());
}

void CalculationFilesTest::dialogsBeginWhereTheLastFileIs_data()
{
    columns<QString>({"way"});
    row("the file was opened", "actionOpen");
    row("the file was saved", "actionSave");
    row("the file was named on the command line", "its name");
    row("the file was named without its folder", "its name alone");
}

/// Each time, another file was there before.
void CalculationFilesTest::dialogsBeginWhereTheLastFileIs()
{
    QFETCH(QString, way);

    const QString name = path("a.dezimo");
    if (way != QLatin1String("actionSave"))
        CalculationFiles::save(MainProfile::instance(), name);
    const QTemporaryDir elsewhere;
    CalculationFiles::save(MainProfile::instance(), elsewhere.filePath(QStringLiteral("b.dezimo")));
    if (way == QLatin1String("its name")) {
        openFromCommandLine(name);
    } else if (way == QLatin1String("its name alone")) {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        openFromCommandLine(QStringLiteral("a.dezimo"));
        QVERIFY(QDir::setCurrent(before));
    } else {
        trigger(qPrintable(way), [&name](QFileDialog &dialog) { choose(dialog, name); });
    }
    const QString folder = QDir(m_folder->path()).canonicalPath();
    QCOMPARE(folderOfDialog("actionOpen"), folder);
    QCOMPARE(folderOfDialog("actionSave"), folder);
    QCOMPARE(folderOfDialog("actionOpen"), folder);
}

void CalculationFilesTest::dialogsBeginElsewhereIfTheFolderIsGone()
{
    CalculationFiles::save(MainProfile::instance(), path("a.dezimo"));
    QVERIFY(m_folder->remove());
    const QString folder = folderOfDialog("actionOpen");
    QVERIFY(!folder.isEmpty());
    QVERIFY(folder != m_folder->path());
}

/// Both scroll bars of the list of files in the dialog.
QVector<QImage> CalculationFilesTest::picturesOfScrollBars(const char *action,
                                                           const QColor &desktop)
{
    QApplication::setPalette(QPalette(desktop));
    QVector<QImage> pictures;
    trigger(action, [this, &pictures](QFileDialog &dialog) {
        dialog.setDirectory(m_folder->path());
        dialog.setViewMode(QFileDialog::Detail);
        dialog.resize(420, 360);
        const auto *files = dialog.findChild<QTreeView *>();
        QScrollBar *const bars[] = {files->verticalScrollBar(), files->horizontalScrollBar()};
        for (QScrollBar *bar : bars) {
            QTRY_VERIFY(bar->isVisible() && bar->maximum() > 0);
            pictures += bar->grab().toImage();
        }
        dialog.reject();
    });
    return pictures;
}

void CalculationFilesTest::dialogsScrollAlikeOnEveryDesktop_data()
{
    columns<QString>({"action"});
    row("Open...", "actionOpen");
    row("Save...", "actionSave");
}

/// What the style sheets leave alone takes its colors from the desktop, which may be dark.
void CalculationFilesTest::dialogsScrollAlikeOnEveryDesktop()
{
    QFETCH(QString, action);

    for (int i = 10; i < 60; ++i)
        QVERIFY(QDir(m_folder->path()).mkdir(QString::number(i)));
    const QPalette before = QApplication::palette();
    const QByteArray name = action.toLatin1();
    const auto onBright = picturesOfScrollBars(name.constData(), QColor(240, 240, 240));
    const auto onDark = picturesOfScrollBars(name.constData(), QColor(40, 40, 40));
    QApplication::setPalette(before);
    QCOMPARE(onBright.size(), 2);
    QVERIFY(onDark == onBright);
}

/// They are in a window of their own.
void CalculationFilesTest::proposedNamesScrollAsThePagesDo()
{
    for (const char *action : {"actionOpen", "actionSave"}) {
        trigger(action, [](QFileDialog &dialog) {
            const auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            const QAbstractItemView *proposals = name->completer()->popup();
            QVERIFY(qobject_cast<KelScrollBar *>(proposals->verticalScrollBar()));
            dialog.reject();
        });
    }
}

void CalculationFilesTest::openRestoresTheModulesAndLeavesTheWindow()
{
    MainProfile &profile = MainProfile::instance();
    typeExample();
    profile.setDecimalPlaces(9);
    profile.setCurrentModule(2);
    const QString name = path("a.dezimo");
    trigger("actionSave", [&name](QFileDialog &dialog) { choose(dialog, name); });
    {
        QSettings file(name, QSettings::IniFormat);
        file.setValue(QStringLiteral("MainProfile/windowPosition"), QPoint(77, 88));
        file.setValue(QStringLiteral("MainProfile/windowMode"), 1);
    }
    m_window->findChild<QAction *>(QStringLiteral("actionLoad_Defaults"))->trigger();
    profile.setDecimalPlaces(4);
    profile.setCurrentModule(3);
    const QPoint position = m_window->pos();

    trigger("actionOpen", [&name](QFileDialog &dialog) { choose(dialog, name); });
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("10dBm"));
    QCOMPARE(fieldText("p2LineEdit"), QStringLiteral("0dBm"));
    QCOMPARE(fieldText("pRatioLineEdit"), QStringLiteral("10"));
    QCOMPARE(fieldText("pDbLineEdit"), QStringLiteral("10.00"));
    QCOMPARE(profile.dbConverter().currentMode(), 1);
    QCOMPARE(profile.decimalPlaces(), 4);
    QCOMPARE(profile.currentModule(), 3);
    QCOMPARE(profile.windowMode(), 0);
    QCOMPARE(m_window->pos(), position);
}

void CalculationFilesTest::aCancelledDialogDoesNothing_data()
{
    QTest::addColumn<QByteArray>("action");

    QTest::newRow("Open...") << QByteArray("actionOpen");
    QTest::newRow("Save...") << QByteArray("actionSave");
}

void CalculationFilesTest::aCancelledDialogDoesNothing()
{
    QFETCH(QByteArray, action);

    typeExample();
    trigger(action.constData(), [this](QFileDialog &dialog) {
        dialog.setDirectory(m_folder->path());
        dialog.reject();
    });
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("10dBm"));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void CalculationFilesTest::aFileThatHoldsNothingGivesTheDefaults_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("binary noise") << QByteArray("\0\1\2\377\376[[[==\n\r\\x", 15);
    QTest::newRow("a text that is no INI file") << QByteArray("Dear reader,\nthis is a letter.\n");
    QTest::newRow("other groups") << QByteArray("[Other]\np1=5\n");
}

void CalculationFilesTest::aFileThatHoldsNothingGivesTheDefaults()
{
    QFETCH(QByteArray, bytes);

    const QString name = path("a.dezimo");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    typeExample();
    trigger("actionOpen", [&name](QFileDialog &dialog) { choose(dialog, name); });
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("pDbLineEdit"), QString());
    QCOMPARE(MainProfile::instance().dbConverter().currentMode(), 0);
}

void CalculationFilesTest::aMalformedKeyLeavesItsNeighbors()
{
    const QString name = path("a.dezimo");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[DbConverterProfile]\np1=@Point(1 2)\np2=7W\ncurrentMode=many\npRatio=1,2\n");
    file.close();
    typeExample();
    trigger("actionOpen", [&name](QFileDialog &dialog) { choose(dialog, name); });
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("p2LineEdit"), QStringLiteral("7W"));
    QCOMPARE(fieldText("pRatioLineEdit"), QString());
    QCOMPARE(MainProfile::instance().dbConverter().currentMode(), 0);
}

void CalculationFilesTest::loadDefaultsKeepsTheWindow()
{
    MainProfile &profile = MainProfile::instance();
    typeExample();
    profile.setDecimalPlaces(8);
    profile.setCurrentModule(3);
    profile.setWindowMode(1);
    m_window->findChild<QAction *>(QStringLiteral("actionLoad_Defaults"))->trigger();
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("pDbLineEdit"), QString());
    QCOMPARE(profile.dbConverter().pLatestRun(), 0);
    QCOMPARE(profile.decimalPlaces(), 8);
    QCOMPARE(profile.currentModule(), 3);
    QCOMPARE(profile.windowMode(), 1);
}

void CalculationFilesTest::aPathThatIsNoFileGivesTheDefaults_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a file that does not exist") << "missing.dezimo";
    QTest::newRow("a file in a folder that does not exist") << "missing/a.dezimo";
    QTest::newRow("a folder") << ".";
}

void CalculationFilesTest::aPathThatIsNoFileGivesTheDefaults()
{
    QFETCH(QString, name);

    typeExample();
    CalculationFiles::open(MainProfile::instance(), m_folder->filePath(name));
    QCOMPARE(fieldText("p1LineEdit"), QString());
    QCOMPARE(fieldText("pDbLineEdit"), QString());
    QCOMPARE(MainProfile::instance().dbConverter().currentMode(), 0);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void CalculationFilesTest::aFileThatCannotBeWrittenIsNotReported()
{
    QFile file(path("regular"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("as it was");
    file.close();

    typeExample();
    CalculationFiles::save(MainProfile::instance(), path("regular/a.dezimo"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(QStringLiteral("regular")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("as it was"));
    QCOMPARE(fieldText("p1LineEdit"), QStringLiteral("10dBm"));
}

void CalculationFilesTest::loadDefaultsAnnouncesWhatChanges()
{
    typeExample();
    DbConverterProfile &model = MainProfile::instance().dbConverter();
    ChangeLog modelLog(model);
    ChangeLog windowLog(MainProfile::instance());
    m_window->findChild<QAction *>(QStringLiteral("actionLoad_Defaults"))->trigger();
    // Every value of the example differs from the default. The voltages were empty before.
    QCOMPARE(modelLog.take(), words("p1 p2 pRatio pDb pLatestRun currentMode"));
    QCOMPARE(windowLog.take(), QStringList());
    m_window->findChild<QAction *>(QStringLiteral("actionLoad_Defaults"))->trigger();
    QCOMPARE(modelLog.take(), QStringList());
}

/// The test answers Qt's own dialogs through their widgets, because the system's dialogs have none.
int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return runTestMain<KelApplication, CalculationFilesTest>(argc, argv, true);
}

#include "tst_calculationfiles.moc"
