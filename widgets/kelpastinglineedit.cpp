// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpastinglineedit.h"

#include <QAction>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>

namespace {

/// Shift turns Ctrl+Insert, which copies, into the key that pastes what is selected anywhere.
QClipboard::Mode clipboardOf(const QKeyEvent &key)
{
    const bool isSelection = key.key() == Qt::Key_Insert &&
                             key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) &&
                             QGuiApplication::clipboard()->supportsSelection();
    return isSelection ? QClipboard::Selection : QClipboard::Clipboard;
}

/// The entry Paste of a context menu by Qt, or null.
QAction *pasteAction(const QMenu &menu)
{
    const QList<QAction *> actions = menu.actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction *action) {
        return action->text().startsWith(QLineEdit::tr("&Paste"));
    });
    return paste == actions.end() ? nullptr : *paste;
}

/// Drops @p contents where and how @p event drops something else. Qt 6 has other names for all of
/// it, and Qt 5 does not have them yet.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
QDropEvent dropOf(const QMimeData &contents, const QDropEvent &event)
{
    return QDropEvent(event.posF(), event.possibleActions(), &contents, event.mouseButtons(),
                      event.keyboardModifiers());
}
#else
QDropEvent dropOf(const QMimeData &contents, const QDropEvent &event)
{
    return QDropEvent(event.position(), event.possibleActions(), &contents, event.buttons(),
                      event.modifiers());
}
#endif

} // namespace

void KelPastingLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly() || !event->matches(QKeySequence::Paste))
        return QLineEdit::keyPressEvent(event);
    pasteFrom(clipboardOf(*event));
    event->accept();
}

/// The middle button pastes where it was pressed, beside what was selected.
void KelPastingLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && !isReadOnly() &&
        QGuiApplication::clipboard()->supportsSelection()) {
        if (m_isReplacedByMouse)
            selectAll();
        else
            deselect();
        pasteFrom(QClipboard::Selection);
    } else {
        QLineEdit::mouseReleaseEvent(event);
    }
}

/// Dropping a text is an edit. It takes the focus, so that leaving the edit can finish it.
void KelPastingLineEdit::dropEvent(QDropEvent *event)
{
    if (isReadOnly() || !event->mimeData()->hasText())
        QLineEdit::dropEvent(event);
    else
        takeDrop(event);
    if (event->isAccepted())
        setFocus(Qt::OtherFocusReason);
}

void KelPastingLineEdit::takeDrop(QDropEvent *event)
{
    const QString text = event->mimeData()->text();
    const QString kept = taken(text);
    if (kept.isEmpty() && !text.isEmpty()) {
        hideDropCursor();
        event->ignore();
    } else if (m_isReplacedByMouse) {
        hideDropCursor();
        selectAll();
        insertAsOneStep(kept);
        event->acceptProposedAction();
    } else {
        QMimeData contents;
        contents.setText(kept);
        QDropEvent drop = dropOf(contents, *event);
        endUndoStep();
        QLineEdit::dropEvent(&drop);
        endUndoStep();
        event->setDropAction(drop.dropAction());
        event->setAccepted(drop.isAccepted());
    }
}

/// Qt hides it when the drag leaves the edit or ends in it by Qt's own drop.
void KelPastingLineEdit::hideDropCursor()
{
    QDragLeaveEvent leaving;
    dragLeaveEvent(&leaving);
}

void KelPastingLineEdit::cleanPastesOf(const QMenu &menu)
{
    QAction *paste = pasteAction(menu);
    if (!paste)
        return;
    disconnect(paste, &QAction::triggered, this, nullptr);
    connect(paste, &QAction::triggered, this, [this] { pasteFrom(QClipboard::Clipboard); });
}

QString KelPastingLineEdit::taken(const QString &text) const
{
    return m_isCleaningPastes ? cleaned(text) : text;
}

/// Does what Qt's own paste does, with a cleaned text. Qt, too, removes a selection when the
/// clipboard is empty. A unit alone or a blank is no reason to lose the selected value.
void KelPastingLineEdit::pasteFrom(QClipboard::Mode mode)
{
    const QString text = QGuiApplication::clipboard()->text(mode);
    const QString kept = taken(text);
    if (kept.isEmpty() && !(text.isEmpty() && hasSelectedText()))
        return;
    insertAsOneStep(kept);
}

void KelPastingLineEdit::insertAsOneStep(const QString &text)
{
    endUndoStep();
    insert(text);
    endUndoStep();
}

/// What was typed before is undone by itself, and so is what comes after. Qt ends a step when the
/// cursor moves, when an edit is cleared, or when a selection is removed, which insert() does.
void KelPastingLineEdit::endUndoStep()
{
    if (hasSelectedText())
        return;
    const QSignalBlocker nothingHappens(this);
    const int cursor = cursorPosition();
    if (text().isEmpty())
        clear();
    else if (cursor == 0)
        end(false);
    else
        home(false);
    setCursorPosition(cursor);
}
