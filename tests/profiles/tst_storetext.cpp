// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "storetext.h"
#include "testmain.h"

#include <QTest>

class StoreTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arranges_data();
    void arranges();
};

void StoreTextTest::arranges_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("arranged");

    const QByteArray two = "[A]\nx=1\ny=2\n\n[B]\nz=3\n";
    QTest::newRow("what Linux writes") << two << two;
    QTest::newRow("line ends of Windows")
        << QByteArray("[A]\r\nx=1\r\ny=2\r\n\r\n[B]\r\nz=3\r\n") << two;
    QTest::newRow("groups in another order") << QByteArray("[B]\nz=3\n\n[A]\nx=1\ny=2\n") << two;
    QTest::newRow("keys in another order") << QByteArray("[A]\ny=2\nx=1\n\n[B]\nz=3\n") << two;
    QTest::newRow("a key that begins as another one")
        << QByteArray("[A]\np1=2\np=1\npDb=3\n") << QByteArray("[A]\np=1\np1=2\npDb=3\n");
    QTest::newRow("equals signs and brackets in a value")
        << QByteArray("[A]\nx=\"[B]=1=2\"\n") << QByteArray("[A]\nx=\"[B]=1=2\"\n");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
}

void StoreTextTest::arranges()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, arranged);

    QCOMPARE(arrangedStoreText(text), arranged);
}

DEZIMO_TEST_MAIN(QCoreApplication, StoreTextTest)

#include "tst_storetext.moc"
