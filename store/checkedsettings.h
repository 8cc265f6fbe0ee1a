// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef STORE_CHECKEDSETTINGS_H
#define STORE_CHECKEDSETTINGS_H

#include <QByteArrayList>
#include <QString>

#include <functional>

class QSettings;

/**
 * What stands between QSettings and the file of a store, which is a calculation file or holds the
 * application settings: QSettings is only ever given what it can read without harm (see
 * SettingsText). It reads a file as soon as it is made, so the file is looked at before that. A
 * store that is no file, such as the registry, passes.
 *
 * The functions that read are told which groups the program stores: no other group is read, be
 * there a million of them.
 */
namespace Dezimo::CheckedSettings {

using Use = std::function<void(QSettings &)>;

/// Calls @p load with what is harmless in an INI file. One that cannot be looked at (a pipe, one of
/// unreasonable size) holds nothing.
void readFile(const QString &fileName, const QByteArrayList &groups, const Use &load);
/// Why a file cannot be read at all, as one says after a colon; empty if it can, whatever it holds.
QString whyUnreadable(const QString &fileName);
/// The same as readFile() with the application settings.
void readSettings(const QByteArrayList &groups, const Use &load);
/// The same with the store of an organization that does not exist, so that every key takes its
/// default.
void readDefaults(const QByteArrayList &groups, const Use &load);

/// Makes the file fit for QSettings to write into, which reads it first: one with harmful lines is
/// kept beside under its name with ".damaged" appended, and then replaced by what is harmless in
/// it. False if that cannot be done; then the file must be left alone.
bool makeWritable(const QString &fileName);
/// Calls @p save with the application settings, unless they must be left alone.
void writeSettings(const Use &save);

} // namespace Dezimo::CheckedSettings

#endif
