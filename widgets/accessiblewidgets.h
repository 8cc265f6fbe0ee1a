// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_ACCESSIBLEWIDGETS_H
#define WIDGETS_ACCESSIBLEWIDGETS_H

/// Tells screen readers what the toolkit's own controls are: a segmented switch is a group of radio
/// buttons, an icon a graphic, a label that is a link a link, and a label inside a line edit part
/// of that edit. These widgets call it themselves; only the first call has an effect.
void installAccessibleWidgets();

#endif
