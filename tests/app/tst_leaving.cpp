// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "kellineedit.h"
#include "lookingcase.h"
#include "table.h"
#include "testmain.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVector>

/// An edit in the window is finished exactly once, whatever the person does next.
class LeavingTest : public LookingCase
{
    Q_OBJECT

private Q_SLOTS:
    void anEditIsFinishedOnce_data();
    void anEditIsFinishedOnce();
    void menusOfFieldsHaveTheFontOfMenus();

private:
    struct Way
    {
        const char *name;
        void (LeavingTest::*go)();
    };
    static const QVector<Way> &leavings();

    void leaveByTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    void leaveByQuit() { child<QAction>("actionQuit")->trigger(); }
    void leaveByClosing() { m_window->close(); }
    void leaveByTheEndOfTheWindow() { m_window.reset(); }

    QFont fontOfContextMenu(QWidget &field);
};

/// Each way leads out of the edited field.
const QVector<LeavingTest::Way> &LeavingTest::leavings()
{
    using Test = LeavingTest;
    static const QVector<Way> all{
        {"by Tab", &Test::leaveByTab},
        {"by another field", &Test::clickEveryField},
        {"by another page", &Test::visitEveryOtherPage},
        {"by a menu", &Test::openEveryMenu},
        {"by another window", &Test::activateAnotherWindow},
        {"by minimizing", &Test::minimizeAndRestore},
        {"by About", &Test::openAbout},
        {"by Save...", &Test::saveToAFile},
        {"by Quit", &Test::leaveByQuit},
        {"by closing the window", &Test::leaveByClosing},
        {"by the end of the window", &Test::leaveByTheEndOfTheWindow},
    };
    return all;
}

void LeavingTest::anEditIsFinishedOnce_data()
{
    columns<int, QString, QString, QString, QString, int>(
        {"page", "field", "typed", "key", "result", "leaving"});
    const char *const level = "UnitConverterProfile/logPower";
    const char *const ratio = "DbConverterProfile/pRatio";
    const char *const loss = "VswrConverterProfile/ar";
    for (int i = 0; i < leavings().size(); ++i) {
        const auto add = [i](const char *edit, auto... cells) {
            const QByteArray tag = QByteArray(edit) + ", left " + leavings().at(i).name;
            row(tag.constData(), cells..., i);
        };
        add("a power", 2, "wattLineEdit", "20", level, "13.01");                  // 10 log10 20
        add("a first operand", kDbConverter, "p1LineEdit", "4W", ratio, "1.333"); // 4 W / 3 W
        add("a reflection coefficient", 4, "rLineEdit", "0.5", loss, "6.02");     // -20 log10 0.5
    }
}

void LeavingTest::anEditIsFinishedOnce()
{
    QFETCH(int, page);
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, key);
    QFETCH(QString, result);
    QFETCH(int, leaving);

    openPage(page);
    auto *edit = m_window->findChild<KelLineEdit *>(field);
    QSignalSpy finished(edit, &QLineEdit::editingFinished);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    QCOMPARE(finished.count(), 0);
    (this->*leavings().at(leaving).go)();
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 1);
    if (m_window)
        m_window->close();
    m_window.reset();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(QSettings().value(key).toString(), result);
}

/// A spin box waits in its own event handler until its menu is closed, so a timer closes the menu.
QFont LeavingTest::fontOfContextMenu(QWidget &field)
{
    QFont font;
    bool isShown = false;
    QTimer untilItIsThere;
    connect(&untilItIsThere, &QTimer::timeout, m_window.get(), [&] {
        if (!QApplication::activePopupWidget())
            return;
        font = QApplication::activePopupWidget()->font();
        isShown = true;
        closePopup();
    });
    untilItIsThere.start(0);
    const QPoint middle = field.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, field.mapToGlobal(middle));
    QCoreApplication::sendEvent(&field, &event);
    return QTest::qWaitFor([&isShown] { return isShown; }) ? font : QFont();
}

void LeavingTest::menusOfFieldsHaveTheFontOfMenus()
{
    for (int page = 0; page < kPages; ++page) {
        openPage(page);
        auto *expected = child<QMenu>("menuFile");
        expected->ensurePolished();
        const QList<QLineEdit *> fields = shownFields();
        for (QLineEdit *field : fields)
            QCOMPARE(fontOfContextMenu(*field).toString(), expected->font().toString());
        m_window.reset();
    }
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return runTestMain<KelApplication, LeavingTest>(argc, argv, true);
}

#include "tst_leaving.moc"
