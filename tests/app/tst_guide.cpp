// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "errortexts.h"
#include "guide.h"
#include "kelapplication.h"
#include "mainprofile.h"
#include "mainwindow.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using namespace Dezimo;

namespace {

constexpr int kFewestExamplesOfAModule = 8;
constexpr int kLargestPicture = 40 * 1024; ///< bytes
const QString kDecimalPlaces = QStringLiteral("Decimal Places");

QString sourceFile(const char *name)
{
    return QStringLiteral(DEZIMO_SOURCE_DIR) + QLatin1Char('/') + QLatin1String(name);
}

QString contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const Guide &guide()
{
    static const Guide read = Guide::parsed(contentsOf(sourceFile("docs/guide.md")));
    return read;
}

/// Shows the tab of a field first, as a person does.
void bringToFront(QWidget *widget)
{
    for (QWidget *page = widget; page != nullptr; page = page->parentWidget()) {
        QWidget *stack = page->parentWidget();
        auto *tabs = qobject_cast<QTabWidget *>(stack == nullptr ? nullptr : stack->parentWidget());
        if (tabs != nullptr && tabs->indexOf(page) >= 0)
            tabs->setCurrentWidget(page);
    }
}

QString textOf(const QWidget &field)
{
    if (const auto *selector = qobject_cast<const QComboBox *>(&field))
        return selector->isVisible() ? selector->currentText() : QString();
    const auto *edit = qobject_cast<const QLineEdit *>(&field);
    return edit != nullptr ? edit->text() : QStringLiteral("not a field");
}

} // namespace

Q_DECLARE_METATYPE(Guide::Example)

/// The window does what the guide says: the test types every worked example and compares the
/// results.
class GuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void findsWhatCannotBeRead_data();
    void findsWhatCannotBeRead();
    void everyExampleCanBeRead();
    void everyModuleHasExamples_data();
    void everyModuleHasExamples();
    void everyFieldIsInAnExample_data();
    void everyFieldIsInAnExample();
    void showsWhatItSays_data();
    void showsWhatItSays();
    void everyErrorWordIsExplained();
    void everyPictureIsThere_data();
    void everyPictureIsThere();

private:
    void eachModule();
    QWidget *showModule(const QString &name);
    QWidget *find(const QString &name);
    QComboBox *unitSelector(const Guide::Entry &entry);
    void chooseDecimalPlaces(const QString &number);
    void type(const Guide::Entry &entry);
    void compare(const Guide::Entry &entry);

    std::unique_ptr<MainWindow> m_window;
    QWidget *m_page = nullptr; ///< of the module that is shown
};

void GuideTest::initTestCase()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(waitForKeyboard(*m_window));
}

void GuideTest::cleanupTestCase()
{
    m_window.reset();
}

/// Null if there is no such module.
QWidget *GuideTest::showModule(const QString &name)
{
    auto *modules = m_window->findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    const QList<QListWidgetItem *> items = modules->findItems(name, Qt::MatchExactly);
    if (items.isEmpty())
        return nullptr;
    modules->setCurrentItem(items.constFirst());
    return m_window->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget();
}

/// Finds a widget of the page by the name that a screen reader says, and brings it to the front.
QWidget *GuideTest::find(const QString &name)
{
    const QList<QWidget *> widgets = m_page->findChildren<QWidget *>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&name](const QWidget *widget) {
        return widget->accessibleName() == name;
    });
    if (found == widgets.end())
        return nullptr;
    bringToFront(*found);
    return *found;
}

/// "`10 dBm`" means the text 10 in the field and dBm in the selector beside it, if there is one.
QComboBox *GuideTest::unitSelector(const Guide::Entry &entry)
{
    auto *selector = qobject_cast<QComboBox *>(find(entry.field + QLatin1String(" unit")));
    const QString unit = entry.text.section(QLatin1Char(' '), -1);
    return selector != nullptr && unit != entry.text && selector->findText(unit) >= 0 ? selector
                                                                                      : nullptr;
}

void GuideTest::chooseDecimalPlaces(const QString &number)
{
    auto *menu = m_window->findChild<QMenu *>(QStringLiteral("menuDecimal_Places"));
    Q_EMIT menu->aboutToShow();
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == number)
            action->trigger();
    }
    QCOMPARE(QString::number(MainProfile::instance().decimalPlaces()), number);
}

/// A calculator follows every keystroke, and Return would make its result the next input. A
/// converter waits for Return. A unit is chosen before its number is typed.
void GuideTest::type(const Guide::Entry &entry)
{
    if (entry.field == kDecimalPlaces)
        return chooseDecimalPlaces(entry.text);
    if (QComboBox *selector = unitSelector(entry)) {
        selector->setCurrentText(entry.text.section(QLatin1Char(' '), -1));
        return type({entry.field, entry.text.section(QLatin1Char(' '), 0, -2)});
    }
    QWidget *field = find(entry.field);
    QVERIFY2(field != nullptr, qPrintable(QLatin1String("no field ") + entry.field));
    if (auto *selector = qobject_cast<QComboBox *>(field)) {
        selector->setCurrentText(entry.text);
        QCOMPARE(selector->currentText(), entry.text);
    } else if (auto *spinBox = qobject_cast<QSpinBox *>(field)) {
        spinBox->setFocus();
        spinBox->selectAll();
        QTest::keyClicks(spinBox, entry.text);
    } else if (auto *edit = qobject_cast<QLineEdit *>(field)) {
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, entry.text);
        if (edit->objectName() != QLatin1String("inputLineEdit"))
            QTest::keyClick(edit, Qt::Key_Return);
    } else {
        const QList<QPushButton *> segments = field->findChildren<QPushButton *>();
        for (QPushButton *segment : segments) {
            if (segment->text() == entry.text)
                return QTest::mouseClick(segment, Qt::LeftButton);
        }
        QFAIL(qPrintable(entry.field + QLatin1String(" cannot be set to ") + entry.text));
    }
}

void GuideTest::compare(const Guide::Entry &entry)
{
    QWidget *field = find(entry.field);
    QVERIFY2(field != nullptr, qPrintable(QLatin1String("no field ") + entry.field));
    QString shown = textOf(*field);
    if (const QComboBox *selector = unitSelector(entry))
        shown += QLatin1Char(' ') + textOf(*selector);
    QVERIFY2(shown == entry.text, qPrintable(entry.field + QLatin1String(" shows ") + shown +
                                             QLatin1String(", not ") + entry.text));
}

void GuideTest::findsWhatCannotBeRead_data()
{
    columns<QString, int, QStringList>({"table", "examples", "problems"});

    const auto table = [](const char *columns, const char *row) {
        return QStringLiteral("## dB Converter\n\n%1\n|---|---|\n%2\n")
            .arg(QString::fromUtf8(columns), QString::fromUtf8(row));
    };
    const auto problem = [](const char *row) {
        return QStringList{QStringLiteral("line 5: ") + QString::fromUtf8(row)};
    };
    row("a row that can be read", table("| Type | Shows |", "| A `1`, B `2` | C *empty* |"), 1,
        QStringList());
    row("a table of something else", table("| Word | Meaning |", "| A | B |"), 0, QStringList());
    const struct
    {
        const char *tag;
        const char *row;
    } rows[] = {
        {"a field without a text", "| A | B `2` |"},
        {"a text without a field", "| `1` | B `2` |"},
        {"words after the last text", "| A `1` | B `2` or so |"},
        {"words between two texts", "| A `1` and then, B `2` | C `3` |"},
        {"a comma at the end", "| A `1`, | B `2` |"},
        {"nothing shown", "| A `1` | |"},
        {"a cell too many", "| A `1` | B `2` | C `3` |"},
    };
    for (const auto &spoiled : rows)
        row(spoiled.tag, table("| Type | Shows |", spoiled.row), 0, problem(spoiled.row));
    row("a table that shows nothing", table("| Type | Show |", "| A `1` | B `2` |"), 0,
        problem("| A `1` | B `2` |"));
}

void GuideTest::findsWhatCannotBeRead()
{
    QFETCH(QString, table);
    QFETCH(int, examples);
    QFETCH(QStringList, problems);

    const Guide read = Guide::parsed(table);
    QCOMPARE(read.examples.size(), examples);
    QCOMPARE(read.problems, problems);
}

void GuideTest::everyExampleCanBeRead()
{
    QCOMPARE(guide().problems, QStringList());
}

void GuideTest::eachModule()
{
    columns<QString>({"module"});
    for (const char *module : {"dBm Calculator", "Voltage Calculator", "Unit Converter",
                               "dB Converter", "VSWR Converter"})
        row(module, module);
}

void GuideTest::everyModuleHasExamples_data()
{
    eachModule();
}

void GuideTest::everyModuleHasExamples()
{
    QFETCH(QString, module);

    const auto count = std::count_if(
        guide().examples.begin(), guide().examples.end(),
        [&module](const Guide::Example &example) { return example.module == module; });
    QVERIFY2(count >= kFewestExamplesOfAModule, QByteArray::number(int(count)).constData());
}

void GuideTest::everyFieldIsInAnExample_data()
{
    eachModule();
}

void GuideTest::everyFieldIsInAnExample()
{
    QFETCH(QString, module);

    QStringList missing;
    const QList<QLineEdit *> edits = showModule(module)->findChildren<QLineEdit *>();
    for (const QLineEdit *edit : edits)
        missing += edit->accessibleName();
    for (const Guide::Example &example : guide().examples) {
        if (example.module != module)
            continue;
        const QList<Guide::Entry> entries = example.typed + example.shown;
        for (const Guide::Entry &entry : entries)
            missing.removeAll(entry.field);
    }
    missing.removeAll(QString()); // the edit inside a spin box, which has the name
    QCOMPARE(missing, QStringList());
}

void GuideTest::showsWhatItSays_data()
{
    columns<Guide::Example>({"example"});
    for (const Guide::Example &example : guide().examples)
        QTest::addRow("line %d", example.line) << example;
}

void GuideTest::showsWhatItSays()
{
    QFETCH(const Guide::Example, example);

    m_window->findChild<QAction *>(QStringLiteral("actionLoad_Defaults"))->trigger();
    MainProfile::instance().setDecimalPlaces(3);
    m_page = showModule(example.module);
    QVERIFY2(m_page != nullptr, qPrintable(QLatin1String("no module ") + example.module));
    for (const Guide::Entry &entry : example.typed)
        type(entry);
    for (const Guide::Entry &entry : example.shown) {
        compare(entry);
        if (QTest::currentTestFailed())
            return;
    }
}

void GuideTest::everyErrorWordIsExplained()
{
    const QString text = contentsOf(sourceFile("docs/guide.md"));
    const QStringList words = ErrorText::all() << ErrorText::kNoResult;
    for (const QString &word : words)
        QVERIFY2(text.contains(QStringLiteral("\n| `%1` |").arg(word)), qPrintable(word));
}

void GuideTest::everyPictureIsThere_data()
{
    columns<QString>({"fileName"});

    static const QRegularExpression link(
        QStringLiteral("(?:\\]\\(|src=\")(?<target>[^)\"]+\\.png)[)\"]"));
    for (const char *page : {"README.md", "docs/guide.md"}) {
        const QFileInfo file(sourceFile(page));
        for (auto it = link.globalMatch(contentsOf(file.filePath())); it.hasNext();) {
            const QString target = it.next().captured(QStringLiteral("target"));
            QTest::addRow("%s: %s", page, qPrintable(target)) << file.dir().filePath(target);
        }
    }
}

void GuideTest::everyPictureIsThere()
{
    QFETCH(QString, fileName);

    QCOMPARE(QImage(fileName).size(), QSize(958, 605));
    const qint64 bytes = QFileInfo(fileName).size();
    QVERIFY2(bytes <= kLargestPicture, QByteArray::number(bytes).constData());
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, GuideTest>(argc, argv, true);
}

#include "tst_guide.moc"
