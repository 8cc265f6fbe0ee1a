// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keltogglebutton.h"

#include "accessiblewidgets.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr int kHeight = 30;
constexpr int kMargin = 3;
constexpr int kSpacing = 2;

/// What the size hint adds once for the frame, and again for every button.
constexpr int kHintPadding = 4;

} // namespace

KelToggleButton::KelToggleButton(QWidget *parent)
    : QWidget(parent),
      m_layout(new QHBoxLayout(this)),
      m_group(new QButtonGroup(this))
{
    installAccessibleWidgets();
    m_layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_layout->setSpacing(kSpacing);
    m_group->setExclusive(true);
    setMinimumHeight(kHeight);
    connect(m_group, QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled), this,
            &KelToggleButton::updateTabStop);
    connectGroup();
}

int KelToggleButton::currentIndex() const
{
    return m_group->checkedId();
}

QSize KelToggleButton::sizeHint() const
{
    int width = kHintPadding;
    const QList<QAbstractButton *> buttons = m_group->buttons();
    for (const QAbstractButton *button : buttons)
        width += button->sizeHint().width() + kHintPadding;
    return {width, kHeight};
}

void KelToggleButton::setCurrentIndex(int index)
{
    disconnect(m_groupClicks);
    if (index >= 0 && index < m_group->buttons().size())
        m_group->button(index)->click();
    connectGroup();
}

void KelToggleButton::addItems(const QStringList &texts)
{
    for (const QString &text : texts) {
        auto *button = new QPushButton(text, this);
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::MinimumExpanding);
        m_layout->addWidget(button);
        m_group->addButton(button, m_nextId++);
    }
    updateTabStop();
    updateGeometry();
}

void KelToggleButton::clear()
{
    m_nextId = 0;
    const QList<QAbstractButton *> buttons = m_group->buttons();
    for (QAbstractButton *button : buttons) {
        m_group->removeButton(button);
        m_layout->removeWidget(button);
        delete button;
    }
    updateGeometry();
}

void KelToggleButton::onCurrentIndexChanged(int index)
{
    Q_EMIT currentIndexChanged(index);
}

/// A plain widget does not draw what a style sheet gives it, so this one does.
void KelToggleButton::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

/// Tab stops once at a switch, at the checked button, in both directions. While none is checked,
/// every button is a stop. The arrow keys go from button to button.
void KelToggleButton::updateTabStop()
{
    const QAbstractButton *checked = m_group->checkedButton();
    const QList<QAbstractButton *> buttons = m_group->buttons();
    for (QAbstractButton *button : buttons)
        button->setFocusPolicy(checked && button != checked ? Qt::ClickFocus : Qt::StrongFocus);
}

void KelToggleButton::connectGroup()
{
    m_groupClicks =
        connect(m_group, &QButtonGroup::idClicked, this, &KelToggleButton::onCurrentIndexChanged);
}
