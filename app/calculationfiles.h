// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_CALCULATIONFILES_H
#define APP_CALCULATIONFILES_H

#include <QStringList>

class QWidget;

namespace Dezimo {
class MainProfile;
}

/**
 * Calculation files are INI files with the groups and keys of the application settings. A file is
 * written whole, window group included, but only its module groups are read back: opening one never
 * moves the window or turns a page. A value that cannot be read takes its default. Only the command
 * line reports a file that cannot be read.
 */
namespace CalculationFiles {

/// The file that the person chose, or an empty text if the dialog was cancelled. The dialog begins
/// in the folder of the file that was last opened or saved since the program was started.
QString askForFileToOpen(QWidget *parent);
/// The same for saving; the dialog adds the extension to a name that has none.
QString askForFileToSave(QWidget *parent);

void open(Dezimo::MainProfile &profile, const QString &fileName);
void save(Dezimo::MainProfile &profile, const QString &fileName);

/// Opens the file that the command line names, as a file manager passes it after a double click.
/// @p arguments begin with the program's own name. Opens nothing without a name, with several, or
/// for an option, because the program has none. A file that cannot be read at all leaves every
/// module as it is, so that a mistyped name does not cost the values of the last run. Returns a
/// line that says which file that was and why it cannot be read, or an empty text.
QString openFromCommandLine(Dezimo::MainProfile &profile, const QStringList &arguments);

/// Gives every module its default values.
void loadDefaults(Dezimo::MainProfile &profile);

} // namespace CalculationFiles

#endif
