// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_GUIDE_H
#define TESTS_APP_GUIDE_H

#include <QList>
#include <QString>
#include <QStringList>

/**
 * The worked examples of the user guide, read from its Markdown.
 *
 * Every row of a table with the columns "Type" and "Shows" is an example. Each cell has fields, by
 * the names that a screen reader says, and their texts: "Power 1 `1W`, Power 2 *empty*". The module
 * is that of the section, or of the column "Module" if the table has one.
 */
struct Guide
{
    struct Entry
    {
        QString field;
        QString text;
    };
    struct Example
    {
        int line = 0;
        QString module;
        QList<Entry> typed;
        QList<Entry> shown;
    };

    static Guide parsed(const QString &markdown);

    QList<Example> examples;
    QStringList problems; ///< rows of such tables that cannot be read
};

#endif
