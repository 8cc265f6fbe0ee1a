// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "goldentrace.h"
#include "mainprofile.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QTest>

#include <vector>

using namespace Dezimo;

/// What all models announce and store in ten thousand steps must match the stored checksums. When a
/// change is on purpose, "dezimo-goldentrace --checksums" prints the new ones. Without an argument
/// it prints the lines themselves, to compare two versions.
class GoldenTraceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyThousandStepsLeaveWhatTheyLeft();
    void everyPropertyIsAnnounced();

private:
    std::vector<QStringList> m_thousands;
};

void GoldenTraceTest::initTestCase()
{
    GoldenTrace trace;
    for (int i = 0; i < GoldenTrace::kThousands; ++i)
        m_thousands.push_back(trace.playThousand());
}

void GoldenTraceTest::everyThousandStepsLeaveWhatTheyLeft()
{
    QFile file(QStringLiteral(DEZIMO_GOLDEN_TRACE));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QByteArray found;
    for (const QStringList &lines : m_thousands)
        found += GoldenTrace::checksum(lines) + '\n';
    QCOMPARE(QString::fromLatin1(found), QString::fromUtf8(file.readAll()));
}

void GoldenTraceTest::everyPropertyIsAnnounced()
{
    QSet<QString> announced;
    for (const QStringList &lines : m_thousands) {
        for (const QString &line : lines)
            announced.insert(line.section(QStringLiteral(" = "), 0, 0));
    }
    const QStringList names = everyPropertyName(MainProfile::instance());
    for (const QString &name : names)
        QVERIFY2(announced.contains(name), qPrintable(name));
}

DEZIMO_TEST_MAIN(QCoreApplication, GoldenTraceTest)

#include "tst_goldentrace.moc"
