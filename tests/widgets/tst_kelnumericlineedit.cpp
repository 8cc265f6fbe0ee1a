// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelnumericlineedit.h"
#include "table.h"
#include "testmain.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <QValidator>

class KelNumericLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data();
    void typing();
    void acceptable_data();
    void acceptable();
    void judgesAWholeText_data();
    void judgesAWholeText();
    void takesEachPrefixLetter();
    void takesNoOtherLetter();
    void takesEveryBeginningOfAUnit_data();
    void takesEveryBeginningOfAUnit();
    void settings();
    void neverLeavesOutBothSides();
    void emitsOnlyOnAChange();
    void aNewSettingTakesEffectAtOnce();
    void followsItsLocale();
    void takesTheGreatestNumbersOfDigits_data();
    void takesTheGreatestNumbersOfDigits();
};

namespace {

/// Types as a person does, one key at a time. A key that does not fit changes nothing.
void type(QLineEdit &edit, const QString &keys)
{
    for (const QChar key : keys) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, key);
        QCoreApplication::sendEvent(&edit, &press);
    }
}

const QLocale &english()
{
    static const QLocale value(QLocale::English, QLocale::UnitedStates);
    return value;
}

const QLocale &german()
{
    static const QLocale value(QLocale::German, QLocale::Germany);
    return value;
}

const QLocale &swedish()
{
    static const QLocale value(QLocale::Swedish, QLocale::Sweden);
    return value;
}

} // namespace

void KelNumericLineEditTest::typing_data()
{
    columns<QLocale, int, int, QString, QString, QString>(
        {"locale", "integerDigits", "decimals", "unit", "keys", "text"});

    const auto row = [](const char *tag, const QLocale &locale, int integerDigits, int decimals,
                        const char *unit, const QString &keys, const QString &text) {
        QTest::newRow(tag) << locale << integerDigits << decimals << QString::fromLatin1(unit)
                           << keys << text;
    };
    const auto same = [&row](const char *tag, const QLocale &locale, int integerDigits,
                             int decimals, const char *unit, const QString &keys) {
        row(tag, locale, integerDigits, decimals, unit, keys, keys);
    };
    using S = QLatin1String;

    same("a number with sign, point, blank and unit", english(), 3, 2, "dBm", S("-12.34 dBm"));
    same("a number with an exponent", english(), 3, 2, "dBm", S("5e-3"));
    same("the beginning of the unit", english(), 3, 2, "dBm", S("100 dB"));
    same("a single digit", english(), 3, 2, "dBm", S("7"));
    same("no blank before the unit", english(), 3, 2, "dBm", S("7dBm"));
    same("an exponent of three digits", english(), 3, 2, "W", S("1.5e123W"));
    same("exponent, blank, prefix and unit", english(), 3, 2, "W", S("1.5e-3 kW"));
    same("a prefix letter like the unit's first", english(), 3, 2, "mW", S("5mmW"));
    row("a digit more than there may be before the point", english(), 3, 2, "dBm", S("1234"),
        S("123"));
    row("a digit more than there may be after the point", english(), 3, 2, "dBm", S("1.234"),
        S("1.23"));
    row("a second point", english(), 3, 2, "", S("1.2.3"), S("1.23"));
    row("a second sign", english(), 3, 2, "", S("--1"), S("-1"));
    row("a plus sign", english(), 3, 2, "", S("+1"), S("1"));
    row("a sign after the digits", english(), 3, 2, "", S("1-"), S("1"));
    row("a point without a digit before it", english(), 3, 2, "", S(".5"), S("5"));
    row("an exponent of four digits", english(), 3, 2, "", S("1e1234"), S("1e123"));
    row("a capital exponent letter", english(), 3, 2, "", S("1E3"), S("13"));
    row("a point in the exponent", english(), 3, 2, "", S("1e1.5"), S("1e15"));
    row("a second blank", english(), 3, 2, "W", S("1  W"), S("1 W"));
    row("a second prefix letter", english(), 3, 2, "W", S("1kMW"), S("1kW"));
    row("a blank between prefix and unit", english(), 3, 2, "W", S("1k W"), S("1kW"));
    row("a letter of the unit out of turn", english(), 3, 2, "dBm", S("1Bdm"), S("1d"));
    row("a unit in the wrong case", english(), 3, 2, "dBm", S("1dbm"), S("1d"));
    row("a unit longer than it is", english(), 3, 2, "dBm", S("1dBmm"), S("1dBm"));
    row("a digit after the unit", english(), 3, 2, "W", S("1W2"), S("1W"));
    row("a unit where there is none", english(), 3, 2, "", S("1W"), S("1"));
    row("a line feed", english(), 3, 2, "", S("1\n2"), S("12"));
    same("digits of another script", english(), 3, 2, "", QStringLiteral("\u0661.\u0662e\u0663"));

    row("no decimals: no point", english(), 3, 0, "W", S("12.5"), S("125"));
    same("no decimals: exponent, prefix and unit stay", english(), 3, 0, "W", S("-12e-1 kW"));
    same("no integer digits: the point comes first", english(), 0, 2, "W", S("-.25kW"));
    row("no integer digits: none before the point", english(), 0, 2, "", S("5.25"), S(".25"));
    row("one digit on each side", english(), 1, 1, "", S("12.34"), S("1.3"));

    same("a locale with a comma takes the comma", german(), 3, 2, "dBm", S("-12,34 dBm"));
    row("a locale with a comma takes no point", german(), 3, 2, "", S("1.5"), S("15"));
    row("a locale with a point takes no comma", english(), 3, 2, "", S("1,5"), S("15"));
    // U+2212 is the minus sign of the locale.
    same("a locale with a minus sign of its own takes that", swedish(), 3, 2, "",
         QStringLiteral("\u22121,5e\u22123"));
    row("a locale with a minus sign of its own takes no hyphen", swedish(), 3, 2, "", S("-1e-3"),
        S("1e3"));

    const QLocale egypt(QLocale::Arabic, QLocale::Egypt);
    same("a locale whose minus sign has a mark takes the plain one", egypt, 3, 2, "",
         QStringLiteral("-1\u066b5e-3"));

    same("a unit of special characters is taken by the letter", english(), 3, 2, "a.*(",
         S("1a.*("));
    row("a unit of special characters matches nothing else", english(), 3, 2, ".*", S("1xx."),
        S("1."));
    same("a unit beyond ASCII", english(), 3, 2, "\xB5W", QStringLiteral(u"1\u00B5W"));
}

void KelNumericLineEditTest::typing()
{
    QFETCH(QLocale, locale);
    QFETCH(int, integerDigits);
    QFETCH(int, decimals);
    QFETCH(QString, unit);
    QFETCH(QString, keys);
    QFETCH(QString, text);

    KelNumericLineEdit edit;
    edit.setLocale(locale);
    edit.setIntegerDigits(quint16(integerDigits));
    edit.setDecimals(quint16(decimals));
    edit.setUnitText(unit);
    type(edit, keys);
    QCOMPARE(edit.text(), text);
}

void KelNumericLineEditTest::acceptable_data()
{
    columns<QString, bool>({"text", "isAcceptable"});
    row("a whole number", "7", true);
    row("a number with everything", "-12.34e-5 kdBm", true);
    row("part of the unit", "100 dB", true);
    row("a blank at the end", "100 ", true);
    row("a prefix letter alone", "100k", true);
    row("nothing yet", "", false);
    row("a sign yet without a number", "-", false);
    row("a point yet without decimals", "1.", false);
    row("an exponent letter yet without an exponent", "1e", false);
    row("an exponent's sign yet without an exponent", "1e-", false);
}

void KelNumericLineEditTest::acceptable()
{
    QFETCH(QString, text);
    QFETCH(bool, isAcceptable);

    KelNumericLineEdit edit;
    edit.setLocale(english());
    edit.setUnitText(QStringLiteral("dBm"));
    type(edit, text);
    QCOMPARE(edit.text(), text);
    QCOMPARE(edit.hasAcceptableInput(), isAcceptable);
}

void KelNumericLineEditTest::judgesAWholeText_data()
{
    columns<QString, int>({"text", "state"});
    row("a number", "1", int(QValidator::Acceptable));
    row("a line break behind it", "1\n", int(QValidator::Invalid));
    row("a letter of more than 16 bits", "1\U0001F600", int(QValidator::Acceptable));
    row("another such letter", "1\U0001F601", int(QValidator::Invalid));
}

/// Judges what is pasted, for example.
void KelNumericLineEditTest::judgesAWholeText()
{
    QFETCH(QString, text);
    QFETCH(int, state);

    KelNumericLineEdit edit;
    edit.setUnitText(QStringLiteral("\U0001F600"));
    int cursor = 0;
    QCOMPARE(int(edit.validator()->validate(text, cursor)), state);
}

void KelNumericLineEditTest::takesEachPrefixLetter()
{
    for (const char letter : {'f', 'p', 'n', 'u', 'm', 'k', 'M', 'G', 'T', 'P'}) {
        KelNumericLineEdit edit;
        edit.setUnitText(QStringLiteral("W"));
        const QString text = QLatin1String("1 ") + QLatin1Char(letter) + QLatin1Char('W');
        type(edit, text);
        QCOMPARE(edit.text(), text);
    }
}

void KelNumericLineEditTest::takesNoOtherLetter()
{
    // The letter e begins an exponent.
    const QString prefixes = QStringLiteral("fpnumkMGTPe");
    for (int code = 0; code < 0x250; ++code) {
        const QChar letter(code);
        if (letter.isDigit() || prefixes.contains(letter) || letter == QLatin1Char(' ') ||
            letter == QLatin1Char('.'))
            continue;
        KelNumericLineEdit edit;
        edit.setLocale(english());
        type(edit, QLatin1Char('1') + letter);
        QCOMPARE(edit.text(), QStringLiteral("1"));
    }
}

void KelNumericLineEditTest::takesEveryBeginningOfAUnit_data()
{
    columns<QString>({"unit"});
    row("one letter", "W");
    row("two letters", "mV");
    row("three letters", "dBm");
    row("four letters, one of them Greek", "dBµV");
    row("a symbol", "Ω");
    row("with a sign and a blank", "V / m");
}

void KelNumericLineEditTest::takesEveryBeginningOfAUnit()
{
    QFETCH(QString, unit);

    for (int length = 0; length <= unit.size(); ++length) {
        KelNumericLineEdit edit;
        edit.setUnitText(unit);
        const QString text = QLatin1String("12 ") + unit.left(length);
        type(edit, text);
        QCOMPARE(edit.text(), text);
        QVERIFY(edit.hasAcceptableInput());
    }
}

void KelNumericLineEditTest::settings()
{
    KelNumericLineEdit edit;
    QCOMPARE(edit.unitText(), QString());
    QCOMPARE(int(edit.decimals()), 2);
    QCOMPARE(int(edit.integerDigits()), 3);

    // A form sets them by name.
    QVERIFY(edit.setProperty("unitText", QStringLiteral("dBm")));
    QVERIFY(edit.setProperty("decimals", 4));
    QVERIFY(edit.setProperty("integerDigits", 5));
    QCOMPARE(edit.unitText(), QStringLiteral("dBm"));
    QCOMPARE(int(edit.decimals()), 4);
    QCOMPARE(int(edit.integerDigits()), 5);
}

void KelNumericLineEditTest::neverLeavesOutBothSides()
{
    KelNumericLineEdit edit;
    edit.setDecimals(0);
    QCOMPARE(int(edit.decimals()), 0);
    edit.setIntegerDigits(0);
    QCOMPARE(int(edit.integerDigits()), 3);

    edit.setDecimals(1);
    edit.setIntegerDigits(0);
    QCOMPARE(int(edit.integerDigits()), 0);
    edit.setDecimals(0);
    QCOMPARE(int(edit.decimals()), 1);
}

void KelNumericLineEditTest::emitsOnlyOnAChange()
{
    KelNumericLineEdit edit;
    QSignalSpy units(&edit, &KelNumericLineEdit::unitTextChanged);
    QSignalSpy decimals(&edit, &KelNumericLineEdit::decimalsChanged);
    QSignalSpy integerDigits(&edit, &KelNumericLineEdit::integerDigitsChanged);

    for (int i = 0; i < 2; ++i) {
        edit.setUnitText(QStringLiteral("V"));
        edit.setDecimals(0);
        edit.setIntegerDigits(4);
    }
    edit.setIntegerDigits(0);
    QCOMPARE(units.count(), 1);
    QCOMPARE(decimals.count(), 1);
    QCOMPARE(integerDigits.count(), 1);
}

void KelNumericLineEditTest::aNewSettingTakesEffectAtOnce()
{
    KelNumericLineEdit edit;
    edit.setLocale(english());
    type(edit, QStringLiteral("1234"));
    QCOMPARE(edit.text(), QStringLiteral("123"));
    edit.setIntegerDigits(4);
    type(edit, QStringLiteral("4.567"));
    QCOMPARE(edit.text(), QStringLiteral("1234.56"));
    edit.setDecimals(3);
    type(edit, QStringLiteral("7V"));
    QCOMPARE(edit.text(), QStringLiteral("1234.567"));
    edit.setUnitText(QStringLiteral("V"));
    type(edit, QStringLiteral("V"));
    QCOMPARE(edit.text(), QStringLiteral("1234.567V"));
    edit.clear();
    edit.setUnitText(QString());
    type(edit, QStringLiteral("1 V"));
    QCOMPARE(edit.text(), QStringLiteral("1 "));
    QCOMPARE(edit.findChildren<QValidator *>().size(), 1);
}

void KelNumericLineEditTest::followsItsLocale()
{
    QWidget window;
    window.setLocale(english());
    KelNumericLineEdit edit(&window);
    type(edit, QStringLiteral("1,5"));
    QCOMPARE(edit.text(), QStringLiteral("15"));

    window.setLocale(german());
    edit.clear();
    type(edit, QStringLiteral("1,5"));
    QCOMPARE(edit.text(), QStringLiteral("1,5"));
}

void KelNumericLineEditTest::takesTheGreatestNumbersOfDigits_data()
{
    columns<int, int>({"digits", "taken"});
    row("the last number that is kept exactly", 1024, 1024);
    row("above it the pattern stays there", 1025, 1024);
    row("the greatest number of the setting", 65535, 1024);
}

void KelNumericLineEditTest::takesTheGreatestNumbersOfDigits()
{
    QFETCH(int, digits);
    QFETCH(int, taken);

    KelNumericLineEdit edit;
    edit.setIntegerDigits(quint16(digits));
    QCOMPARE(int(edit.integerDigits()), digits);
    edit.insert(QString(taken, QLatin1Char('1')));
    QCOMPARE(edit.text().size(), taken);
    type(edit, QStringLiteral("1"));
    QCOMPARE(edit.text().size(), taken);
}

DEZIMO_TEST_MAIN(QApplication, KelNumericLineEditTest)

#include "tst_kelnumericlineedit.moc"
