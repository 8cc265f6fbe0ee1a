// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLATEPAGES_H
#define WIDGETS_KELLATEPAGES_H

#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

/*
 * The program starts faster when it styles and measures only what the person sees. Qt does more by
 * itself, in four ways:
 *
 * - It asks hidden pages for their sizes, too, and that styles all that is on them. So a page here
 *   tells an expected size until it is shown for the first time.
 * - It styles a widget together with all that the widget holds. So a page is styled while it is
 *   empty (ensurePolished()) and filled afterwards.
 * - It styles a widget anew when it gets another parent. The form compiler makes the page of a
 *   QTabWidget or a QScrollArea apart, fills it, and only then moves it there. It takes the classes
 *   here for plain widgets and makes their pages as children. The pages join by themselves while
 *   they are empty.
 * - It styles the scroll bars of every list of choices, which are hardly ever seen. So the style
 *   sheets dress the scroll bars of pages only.
 */

/**
 * One of several pages that show in turn. It is measured when it is shown for the first time.
 */
class KelLatePage : public QWidget
{
    Q_OBJECT

public:
    explicit KelLatePage(QWidget *parent = nullptr) : QWidget(parent) {}

    /// The size that the page asks for until it is shown, in device-independent pixels. An invalid
    /// size, as at first, asks for none.
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

/**
 * A tab widget whose KelTabPages join it by themselves.
 */
class KelTabWidget final : public QTabWidget
{
    Q_OBJECT

public:
    using QTabWidget::QTabWidget;
};

/**
 * A page that becomes the last tab of the tab widget that it is made in. It is styled together with
 * the page of the window that it is on.
 */
class KelTabPage final : public KelLatePage
{
    Q_OBJECT

public:
    explicit KelTabPage(QWidget *parent = nullptr);

    /// The text of the tab, if the page is one.
    void setTitle(const QString &title);

private:
    const QPointer<QTabWidget> m_tabs;
};

/**
 * A scroll bar that the style sheets dress. They leave Qt's own alone.
 */
class KelScrollBar final : public QScrollBar
{
    Q_OBJECT

public:
    using QScrollBar::QScrollBar;

    /// Gives the area two of its own, in place of Qt's.
    static void installOn(QAbstractScrollArea &area);
};

/**
 * A scroll area whose KelScrollPage joins it by itself. It has the scroll bars of pages.
 */
class KelScrollArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit KelScrollArea(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
};

/**
 * A page that becomes the contents of the scroll area that it is made in.
 */
class KelScrollPage final : public QWidget
{
    Q_OBJECT

public:
    explicit KelScrollPage(QWidget *parent = nullptr);
};

#endif
