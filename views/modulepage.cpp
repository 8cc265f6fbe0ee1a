// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "modulepage.h"

#include "errortexts.h"
#include "hintline.h"
#include "kellineedit.h"
#include "placeholderlook.h"

#include <QEvent>

namespace {

/// Pixels at the foot of every page, which the form leaves free.
constexpr int kHintLineHeight = 24;
/// The column in which the forms stand, and the pixels beside it in a small window.
constexpr int kColumnWidth = 800;
constexpr int kColumnMargin = 16;

} // namespace

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

void ModulePage::dressFields()
{
    const QList<KelLineEdit *> fields = findChildren<KelLineEdit *>();
    markErrors(fields);
    for (KelLineEdit *field : fields)
        followPlaceholder(field);
}

void ModulePage::finishOpenEdit()
{
    hide();
}

void ModulePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_retranslate) {
        m_retranslate();
        m_hints->retranslate();
    }
    QWidget::changeEvent(event);
}

void ModulePage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int columnWidth = qMin(width() - 2 * kColumnMargin, kColumnWidth);
    m_hintLine->setGeometry((width() - columnWidth) / 2, height() - kHintLineHeight, columnWidth,
                            kHintLineHeight);
}

/// The line is no part of the form's layout, so it has the same place on every page, and no
/// sentence can move anything.
void ModulePage::addHintLine()
{
    m_hintLine = new HintLine(this);
    m_hints = new FieldHints(this, m_hintLine);
    setContentsMargins(0, 0, 0, kHintLineHeight);
}
