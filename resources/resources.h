// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef RESOURCES_RESOURCES_H
#define RESOURCES_RESOURCES_H

/// Makes fonts, icons, style sheets, the legal page and the guide reachable under ":/".
///
/// The linker drops the resources of a static library unless something names them, so every
/// executable calls this once before it opens one. Calling it again changes nothing.
void initDezimoResources();

#endif
