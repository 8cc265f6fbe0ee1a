// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpanelwidget.h"

#include "animations.h"
#include "kelpanelsubwidget.h"
#include "resourceicon.h"
#include "ui_kelpanelwidget.h"

namespace {

constexpr int kExpandedWidth = 184;
constexpr int kCollapsedWidth = 34;

} // namespace

KelPanelWidget::KelPanelWidget(QWidget *parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::KelPanelWidget>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(kExpandedWidth);
    m_ui->contentLayout->setAlignment(Qt::AlignTop);
    updateToggleButton();
}

KelPanelWidget::~KelPanelWidget() = default;

void KelPanelWidget::addSubWidget(KelPanelSubWidget *section)
{
    m_ui->contentLayout->addWidget(section);
}

void KelPanelWidget::toggle()
{
    if (m_isExpanded)
        collapse();
    else
        expand();
}

void KelPanelWidget::expand()
{
    if (m_isExpanded)
        return;
    m_isExpanded = true;
    updateToggleButton();
    const QPropertyAnimation *resizing = startResizing(kExpandedWidth, QEasingCurve::InOutQuad);
    connect(resizing, &QAbstractAnimation::finished, this, [this] {
        setMinimumWidth(kExpandedWidth);
        setMaximumWidth(QWIDGETSIZE_MAX);
    });
}

void KelPanelWidget::collapse()
{
    if (!m_isExpanded)
        return;
    m_isExpanded = false;
    setMinimumWidth(kCollapsedWidth);
    updateToggleButton();
    collapseSections();
    startResizing(minimumWidth(), QEasingCurve::Linear);
}

void KelPanelWidget::on_toggleButton_clicked()
{
    toggle();
}

QPropertyAnimation *KelPanelWidget::startResizing(int width, QEasingCurve::Type easing)
{
    if (m_resizing)
        m_resizing->stop();
    m_resizing = makeAnimation(this, "maximumWidth", this->width(), width, easing);
    m_resizing->start(QAbstractAnimation::DeleteWhenStopped);
    return m_resizing;
}

void KelPanelWidget::collapseSections()
{
    for (int i = 0; i < m_ui->contentLayout->count(); ++i) {
        auto *section = qobject_cast<KelPanelSubWidget *>(m_ui->contentLayout->itemAt(i)->widget());
        if (section)
            section->collapse();
    }
}

void KelPanelWidget::updateToggleButton()
{
    m_ui->toggleButton->setIcon(resourceIcon(
        m_isExpanded ? QStringLiteral(":/Global/Icons_SVG/bright/Icon_player_next_16_bright.svg")
                     : QStringLiteral(":/Global/Icons_SVG/bright/Icon_player_back_16_bright.svg")));
    const QString name = m_isExpanded ? tr("Collapse panel") : tr("Expand panel");
    m_ui->toggleButton->setAccessibleName(name);
    m_ui->toggleButton->setToolTip(name);
}
