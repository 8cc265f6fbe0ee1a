// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellinklabel.h"

#include "accessiblewidgets.h"

#include <QDesktopServices>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

KelLinkLabel::KelLinkLabel(QWidget *parent) : QLabel(parent)
{
    installAccessibleWidgets();
}

QString KelLinkLabel::linkText() const
{
    QTextDocument document;
    document.setHtml(text());
    return document.toPlainText();
}

void KelLinkLabel::open() const
{
    QTextDocument document;
    document.setHtml(text());
    const QTextFragment link = document.firstBlock().begin().fragment();
    QDesktopServices::openUrl(QUrl(link.charFormat().anchorHref()));
}

bool KelLinkLabel::focusNextPrevChild(bool next)
{
    // Going back from a link at the very beginning of the text, QLabel finds the same link for
    // ever, so this passes QLabel over. The linter would take that for a slip.
    if (!next && hasSelectedText())
        return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
    return QLabel::focusNextPrevChild(next);
}
