// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellatepages.h"

#include <QEvent>

void KelLatePage::setExpectedSize(const QSize &size)
{
    m_expectedSize = size;
    updateGeometry();
}

QSize KelLatePage::sizeHint() const
{
    return isUnseen() ? m_expectedSize : QWidget::sizeHint();
}

QSize KelLatePage::minimumSizeHint() const
{
    return isUnseen() ? m_expectedSize : QWidget::minimumSizeHint();
}

void KelLatePage::showEvent(QShowEvent *event)
{
    m_wasShown = true;
    QWidget::showEvent(event);
}

/// Qt lays out a page that is about to be shown before it sends the show event.
bool KelLatePage::isUnseen() const
{
    return isHidden() && !m_wasShown;
}

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

void KelScrollBar::installOn(QAbstractScrollArea &area)
{
    area.setVerticalScrollBar(new KelScrollBar(Qt::Vertical, &area));
    area.setHorizontalScrollBar(new KelScrollBar(Qt::Horizontal, &area));
}

KelScrollArea::KelScrollArea(QWidget *parent) : QScrollArea(parent)
{
    KelScrollBar::installOn(*this);
}

/// A scroll area that was too small for its page learns only with the next layout that it no longer
/// needs its scroll bars, and would be painted with them until then.
bool KelScrollArea::event(QEvent *event)
{
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::Resize) {
        QEvent layout(QEvent::LayoutRequest);
        QScrollArea::event(&layout);
    }
    return isDone;
}

KelScrollPage::KelScrollPage(QWidget *parent) : QWidget(parent)
{
    if (auto *area = qobject_cast<QScrollArea *>(parent))
        area->setWidget(this);
}
