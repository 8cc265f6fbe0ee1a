// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_PLACEHOLDERLOOK_H
#define WIDGETS_PLACEHOLDERLOOK_H

class QLineEdit;

/// Keeps the property `showsPlaceholder` of @p edit true while the edit is empty, and has the edit
/// styled again whenever that changes. A line edit draws its placeholder in its own font, so this
/// is how a style sheet can give it a font in which it cannot be taken for a value.
void followPlaceholder(QLineEdit *edit);

#endif
