// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "placeholderlook.h"

#include <QLineEdit>
#include <QStyle>
#include <QVariant>

namespace {

constexpr char kShowsPlaceholder[] = "showsPlaceholder";

void update(QLineEdit *edit)
{
    const bool isEmpty = edit->text().isEmpty();
    if (edit->property(kShowsPlaceholder).toBool() == isEmpty)
        return;
    edit->setProperty(kShowsPlaceholder, isEmpty);
    // What has never been shown is styled when it is.
    if (!edit->testAttribute(Qt::WA_WState_Polished))
        return;
    edit->style()->unpolish(edit);
    edit->style()->polish(edit);
}

} // namespace

void followPlaceholder(QLineEdit *edit)
{
    update(edit);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit] { update(edit); });
}
