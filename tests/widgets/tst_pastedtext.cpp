// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "pastedtext.h"
#include "table.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

class PastedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replaces_data();
    void replaces();
    void leavesOutWhatNobodyReads_data();
    void leavesOutWhatNobodyReads();
    void leavesOutTheUnitBesideTheField_data();
    void leavesOutTheUnitBesideTheField();
    void keepsAMicroSignThatTheFieldReads_data();
    void keepsAMicroSignThatTheFieldReads();
    void takesATextOfAnyLength();
};

void PastedTextTest::replaces_data()
{
    columns<QString, QString>({"text", "cleaned"});

    const auto signs = [](const char *name, const QString &typographic, char plain) {
        for (const QChar sign : typographic) {
            QTest::addRow("%s U+%04X", name, unsigned(sign.unicode()))
                << QStringLiteral("3%1 5").arg(sign)
                << QStringLiteral("3%1").arg(QLatin1Char(plain)) + QLatin1Char('5');
        }
    };
    signs("a dash", QStringLiteral("\u2010\u2011\u2012\u2013\u2014\u2015"), '-');
    signs("a minus sign", QStringLiteral("\u2212\uFE63\uFF0D"), '-');
    signs("a plus sign", QStringLiteral("\uFF0B"), '+');
    signs("a micro sign", QStringLiteral("\u00B5\u03BC"), 'u');
    row("the neighbors of the dashes in Unicode", "\u2016\u2017", "\u2016\u2017");
    row("plain signs", "-1.5E-3+2", "-1.5E-3+2");
    row("commas", "1,5,2", "1,5,2");
    row("letters, brackets and signs of other alphabets", "(dBm)[x]{y}Γ²≙×·", "(dBm)[x]{y}Γ²≙×·");
    row("digits of another script", "\u0661\u0662", "\u0661\u0662");
    row("a character of two places", "\U0001F600", "\U0001F600");
    row("nothing", "", "");
    row("a whole expression", "\u221210\u00A0dBm \uFF0B 3 dB\n", "-10dBm+3dB");
}

void PastedTextTest::replaces()
{
    QFETCH(QString, text);

    QTEST(PastedText::cleaned(text), "cleaned");
}

void PastedTextTest::leavesOutWhatNobodyReads_data()
{
    columns<int>({"code"});
    const struct
    {
        const char *name;
        int code;
    } characters[] = {
        {"a blank", 0x20},
        {"a tab", 0x09},
        {"a line feed", 0x0A},
        {"a vertical tab", 0x0B},
        {"a form feed", 0x0C},
        {"a carriage return", 0x0D},
        {"a zero character", 0x00},
        {"a next line", 0x85},
        {"a blank without a break", 0xA0},
        {"a soft hyphen", 0xAD},
        {"an Ogham blank", 0x1680},
        {"an en quad", 0x2000},
        {"an em space", 0x2003},
        {"a figure space", 0x2007},
        {"a thin space", 0x2009},
        {"a hair space", 0x200A},
        {"a space of no width", 0x200B},
        {"a non-joiner of no width", 0x200C},
        {"a joiner of no width", 0x200D},
        {"a mark of direction", 0x200E},
        {"a separator of lines", 0x2028},
        {"a separator of paragraphs", 0x2029},
        {"a narrow blank without a break", 0x202F},
        {"a mathematical space", 0x205F},
        {"a word joiner", 0x2060},
        {"an ideographic space", 0x3000},
        {"a byte order mark", 0xFEFF},
    };
    for (const auto &character : characters)
        row(character.name, character.code);
}

void PastedTextTest::leavesOutWhatNobodyReads()
{
    QFETCH(int, code);

    const QChar character(code);
    const QString text =
        character + QStringLiteral("1") + character + character + QStringLiteral("2") + character;
    QCOMPARE(PastedText::cleaned(text), QStringLiteral("12"));
}

void PastedTextTest::leavesOutTheUnitBesideTheField_data()
{
    columns<QString, QString, QString>({"text", "unit", "cleaned"});
    row("the unit after a blank", "10 dBm", "dBm", "10");
    row("the unit without a blank", "10dBm", "dBm", "10");
    row("the unit and a line end", "10 dBm\r\n", "dBm", "10");
    row("a number alone", "10", "dBm", "10");
    row("the unit alone", "dBm", "dBm", "");
    row("another unit", "10 dBW", "dBm", "10dBW");
    row("another unit that ends like it", "10 dBW", "W", "10dBW");
    row("another unit alone that ends like it", "dBW", "W", "dBW");
    row("the unit in other letters", "10 dbm", "dBm", "10dbm");
    row("the unit in front", "dBm 10", "dBm", "dBm10");
    row("the unit twice: one is no number's", "10 dBm dBm", "dBm", "10dBmdBm");
    row("a prefix before the unit", "5 mW", "W", "5m");
    row("the unit is the one with the prefix", "5 mW", "mW", "5");
    row("two prefixes", "5 mmW", "mW", "5m");
    row("a prefix that is typed with a micro sign", "5 \u00B5V", "V", "5u");
    row("an exponent", "1.5E+03 mV", "mV", "1.5E+03");
    row("a decimal comma", "1,5 V", "V", "1,5");
    row("percent", "3.98 %", "%", "3.98");
    row("decibel", "\u22123.01 dB", "dB", "-3.01");
    row("the sign of the ohm", "50 \u03A9", "\u03A9", "50");
    row("the sign of the ohm that looks like the Greek letter", "50\u2126", "\u03A9", "50");
    row("ohm as a word", "50 ohm", "\u03A9", "50");
    row("ohms as a word", "50 Ohms", "\u03A9", "50");
    row("ohm in capitals", "50 OHM", "\u03A9", "50");
    row("ohms in capitals", "50 OHMS", "\u03A9", "50");
    row("a prefix before the ohm", "1 k\u03A9", "\u03A9", "1k");
    row("a prefix before the ohm as a word", "1 kohm", "\u03A9", "1k");
    row("ohm where another unit is", "50 ohm", "m", "50ohm");
    row("a micro sign in the unit", "106.99 dB\u00B5V", "dB\u00B5V", "106.99");
    row("a Greek letter in the unit", "106.99 dB\u03BCV", "dB\u00B5V", "106.99");
    row("u in the unit", "106.99 dBuV", "dB\u00B5V", "106.99");
    row("the beginning of another unit", "106.99 dB\u00B5V", "dBu", "106.99dBuV");
    row("no unit", "10 dBm", "", "10dBm");
}

void PastedTextTest::leavesOutTheUnitBesideTheField()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);

    QTEST(PastedText::cleaned(text, unit), "cleaned");
}

void PastedTextTest::keepsAMicroSignThatTheFieldReads_data()
{
    columns<QString, QString, QString>({"text", "unit", "cleaned"});
    row("the micro sign", "5 \u00B5W \u2212 1 mW", "", "5\u00B5W-1mW");
    row("the Greek letter", "5 \u03BCW", "", "5\u03BCW");
    row("the unit beside the field", "5 \u00B5W", "\u00B5W", "5");
}

void PastedTextTest::keepsAMicroSignThatTheFieldReads()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);

    QTEST(PastedText::cleaned(text, unit, PastedText::MicroSign::Kept), "cleaned");
}

/// A slower than linear cleaning would take hours.
void PastedTextTest::takesATextOfAnyLength()
{
    const int length = 1000000;
    const QString text = QStringLiteral("\u22121 ").repeated(length) + QStringLiteral("dBm");
    QCOMPARE(PastedText::cleaned(text, QStringLiteral("dBm")).size(), 2 * length);
}

DEZIMO_TEST_MAIN(QCoreApplication, PastedTextTest)

#include "tst_pastedtext.moc"
