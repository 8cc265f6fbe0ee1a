// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef STORE_SETTINGSTEXT_H
#define STORE_SETTINGSTEXT_H

#include <QByteArray>
#include <QByteArrayList>

/**
 * The text of a settings store in the INI format, before QSettings reads it and after it has
 * written it.
 *
 * QSettings rebuilds whatever object a value claims to be (@Variant, @DateTime), and a made-up one
 * can exhaust the stack or the memory. Values of the simple kinds are harmless, and the program
 * writes no other kind.
 */
namespace Dezimo::SettingsText {

/// The longest line that is written: each of kMaximumTextLength characters may be escaped by six.
constexpr int kLongestLine = 256 * 1024;
/// Far above the largest file that is written, which fills every field with the longest text.
constexpr int kLargestText = 32 * 1024 * 1024;

/// @p text without the lines that QSettings must not read: those with a value that is packed or
/// hides what it is, those longer than kLongestLine, and those beyond kLargestText in total. Where
/// @p groups are named, the lines of all others go too. A text without such a line comes back
/// unchanged. Takes time in proportion to the length.
QByteArray harmless(const QByteArray &text, const QByteArrayList &groups = {});

/// @p text, which QSettings has written, as it is on every system: groups and keys in the order of
/// their names, lines ended by a line feed. So QSettings writes on Linux; on Windows it keeps the
/// order in which it was given the keys and ends lines as that system does.
QByteArray arranged(const QByteArray &text);

} // namespace Dezimo::SettingsText

#endif
