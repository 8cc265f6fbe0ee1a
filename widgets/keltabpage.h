// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELTABPAGE_H
#define WIDGETS_KELTABPAGE_H

#include "kellatepage.h"

#include <QPointer>
#include <QTabWidget>

/**
 * A page of a KelTabWidget. Made as the child of a tab widget it becomes its last tab while it is
 * still empty. It is styled together with the page of the window that it is on, and asked for its
 * size when its tab is opened.
 */
class KelTabPage final : public KelLatePage
{
    Q_OBJECT

public:
    explicit KelTabPage(QWidget *parent = nullptr);

    /// The text of the tab, if the page is one.
    void setTitle(const QString &title);

private:
    const QPointer<QTabWidget> m_tabs;
};

#endif
