// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELTABPAGE_H
#define WIDGETS_KELTABPAGE_H

#include "kellatepage.h"

class QTabWidget;

/**
 * A page of a KelTabWidget. Made as the child of a tab widget it becomes its last tab while it is
 * still empty.
 */
class KelTabPage final : public KelLatePage
{
    Q_OBJECT

public:
    explicit KelTabPage(QWidget *parent = nullptr);

    /// The text of the tab, if the page is one.
    void setTitle(const QString &title);

private:
    QTabWidget *const m_tabs;
};

#endif
