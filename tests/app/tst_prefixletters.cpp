// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelnumericlineedit.h"
#include "prefixedvalue.h"
#include "testmain.h"

#include <QApplication>
#include <QTest>

using namespace Dezimo;

/// The numeric field knows nothing about the models, so each side has its own table of SI prefixes.
class PrefixLettersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldAndModelsKnowTheSame();
};

void PrefixLettersTest::fieldAndModelsKnowTheSame()
{
    KelNumericLineEdit field;
    QString ofField;
    QString ofModels;
    // The range includes the Greek letters, because there are two kinds of micro sign.
    for (int code = 0; code < 0x400; ++code) {
        const QChar letter(code);
        if (!letter.isLetter())
            continue;
        field.setText(QLatin1Char('1') + letter);
        if (field.hasAcceptableInput())
            ofField += letter;
        if (readPrefixedValue(field.text()))
            ofModels += letter;
    }
    QCOMPARE(ofField, QStringLiteral("GMPTfkmnpu"));
    QCOMPARE(ofModels, QStringLiteral("GMPTfkmnpu"));
}

DEZIMO_TEST_MAIN(QApplication, PrefixLettersTest)

#include "tst_prefixletters.moc"
