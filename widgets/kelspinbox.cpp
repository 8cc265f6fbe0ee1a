// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelspinbox.h"

#include "kelpastinglineedit.h"
#include "pastedtext.h"

#include <QChildEvent>
#include <QMenu>
#include <QWheelEvent>

namespace {

/// The edit in the box. A number that is put beside the old one would make a third, so what the
/// mouse brings takes its place.
class NumberEdit final : public KelPastingLineEdit
{
public:
    explicit NumberEdit(QSpinBox *box) : KelPastingLineEdit(box), m_box(box)
    {
        setReplacedByMouse(true);
    }

protected:
    /// The box has the menu made and shows it. Being polished is the last that happens to it before
    /// it is seen.
    void childEvent(QChildEvent *event) override
    {
        KelPastingLineEdit::childEvent(event);
        if (event->polished() && event->child()->inherits("QMenu"))
            cleanPastesOf(*static_cast<const QMenu *>(event->child()));
    }

    /// A text that is copied from the box may have its prefix in front.
    QString cleaned(const QString &text) const override
    {
        const QString prefix = PastedText::cleaned(m_box->prefix());
        const QString number = PastedText::cleaned(text, m_box->suffix());
        return number.startsWith(prefix) ? number.mid(prefix.size()) : number;
    }

private:
    const QSpinBox *const m_box;
};

} // namespace

/// Qt's accessibility leaves the edit out of what a screen reader finds if it has this name. By
/// itself a box takes no drops.
KelSpinBox::KelSpinBox(QWidget *parent) : QSpinBox(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::StrongFocus);
    auto *edit = new NumberEdit(this);
    edit->setObjectName(QStringLiteral("qt_spinbox_lineedit"));
    setLineEdit(edit);
    edit->setAcceptDrops(true);
}

/// An ignored wheel event goes to the page, which scrolls.
void KelSpinBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
