// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_ACCESSIBLEWIDGETS_H
#define WIDGETS_ACCESSIBLEWIDGETS_H

/// Makes the toolkit's own controls known to screen readers as what they are: a segmented switch as
/// a group of radio buttons, an icon as a graphic, a label that is a link as a link, a label inside
/// a line edit as part of that edit. Called by these widgets; only the first call has an effect.
void installAccessibleWidgets();

#endif
