// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "resultcopy.h"

#include "errortexts.h"
#include "kellineedit.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>

namespace {

bool isCopyKey(QEvent *event)
{
    return event->type() == QEvent::KeyPress &&
           static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy);
}

} // namespace

ResultCopy::ResultCopy(QLineEdit *input, KelLineEdit *result, const QComboBox *unit)
    : QObject(result),
      m_input(input),
      m_result(result),
      m_unit(unit)
{
    input->installEventFilter(this);
    result->installEventFilter(this);
}

bool ResultCopy::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_result && event->type() == QEvent::ContextMenu)
        updateMenuEntry();
    if (!isCopyKey(event) || static_cast<QLineEdit *>(watched)->hasSelectedText())
        return QObject::eventFilter(watched, event);
    const QString text = textFor(watched);
    if (text.isEmpty())
        return QObject::eventFilter(watched, event);
    QGuiApplication::clipboard()->setText(text);
    return true;
}

bool ResultCopy::hasResult() const
{
    return !m_result->hasError() && !m_result->text().isEmpty() &&
           m_result->text() != Dezimo::ErrorText::kNoResult;
}

QString ResultCopy::resultWithUnit() const
{
    if (m_unit->isHidden())
        return m_result->text();
    return m_result->text() + QLatin1Char(' ') + m_unit->currentText();
}

/// An expression has a result or an error word, so an empty result has been taken over.
QString ResultCopy::textFor(const QObject *edit) const
{
    if (m_result->text().isEmpty() && edit == m_input)
        return m_input->text();
    return hasResult() ? resultWithUnit() : QString();
}

void ResultCopy::updateMenuEntry()
{
    if (m_menuEntry == nullptr) {
        m_menuEntry = new QAction(tr("Copy with Unit"), m_result);
        connect(m_menuEntry, &QAction::triggered, this,
                [this] { QGuiApplication::clipboard()->setText(resultWithUnit()); });
        m_result->addAction(m_menuEntry);
    }
    m_menuEntry->setEnabled(hasResult());
}
