// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_VIEWS_PROGRAMSTATE_H
#define TESTS_VIEWS_PROGRAMSTATE_H

#include <QStringList>

/// Resets all models to what they hold at the first start.
void loadDefaults();
/// Loads all modules from a calculation file with these lines.
void loadFile(const QStringList &lines);
/// Gives the application the fonts and the style sheets of the bright theme.
void applyStyleSheet();

#endif
