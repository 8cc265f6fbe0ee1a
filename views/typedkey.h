// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_TYPEDKEY_H
#define VIEWS_TYPEDKEY_H

#include <QKeyEvent>

/// What a key types. With Ctrl, Alt or Meta it is a command and types nothing, although it may
/// carry a text.
inline QString typedText(const QKeyEvent &key)
{
    const bool isCommand =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return isCommand ? QString() : key.text();
}

#endif
