// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"

#include "accessiblewidgets.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QStyle>

namespace {

/// Pixels between an end of the edit and its label, and between the label and the typed text.
constexpr int kLabelMargin = 12;

int marginFor(const QLabel *label)
{
    return label->text().isEmpty() ? 0 : label->width() + kLabelMargin;
}

} // namespace

KelLineEdit::KelLineEdit(QWidget *parent)
    : KelPastingLineEdit(parent),
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
    return KelPastingLineEdit::event(event);
}

void KelLineEdit::resizeEvent(QResizeEvent *event)
{
    KelPastingLineEdit::resizeEvent(event);
    layOutLabels();
}

void KelLineEdit::showEvent(QShowEvent *event)
{
    KelPastingLineEdit::showEvent(event);
    m_prefixLabel->setMinimumHeight(minimumHeight());
    m_suffixLabel->setMinimumHeight(minimumHeight());
    layOutLabels();
}

/// A hidden edit loses the focus only afterwards, and in a window that is not active never. So
/// being hidden, by a turned page or a closed window, finishes an edit by itself.
void KelLineEdit::hideEvent(QHideEvent *event)
{
    KelPastingLineEdit::hideEvent(event);
    leave();
}

void KelLineEdit::focusInEvent(QFocusEvent *event)
{
    KelPastingLineEdit::focusInEvent(event);
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
        KelPastingLineEdit::focusOutEvent(event);
    }
    if (hadSelection && !hasSelectedText())
        Q_EMIT selectionChanged();
    const bool isInContextMenu = event->reason() == Qt::PopupFocusReason && m_contextMenu &&
                                 QApplication::activePopupWidget() == m_contextMenu;
    if (!isInContextMenu)
        leave();
}

/// The click that brings the focus also places the cursor, so an error word is selected after it.
/// What the person does then, clicking again or selecting a part, stays as it is.
void KelLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    KelPastingLineEdit::mouseReleaseEvent(event);
    if (m_isEnteredByClick && !hasSelectedText())
        selectError();
    m_isEnteredByClick = false;
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
    cleanPastesOf(*m_contextMenu);
    m_contextMenu->popup(event->globalPos());
}

QString KelLineEdit::cleaned(const QString &text) const
{
    const QString unit = m_unitSelector ? m_unitSelector->currentText() : m_suffixLabel->text();
    return PastedText::cleaned(text, unit, m_microSign);
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
