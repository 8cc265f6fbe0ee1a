// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelnumericlineedit.h"

#include <QEvent>
#include <QLocale>
#include <QRegExp>
#include <QRegExpValidator>

namespace {

/// The regular expression engine allows no more repetitions.
constexpr int kMaximalRepetitions = 1024;

QString digitsPattern(int maximum)
{
    return QStringLiteral("\\d{1,%1}").arg(qMin(maximum, kMaximalRepetitions));
}

/// One of the SI prefix letters that the models read; micro is the letter u.
QString prefixPattern()
{
    return QStringLiteral("[fpnumkMGTP]?");
}

/// Matches any beginning of the unit: (d(B(m)?)?)? for dBm.
QString unitPattern(const QString &unit)
{
    QString opening;
    QString closing;
    for (const QChar letter : unit) {
        opening += QLatin1Char('(') + QRegExp::escape(letter);
        closing += QLatin1String(")?");
    }
    return opening + closing;
}

} // namespace

KelNumericLineEdit::KelNumericLineEdit(QWidget *parent) : KelLineEdit(parent)
{
    rebuildValidator();
}

void KelNumericLineEdit::setUnitText(const QString &text)
{
    if (text == m_unitText)
        return;
    m_unitText = text;
    rebuildValidator();
    Q_EMIT unitTextChanged();
}

void KelNumericLineEdit::setDecimals(quint16 digits)
{
    if (digits == m_decimals || (digits == 0 && m_integerDigits == 0))
        return;
    m_decimals = digits;
    rebuildValidator();
    Q_EMIT decimalsChanged();
}

void KelNumericLineEdit::setIntegerDigits(quint16 digits)
{
    if (digits == m_integerDigits || (digits == 0 && m_decimals == 0))
        return;
    m_integerDigits = digits;
    rebuildValidator();
    Q_EMIT integerDigitsChanged();
}

void KelNumericLineEdit::changeEvent(QEvent *event)
{
    KelLineEdit::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        rebuildValidator();
}

void KelNumericLineEdit::rebuildValidator()
{
    auto *validator = new QRegExpValidator(QRegExp(pattern()), this);
    setValidator(validator);
    delete m_validator;
    m_validator = validator;
}

QString KelNumericLineEdit::pattern() const
{
    const QString minus = QRegExp::escape(locale().negativeSign());
    const QString point = QRegExp::escape(locale().decimalPoint());

    QString text = QLatin1Char('^') + minus + QLatin1Char('?');
    if (m_integerDigits != 0)
        text += digitsPattern(m_integerDigits);
    if (m_decimals != 0)
        text += QLatin1Char('(') + point + digitsPattern(m_decimals) + QLatin1String(")?");
    text += QLatin1String("(e") + minus + QLatin1String("?\\d{1,3})? ?");
    text += prefixPattern();
    text += unitPattern(m_unitText);
    return text + QLatin1Char('$');
}
