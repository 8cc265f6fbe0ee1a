// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPANELSUBWIDGET_H
#define WIDGETS_KELPANELSUBWIDGET_H

#include <QPointer>
#include <QWidget>

#include <memory>

class QAbstractAnimation;

namespace Ui {
class KelPanelSubWidget;
}

/**
 * One section of a side panel: a header with a title and a disclosure arrow, and below it a content
 * that a click on the header folds away and brings back. A section starts expanded.
 *
 * The content is empty at first; give it a layout. Folded, it has no height and takes no focus.
 */
class KelPanelSubWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit KelPanelSubWidget(const QString &title, QWidget *parent = nullptr);
    ~KelPanelSubWidget() override;

    bool isExpanded() const { return m_isExpanded; }
    QWidget *contentWidget() const;

public Q_SLOTS:
    void toggle();
    void expand();
    void collapse();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void on_titleButton_clicked();

private:
    void rememberContentHeight();
    void startFolding(int contentHeight, int arrowRotation);
    void finishFolding();
    void updateAccessibleName();

    const std::unique_ptr<Ui::KelPanelSubWidget> m_ui;
    QPointer<QAbstractAnimation> m_folding;
    bool m_isExpanded = true;
    int m_expandedHeight = 0;
    int m_contentMinimum = 0;
    int m_contentMaximum = QWIDGETSIZE_MAX;
};

#endif
