// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_QUOTEDTEXT_H
#define VALUES_QUOTEDTEXT_H

#include <QString>

/**
 * How a sentence about a typed text repeats a piece of it. A piece is plain text, and no piece is
 * so long or so odd that the sentence would leave its line.
 */
namespace Dezimo::QuotedText {

/// A quoted piece has at most so many characters.
inline constexpr int kLength = 20;

/// The beginning of @p text in single quotes; "…" stands for what does not fit.
QString beginning(const QString &text);

/// The same with the end of @p text.
QString end(const QString &text);

/// Whether @p text can be repeated as a whole, for a sentence that tells what to write.
bool isShort(const QString &text, int length = kLength);

} // namespace Dezimo::QuotedText

#endif
