// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "testmain.h"
#include "withoutopengl.h"

#include <QCoreApplication>
#include <QTest>

class WithoutOpenGlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noIntegrationIsLoadedWhileItLives();
    void theEnvironmentIsAsBeforeAfterwards();
    void theChoiceOfAPersonStays();
};

namespace {

constexpr char kVariable[] = "QT_XCB_GL_INTEGRATION";

} // namespace

void WithoutOpenGlTest::cleanup()
{
    qunsetenv(kVariable);
}

void WithoutOpenGlTest::noIntegrationIsLoadedWhileItLives()
{
    const WithoutOpenGl object;
    QCOMPARE(qgetenv(kVariable), QByteArrayLiteral("none"));
}

void WithoutOpenGlTest::theEnvironmentIsAsBeforeAfterwards()
{
    {
        const WithoutOpenGl object;
    }
    QVERIFY(!qEnvironmentVariableIsSet(kVariable));
}

void WithoutOpenGlTest::theChoiceOfAPersonStays()
{
    qputenv(kVariable, QByteArrayLiteral("xcb_egl"));
    {
        const WithoutOpenGl object;
        QCOMPARE(qgetenv(kVariable), QByteArrayLiteral("xcb_egl"));
    }
    QCOMPARE(qgetenv(kVariable), QByteArrayLiteral("xcb_egl"));
}

DEZIMO_TEST_MAIN(QCoreApplication, WithoutOpenGlTest)
#include "tst_withoutopengl.moc"
