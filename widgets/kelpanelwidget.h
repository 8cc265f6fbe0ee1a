// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPANELWIDGET_H
#define WIDGETS_KELPANELWIDGET_H

#include <QEasingCurve>
#include <QPointer>
#include <QWidget>

#include <memory>

class KelPanelSubWidget;
class QPropertyAnimation;

namespace Ui {
class KelPanelWidget;
}

/**
 * A side panel of sections, which a button folds to a narrow strip and back. A panel starts
 * expanded, 184 pixels wide or more; folded it is 34 pixels wide.
 *
 * Folding the panel folds all its sections, and they stay folded when it is expanded again.
 */
class KelPanelWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit KelPanelWidget(QWidget *parent = nullptr);
    ~KelPanelWidget() override;

    bool isExpanded() const { return m_isExpanded; }

    /// Puts a section below the others. The panel owns it.
    void addSubWidget(KelPanelSubWidget *section);

public Q_SLOTS:
    void toggle();
    void expand();
    void collapse();

private Q_SLOTS:
    void on_toggleButton_clicked();

private:
    QPropertyAnimation *startResizing(int width, QEasingCurve::Type easing);
    void collapseSections();
    void updateToggleButton();

    const std::unique_ptr<Ui::KelPanelWidget> m_ui;
    QPointer<QPropertyAnimation> m_resizing;
    bool m_isExpanded = true;
};

#endif
