// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "guide.h"

#include <QRegularExpression>

namespace {

const QString kModule = QStringLiteral("Module");
const QString kType = QStringLiteral("Type");
const QString kShows = QStringLiteral("Shows");

/// The cells of a table's row, or none if the line is not one.
QStringList cellsOf(const QString &line)
{
    if (!line.startsWith(QLatin1Char('|')) || !line.endsWith(QLatin1Char('|')))
        return {};
    QStringList cells;
    const QStringList parts = line.mid(1, line.size() - 2).split(QLatin1Char('|'));
    for (const QString &part : parts)
        cells += part.trimmed();
    return cells;
}

bool isRule(const QStringList &cells)
{
    static const QRegularExpression dashes(QStringLiteral("^:?-+:?$"));
    return cells.indexOf(dashes) == 0;
}

/// The entries of a cell, or none if the cell holds anything else.
QList<Guide::Entry> entriesOf(const QString &cell)
{
    static const QRegularExpression entry(
        QStringLiteral("\\G(?<field>[^`*,]+) (?:`(?<text>[^`]+)`|\\*empty\\*)(?:, (?=.)|$)"));
    QList<Guide::Entry> entries;
    int end = 0;
    for (auto it = entry.globalMatch(cell); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        entries +=
            {match.captured(QStringLiteral("field")), match.captured(QStringLiteral("text"))};
        end = int(match.capturedEnd());
    }
    return end == cell.size() ? entries : QList<Guide::Entry>();
}

} // namespace

Guide Guide::parsed(const QString &markdown)
{
    Guide guide;
    QString section;
    QStringList columns; // of the table that the line belongs to
    int number = 0;
    const QStringList lines = markdown.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        ++number;
        if (line.startsWith(QLatin1String("## ")))
            section = line.mid(3);
        const QStringList cells = cellsOf(line);
        if (cells.isEmpty() || columns.isEmpty()) {
            columns = cells;
            continue;
        }
        if (isRule(cells) || !(columns.contains(kType) || columns.contains(kShows)))
            continue;
        const auto module = columns.indexOf(kModule);
        const Example example{number, module < 0 ? section : cells.value(module),
                              entriesOf(cells.value(columns.indexOf(kType))),
                              entriesOf(cells.value(columns.indexOf(kShows)))};
        if (cells.size() == columns.size() && !example.typed.isEmpty() && !example.shown.isEmpty())
            guide.examples += example;
        else
            guide.problems += QStringLiteral("line %1: %2").arg(number).arg(line);
    }
    return guide;
}
