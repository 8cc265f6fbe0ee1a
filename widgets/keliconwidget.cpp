// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keliconwidget.h"

#include "accessiblewidgets.h"

#include <QPainter>

KelIconWidget::KelIconWidget(QWidget *parent) : QWidget(parent)
{
    installAccessibleWidgets();
}

void KelIconWidget::setIcon(const QIcon &icon)
{
    // Icons cannot be compared; copies of one icon share its key.
    if (m_icon.cacheKey() == icon.cacheKey())
        return;
    m_icon = icon;
    update();
    Q_EMIT iconChanged();
}

void KelIconWidget::setRotation(int degrees)
{
    if (m_rotation == degrees)
        return;
    m_rotation = degrees;
    update();
    Q_EMIT rotationChanged();
}

void KelIconWidget::setIconSize(const QSize &size)
{
    if (m_iconSize == size)
        return;
    m_iconSize = size;
    updateGeometry();
    update();
    Q_EMIT iconSizeChanged();
}

void KelIconWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);

    const QPixmap pixmap =
        m_icon.pixmap(window()->windowHandle(), m_iconSize, QIcon::Normal, QIcon::Off);
    const QPoint topLeft((width() - m_iconSize.width()) / 2, (height() - m_iconSize.height()) / 2);
    const QPointF center(width() * 0.5, height() * 0.5);

    QPainter painter(this);
    // Qt's own paint engines ignore it; kept on purpose for other engines. Qt 6 no longer has it.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    painter.setRenderHint(QPainter::HighQualityAntialiasing);
    QT_WARNING_POP
#endif
    painter.translate(center);
    painter.rotate(m_rotation);
    painter.translate(-center);
    painter.drawPixmap(QRect(topLeft, m_iconSize), pixmap);
}
