// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keltabpage.h"

KelTabPage::KelTabPage(QWidget *parent)
    : KelLatePage(parent),
      m_tabs(qobject_cast<QTabWidget *>(parent))
{
    if (m_tabs)
        m_tabs->addTab(this, QString());
}

void KelTabPage::setTitle(const QString &title)
{
    if (m_tabs)
        m_tabs->setTabText(m_tabs->indexOf(this), title);
}
