// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expectedmessages.h"
#include "fakeosinfo.h"
#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "kelguidewindow.h"
#include "kelmessagebox.h"
#include "layoutcheck.h"
#include "mainwindow.h"
#include "testmain.h"

#include <QAction>
#include <QMenu>
#include <QMetaEnum>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

Q_DECLARE_METATYPE(ApplicationTheme)

/// Checks the geometry of dialogs and menus in both themes, as tst_layout does for the pages.
class DialogLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void everyTabOfTheAboutWindowIsRight_data() { themes(); }
    void everyTabOfTheAboutWindowIsRight();
    void everyStateOfTheMessageBoxIsRight_data() { themes(); }
    void everyStateOfTheMessageBoxIsRight();
    void everyWidthOfTheGuideIsRight_data() { themes(); }
    void everyWidthOfTheGuideIsRight();
    void everyMenuShowsItsTexts_data() { themes(); }
    void everyMenuShowsItsTexts();

private:
    static void themes();
    static void apply(ApplicationTheme theme);
};

void DialogLayoutTest::themes()
{
    QTest::addColumn<ApplicationTheme>("theme");

    QTest::newRow("bright") << Bright;
    QTest::newRow("dark") << Dark;
}

void DialogLayoutTest::apply(ApplicationTheme theme)
{
    qobject_cast<KelApplication *>(qApp)->installStyleSheet(theme);
}

void DialogLayoutTest::cleanup()
{
    apply(Bright);
}

void DialogLayoutTest::everyTabOfTheAboutWindowIsRight()
{
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    FakeFacts facts;
    facts.drivers = {{QStringLiteral("Instrument drivers"),
                      {{QStringLiteral("Power sensor"), QStringLiteral("4.2.0")}}}};
    facts.system = {{QStringLiteral("Operating System"),
                     {{QStringLiteral("Product name"), QStringLiteral("Linux 12")}}}};
    KelAboutWindow about({QStringLiteral("Dezimo"),
                          QStringLiteral("application for calculating with logarithmic and linear "
                                         "power and voltage values"),
                          QStringLiteral("3.2.1.0"), QStringLiteral("2022"),
                          QStringLiteral("7TK31")},
                         std::make_unique<FakeOsInfo>(facts));
    about.setAttribute(Qt::WA_DeleteOnClose, false);
    about.onThemeChanged(theme);
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    auto *tabs = about.findChild<QTabWidget *>();
    QCOMPARE(tabs->count(), 3);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        LayoutCheck::savePicture(about, QStringLiteral("about, %1, tab %2")
                                            .arg(QLatin1String(QTest::currentDataTag()))
                                            .arg(tab));
        QCOMPARE(LayoutCheck::complaints(about), QStringList());
    }
}

void DialogLayoutTest::everyStateOfTheMessageBoxIsRight()
{
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    const auto states = QMetaEnum::fromType<KelMessageBox::State>();
    for (int i = 0; i < states.keyCount(); ++i) {
        KelMessageBox box(
            KelMessageBox::State(states.value(i)), QStringLiteral("Message"),
            QStringLiteral("Support information copied to clipboard.\nUse <CTRL+V> to "
                           "paste the information in your mail program."),
            QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Cancel);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        LayoutCheck::savePicture(
            box, QStringLiteral("message, %1, %2")
                     .arg(QLatin1String(QTest::currentDataTag()), QLatin1String(states.key(i))));
        QCOMPARE(LayoutCheck::complaints(box), QStringList());
    }
}

/// From the smallest width to one that is wider than the text.
void DialogLayoutTest::everyWidthOfTheGuideIsRight()
{
    QFETCH(ApplicationTheme, theme);

    const ExpectedMessages messages(offscreenPopupMessages());
    apply(theme);
    KelGuideWindow guide;
    guide.onThemeChanged(theme);
    // Other platforms than the offscreen one may make no window larger than the screen.
    const bool isBound = QGuiApplication::platformName() != QLatin1String("offscreen");
    const int screenWidth = guide.screen()->availableSize().width();
    const int large = isBound ? qMin(1400, screenWidth - 100) : 1400;
    for (const int width : {guide.minimumWidth(), guide.width(), large}) {
        for (const char *chapter : {"", "unit-converter", "error-words"}) {
            guide.resize(width, guide.height());
            guide.openAt(QLatin1String(chapter));
            QVERIFY(QTest::qWaitForWindowExposed(&guide));
            QTest::keyClick(&guide, Qt::Key_F, Qt::ControlModifier);
            LayoutCheck::savePicture(guide, QStringLiteral("guide, %1, %2, %3")
                                                .arg(QLatin1String(QTest::currentDataTag()))
                                                .arg(width)
                                                .arg(QLatin1String(chapter)));
            QCOMPARE(LayoutCheck::complaints(guide), QStringList());
        }
    }
}

void DialogLayoutTest::everyMenuShowsItsTexts()
{
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    MainWindow window;
    for (const char *name : {"menuFile", "menuOptions", "menuDecimal_Places", "menuHelp"}) {
        auto *menu = window.findChild<QMenu *>(QLatin1String(name));
        Q_EMIT menu->aboutToShow();
        menu->adjustSize(); // not popup(), because then the offscreen platform logs a warning
        LayoutCheck::savePicture(
            *menu, QStringLiteral("menu, %1, %2")
                       .arg(QLatin1String(QTest::currentDataTag()), QLatin1String(name)));
        QVERIFY(!menu->actions().isEmpty());
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
            QVERIFY2(menu->fontMetrics().horizontalAdvance(action->text() + shortcut) <
                         menu->actionGeometry(action).width(),
                     qPrintable(action->text()));
        }
    }
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, DialogLayoutTest>(argc, argv, true);
}

#include "tst_dialoglayout.moc"
