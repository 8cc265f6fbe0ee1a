// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLATEPAGE_H
#define WIDGETS_KELLATEPAGE_H

#include <QWidget>

/**
 * One of several pages that show in turn. Until it is shown for the first time it asks for the size
 * that it is expected to need: to know more, Qt would have to style all that is on it, and the
 * program would start later for pages that the person may never open. It is filled after it has
 * been styled itself (ensurePolished()), as Qt styles a widget together with all that it then
 * holds.
 */
class KelLatePage : public QWidget
{
    Q_OBJECT

public:
    explicit KelLatePage(QWidget *parent = nullptr) : QWidget(parent) {}

    /// The smallest size that the page is taken to need, in device-independent pixels. None unless
    /// it is set.
    void setExpectedSize(const QSize &size);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool isUnseen() const;

    QSize m_expectedSize;
    bool m_wasShown = false;
};

#endif
