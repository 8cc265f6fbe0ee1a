// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellinklabel.h"

bool KelLinkLabel::focusNextPrevChild(bool next)
{
    // Before a link at the very beginning of the text Qt finds that link again, and again.
    if (!next && hasSelectedText())
        return QWidget::focusNextPrevChild(next);
    return QLabel::focusNextPrevChild(next);
}
