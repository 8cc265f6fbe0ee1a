// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPAGEBROWSER_H
#define WIDGETS_KELPAGEBROWSER_H

#include <QTextBrowser>

/**
 * Shows one page of the resources to read. The text stands in a column that is no wider than eyes
 * follow, however wide the browser is, and pictures that are wider than the column are scaled down.
 * When the browser changes its size, the line at the top stays there.
 *
 * Links lead to places of the page. A link to anything else does nothing.
 */
class KelPageBrowser final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit KelPageBrowser(QWidget *parent = nullptr);

    /// Reads the page again in the looks of @p style, a sheet in what Qt's rich text knows of CSS.
    void setPageStyle(const QString &style);
    /// Lets findText() begin in what the person sees: where it is now, or at the top.
    void findFromHere();
    /// Selects the next text that is the given one, small or capital letters, after the selection
    /// or before it. At the end of the page it goes on at the beginning, and the other way round.
    /// False if there is none; then the selection stays as it is.
    bool findText(const QString &text, QTextDocument::FindFlags direction);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void follow(const QUrl &link);
    QTextCursor topLine() const;
    void rememberTopLine();
    void restoreTopLine();

    bool m_isResizing = false;
    QTextCursor m_topLine;
    int m_topLineY = 0;
    int m_topLineValue = -1; ///< of the scroll bar, with that line at that place
};

#endif
