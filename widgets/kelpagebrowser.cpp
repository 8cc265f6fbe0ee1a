// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpagebrowser.h"

#include "kellatepages.h"
#include "scaledpictures.h"

#include <QAbstractTextDocumentLayout>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kWidestColumn = 800;
constexpr int kMargin = 16; ///< around the text, inside the column

QUrl withoutFragment(const QUrl &url)
{
    return url.adjusted(QUrl::RemoveFragment);
}

} // namespace

KelPageBrowser::KelPageBrowser(QWidget *parent) : QTextBrowser(parent)
{
    KelScrollBar::installOn(*this);
    setOpenLinks(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // all fits, but not yet when Qt looks
    document()->setDocumentMargin(kMargin);
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject,
                                                  new ScaledPictures(this));
    connect(this, &QTextBrowser::anchorClicked, this, &KelPageBrowser::follow);
}

void KelPageBrowser::setPageStyle(const QString &style)
{
    document()->setDefaultStyleSheet(style);
    if (source().isEmpty())
        return;
    const int value = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(value);
}

void KelPageBrowser::findFromHere()
{
    if (!viewport()->rect().intersects(cursorRect()))
        setTextCursor(topLine());
}

bool KelPageBrowser::findText(const QString &text, QTextDocument::FindFlags direction)
{
    QTextCursor match = document()->find(text, textCursor(), direction);
    if (match.isNull()) {
        QTextCursor edge(document());
        if (direction.testFlag(QTextDocument::FindBackward))
            edge.movePosition(QTextCursor::End);
        match = document()->find(text, edge, direction);
    }
    if (match.isNull())
        return false;
    setTextCursor(match);
    return true;
}

/// Scroll bars and margins that change with the width come here again in between.
void KelPageBrowser::resizeEvent(QResizeEvent *event)
{
    if (m_isResizing) {
        QTextBrowser::resizeEvent(event);
        return;
    }
    const QScopedValueRollback<bool> resizing(m_isResizing, true);
    rememberTopLine();
    QTextBrowser::resizeEvent(event);
    const int margin = std::max(0, (contentsRect().width() - kWidestColumn) / 2);
    setViewportMargins(margin, 0, margin, 0);
    restoreTopLine();
}

void KelPageBrowser::follow(const QUrl &link)
{
    if (withoutFragment(link) == withoutFragment(source()))
        setSource(link);
}

/// The first line that can be seen as a whole, or nearly so.
QTextCursor KelPageBrowser::topLine() const
{
    return cursorForPosition(QPoint(kMargin, fontMetrics().height()));
}

/// As long as the person does not scroll, the line stays the same through all changes of the size.
/// Otherwise each of them could take a line that begins a bit earlier.
void KelPageBrowser::rememberTopLine()
{
    if (verticalScrollBar()->value() == m_topLineValue)
        return;
    m_topLine = topLine();
    m_topLineY = cursorRect(m_topLine).top();
}

void KelPageBrowser::restoreTopLine()
{
    QScrollBar &bar = *verticalScrollBar();
    if (bar.value() > 0)
        bar.setValue(bar.value() + cursorRect(m_topLine).top() - m_topLineY);
    m_topLineValue = bar.value();
}
