// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "colorcontrast.h"
#include "fakeosinfo.h"
#include "kelaboutwindow.h"
#include "kelapplication.h"
#include "kelmessagebox.h"
#include "mainwindowcase.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

#include <algorithm>

Q_DECLARE_METATYPE(ApplicationTheme)

/// Whatever has the keyboard shows it, in both themes: at each stop of Tab enough pixels differ
/// from those without the focus. They differ by a contrast of 3:1, which the Web Content
/// Accessibility Guidelines 2.1 require of a mark.
class FocusMarkTest : public MainWindowCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void onEveryPage_data();
    void onEveryPage();
    void inTheAboutWindow_data();
    void inTheAboutWindow();
    void inTheMessageBox_data();
    void inTheMessageBox();

private:
    static void apply(ApplicationTheme theme);
};

namespace {

constexpr double kMark = 3.0;
constexpr int kFewestPixels = 100; ///< an outline of the smallest stop; a text cursor has fewer
constexpr int kMorePressesThanAnyRoundTakes = 40;

QImage pictureOf(const QWidget *stop)
{
    QWidget *window = stop->window();
    return window->grab({stop->mapTo(window, QPoint()), stop->size()}).toImage();
}

int markedPixels(const QImage &without, const QImage &with)
{
    int marked = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (without.pixel(x, y) != with.pixel(x, y) &&
                ColorContrast::ratio(without.pixelColor(x, y), with.pixelColor(x, y)) >= kMark)
                ++marked;
        }
    }
    return marked;
}

/// Walks one round with Tab, from what has the focus now. A link needs one more press, which stays
/// on it.
QStringList stopsWithoutMark(int *stops)
{
    QStringList unmarked;
    QWidget *const first = QApplication::focusWidget();
    QWidget *stop = first;
    QImage with = pictureOf(stop);
    for (int press = 0; press < kMorePressesThanAnyRoundTakes; ++press) {
        QTest::keyClick(stop, Qt::Key_Tab);
        QWidget *next = QApplication::focusWidget();
        if (next == stop)
            continue;
        ++*stops;
        const int marked = markedPixels(pictureOf(stop), with);
        if (marked < kFewestPixels)
            unmarked += QStringLiteral("%1: %2").arg(
                QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name),
                QString::number(marked));
        if (next == first)
            return unmarked;
        stop = next;
        with = pictureOf(stop);
    }
    return {QStringLiteral("does not come round")};
}

void themes()
{
    QTest::addColumn<ApplicationTheme>("theme");

    QTest::newRow("bright") << Bright;
    QTest::newRow("dark") << Dark;
}

} // namespace

void FocusMarkTest::apply(ApplicationTheme theme)
{
    qobject_cast<KelApplication *>(qApp)->installStyleSheet(theme);
}

/// Closes the window before the style sheet changes, because styling an open window takes long.
void FocusMarkTest::cleanup()
{
    m_window.reset();
    apply(Bright);
}

void FocusMarkTest::onEveryPage_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<ApplicationTheme>("theme");

    const QList<const char *> modules{"dBm calculator", "voltage calculator", "unit converter",
                                      "dB converter", "VSWR converter"};
    for (int module = 0; module < modules.size(); ++module) {
        QTest::addRow("%s, bright", modules.at(module)) << module << Bright;
        QTest::addRow("%s, dark", modules.at(module)) << module << Dark;
    }
}

void FocusMarkTest::onEveryPage()
{
    QFETCH(int, module);
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    openWindow();
    QMetaObject::invokeMethod(m_window.get(), "onThemeChanged", Q_ARG(ApplicationTheme, theme));
    m_profile.setCurrentModule(module);
    const QWidget *page = child<QStackedWidget>("stackedWidget")->currentWidget();
    const QList<QLineEdit *> fields = page->findChildren<QLineEdit *>();
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [](const QLineEdit *edit) { return edit->isVisible(); });
    QVERIFY(field != fields.end());
    (*field)->setFocus();
    QCOMPARE(QApplication::focusWidget(), *field);

    int stops = 0;
    QCOMPARE(stopsWithoutMark(&stops).join(QLatin1String("; ")), QString());
    QVERIFY(stops >= 5);
}

void FocusMarkTest::inTheAboutWindow_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<ApplicationTheme>("theme");

    const QList<const char *> tabs{"legal information", "driver information", "system information"};
    for (int tab = 0; tab < tabs.size(); ++tab) {
        QTest::addRow("%s, bright", tabs.at(tab)) << tab << Bright;
        QTest::addRow("%s, dark", tabs.at(tab)) << tab << Dark;
    }
}

void FocusMarkTest::inTheAboutWindow()
{
    QFETCH(int, tab);
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    FakeFacts facts;
    facts.drivers = {{QStringLiteral("Drivers"), {{QString(), QStringLiteral("kel.dll")}}}};
    facts.system = {{QStringLiteral("System"), {{QStringLiteral("Name"), QStringLiteral("12")}}}};
    KelAboutWindow about({QStringLiteral("Dezimo"), QString(), QString(), QString(), QString()},
                         std::make_unique<FakeOsInfo>(facts));
    about.setAttribute(Qt::WA_DeleteOnClose, false);
    about.onThemeChanged(theme);
    about.show();
    QVERIFY(waitForKeyboard(about));
    auto *tabs = about.findChild<QTabBar *>();
    tabs->setCurrentIndex(tab);
    tabs->setFocus();

    int stops = 0;
    QCOMPARE(stopsWithoutMark(&stops).join(QLatin1String("; ")), QString());
    QCOMPARE(stops, tab == 2 ? 5 : 4); // the system's page has a button
}

void FocusMarkTest::inTheMessageBox_data()
{
    themes();
}

void FocusMarkTest::inTheMessageBox()
{
    QFETCH(ApplicationTheme, theme);

    apply(theme);
    KelMessageBox box(KelMessageBox::StateQuestion, QString(), QStringLiteral("Text"),
                      QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Cancel);
    box.show();
    QVERIFY(waitForKeyboard(box));

    int stops = 0;
    QCOMPARE(stopsWithoutMark(&stops).join(QLatin1String("; ")), QString());
    QCOMPARE(stops, 3);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, FocusMarkTest>(argc, argv, true);
}

#include "tst_focusmark.moc"
