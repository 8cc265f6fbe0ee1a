// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpanelsubwidget.h"

#include "animations.h"
#include "resourceicon.h"
#include "ui_kelpanelsubwidget.h"

#include <QMouseEvent>
#include <QParallelAnimationGroup>

namespace {

/// The arrow points to the title of a folded section and down to the content of an expanded one.
constexpr int kCollapsedRotation = 0;
constexpr int kExpandedRotation = 90;

} // namespace

KelPanelSubWidget::KelPanelSubWidget(const QString &title, QWidget *parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::KelPanelSubWidget>())
{
    m_ui->setupUi(this);
    m_ui->titleButton->setText(title);
    m_ui->disclosure->setIcon(
        resourceIcon(QStringLiteral(":/Global/Icons_SVG/bright/Icon_player_next_16_bright.svg")));
    m_ui->disclosure->setRotation(kExpandedRotation);
    m_ui->header->installEventFilter(this);
    updateAccessibleName();
}

KelPanelSubWidget::~KelPanelSubWidget() = default;

QWidget *KelPanelSubWidget::contentWidget() const
{
    return m_ui->content;
}

void KelPanelSubWidget::toggle()
{
    if (m_isExpanded)
        collapse();
    else
        expand();
}

void KelPanelSubWidget::expand()
{
    if (m_isExpanded)
        return;
    m_isExpanded = true;
    m_ui->content->show();
    startFolding(m_expandedHeight, kExpandedRotation);
}

void KelPanelSubWidget::collapse()
{
    if (!m_isExpanded)
        return;
    m_isExpanded = false;
    m_ui->header->setMinimumHeight(m_ui->header->height());
    if (!m_folding)
        rememberContentHeight();
    startFolding(0, kCollapsedRotation);
}

void KelPanelSubWidget::on_titleButton_clicked()
{
    toggle();
}

/// The whole header works as its title button does: a click toggles the section unless the mouse
/// button is released elsewhere.
bool KelPanelSubWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && m_ui->header->rect().contains(mouse->pos()))
            toggle();
    }
    return QWidget::eventFilter(watched, event);
}

/// Keeps the height to unfold to later. A content that was never laid out has only its size hint.
void KelPanelSubWidget::rememberContentHeight()
{
    const QWidget *content = m_ui->content;
    m_expandedHeight = isVisible() ? content->height() : qMax(0, content->sizeHint().height());
    m_contentMinimum = content->minimumHeight();
    m_contentMaximum = content->maximumHeight();
}

/// In every frame the minimum moves before the maximum. Otherwise the maximum would be below the
/// last frame's minimum, which wins, and after the last frame the content would stay too high.
void KelPanelSubWidget::startFolding(int contentHeight, int arrowRotation)
{
    if (m_folding)
        m_folding->stop();
    QWidget *content = m_ui->content;
    const int height = content->height();
    auto *group = new QParallelAnimationGroup(this);
    for (const char *property : {"minimumHeight", "maximumHeight"})
        group->addAnimation(
            makeAnimation(content, property, height, contentHeight, QEasingCurve::InOutQuad));
    group->addAnimation(
        makeAnimation(m_ui->disclosure, "rotation", m_ui->disclosure->rotation(), arrowRotation));
    connect(group, &QAbstractAnimation::finished, this, &KelPanelSubWidget::finishFolding);
    m_folding = group;
    group->start(QAbstractAnimation::DeleteWhenStopped);
    updateAccessibleName();
}

void KelPanelSubWidget::finishFolding()
{
    m_folding.clear();
    if (m_isExpanded) {
        m_ui->content->setMinimumHeight(m_contentMinimum);
        m_ui->content->setMaximumHeight(m_contentMaximum);
    } else {
        m_ui->content->hide();
    }
    m_ui->frame->update();
}

void KelPanelSubWidget::updateAccessibleName()
{
    m_ui->titleButton->setAccessibleName(
        (m_isExpanded ? tr("Collapse %1") : tr("Expand %1")).arg(m_ui->titleButton->text()));
}
