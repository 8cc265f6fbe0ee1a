// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelspinbox.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

class KelSpinBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsNoFocusRectangleOfThePlatform();
    void theWheelCountsOnlyWithTheFocus();
};

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
    auto *edit = new QLineEdit(&window);
    auto *box = new KelSpinBox(&window);
    edit->setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(waitForKeyboard(window));
    const QPointF middle = box->rect().center();
    QWheelEvent up(middle, box->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, 120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    QCoreApplication::sendEvent(box, &up);
    QCOMPARE(box->value(), 0);
    QVERIFY(!up.isAccepted());

    box->setFocus();
    QCoreApplication::sendEvent(box, &up);
    QCOMPARE(box->value(), 1);
    QVERIFY(up.isAccepted());
}

DEZIMO_TEST_MAIN(QApplication, KelSpinBoxTest)

#include "tst_kelspinbox.moc"
