// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "endrequests.h"
#include "kelapplication.h"
#include "mainwindowcase.h"
#include "testmain.h"

#include <QAbstractAnimation>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <csignal>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

/// Tests what the program does when the system asks it to end. endrequests_test.py really ends
/// sessions.
class EndRequestsTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepingTheStateFinishesTheEditAndGoesOn();
    void keepingTheStateDuringASlideKeepsNoError();
    void endingClosesADialogAndItsLoop();
    void askingTwiceIsReceivedOnce();
#ifndef Q_OS_WIN
    void anIgnoredSignalStaysIgnored();
    void aSignalLeavesTheErrorNumberAlone();
#endif

private:
    /// Edits both powers of the dB converter and leaves the second edit unfinished.
    void type();
    static void ask(const QWidget &window);
    static QString stored(const char *key);
};

void EndRequestsTest::type()
{
    store("currentModule", 3);
    openWindow();
    QTest::keyClicks(child<QLineEdit>("p1LineEdit"), QStringLiteral("10dBm"));
    child("p2LineEdit")->setFocus();
    QTest::keyClicks(child<QLineEdit>("p2LineEdit"), QStringLiteral("0dBm"));
    QCOMPARE(child<QLineEdit>("pRatioLineEdit")->text(), QString());
}

void EndRequestsTest::ask(const QWidget &window)
{
#ifdef Q_OS_WIN
    SendMessageW(reinterpret_cast<HWND>(window.winId()), WM_ENDSESSION, TRUE, 0);
#else
    Q_UNUSED(window)
    QCOMPARE(raise(SIGTERM), 0);
#endif
}

QString EndRequestsTest::stored(const char *key)
{
    return QSettings().value(QLatin1String("DbConverterProfile/") + QLatin1String(key)).toString();
}

/// A session that was about to end may go on, so the cursor must stay where the person types.
void EndRequestsTest::keepingTheStateFinishesTheEditAndGoesOn()
{
    type();
    m_window->keepState();
    QCOMPARE(stored("pRatio"), QStringLiteral("10"));
    QCOMPARE(child<QLineEdit>("pDbLineEdit")->text(), QStringLiteral("10.00"));
    QVERIFY(m_window->isVisible());
    QVERIFY(child("p2LineEdit")->hasFocus());
    QCOMPARE(child<QLineEdit>("p2LineEdit")->text(), QStringLiteral("0dBm"));
}

/// The process may be gone before the result has slid into the input.
void EndRequestsTest::keepingTheStateDuringASlideKeepsNoError()
{
    openWindow();
    auto *input =
        child("dbmCalculatorWidget")->findChild<QLineEdit *>(QStringLiteral("inputLineEdit"));
    QTest::keyClicks(input, QStringLiteral("10dBm+3dB"));
    QTest::keyClick(input, Qt::Key_Return);
    QVERIFY(m_window->findChild<QAbstractAnimation *>());
    m_window->keepState();
    const QSettings settings;
    QCOMPARE(settings.value(QStringLiteral("DbmCalculatorProfile/input")).toString(),
             QStringLiteral("13.00 dBm"));
    QCOMPARE(settings.value(QStringLiteral("DbmCalculatorProfile/output")).toString(), QString());
}

void EndRequestsTest::endingClosesADialogAndItsLoop()
{
    type();
    QFileDialog dialog(m_window.get());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QTimer soon;
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, m_window.get(), &MainWindow::endProgram);
    soon.start(0);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!m_window->isVisible());
    QCOMPARE(stored("pRatio"), QStringLiteral("10"));
}

/// No event loop is needed after this test, because on Windows Qt starts none.
void EndRequestsTest::askingTwiceIsReceivedOnce()
{
    const EndRequests requests;
    QSignalSpy received(&requests, &EndRequests::received);
    openWindow();
    ask(*m_window);
    ask(*m_window);
    QTRY_COMPARE(received.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(received.count(), 1);
}

#ifndef Q_OS_WIN
/// The program goes on after its terminal is closed if it was started with nohup.
void EndRequestsTest::anIgnoredSignalStaysIgnored()
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    const EndRequests requests;
    QVERIFY(std::signal(SIGHUP, before) == SIG_IGN);
}

/// A signal may come between a call that fails and the look at its error. The handler has an error
/// of its own when its pipe is full.
void EndRequestsTest::aSignalLeavesTheErrorNumberAlone()
{
    const EndRequests requests;
    const int moreThanAPipeHolds = 100000;
    errno = 0;
    for (int i = 0; i < moreThanAPipeHolds; ++i)
        std::raise(SIGTERM);
    QCOMPARE(errno, 0);
}
#endif

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, EndRequestsTest>(argc, argv, true);
}

#include "tst_endrequests.moc"
