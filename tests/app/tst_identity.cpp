// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "identity.h"
#include "testmain.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTest>

class IdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheApplicationItsNames();
    void findsTheSettingsUnderOrganizationAndApplication();
};

void IdentityTest::givesTheApplicationItsNames()
{
    Identity::apply();
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Vantrel"));
    QCOMPARE(QCoreApplication::organizationDomain(), QStringLiteral("example.vantrel"));
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Dezimo"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("3.2.1.0"));
    QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("example.vantrel.dezimo"));
}

void IdentityTest::findsTheSettingsUnderOrganizationAndApplication()
{
    Identity::apply();
    const QSettings settings;
    QCOMPARE(settings.organizationName(), QStringLiteral("Vantrel"));
    QCOMPARE(settings.applicationName(), QStringLiteral("Dezimo"));
    QCOMPARE(settings.scope(), QSettings::UserScope);
    QCOMPARE(settings.format(), QSettings::NativeFormat);
}

DEZIMO_TEST_MAIN(QCoreApplication, IdentityTest)

#include "tst_identity.moc"
