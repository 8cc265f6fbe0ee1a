// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "osrelease.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <string_view>

namespace {

/// The characters that a backslash escapes within double quotes.
constexpr std::string_view kEscapable = "\"$\\`";

bool isEscapable(char letter)
{
    return kEscapable.find(letter) != std::string_view::npos;
}

/// The content of a value whose opening double quote is already cut off; empty if anything follows
/// the closing quote or there is none.
QByteArray doubleQuoted(const QByteArray &text)
{
    QByteArray content;
    for (int i = 0; i < text.size(); ++i) {
        char letter = text.at(i);
        if (letter == '"')
            return i == text.size() - 1 ? content : QByteArray();
        if (letter == '\\' && i + 1 < text.size() && isEscapable(text.at(i + 1)))
            letter = text.at(++i);
        content += letter;
    }
    return QByteArray();
}

/// The same for single quotes, in which a backslash has no special meaning.
QByteArray singleQuoted(const QByteArray &text)
{
    const int end = int(text.indexOf('\''));
    return end >= 0 && end == text.size() - 1 ? text.left(end) : QByteArray();
}

QByteArray unquoted(const QByteArray &text)
{
    if (text.startsWith('"'))
        return doubleQuoted(text.mid(1));
    if (text.startsWith('\''))
        return singleQuoted(text.mid(1));
    return text;
}

bool isPrintable(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter.category() != QChar::Other_Control && letter != QChar::ReplacementCharacter;
    });
}

/// The whole lines at the beginning of the file; empty if it is unreadable or no ordinary file.
QByteArray beginning(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    QByteArray text = file.read(OsRelease::kLongestFile);
    if (text.size() == OsRelease::kLongestFile)
        text.truncate(text.lastIndexOf('\n') + 1);
    return text;
}

} // namespace

QString OsRelease::value(const QByteArray &text, const QByteArray &key)
{
    const QByteArray assignment = key + '=';
    QString value;
    for (int begin = 0; begin < text.size();) {
        const int newLine = int(text.indexOf('\n', begin));
        const int end = newLine < 0 ? int(text.size()) : newLine;
        const QByteArray line = text.mid(begin, end - begin).trimmed();
        begin = end + 1;
        if (!line.startsWith(assignment))
            continue;
        const QByteArray content = unquoted(line.mid(assignment.size()));
        // The size is passed because fromUtf8() would otherwise stop at the first zero byte.
        const QString read = QString::fromUtf8(content.constData(), content.size());
        if (!read.isEmpty() && isPrintable(read))
            value = read;
    }
    return value;
}

QString OsRelease::systemName(const QString &path)
{
    const QByteArray text = beginning(path);
    const QString prettyName = value(text, QByteArrayLiteral("PRETTY_NAME"));
    return prettyName.isEmpty() ? value(text, QByteArrayLiteral("NAME")) : prettyName;
}
