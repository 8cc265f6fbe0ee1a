// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"

#include "accessiblewidgets.h"

#include <QEvent>
#include <QLabel>
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

void KelLineEdit::setErrorTexts(const QStringList &texts)
{
    m_errorTexts = texts;
    updateError();
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
    style()->unpolish(this);
    style()->polish(this);
    Q_EMIT errorChanged();
}

/// A style sheet writes its own palette whenever it is applied; the placeholder's color is put
/// back.
void KelLineEdit::applyPlaceholderColor()
{
    QPalette colors = palette();
    if (!m_placeholderColor.isValid() ||
        colors.color(QPalette::PlaceholderText) == m_placeholderColor)
        return;
    colors.setColor(QPalette::PlaceholderText, m_placeholderColor);
    setPalette(colors);
}
