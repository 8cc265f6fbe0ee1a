// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelspinbox.h"
#include "table.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

class KelSpinBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsNoFocusRectangleOfThePlatform();
    void theWheelCountsOnlyWithTheFocus();
    void takesANumberFromElsewhere_data();
    void takesANumberFromElsewhere();
    void keepsItsNumberIfNothingFits_data();
    void keepsItsNumberIfNothingFits();

private:
    static void addWays(const char *text, int value);
    static void bring(QSpinBox &box, const QString &text, const QString &way);
    static void drop(QWidget &edit, const QString &text);
    static void pasteFromMenu(QSpinBox &box);
};

namespace {

/// Such as the one of a phase.
class DegreesBox
{
public:
    DegreesBox()
    {
        m_box.setPrefix(QStringLiteral("Phase= "));
        m_box.setSuffix(QStringLiteral("°"));
        m_box.setRange(-360, 360);
        m_box.setValue(30);
        m_box.resize(200, 30);
        m_box.show();
        m_box.activateWindow();
        m_box.setFocus();
    }

    QSpinBox &box() { return m_box; }

private:
    KelSpinBox m_box;
};

} // namespace

/// In the program's locale a number never has the digits of the system's language.
void KelSpinBoxTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::AnyCountry));
}

void KelSpinBoxTest::showsNoFocusRectangleOfThePlatform()
{
    const KelSpinBox box;
    QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
}

/// A person who scrolls a page with the wheel passes over its boxes and does not mean to change
/// them.
void KelSpinBoxTest::theWheelCountsOnlyWithTheFocus()
{
    QWidget window;
    QLineEdit edit(&window);
    KelSpinBox box(&window);
    edit.setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(waitForKeyboard(window));
    const QPointF middle = box.rect().center();
    QWheelEvent up(middle, box.mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, 120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QCoreApplication::sendEvent(&box, &up);
    QCOMPARE(box.value(), 0);
    QVERIFY(!up.isAccepted());

    box.setFocus();
    QCoreApplication::sendEvent(&box, &up);
    QCOMPARE(box.value(), 1);
    QVERIFY(up.isAccepted());
}

void KelSpinBoxTest::addWays(const char *text, int value)
{
    for (const char *way :
         {"by Ctrl+V", "from the context menu", "by the middle button", "by drop"})
        QTest::addRow("%s, %s", text, way)
            << QString::fromUtf8(text) << QString::fromLatin1(way) << value;
}

void KelSpinBoxTest::drop(QWidget &edit, const QString &text)
{
    QMimeData data;
    data.setText(text);
    const QPoint place(100, 10);
    QDragEnterEvent arrival(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &arrival);
    QVERIFY(edit.acceptDrops());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &event);
}

/// The box waits until its menu is closed.
void KelSpinBoxTest::pasteFromMenu(QSpinBox &box)
{
    QTimer soon;
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, &box, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        const QList<QAction *> entries = menu->actions();
        for (QAction *entry : entries) {
            if (entry->text().startsWith(QStringLiteral("&Paste")))
                menu->setActiveAction(entry);
        }
        QTest::keyClick(menu, Qt::Key_Return);
    });
    soon.start(0);
    const QPoint middle = box.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, box.mapToGlobal(middle));
    QCoreApplication::sendEvent(&box, &event);
}

void KelSpinBoxTest::bring(QSpinBox &box, const QString &text, const QString &way)
{
    auto *edit = box.findChild<QLineEdit *>();
    box.selectAll();
    if (way == QLatin1String("by drop")) {
        drop(*edit, text);
    } else if (way == QLatin1String("by the middle button")) {
        QApplication::clipboard()->setText(text, QClipboard::Selection);
        QTest::mouseClick(edit, Qt::MiddleButton);
    } else {
        QApplication::clipboard()->setText(text);
        if (way == QLatin1String("by Ctrl+V"))
            QTest::keySequence(&box, QKeySequence::Paste);
        else
            pasteFromMenu(box);
    }
}

void KelSpinBoxTest::takesANumberFromElsewhere_data()
{
    columns<QString, QString, int>({"text", "way", "value"});
    addWays("45°", 45);
    addWays("90 °", 90);
    addWays("\u221245 °", -45);
    addWays("\u00A07 ", 7);
    addWays("Phase= 60°", 60);
}

void KelSpinBoxTest::takesANumberFromElsewhere()
{
    QFETCH(QString, text);
    QFETCH(QString, way);
    QFETCH(int, value);

    if (way == QLatin1String("by the middle button") &&
        !QApplication::clipboard()->supportsSelection()) {
        QTest::qSkip("no text is pasted by being selected here", __FILE__, __LINE__);
        return;
    }
    DegreesBox degrees;
    QVERIFY(waitForKeyboard(degrees.box()));
    bring(degrees.box(), text, way);
    QCOMPARE(degrees.box().value(), value);
    QCOMPARE(degrees.box().text(), QStringLiteral("Phase= %1°").arg(value));
}

void KelSpinBoxTest::keepsItsNumberIfNothingFits_data()
{
    columns<QString, QString, int>({"text", "way", "value"});
    addWays("°", 30);
    addWays(" ", 30);
    addWays("ten", 30);
    addWays("12.5°", 30);
    addWays("1000", 30);
}

void KelSpinBoxTest::keepsItsNumberIfNothingFits()
{
    takesANumberFromElsewhere();
}

DEZIMO_TEST_MAIN(QApplication, KelSpinBoxTest)

#include "tst_kelspinbox.moc"
