// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"

#include "accessiblewidgets.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QStyle>

#include <algorithm>

namespace {

/// Pixels between an end of the edit and its label, and between the label and the typed text.
constexpr int kLabelMargin = 12;

int marginFor(const QLabel *label)
{
    return label->text().isEmpty() ? 0 : label->width() + kLabelMargin;
}

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

/// Drops @p contents where and how @p event drops something else.
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

KelLineEdit::KelLineEdit(QWidget *parent)
    : QLineEdit(parent),
      m_prefixLabel(new QLabel(this)),
      m_suffixLabel(new QLabel(this))
{
    installAccessibleWidgets();
    setAttribute(Qt::WA_MacShowFocusRect, false);
    m_prefixLabel->setObjectName(QStringLiteral("prefixLabel"));
    m_suffixLabel->setObjectName(QStringLiteral("suffixLabel"));
    for (QLabel *label : {m_prefixLabel, m_suffixLabel}) {
        label->setTextFormat(Qt::PlainText);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->hide();
    }
    connect(this, &QLineEdit::textEdited, this, &KelLineEdit::noteEdit);
    connect(this, &QLineEdit::textChanged, this, &KelLineEdit::noteWrittenText);
    connect(this, &QLineEdit::returnPressed, this, [this] { m_isEdited = false; });
    connect(this, &QLineEdit::textChanged, this, &KelLineEdit::updateError);
}

void KelLineEdit::setPrefixText(const QString &text)
{
    m_prefixLabel->setText(text);
    layOutLabels();
    updateDescription();
}

void KelLineEdit::setSuffixText(const QString &text)
{
    m_suffixLabel->setText(text);
    layOutLabels();
    updateDescription();
}

void KelLineEdit::setPlaceholderColor(const QColor &color)
{
    if (color == m_placeholderColor)
        return;
    m_placeholderColor = color;
    applyPlaceholderColor();
    Q_EMIT placeholderColorChanged();
}

void KelLineEdit::setQuiet(bool quiet)
{
    if (quiet == m_isQuiet)
        return;
    m_isQuiet = quiet;
    if (m_hasError)
        styleAgain();
    Q_EMIT quietChanged();
}

void KelLineEdit::setErrorTexts(const QStringList &texts)
{
    m_errorTexts = texts;
    updateError();
}

const QComboBox *KelLineEdit::unitSelector() const
{
    return m_unitSelector;
}

void KelLineEdit::setUnitSelector(const QComboBox *selector)
{
    m_unitSelector = selector;
}

bool KelLineEdit::event(QEvent *event)
{
    // Posted by a label whose size hint changes, for example with the font of a style sheet.
    if (event->type() == QEvent::LayoutRequest)
        layOutLabels();
    if (event->type() == QEvent::PaletteChange)
        applyPlaceholderColor();
    return QLineEdit::event(event);
}

void KelLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    layOutLabels();
}

void KelLineEdit::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    m_prefixLabel->setMinimumHeight(minimumHeight());
    m_suffixLabel->setMinimumHeight(minimumHeight());
    layOutLabels();
}

/// A hidden edit loses the focus only afterwards, and in a window that is not active never. So
/// being hidden, by a turned page or a closed window, finishes an edit by itself.
void KelLineEdit::hideEvent(QHideEvent *event)
{
    QLineEdit::hideEvent(event);
    leave();
}

void KelLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    m_isEntered = true;
    m_isEnteredByClick = event->reason() == Qt::MouseFocusReason;
    if (event->reason() != Qt::PopupFocusReason)
        selectError();
}

/// Qt would emit editingFinished by a rule of its own, so its signals are blocked. That also blocks
/// the one about a lost selection, which is sent afterwards.
void KelLineEdit::focusOutEvent(QFocusEvent *event)
{
    const bool hadSelection = hasSelectedText();
    {
        const QSignalBlocker qtsOwnRule(this);
        QLineEdit::focusOutEvent(event);
    }
    if (hadSelection && !hasSelectedText())
        Q_EMIT selectionChanged();
    const bool isInContextMenu = event->reason() == Qt::PopupFocusReason && m_contextMenu &&
                                 QApplication::activePopupWidget() == m_contextMenu;
    if (!isInContextMenu)
        leave();
}

void KelLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly() || !event->matches(QKeySequence::Paste))
        return QLineEdit::keyPressEvent(event);
    pasteFrom(clipboardOf(*event));
    event->accept();
}

/// The click that brings the focus also places the cursor, so an error word is selected after it.
/// What the person does then, clicking again or selecting a part, stays as it is. The middle button
/// pastes where it was pressed, beside what was selected.
void KelLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && !isReadOnly() &&
        QGuiApplication::clipboard()->supportsSelection()) {
        deselect();
        pasteFrom(QClipboard::Selection);
    } else {
        QLineEdit::mouseReleaseEvent(event);
    }
    if (m_isEnteredByClick && !hasSelectedText())
        selectError();
    m_isEnteredByClick = false;
}

/// Dropping a text is an edit. It takes the focus, so that leaving the edit can finish it. A text
/// that is moved within the edit does not come in, so it stays as it is.
void KelLineEdit::dropEvent(QDropEvent *event)
{
    if (event->source() == this || !event->mimeData()->hasText()) {
        QLineEdit::dropEvent(event);
    } else {
        const QString text = event->mimeData()->text();
        QMimeData contents;
        contents.setText(taken(text));
        if (contents.text().isEmpty() && !text.isEmpty()) {
            QDragLeaveEvent hidesTheDropCursor;
            dragLeaveEvent(&hidesTheDropCursor);
            return event->ignore();
        }
        QDropEvent drop = dropOf(contents, *event);
        endUndoStep();
        QLineEdit::dropEvent(&drop);
        endUndoStep();
        event->setDropAction(drop.dropAction());
        event->setAccepted(drop.isAccepted());
    }
    if (event->isAccepted())
        setFocus(Qt::OtherFocusReason);
}

/// As a child of the edit the menu would take on the edit's font size, so it belongs to the window.
void KelLineEdit::contextMenuEvent(QContextMenuEvent *event)
{
    m_contextMenu = createStandardContextMenu();
    if (!m_contextMenu)
        return;
    m_contextMenu->insertActions(m_contextMenu->actions().value(0), actions());
    m_contextMenu->setParent(window(), m_contextMenu->windowFlags());
    m_contextMenu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction *paste = pasteAction(*m_contextMenu)) {
        disconnect(paste, &QAction::triggered, this, nullptr);
        connect(paste, &QAction::triggered, this, [this] { pasteFrom(QClipboard::Clipboard); });
    }
    m_contextMenu->popup(event->globalPos());
}

QString KelLineEdit::cleaned(const QString &text) const
{
    const QString unit = m_unitSelector ? m_unitSelector->currentText() : m_suffixLabel->text();
    return PastedText::cleaned(text, unit, m_microSign);
}

QString KelLineEdit::taken(const QString &text) const
{
    return m_isCleaningPastes ? cleaned(text) : text;
}

/// Does what Qt's own paste does, with a cleaned text. Qt, too, removes a selection when the
/// clipboard is empty. A unit alone or a blank is no reason to lose the selected value.
void KelLineEdit::pasteFrom(QClipboard::Mode mode)
{
    const QString text = QGuiApplication::clipboard()->text(mode);
    const QString kept = taken(text);
    if (kept.isEmpty() && !(text.isEmpty() && hasSelectedText()))
        return;
    endUndoStep();
    insert(kept);
    endUndoStep();
}

/// What was typed before is undone by itself, and so is what comes after. Qt ends a step when the
/// cursor moves, when an edit is cleared, or when a selection is removed, which insert() does.
void KelLineEdit::endUndoStep()
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

void KelLineEdit::noteEdit(const QString &text)
{
    m_isEdited = true;
    m_editedText = text;
}

/// Qt emits textEdited before textChanged if a person edits, and textChanged alone if the program
/// writes a text.
void KelLineEdit::noteWrittenText(const QString &text)
{
    if (text != m_editedText)
        m_isEdited = false;
}

void KelLineEdit::leave()
{
    const bool isFinished = m_isEdited || (m_isFinishedByEveryLeaving && m_isEntered);
    m_isEntered = false;
    if (!isFinished || !hasAcceptableInput())
        return;
    m_isEdited = false;
    Q_EMIT editingFinished();
}

void KelLineEdit::selectError()
{
    if (m_hasError)
        selectAll();
}

void KelLineEdit::layOutLabels()
{
    for (QLabel *label : {m_prefixLabel, m_suffixLabel}) {
        label->setVisible(!label->text().isEmpty());
        label->resize(label->sizeHint());
    }
    m_prefixLabel->move(rect().left() + kLabelMargin, rect().top());
    m_suffixLabel->move(rect().right() - kLabelMargin - m_suffixLabel->width(), rect().top());
    setTextMargins(marginFor(m_prefixLabel), 0, marginFor(m_suffixLabel), 0);
}

void KelLineEdit::updateDescription()
{
    if (accessibleDescription() != m_labelDescription)
        return;
    QStringList texts{m_prefixLabel->text(), m_suffixLabel->text()};
    texts.removeAll(QString());
    m_labelDescription = texts.join(QLatin1Char(' ')).trimmed();
    setAccessibleDescription(m_labelDescription);
}

void KelLineEdit::updateError()
{
    const bool isError = m_errorTexts.contains(text());
    if (isError == m_hasError)
        return;
    m_hasError = isError;
    styleAgain();
    if (hasFocus() && !m_isEdited)
        selectError();
    Q_EMIT errorChanged();
}

/// A style sheet reads the properties of a widget only when it is applied.
void KelLineEdit::styleAgain()
{
    style()->unpolish(this);
    style()->polish(this);
}

/// Every application of a style sheet replaces the palette, and with it the placeholder's color.
void KelLineEdit::applyPlaceholderColor()
{
    QPalette colors = palette();
    if (!m_placeholderColor.isValid() ||
        colors.color(QPalette::PlaceholderText) == m_placeholderColor)
        return;
    colors.setColor(QPalette::PlaceholderText, m_placeholderColor);
    setPalette(colors);
}
