// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "settingstext.h"

#include <QList>
#include <QMap>

#include <algorithm>
#include <array>

using namespace Dezimo;

namespace {

/// What may follow the "@" with which a value names its kind. "@@" begins a text with an "@".
constexpr std::array<const char *, 7> kHarmlessKinds = {
    "@", "Point(", "Size(", "Rect(", "String(", "ByteArray(", "Invalid()",
};

const char kByteOrderMark[] = "\xef\xbb\xbf";
constexpr int kByteOrderMarkLength = 3;

bool isLineBreak(char c)
{
    return c == '\n' || c == '\r';
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t';
}

bool continuesWith(const QByteArray &text, int at, const char *expected)
{
    return qstrncmp(text.constData() + at, expected, qstrlen(expected)) == 0;
}

/// The value of @p c as a digit, or 16 and more if it is none in any base.
int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

/// One line as QSettings splits them: a break within quotes or after a backslash does not end it, a
/// semicolon does, and what follows that is a comment.
struct Line
{
    int begin;
    int equals; ///< -1 where there is none
    int end;
};

/// The first place from @p at on that is neither blank nor in a comment.
int skipBlanksAndComments(const QByteArray &text, int at)
{
    bool isComment = false;
    for (; at < text.size(); ++at) {
        const char c = text.at(at);
        if (isLineBreak(c))
            isComment = false;
        else if (c == ';')
            isComment = true;
        else if (!isComment && !isSpace(c))
            break;
    }
    return at;
}

/// How much a backslash before @p at escapes: a line break may consist of two characters.
int escapedLength(const QByteArray &text, int at)
{
    const bool isPair = at + 1 < text.size() && isLineBreak(text.at(at)) &&
                        isLineBreak(text.at(at + 1)) && text.at(at) != text.at(at + 1);
    return isPair ? 2 : 1;
}

Line lineAt(const QByteArray &text, int begin)
{
    Line line{begin, -1, begin};
    bool inQuotes = false;
    for (int &at = line.end; at < text.size(); ++at) {
        const char c = text.at(at);
        if (c == '\\')
            at += escapedLength(text, at + 1);
        else if (c == '"')
            inQuotes = !inQuotes;
        else if (!inQuotes && (isLineBreak(c) || c == ';'))
            return line;
        else if (!inQuotes && c == '=' && line.equals < 0)
            line.equals = at;
    }
    line.end = int(text.size());
    return line;
}

/// Whether the escape at @p at stands for a character other than the "@" that begins a kind. An
/// escape for nothing is harmful too: it could hide an "@" behind it.
bool isHarmlessEscape(const QByteArray &text, int at, int end)
{
    const char c = at + 1 < end ? text.at(at + 1) : '\0';
    const int base = c == 'x' ? 16 : 8;
    int digits = at + (c == 'x' ? 2 : 1);
    if (digits >= end || digitValue(text.at(digits)) >= base)
        return QByteArrayLiteral("abfnrtv\"?'\\").contains(c);
    ushort character = 0; // overflows as it does in QSettings
    for (; digits < end && digitValue(text.at(digits)) < base; ++digits)
        character = ushort(character * base + digitValue(text.at(digits)));
    return character != '@';
}

/// Whether the element of a value that begins at @p at is of a harmless kind. Blanks, quotes and
/// byte order marks before it do not matter.
bool beginsHarmlessly(const QByteArray &text, int at, int end)
{
    bool inQuotes = false;
    while (at < end) {
        const char c = text.at(at);
        if (c == '"')
            inQuotes = !inQuotes;
        else if (continuesWith(text, at, kByteOrderMark))
            at += kByteOrderMarkLength - 1;
        else if (inQuotes || !isSpace(c))
            break;
        ++at;
    }
    if (at >= end)
        return true;
    if (text.at(at) == '\\')
        return isHarmlessEscape(text, at, end);
    return text.at(at) != '@' ||
           std::any_of(kHarmlessKinds.cbegin(), kHarmlessKinds.cend(),
                       [&](const char *kind) { return continuesWith(text, at + 1, kind); });
}

/// Where the next element of a list begins, or @p end.
int nextElement(const QByteArray &text, int at, int end)
{
    bool inQuotes = false;
    for (; at < end; ++at) {
        const char c = text.at(at);
        if (c == '\\')
            ++at;
        else if (c == '"')
            inQuotes = !inQuotes;
        else if (c == ',' && !inQuotes)
            return at + 1;
    }
    return end;
}

bool isHarmless(const QByteArray &text, const Line &line)
{
    if (line.end - line.begin > SettingsText::kLongestLine)
        return false;
    const bool hasValue = line.equals >= 0 && text.at(line.begin) != '[';
    int at = hasValue ? line.equals + 1 : line.end;
    while (at < line.end) {
        if (!beginsHarmlessly(text, at, line.end))
            return false;
        at = nextElement(text, at, line.end);
    }
    return true;
}

/// The name between the brackets of a line that begins a group; empty if a bracket is missing.
QByteArray groupName(const QByteArray &text, const Line &line)
{
    const QByteArray name = text.mid(line.begin + 1, line.end - line.begin - 1);
    return name.left(name.indexOf(']')).trimmed();
}

/// Lines by their keys.
using Group = QMap<QByteArray, QByteArray>;

QMap<QByteArray, Group> groupsOf(const QByteArray &text)
{
    QMap<QByteArray, Group> groups;
    QByteArray group;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray content = line.endsWith('\r') ? line.chopped(1) : line;
        if (content.startsWith('['))
            group = content;
        else if (!content.isEmpty())
            groups[group].insert(content.left(content.indexOf('=')), content);
    }
    return groups;
}

} // namespace

QByteArray SettingsText::harmless(const QByteArray &text, const QByteArrayList &groups)
{
    QByteArray kept;
    int copied = 0;
    int total = 0;
    bool isWanted = groups.isEmpty();
    int at = continuesWith(text, 0, kByteOrderMark) ? kByteOrderMarkLength : 0;
    while ((at = skipBlanksAndComments(text, at)) < text.size()) {
        const Line line = lineAt(text, at);
        at = line.end;
        if (!groups.isEmpty() && text.at(line.begin) == '[')
            isWanted = groups.contains(groupName(text, line));
        if (isWanted && isHarmless(text, line) && line.end - line.begin <= kLargestText - total) {
            total += line.end - line.begin;
            continue;
        }
        kept.append(text.constData() + copied, line.begin - copied);
        copied = line.end;
    }
    return copied == 0 ? text : kept.append(text.constData() + copied, text.size() - copied);
}

QByteArray SettingsText::arranged(const QByteArray &text)
{
    const QMap<QByteArray, Group> groups = groupsOf(text);
    QByteArray result;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        if (!result.isEmpty())
            result += '\n';
        result += group.key() + '\n';
        for (const QByteArray &line : *group)
            result += line + '\n';
    }
    return result;
}
