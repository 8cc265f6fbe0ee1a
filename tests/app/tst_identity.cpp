// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "identity.h"
#include "kelapplication.h"
#include "testmain.h"

#include <QIcon>
#include <QImage>
#include <QSettings>
#include <QTest>
#include <QWidget>

class IdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheApplicationItsNames();
    void givesEveryWindowTheIcon();
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

/// Desktops without desktop entries show the icon of the window itself.
void IdentityTest::givesEveryWindowTheIcon()
{
    Identity::apply();
    const QWidget window;
    const QImage icon = window.windowIcon().pixmap(48, 48).toImage();
    QCOMPARE(icon.size(), QSize(48, 48));
    QVERIFY(qAlpha(icon.pixel(24, 24)) > 0);
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

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, IdentityTest>(argc, argv, true);
}

#include "tst_identity.moc"
