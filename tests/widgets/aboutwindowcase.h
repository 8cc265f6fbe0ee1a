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
 * A test of the About window. Before each test function product and host are reset to plain values,
 * with drivers found; after it the window is gone, and so are clipboard and style sheet.
 */
class AboutWindowCase : public QObject
{
    Q_OBJECT

protected:
    /// A message as it was shown.
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
    /// Presses the copy button and closes what is then shown.
    QVector<Message> pressCopy() const;
    /// Does what leads to messages, and closes each as soon as it is shown.
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
/// What a label shows of its markup.
QString plainText(const QLabel *label);
/// A text file of the resources. Empty if it cannot be read.
QString fileText(const QString &path);
/// All style sheets but those whose names end with @p otherTheme, in one.
QString themeSheet(const QString &otherTheme);
void addApplicationFonts();

#endif
