// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellinklabel.h"

bool KelLinkLabel::focusNextPrevChild(bool next)
{
    // Before a link at the very beginning of the text QLabel finds that link again, and again. To
    // pass QLabel over is therefore meant, which the linter takes for a slip.
    if (!next && hasSelectedText())
        return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
    return QLabel::focusNextPrevChild(next);
}
