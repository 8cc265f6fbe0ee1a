// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Qt 6's own INI format does the work, in a temporary file. What differs is translated before it
// reads and after it has written.

#include "iniformat.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Dezimo;

namespace {

constexpr char16_t kLastPlain = 0x7e;
/// The Unicode plane that has room for every 16-bit unit, half a character included.
constexpr char32_t kUnitPlane = 0x100000;

/// The same text in UTF-8. A backslash before a single byte beyond ASCII means nothing, so that
/// there has to be a single byte again: a letter with which it means nothing either.
QByteArray inUtf8(const QByteArray &text)
{
    const bool hasByteOrderMark = text.startsWith("\xef\xbb\xbf");
    QString translated = hasByteOrderMark ? QString::fromUtf8(text) : QString::fromLatin1(text);
    bool isEscaped = false;
    for (QChar &c : translated) {
        if (isEscaped && c > QChar(kLastPlain))
            c = QLatin1Char('q');
        isEscaped = !isEscaped && c == QLatin1Char('\\');
    }
    return translated.toUtf8();
}

/// The text with every unit beyond ASCII moved to a plane of its own: UTF-8 has no halves.
QString withMovedUnits(const QString &text)
{
    QString moved;
    for (const QChar c : text) {
        if (c > QChar(kLastPlain))
            moved += QChar::fromUcs4(kUnitPlane + c.unicode());
        else
            moved += c;
    }
    return moved;
}

QVariant withMovedUnits(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return withMovedUnits(value.toString());
    if (value.userType() != QMetaType::QStringList && value.userType() != QMetaType::QVariantList)
        return value;
    QVariantList moved;
    const QVariantList elements = value.toList();
    for (const QVariant &element : elements)
        moved.append(withMovedUnits(element));
    return moved;
}

bool isHexDigit(char32_t c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// What has been written, with escapes in place of the moved units. A digit behind an escape would
/// belong to it, so it is escaped too.
QByteArray inEscapes(const QByteArray &written)
{
    QByteArray text;
    bool isBehindEscape = false;
    const QList<uint> characters = QString::fromUtf8(written).toUcs4();
    for (const char32_t c : characters) {
        isBehindEscape = c > kLastPlain || (isBehindEscape && isHexDigit(c));
        if (isBehindEscape)
            text += "\\x" + QByteArray::number(c & 0xffff, 16);
        else
            text += char(c);
    }
    return text;
}

/// Calls @p work with the name of a temporary file until it succeeds. A full disk must not cost any
/// values, so what has no room in the usual folder goes to the one that Linux keeps in memory.
template <typename Work>
bool withTemporaryFile(const Work &work)
{
    const QStringList folders = {QDir::tempPath(), QStringLiteral("/dev/shm")};
    return std::any_of(folders.begin(), folders.end(), [&work](const QString &folder) {
        const QTemporaryDir own(folder + QLatin1String("/Dezimo-XXXXXX"));
        return own.isValid() && work(own.filePath(QStringLiteral("values.ini")));
    });
}

bool writeFile(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

bool read(QIODevice &device, QSettings::SettingsMap &values)
{
    const QByteArray text = inUtf8(device.readAll());
    return withTemporaryFile([&](const QString &fileName) {
        if (!writeFile(fileName, text))
            return false;
        const QSettings settings(fileName, QSettings::IniFormat);
        QStringList keys = settings.allKeys();
        keys.removeAll(QString()); // listed, but its value cannot be asked for
        for (const QString &key : std::as_const(keys))
            values.insert(key, settings.value(key));
        return true;
    });
}

/// What Qt writes, or nothing if it cannot.
QByteArray writtenBy(const QString &fileName, const QSettings::SettingsMap &values)
{
    QSettings settings(fileName, QSettings::IniFormat);
    for (auto value = values.begin(); value != values.end(); ++value)
        settings.setValue(value.key(), withMovedUnits(value.value()));
    settings.sync();
    QFile file(fileName);
    const bool isWritten = settings.status() == QSettings::NoError;
    return isWritten && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(QIODevice &device, const QSettings::SettingsMap &values)
{
    QByteArray text;
    const auto fill = [&](const QString &fileName) {
        text = inEscapes(writtenBy(fileName, values));
        return values.isEmpty() || !text.isEmpty();
    };
    return withTemporaryFile(fill) && device.write(text) == text.size();
}

} // namespace

QSettings::Format IniFormat::ofFiles()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("conf"), read, write, Qt::CaseSensitive);
    return format;
}

QSettings::Format IniFormat::ofSettings()
{
#ifdef Q_OS_WIN
    return QSettings::NativeFormat; // the registry
#else
    return ofFiles();
#endif
}
