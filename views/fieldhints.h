// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_FIELDHINTS_H
#define VIEWS_FIELDHINTS_H

#include <QObject>
#include <QString>

#include <vector>

class HintLine;
class QWidget;

/// Why a field shows an error word.
struct HintReason
{
    QString word;
    const char *sentence;
};

/// What a page tells about one of its fields. Sentences are in the page's translation context.
struct FieldHint
{
    /// One of the page's fields, or what holds the field.
    QWidget *field;
    /// What the field takes. "%1" stands for the unit that is chosen beside it.
    const char *takes;
    /// The first of them also explains each word that has no reason of its own.
    std::vector<HintReason> reasons = {};
};

/**
 * Tells in one sentence what a field takes, or why it shows an error word: as the field's tool tip
 * and its description for a screen reader, and in the hint line of the page.
 *
 * The line is about the field that has the focus, or had it last. A word often appears when its
 * field is left, so the line goes on with a new reason of another field until the person types, or
 * goes to a third field. On a page on which nothing is typed yet it names the key of the guide,
 * too.
 */
class FieldHints final : public QObject
{
    Q_OBJECT

public:
    /// Writes into @p line, which belongs to @p page.
    FieldHints(QWidget *page, HintLine *line);

    /// Tells about the fields from now on. What is in them is how an empty page begins.
    void add(const std::vector<FieldHint> &hints);
    /// Another sentence on what the field takes.
    void setTakes(const QWidget *field, const char *takes);
    /// Tells @p reason, in place of what the field takes, until the reason is empty.
    void setReason(const QWidget *field, const QString &reason);
    /// Tells everything again, in the language that the program has now.
    void retranslate();
    /// A sentence of the page in that language.
    QString translated(const char *sentence) const;

private:
    struct Entry
    {
        FieldHint hint;
        QString startText;
        QString reason;
    };

    void watch(const FieldHint &hint);
    Entry *entryOf(const QWidget *field);
    void note(Entry &entry, const QString &reason);
    void noteFocus(const QWidget *now);
    void tell(const Entry &entry);
    void updateLine();

    /// The reason of the word in the field, or the one that was set.
    QString reasonOf(const Entry &entry) const;
    QString sentenceOf(const Entry &entry) const;
    /// The entry that the line is about.
    const Entry *toldEntry();
    bool hasReasonToSee(const Entry *entry) const;
    bool isPageEmpty() const;

    QWidget *const m_page;
    HintLine *const m_line;
    std::vector<Entry> m_entries;
    const QWidget *m_focused = nullptr; ///< the field that has the focus or had it last
    const QWidget *m_latest = nullptr;  ///< the field with the latest reason, while that is told
    bool m_isLatestNew = false;         ///< since the focus came to where it is
};

#endif
