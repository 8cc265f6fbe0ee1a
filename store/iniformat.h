// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef STORE_INIFORMAT_H
#define STORE_INIFORMAT_H

#include <QSettings>

/**
 * The formats of a store, with which a text has the same bytes in every version of the program. Qt
 * 5 takes the bytes of an INI file for Latin-1 and escapes everything beyond ASCII, while Qt 6
 * reads and writes UTF-8. So there is one source for each, and the build chooses between them.
 */
namespace Dezimo::IniFormat {

/// The format of a calculation file.
QSettings::Format ofFiles();
/// The format of the application settings, with the names that the files of the native one have.
QSettings::Format ofSettings();

} // namespace Dezimo::IniFormat

#endif
