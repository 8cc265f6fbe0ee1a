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
 * A store that is no file, such as the registry, passes.
 */
namespace SoundStore {

using Load = std::function<void(QSettings &)>;

/// Calls @p load with what is sound in an INI file. One that cannot be looked at (a pipe, one of
/// unreasonable size) holds nothing.
void readFile(const QString &fileName, const Load &load);
/// The same with the file of @p store.
void read(QSettings &store, const Load &load);

/// Makes the file fit for QSettings to write into, which reads it first: one that is not sound is
/// kept beside under its name with ".damaged" appended, and then replaced by what is sound in it.
/// False if that cannot be done; then the file must be left alone.
bool makeWritable(const QString &fileName);

} // namespace SoundStore

#endif
