// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellatepage.h"

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

/// A page that is about to be shown is laid out before it gets its show event.
bool KelLatePage::isUnseen() const
{
    return isHidden() && !m_wasShown;
}
