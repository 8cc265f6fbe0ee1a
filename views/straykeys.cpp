// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "straykeys.h"

#include "typedkey.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>

namespace {

bool findsEntriesByLetters(const QObject *control)
{
    return qobject_cast<const QComboBox *>(control) != nullptr ||
           qobject_cast<const QAbstractItemView *>(control) != nullptr;
}

} // namespace

StrayKeys::StrayKeys(QLineEdit *input, const QString &alphabet)
    : QObject(input),
      m_input(input),
      m_alphabet(alphabet)
{}

void StrayKeys::takeFrom(QWidget *control)
{
    control->installEventFilter(this);
}

bool StrayKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !m_input->isVisible())
        return QObject::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (!isStray(watched, key))
        return QObject::eventFilter(watched, event);
    m_input->setFocus(Qt::OtherFocusReason);
    QKeyEvent again(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
    QCoreApplication::sendEvent(m_input, &again);
    return true;
}

bool StrayKeys::isStray(const QObject *control, const QKeyEvent &key) const
{
    const QString text = typedText(key);
    if (text.isEmpty() || !m_alphabet.contains(text))
        return false;
    return !(text.at(0).isLetter() && findsEntriesByLetters(control));
}
