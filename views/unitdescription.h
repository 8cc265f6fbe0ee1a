// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_UNITDESCRIPTION_H
#define VIEWS_UNITDESCRIPTION_H

#include <QComboBox>
#include <QLineEdit>

/// Keeps the unit chosen beside a field as its description, so that a screen reader tells the unit
/// together with the value.
inline void describeByUnit(QLineEdit *field, const QComboBox *unit)
{
    field->setAccessibleDescription(unit->currentText());
    QObject::connect(unit, &QComboBox::currentTextChanged, field,
                     &QWidget::setAccessibleDescription);
}

#endif
