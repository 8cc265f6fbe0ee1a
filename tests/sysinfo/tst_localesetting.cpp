// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "localesetting.h"
#include "table.h"
#include "testmain.h"

#include <QLocale>
#include <QTest>

class LocaleSettingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void parses_data();
    void parses();
    void asksTheVariables_data();
    void asksTheVariables();
    void doesNotAskTheDefaultLocale();
};

void LocaleSettingTest::init()
{
    for (const char *variable : {"LC_ALL", "LC_NUMERIC", "LC_MESSAGES", "LANG", "LANGUAGE"})
        qunsetenv(variable);
}

void LocaleSettingTest::parses_data()
{
    columns<QByteArray, QString, QString, QString>({"name", "expectedName", "language", "country"});

    const auto row = [](const char *tag, const char *name, const char *language,
                        const char *country) {
        QTest::newRow(tag) << QByteArray(name) << QString::fromLatin1(name)
                           << QString::fromLatin1(language) << QString::fromLatin1(country);
    };
    row("language, country and encoding", "de_AT.UTF-8", "German", "Austria");
    row("language and country", "en_US", "English", "United States");
    row("a variant", "de_DE@euro", "German", "Germany");
    row("encoding and variant", "ca_ES.UTF-8@valencia", "Catalan", "Spain");
    row("a variant that names a script", "sr_RS@latin", "Serbian", "Serbia");
    row("a pair of language and country that Qt does not know", "de_US.UTF-8", "German",
        "United States");
    row("a country given by number", "es_419", "Spanish", "Latin America");
    row("a language of three letters", "haw_US", "Hawaiian", "United States");
    row("a language alone has no country", "de", "German", "");
    row("a language with an encoding has no country", "tr.UTF-8", "Turkish", "");
    row("an unknown language", "xx_DE.UTF-8", "", "Germany");
    row("an unknown country", "de_XX.UTF-8", "German", "");
    row("an empty country", "de_.UTF-8", "German", "");
    row("too many parts are no country", "de_DE_AT", "German", "");
    row("C has no language", "C", "", "");
    row("C with an encoding has no language", "C.UTF-8", "", "");
    row("POSIX has no language", "POSIX", "", "");
    row("a word that is no locale", "nonsense", "", "");
    row("only separators", "_.@", "", "");

    const auto refused = [](const char *tag, const QByteArray &name) {
        QTest::newRow(tag) << name << QString() << QString() << QString();
    };
    refused("an empty name", QByteArray());
    refused("a name with a blank", QByteArrayLiteral("de DE"));
    refused("a name with a line end", QByteArrayLiteral("de_DE\n"));
    refused("a name with bytes beyond ASCII", QByteArrayLiteral("d\xc3\xa9_DE"));
    refused("a name of 65 letters", QByteArray(65, 'x'));
    refused("a name of a million letters", QByteArray(1000000, '_'));
}

void LocaleSettingTest::parses()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, expectedName);
    QFETCH(QString, language);
    QFETCH(QString, country);

    const LocaleSetting setting = LocaleSetting::parsed(name);
    QCOMPARE(setting.name, expectedName);
    QCOMPARE(setting.language, language);
    QCOMPARE(setting.country, country);
}

void LocaleSettingTest::asksTheVariables_data()
{
    columns<QByteArray, QByteArray, QByteArray, QString>({"all", "numeric", "lang", "expected"});

    const auto row = [](const char *tag, const char *all, const char *numeric, const char *lang,
                        const char *expected) {
        QTest::newRow(tag) << QByteArray(all) << QByteArray(numeric) << QByteArray(lang)
                           << QString::fromLatin1(expected);
    };
    row("LC_ALL goes before all others", "fr_FR", "de_DE", "en_US", "fr_FR");
    row("the format of numbers goes before the language", "", "de_DE", "en_US", "de_DE");
    row("the language is the last resort", "", "", "en_US.UTF-8", "en_US.UTF-8");
    row("an empty variable is not set", "", "", "", "");
}

void LocaleSettingTest::asksTheVariables()
{
    QFETCH(QByteArray, all);
    QFETCH(QByteArray, numeric);
    QFETCH(QByteArray, lang);
    QFETCH(QString, expected);

    qputenv("LC_ALL", all);
    qputenv("LC_NUMERIC", numeric);
    qputenv("LANG", lang);
    QCOMPARE(LocaleSetting::ofUser().name, expected);
}

void LocaleSettingTest::doesNotAskTheDefaultLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(LocaleSetting::ofUser().name, QString());
    QCOMPARE(LocaleSetting::ofUser().language, QString());
    QCOMPARE(LocaleSetting::ofUser().country, QString());
    qputenv("LANG", "de_AT.UTF-8");
    QCOMPARE(LocaleSetting::ofUser().language, QStringLiteral("German"));
    QCOMPARE(LocaleSetting::ofUser().country, QStringLiteral("Austria"));
    QLocale::setDefault(before);
}

DEZIMO_TEST_MAIN(QCoreApplication, LocaleSettingTest)

#include "tst_localesetting.moc"
