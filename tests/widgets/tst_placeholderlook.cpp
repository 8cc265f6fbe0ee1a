// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "placeholderlook.h"
#include "testmain.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

class PlaceholderLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void anEmptyEditHasTheLookFromTheStart();
    void theLookFollowsTheText();
    void whatWasWrittenBeforeItIsShownCounts();
};

void PlaceholderLookTest::initTestCase()
{
    qApp->setStyleSheet(
        QStringLiteral("QLineEdit[showsPlaceholder=\"true\"] { font-style: italic }"));
}

void PlaceholderLookTest::anEmptyEditHasTheLookFromTheStart()
{
    QLineEdit edit;
    followPlaceholder(&edit);
    edit.show();
    QVERIFY(edit.font().italic());
}

void PlaceholderLookTest::theLookFollowsTheText()
{
    QLineEdit edit;
    followPlaceholder(&edit);
    edit.show();
    QTest::keyClicks(&edit, QStringLiteral("12"));
    QVERIFY(!edit.font().italic());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(!edit.font().italic());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(edit.font().italic());
}

void PlaceholderLookTest::whatWasWrittenBeforeItIsShownCounts()
{
    QLineEdit edit;
    followPlaceholder(&edit);
    edit.setText(QStringLiteral("1"));
    edit.show();
    QVERIFY(!edit.font().italic());
}

DEZIMO_TEST_MAIN(QApplication, PlaceholderLookTest)

#include "tst_placeholderlook.moc"
