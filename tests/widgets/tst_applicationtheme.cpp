// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "applicationtheme.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

class ApplicationThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwoNumberedThemes();
    void namesThemByAWord();
};

void ApplicationThemeTest::hasTwoNumberedThemes()
{
    QCOMPARE(int(ApplicationTheme::Bright), 0);
    QCOMPARE(int(ApplicationTheme::Dark), 1);
}

void ApplicationThemeTest::namesThemByAWord()
{
    QCOMPARE(themeWord(Bright), QStringLiteral("bright"));
    QCOMPARE(themeWord(Dark), QStringLiteral("dark"));
}

DEZIMO_TEST_MAIN(QCoreApplication, ApplicationThemeTest)

#include "tst_applicationtheme.moc"
