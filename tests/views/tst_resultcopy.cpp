// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "calculatorpage.h"
#include "dbmcalculatorwidget.h"
#include "expectedmessages.h"
#include "table.h"
#include "testmain.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

using namespace Dezimo;

/// A result is copied as one reads it. The clipboard holds another text before each test.
class ResultCopyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void copiesTheResult_data() { results(); }
    void copiesTheResult();
    void theContextMenuCopiesTheResult_data() { results(); }
    void theContextMenuCopiesTheResult();
    void copiesWhatIsSelected_data();
    void copiesWhatIsSelected();
    void copiesWhatSlides();
    void copiesWhatWasTakenOver();
    void theContextMenuKeepsItsOwnEntries();
    void whatIsCopiedCanBePasted_data();
    void whatIsCopiedCanBePasted();

private:
    static void results();

    DbmCalculatorProfile &m_profile = MainProfile::instance().dbmCalculator();
};

namespace {

const QString kBefore = QStringLiteral("copied before");

CalculatorPage shownPage()
{
    return CalculatorPage::shown<DbmCalculatorWidget>();
}

QString copied()
{
    return QApplication::clipboard()->text();
}

QMenu &openContextMenu(QWidget &field)
{
    const QPoint middle = field.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, field.mapToGlobal(middle));
    QCoreApplication::sendEvent(&field, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("no context menu");
    return *menu;
}

/// The entries without their keys and mnemonics.
QStringList entriesOf(const QMenu &menu)
{
    QStringList entries;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            entries += action->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
    }
    return entries;
}

} // namespace

void ResultCopyTest::initTestCase()
{
    applyStyleSheet();
}

void ResultCopyTest::init()
{
    loadDefaults();
    QApplication::clipboard()->setText(kBefore);
}

void ResultCopyTest::results()
{
    columns<QString, QString>({"input", "copy"});
    row("a level", "10dBm+10dBm", "10.00 dBm");
    row("a ratio", "3dB-10dB", "-7.00 dB");
    row("a power without a level", "1mW-2mW", "-1 mW");
    row("a plain number alone", "1+2", "3");
    row("no invalid input", "10dBm", kBefore);
    row("no missing unit", "1mW+1", kBefore);
    row("no missing bracket, which has a unit beside it", "(1mW", kBefore);
    row("no dashes of the first start", "", kBefore);
}

void ResultCopyTest::copiesTheResult()
{
    QFETCH(QString, input);
    QFETCH(QString, copy);

    CalculatorPage page = shownPage();
    page.type(input);
    QTest::keySequence(&page.input(), QKeySequence::Copy);
    QCOMPARE(copied(), copy);

    QApplication::clipboard()->setText(kBefore);
    page.output().setFocus();
    page.output().deselect();
    QTest::keySequence(&page.output(), QKeySequence::Copy);
    QCOMPARE(copied(), copy);
    QCOMPARE(page.input().text(), input);
}

void ResultCopyTest::theContextMenuCopiesTheResult()
{
    QFETCH(QString, input);
    QFETCH(QString, copy);

    const ExpectedMessages messages(offscreenPopupMessages());
    CalculatorPage page = shownPage();
    page.type(input);
    page.output().setFocus();
    page.output().selectAll(); // which the entry does not look at
    QMenu &menu = openContextMenu(page.output());
    QAction *entry = menu.actions().constFirst();
    QCOMPARE(entry->text(), QStringLiteral("Copy with Unit"));
    QCOMPARE(entry->isEnabled(), copy != kBefore);
    menu.setActiveAction(entry);
    QTest::keyClick(&menu, entry->isEnabled() ? Qt::Key_Return : Qt::Key_Escape);
    QCOMPARE(copied(), copy);
}

void ResultCopyTest::copiesWhatIsSelected_data()
{
    columns<bool, QString>({"inResult", "copy"});
    row("in the input", false, "0dB");
    row("in the result", true, "0.0");
}

void ResultCopyTest::copiesWhatIsSelected()
{
    QFETCH(bool, inResult);
    QFETCH(QString, copy);

    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    QLineEdit &field = inResult ? page.output() : page.input();
    field.setFocus();
    field.setSelection(1, 3);
    QTest::keySequence(&field, QKeySequence::Copy);
    QCOMPARE(copied(), copy);
}

/// The model has an error already.
void ResultCopyTest::copiesWhatSlides()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.type(Qt::Key_Return);
    QCOMPARE(m_profile.output(), QStringLiteral("invalid input"));
    QTest::keySequence(&page.input(), QKeySequence::Copy);
    QCOMPARE(copied(), QStringLiteral("10.00 dBm"));
}

void ResultCopyTest::copiesWhatWasTakenOver()
{
    CalculatorPage page = shownPage();
    page.type("10dBm+13dBm");
    page.type(Qt::Key_Return);
    QTRY_COMPARE(page.output().text(), QString());
    QTest::keySequence(&page.input(), QKeySequence::Copy);
    QCOMPARE(copied(), page.input().text());
    QVERIFY(copied().endsWith(QLatin1String(" dBm")));
}

void ResultCopyTest::theContextMenuKeepsItsOwnEntries()
{
    const ExpectedMessages messages(offscreenPopupMessages());
    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    for (int time = 1; time <= 2; ++time) {
        QMenu &menu = openContextMenu(page.output());
        QCOMPARE(entriesOf(menu),
                 (QStringList{QStringLiteral("Copy with Unit"), QStringLiteral("Copy"),
                              QStringLiteral("Select All")}));
        QTest::keyClick(&menu, Qt::Key_Escape);
    }
}

void ResultCopyTest::whatIsCopiedCanBePasted_data()
{
    columns<int>({"unit"});
    row("in dBm", 0);
    row("in mW", 1);
    row("in W", 2);
    row("in \u00B5W, which is 1E+04", 3);
    row("in dBW", 4);
}

void ResultCopyTest::whatIsCopiedCanBePasted()
{
    QFETCH(int, unit);

    CalculatorPage page = shownPage();
    page.type("10dBm+10dBm");
    page.unit().setCurrentIndex(unit);
    const QString result = page.result();
    QTest::keySequence(&page.input(), QKeySequence::Copy);

    page.input().clear();
    QTest::keySequence(&page.input(), QKeySequence::Paste);
    page.type("+0dB");
    QCOMPARE(page.input().text().remove(QLatin1String("+0dB")),
             QString(result).remove(QLatin1Char(' ')));
    QCOMPARE(page.result(), result);
}

DEZIMO_TEST_MAIN(QApplication, ResultCopyTest)
#include "tst_resultcopy.moc"
