// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELNUMERICLINEEDIT_H
#define WIDGETS_KELNUMERICLINEEDIT_H

#include "kellineedit.h"

class QValidator;

/**
 * A line edit that takes nothing but a number, as in "-12.5 dBm" or "4e3kW": digits before and
 * after the decimal point of the widget's locale, an exponent, one SI prefix letter, and the unit
 * or its first letters.
 *
 * At most `decimals` digits follow the point and at most `integerDigits` stand before it. Either
 * may be 0, which leaves that part out. No number is without both, so the second 0 is refused.
 */
class KelNumericLineEdit final : public KelLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString unitText READ unitText WRITE setUnitText NOTIFY unitTextChanged)
    Q_PROPERTY(quint16 decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)
    Q_PROPERTY(
        quint16 integerDigits READ integerDigits WRITE setIntegerDigits NOTIFY integerDigitsChanged)

public:
    explicit KelNumericLineEdit(QWidget *parent = nullptr);

    QString unitText() const { return m_unitText; }
    quint16 decimals() const { return m_decimals; }
    quint16 integerDigits() const { return m_integerDigits; }

    void setUnitText(const QString &text);
    void setDecimals(quint16 digits);
    void setIntegerDigits(quint16 digits);

Q_SIGNALS:
    void unitTextChanged();
    void decimalsChanged();
    void integerDigitsChanged();

protected:
    void changeEvent(QEvent *event) override;
    QString cleaned(const QString &text) const override;

private:
    void rebuildValidator();
    QString minusSign() const;
    QString pattern() const;

    QString m_unitText;
    quint16 m_decimals = 2;
    quint16 m_integerDigits = 3;
    QValidator *m_validator = nullptr;
};

#endif
