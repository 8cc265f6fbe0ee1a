// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_INITEXT_H
#define PROFILES_INITEXT_H

#include <QByteArray>
#include <QByteArrayList>

/**
 * The text of an INI file, looked at before QSettings reads it. QSettings rebuilds whatever object
 * a value claims to be (@Variant, @DateTime), and with a made-up one that can exhaust the stack or
 * the memory. Values of the simple kinds are harmless, and no other kind is ever written.
 */
namespace IniText {

/// The longest line that is written: each of kMaximumTextLength characters may be escaped by six.
constexpr int kLongestLine = 256 * 1024;
/// Far above the largest file that is written, which fills every field with the longest text.
constexpr int kLargestText = 32 * 1024 * 1024;

/// @p text without the lines that QSettings must not read: those with a value that is packed or
/// hides what it is, those longer than kLongestLine, and those beyond kLargestText in total. Where
/// @p groups are named, the lines of all others go too. A text without such a line comes back
/// unchanged. Takes time in proportion to the length.
QByteArray sound(const QByteArray &text, const QByteArrayList &groups = {});

} // namespace IniText

#endif
