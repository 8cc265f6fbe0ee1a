// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelnumericlineedit.h"

#include <QEvent>
#include <QLocale>
#include <QVector>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QRegExpValidator>
#else
#include <QRegularExpressionValidator>
#endif

namespace {

// Qt 6 has no QRegExpValidator. QRegExp takes the digits of all scripts, while the other class has
// to be told so. Its "$" also matches before a line break; without it, validators match whole texts
// too.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using Expression = QRegExp;
using Validator = QRegExpValidator;

Expression expressionOf(const QString &pattern)
{
    return Expression(pattern);
}
#else
using Expression = QRegularExpression;
using Validator = QRegularExpressionValidator;

Expression expressionOf(const QString &pattern)
{
    return Expression(pattern.chopped(1), Expression::UseUnicodePropertiesOption);
}
#endif

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
    const QVector<uint> letters = unit.toUcs4();
    for (const uint letter : letters) {
        opening += QLatin1Char('(') + Expression::escape(QString::fromUcs4(&letter, 1));
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
    setMicroSign(text.contains(QChar(u'\u00B5')) ? PastedText::MicroSign::Kept
                                                 : PastedText::MicroSign::Replaced);
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

/// The locale may have a minus sign of its own, and the field takes no other.
QString KelNumericLineEdit::cleaned(const QString &text) const
{
    return KelLineEdit::cleaned(text).replace(QLatin1Char('-'), minusSign());
}

void KelNumericLineEdit::rebuildValidator()
{
    auto *validator = new Validator(expressionOf(pattern()), this);
    setValidator(validator);
    delete m_validator;
    m_validator = validator;
}

/// In Qt 6 the signs of some locales also have marks of direction, which nobody types.
QString KelNumericLineEdit::minusSign() const
{
    const QString sign = locale().negativeSign();
    return sign.size() == 1 ? sign : QStringLiteral("-");
}

QString KelNumericLineEdit::pattern() const
{
    const QString minus = Expression::escape(minusSign());
    const QString point = Expression::escape(locale().decimalPoint());

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
