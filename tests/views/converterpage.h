// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_VIEWS_CONVERTERPAGE_H
#define TESTS_VIEWS_CONVERTERPAGE_H

#include "programstate.h"

#include <QStringList>
#include <QWidget>

class KelLineEdit;
class QComboBox;
class QLabel;

/**
 * A converter's page as a person meets it: shown, active, and operated by keys. It finds widgets by
 * their object name. If there is none of that name and type, the test ends.
 */
class ConverterPage
{
public:
    /// Shows @p page at the size that the main window first gives it.
    explicit ConverterPage(QWidget &page);

    template <typename Widget>
    Widget &child(const QString &name) const
    {
        auto *found = m_page.findChild<Widget *>(name);
        if (!found)
            qFatal("no such widget: %s", qPrintable(name));
        return *found;
    }
    KelLineEdit &field(const QString &name) const;
    QComboBox &combo(const QString &name) const;
    QLabel &label(const QString &name) const;

    void resize(const QSize &size) const;
    void focus(const QString &name) const;
    /// Replaces the text of the field by typing, and stays in it.
    void type(const QString &name, const QString &text) const;
    /// Goes to the selector and presses @p key there @p times times.
    void press(const QString &name, Qt::Key key, int times = 1) const;

    /// What the Tab key visits from the widget @p first until it is back there, by object name. A
    /// button without a name goes by its text.
    QStringList tabStops(const QString &first) const;
    QStringList items(const QString &combo) const;
    /// The texts of all fields in tab order, hidden ones too, with " | " between them.
    QString fieldTexts() const;
    /// The texts of the labels that are wider than the room they have.
    QStringList labelsTooNarrow() const;

private:
    QWidget &m_page;
};

/// Adds a column "size" with rows from a small window to a large screen.
void addPageSizes();

#endif
