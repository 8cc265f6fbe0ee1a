// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_SOUNDSTORE_H
#define APP_SOUNDSTORE_H

#include <QString>

#include <functional>

class QSettings;

/**
 * What stands between QSettings and the file of a store, be it a calculation file or the
 * application settings: QSettings is only ever given what it can read without harm (see IniText).
 * It reads a file as soon as it is made, so that even this must be asked for first. A store that is
 * no file, such as the registry, passes.
 */
namespace SoundStore {

using Use = std::function<void(QSettings &)>;

/// Calls @p load with what is sound in an INI file. One that cannot be looked at (a pipe, one of
/// unreasonable size) holds nothing.
void readFile(const QString &fileName, const Use &load);
/// Why a file cannot be read at all, as one says after a colon; empty if it can, whatever it holds.
QString whyUnreadable(const QString &fileName);
/// The same as readFile() with the application settings.
void readSettings(const Use &load);
/// The same with the store of an organization that does not exist, so that every key takes its
/// default.
void readDefaults(const Use &load);

/// Makes the file fit for QSettings to write into, which reads it first: one that is not sound is
/// kept beside under its name with ".damaged" appended, and then replaced by what is sound in it.
/// False if that cannot be done; then the file must be left alone.
bool makeWritable(const QString &fileName);
/// Calls @p save with the application settings, unless they must be left alone.
void writeSettings(const Use &save);

} // namespace SoundStore

#endif
