// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_STORETEXT_H
#define PROFILES_STORETEXT_H

#include <QByteArray>

/// The text of a store in the INI format as it is on every system: groups and keys in the order of
/// their names, lines ended by a line feed. A settings store writes so on Linux; on Windows it
/// keeps the order in which it was given the keys and ends lines as that system does. The text must
/// be one that a settings store wrote.
QByteArray arrangedStoreText(const QByteArray &text);

#endif
