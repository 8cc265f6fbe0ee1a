// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELICONWIDGET_H
#define WIDGETS_KELICONWIDGET_H

#include <QIcon>
#include <QSize>
#include <QWidget>

/**
 * Shows an icon in its center, turned clockwise by `rotation` degrees about that center. A style
 * sheet can set the icon (qproperty-icon), and the rotation can be animated. Without an icon it
 * draws nothing.
 */
class KelIconWidget final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon NOTIFY iconChanged)
    Q_PROPERTY(int rotation READ rotation WRITE setRotation NOTIFY rotationChanged)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize NOTIFY iconSizeChanged)

public:
    explicit KelIconWidget(QWidget *parent = nullptr);

    QIcon icon() const { return m_icon; }
    int rotation() const { return m_rotation; }
    QSize iconSize() const { return m_iconSize; }
    QSize sizeHint() const override { return m_iconSize; }

    void setIcon(const QIcon &icon);
    void setRotation(int degrees);
    void setIconSize(const QSize &size);

Q_SIGNALS:
    void iconChanged();
    void rotationChanged();
    void iconSizeChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon m_icon;
    int m_rotation = 0;
    QSize m_iconSize{16, 16};
};

#endif
