// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Reads texts in which a system describes itself: an os-release file, the name of a locale, the
// names of library files. Each input is read as all three.

#include "localesetting.h"
#include "osrelease.h"
#include "require.h"
#include "visalibrary.h"

#include <QByteArray>
#include <QStringList>
#include <QVersionNumber>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

bool isPrintable(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control ||
               character == QChar::ReplacementCharacter;
    });
}

void checkOsRelease(const QByteArray &text)
{
    const QByteArray key("NAME");
    const QString name = OsRelease::value(text, key);
    require(isPrintable(name), "a system's name is printable", name);
    require(OsRelease::value(text + '\n' + text, key) == name, "the last line of a key holds",
            name);
    require(OsRelease::value(text + "\nNAME='Other'", key) == QLatin1String("Other"),
            "no line spoils the next one", name);
}

void checkLocale(const QByteArray &name)
{
    const LocaleSetting setting = LocaleSetting::parsed(name);
    require(setting.name.isEmpty() || setting.name == QString::fromLatin1(name),
            "a locale's name is kept or dropped as a whole", setting.name);
    require(!setting.name.isEmpty() || (setting.language.isEmpty() && setting.country.isEmpty()),
            "without a name there is nothing to tell", setting.language);
    require(isPrintable(setting.name + setting.language + setting.country),
            "a locale's names are printable", setting.name);
}

void checkLibrary(const QByteArray &text)
{
    QStringList files = QString::fromUtf8(text).split(QLatin1Char('\n'));
    const VisaLibrary library = VisaLibrary::among(files);
    std::reverse(files.begin(), files.end());
    const VisaLibrary reversed = VisaLibrary::among(files);
    // Versions are compared as numbers, because 7 and 07 are equal and either may come first.
    require(library.name == reversed.name && QVersionNumber::fromString(library.version) ==
                                                 QVersionNumber::fromString(reversed.version),
            "the order of the files does not count", library.version);
    QString file = library.name + QLatin1String(".so");
    if (!library.version.isEmpty())
        file += QLatin1Char('.') + library.version;
    require(library.name.isEmpty() || files.contains(file), "a library is one of the files", file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    requireSilence();
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    checkOsRelease(text);
    checkLocale(text.left(text.indexOf('\n')));
    checkLibrary(text);
    return 0;
}
