// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "inputkeys.h"

#include "typedkey.h"

#include <QLineEdit>

InputKeys::InputKeys(QLineEdit *input) : QObject(input), m_input(input)
{
    input->installEventFilter(this);
}

bool InputKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && hasUseFor(*static_cast<QKeyEvent *>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool InputKeys::hasUseFor(const QKeyEvent &key)
{
    if (typedText(key) == QLatin1String("=")) {
        Q_EMIT calculateRequested();
        return true;
    }
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (key.key()) {
    case Qt::Key_Escape:
        Q_EMIT clearRequested();
        return true;
    case Qt::Key_Up:
        recall(m_history.older(m_input->text()));
        return true;
    case Qt::Key_Down:
        recall(m_history.newer(m_input->text()));
        return true;
    default:
        return false;
    }
}

void InputKeys::recall(const QString &line)
{
    if (line == m_input->text())
        return;
    m_input->selectAll();
    m_input->insert(line);
}
