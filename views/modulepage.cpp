// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "modulepage.h"

#include "errortexts.h"
#include "kellineedit.h"

#include <QComboBox>
#include <QEvent>

ModulePage::ModulePage(QWidget *parent) : QWidget(parent) {}

void ModulePage::showText(QLineEdit *field, const QString &text)
{
    if (field->text() != text)
        field->setText(text);
}

void ModulePage::markErrors(const QList<KelLineEdit *> &fields)
{
    for (KelLineEdit *field : fields)
        field->setErrorTexts(Dezimo::ErrorText::all());
}

void ModulePage::describeByUnit(QLineEdit *field, const QComboBox *unit)
{
    field->setAccessibleDescription(unit->currentText());
    connect(unit, &QComboBox::currentTextChanged, field, &QWidget::setAccessibleDescription);
}

void ModulePage::finishOpenEdit()
{
    hide();
}

void ModulePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_retranslate)
        m_retranslate();
    QWidget::changeEvent(event);
}
