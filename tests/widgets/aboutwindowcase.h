// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_WIDGETS_ABOUTWINDOWCASE_H
#define TESTS_WIDGETS_ABOUTWINDOWCASE_H

#include "fakeosinfo.h"
#include "kelaboutwindow.h"
#include "kelmessagebox.h"

#include <QPointer>
#include <QTextCharFormat>
#include <QVector>

#include <functional>

class QLabel;

/**
 * A test of the About window. Before each test function, product and host get plain values, and
 * drivers are found. After it, the window is deleted, and clipboard and style sheet are empty.
 */
class AboutWindowCase : public QObject
{
    Q_OBJECT

protected:
    /// A message as the program showed it.
    struct Message
    {
        QString title;
        QString text;
        QDialogButtonBox::StandardButtons buttons;
        KelMessageBox::State state;
        bool hasParent;
    };

    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_window->findChild<Widget *>(QLatin1String(name));
    }
    void open();
    /// The label in a cell of the system information.
    QLabel *cell(int row, int column) const;
    /// Presses the copy button and closes the messages that it shows.
    QVector<Message> pressCopy() const;
    /// Runs @p action and closes each message as soon as it is shown.
    QVector<Message> messagesOf(const std::function<void()> &action) const;

    KelAboutWindow::Product m_product;
    FakeFacts m_facts;
    QPointer<KelAboutWindow> m_window;

private Q_SLOTS:
    void init();
    void cleanup();
};

/// The format of a label's text, which is one link or one span.
QTextCharFormat markupFormat(const QLabel *label);
/// The text that a label shows, without its markup.
QString plainText(const QLabel *label);
/// A text file of the resources. Empty if it cannot be read.
QString fileText(const QString &path);
/// All style sheets in one, except those whose names end with @p otherTheme.
QString themeSheet(const QString &otherTheme);
void addApplicationFonts();

#endif
