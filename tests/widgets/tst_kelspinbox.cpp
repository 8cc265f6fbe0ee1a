// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelspinbox.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

class KelSpinBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsNoFocusRectangleOfThePlatform();
};

void KelSpinBoxTest::showsNoFocusRectangleOfThePlatform()
{
    const KelSpinBox box;
    QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
}

DEZIMO_TEST_MAIN(QApplication, KelSpinBoxTest)

#include "tst_kelspinbox.moc"
