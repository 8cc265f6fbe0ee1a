// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELTOGGLEBUTTON_H
#define WIDGETS_KELTOGGLEBUTTON_H

#include <QWidget>

class QButtonGroup;
class QHBoxLayout;

/**
 * A segmented switch: a row of push buttons of which at most one is checked. The items have indexes
 * from 0 in the order in which they were added; the current index is -1 while none is checked.
 *
 * Only a person's click emits currentIndexChanged(). An index that no button has is ignored.
 */
class KelToggleButton final : public QWidget
{
    Q_OBJECT

public:
    explicit KelToggleButton(QWidget *parent = nullptr);

    int currentIndex() const;
    QSize sizeHint() const override;

    void setCurrentIndex(int index);

    void addItems(const QStringList &texts);
    void clear();

public Q_SLOTS:
    void onCurrentIndexChanged(int index);

Q_SIGNALS:
    void currentIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void updateTabStop();
    void connectGroup();

    QHBoxLayout *const m_layout;
    QButtonGroup *const m_group;
    QMetaObject::Connection m_groupClicks;
    int m_nextId = 0;
};

#endif
