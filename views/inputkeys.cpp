// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "inputkeys.h"

#include "typedkey.h"

#include <QLineEdit>

InputKeys::InputKeys(QLineEdit *input) : QObject(input)
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
    if (key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier) {
        Q_EMIT clearRequested();
        return true;
    }
    return false;
}
