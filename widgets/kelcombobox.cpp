// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelcombobox.h"

#include "accessiblewidgets.h"
#include "kelcomboboxstyle.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QListView>
#include <QWheelEvent>

namespace {

/// While it lives, Qt styles nothing but lists. What would have been styled meanwhile never is, so
/// that must be about to be deleted.
class StylingListsOnly final : public QObject
{
public:
    StylingListsOnly() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::Polish && !qobject_cast<QListView *>(watched);
    }
};

/// A box with a new style gets a list from Qt, with scroll bars that Qt styles at once. The list is
/// replaced right after that, so nobody ever sees them. The list itself has to be styled, because
/// Qt gives its frame to the popup.
void setStyleOf(QComboBox *box, QStyle *style)
{
    const StylingListsOnly forTheListThatIsReplaced;
    box->setStyle(style);
    box->view();
}

} // namespace

/// The list gets its final parent at once, because Qt would style it again after a move.
KelComboBox::KelComboBox(QWidget *parent) : QComboBox(parent)
{
    auto *style = new KelComboBoxStyle;
    style->setParent(this);
    setStyleOf(this, style);
    setView(new QListView(view()->parentWidget()));
    view()->installEventFilter(this);
    installAccessibleWidgets();
    setFocusPolicy(Qt::StrongFocus);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &KelComboBox::selectCurrentItem);
}

KelComboBox::~KelComboBox()
{
    view()->clearFocus();
}

void KelComboBox::setListFontSize(int size)
{
    m_listStyle = QStringLiteral("font-size: %1px").arg(size);
}

void KelComboBox::showPopup()
{
    if (!m_listStyle.isEmpty() && view()->styleSheet() != m_listStyle)
        view()->setStyleSheet(m_listStyle);
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    QSizePolicy policy = view()->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::MinimumExpanding);
    view()->setSizePolicy(policy);
    view()->setMinimumWidth(width());
    // The view sits in a frame, which is the popup's window.
    view()->parentWidget()->move(mapToGlobal(QPoint(0, height())));
}

/// Later versions of Qt 6 hide the list without hidePopup() when it is left by Esc. Qt reads a
/// choice by key from the hidden list, so the list must not change at once.
bool KelComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view() && event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, "endPopup", Qt::QueuedConnection);
    return QComboBox::eventFilter(watched, event);
}

/// An ignored wheel event goes to the page, which scrolls.
void KelComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

/// Puts right what an open list leaves behind: if nothing was chosen, the item last under the
/// pointer or the keys is still selected, and nobody has told the box that the pointer has left it.
void KelComboBox::endPopup()
{
    selectCurrentItem();
    if (!underMouse() || rect().contains(mapFromGlobal(QCursor::pos())))
        return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(this, &leave);
    update();
}

void KelComboBox::selectCurrentItem()
{
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()));
}
