// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "accessibletree.h"
#include "fakeosinfo.h"
#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "kelmessagebox.h"
#include "testmain.h"
#include "windowsystem.h"
#include "words.h"

#include <QApplication>
#include <QTabBar>
#include <QTest>

/// Tests what a screen reader finds in the About window and in messages, and where Tab stops.
class AccessibleDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theAboutWindow_data();
    void theAboutWindow();
    void messages_data();
    void messages();
    void aMessageWalksThroughItsButtons();
};

namespace {

constexpr int kMorePressesThanAnyRoundTakes = 20;

/// The names as one text, so that the log shows a difference.
QString listed(const QStringList &names)
{
    return names.join(QLatin1Char('\n'));
}

QString listed(const char *names)
{
    return listed(lines(names));
}

/// The names of the stops of Tab, from the focus until it comes round again. A link needs one more
/// press, which stays on it.
QStringList stops()
{
    QWidget *const first = QApplication::focusWidget();
    QWidget *stop = first;
    QStringList names;
    for (int press = 0; press < kMorePressesThanAnyRoundTakes; ++press) {
        QWidget *const before = stop;
        QTest::keyClick(before, Qt::Key_Tab);
        stop = QApplication::focusWidget();
        if (stop != before)
            names += QAccessible::queryAccessibleInterface(before)->text(QAccessible::Name);
        if (stop == first && before != first)
            break;
    }
    return names;
}

} // namespace

void AccessibleDialogsTest::theAboutWindow_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("controls");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QString>("stops");

    QTest::newRow("legal information") << 0 << listed(R"(
        EditableText Legal Information [read-only]
        PageTabList Legal Information
        PageTab Legal Information
        PageTab Driver Information
        PageTab System Information
        Graphic Logo [read-only]
        Link Product page
        Link Support mail)") << listed(R"(
        Dezimo
        Version 3.2.1.0 64 bit (2022)
        a calculator)") << listed(R"(
        Legal Information
        Legal Information
        Product page
        Support mail)");
    QTest::newRow("driver information") << 1 << listed(R"(
        PageTabList Driver Information
        PageTab Legal Information
        PageTab Driver Information
        PageTab System Information
        Graphic Logo [read-only]
        Link Product page
        Link Support mail)") << listed(R"(
        Dezimo
        Instrument drivers
        kelpwr.dll (Version 4.2.0)
        Version 3.2.1.0 64 bit (2022)
        a calculator)") << listed(R"(
        Driver Information
        Driver Information
        Product page
        Support mail)");
    QTest::newRow("system information") << 2 << listed(R"(
        Button copy support information to clipboard
        PageTabList System Information
        PageTab Legal Information
        PageTab Driver Information
        PageTab System Information
        Graphic Logo [read-only]
        Link Product page
        Link Support mail)") << listed(R"(
        Dezimo
        Operating System
        Product name
        Product name: Linux 12
        Version 3.2.1.0 64 bit (2022)
        a calculator)") << listed(R"(
        System Information
        System Information
        copy support information to clipboard
        Product page
        Support mail)");
}

void AccessibleDialogsTest::theAboutWindow()
{
    QFETCH(int, tab);

    FakeFacts facts;
    facts.drivers = {
        {QStringLiteral("Instrument drivers"),
         {{QStringLiteral("kelpwr.dll"), QStringLiteral("kelpwr.dll (Version 4.2.0)")}}}};
    facts.system = {{QStringLiteral("Operating System"),
                     {{QStringLiteral("Product name"), QStringLiteral("Linux 12")}}}};
    KelAboutWindow about({QStringLiteral("Dezimo"), QStringLiteral("a calculator"),
                          QStringLiteral("3.2.1.0"), QStringLiteral("2022"),
                          QStringLiteral("7TK31")},
                         std::make_unique<FakeOsInfo>(facts));
    about.setAttribute(Qt::WA_DeleteOnClose, false);
    about.show();
    QVERIFY(waitForKeyboard(about));
    auto *tabs = about.findChild<QTabBar *>();
    tabs->setCurrentIndex(tab);
    tabs->setFocus();

    const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&about);
    QCOMPARE(window->role(), QAccessible::Dialog);
    QCOMPARE(window->text(QAccessible::Name), QStringLiteral("Information about Dezimo"));
    QTEST(listed(AccessibleTree::controls(&about)), "controls");
    QStringList texts = AccessibleTree::texts(&about);
    texts.removeAll(QString()); // the spacers between the sections
    QTEST(listed(texts), "texts");
    QTEST(listed(stops()), "stops");
}

void AccessibleDialogsTest::messages_data()
{
    QTest::addColumn<KelMessageBox::State>("state");
    QTest::addColumn<QString>("controls");

    QTest::newRow("a plain message has no icon") << KelMessageBox::StateNormal << listed(R"(
        Grouping Buttons
        Button Yes [default]
        Button No)");
    QTest::newRow("done") << KelMessageBox::StateOk << listed(R"(
        Graphic Done
        Grouping Buttons
        Button Yes [default]
        Button No)");
    QTest::newRow("a warning") << KelMessageBox::StateWarning << listed(R"(
        Graphic Warning
        Grouping Buttons
        Button Yes [default]
        Button No)");
    QTest::newRow("an error") << KelMessageBox::StateError << listed(R"(
        Graphic Error
        Grouping Buttons
        Button Yes [default]
        Button No)");
    QTest::newRow("a question") << KelMessageBox::StateQuestion << listed(R"(
        Graphic Question
        Grouping Buttons
        Button Yes [default]
        Button No)");
}

void AccessibleDialogsTest::messages()
{
    QFETCH(KelMessageBox::State, state);

    KelMessageBox box(state, QStringLiteral("Calculation"), QStringLiteral("Keep the values?"),
                      QDialogButtonBox::Yes | QDialogButtonBox::No);
    box.show();
    QVERIFY(waitForKeyboard(box));
    const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(window->role(), QAccessible::Dialog);
    QCOMPARE(window->text(QAccessible::Name), QStringLiteral("Calculation"));
    QCOMPARE(window->text(QAccessible::Description), QStringLiteral("Keep the values?"));
    QTEST(listed(AccessibleTree::controls(&box)), "controls");
    QCOMPARE(AccessibleTree::texts(&box), QStringList{QStringLiteral("Keep the values?")});
}

void AccessibleDialogsTest::aMessageWalksThroughItsButtons()
{
    KelMessageBox box(KelMessageBox::StateQuestion, QString(), QStringLiteral("Text"),
                      QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box.show();
    QVERIFY(waitForKeyboard(box));
    QCOMPARE(listed(stops()), listed(R"(
        OK
        Cancel)"));
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, AccessibleDialogsTest>(argc, argv, true);
}

#include "tst_accessibledialogs.moc"
