// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "fieldhints.h"

#include "hintline.h"
#include "kellineedit.h"
#include "plaintip.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTabWidget>

#include <algorithm>

namespace {

QString textOf(const QWidget *field)
{
    const auto *edit = qobject_cast<const QLineEdit *>(field);
    return edit ? edit->text() : QString();
}

const QComboBox *unitSelectorOf(const QWidget *field)
{
    const auto *edit = qobject_cast<const KelLineEdit *>(field);
    return edit ? edit->unitSelector() : nullptr;
}

} // namespace

FieldHints::FieldHints(QWidget *page, HintLine *line) : QObject(page), m_page(page), m_line(line)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { noteFocus(now); });
    // A field on a tab that is turned away is told about no longer.
    const QList<QTabWidget *> tabs = page->findChildren<QTabWidget *>();
    for (const QTabWidget *tab : tabs)
        connect(tab, &QTabWidget::currentChanged, this, &FieldHints::updateLine);
}

void FieldHints::add(const std::vector<FieldHint> &hints)
{
    for (const FieldHint &hint : hints) {
        m_entries.push_back({hint, textOf(hint.field), QString()});
        watch(hint);
    }
    retranslate();
}

void FieldHints::setTakes(const QWidget *field, const char *takes)
{
    Entry *entry = entryOf(field);
    entry->hint.takes = takes;
    tell(*entry);
}

void FieldHints::setReason(const QWidget *field, const QString &reason)
{
    note(*entryOf(field), reason);
}

void FieldHints::retranslate()
{
    for (Entry &entry : m_entries)
        note(entry, reasonOf(entry));
}

void FieldHints::watch(const FieldHint &hint)
{
    QWidget *field = hint.field;
    if (const auto *edit = qobject_cast<QLineEdit *>(field)) {
        connect(edit, &QLineEdit::textEdited, this, [this] { m_latest = nullptr; });
        connect(edit, &QLineEdit::textChanged, this, [this, field] {
            Entry &entry = *entryOf(field);
            note(entry, reasonOf(entry));
        });
    }
    if (const QComboBox *unit = unitSelectorOf(field))
        connect(unit, &QComboBox::currentTextChanged, this,
                [this, field] { tell(*entryOf(field)); });
}

FieldHints::Entry *FieldHints::entryOf(const QWidget *field)
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [field](const Entry &entry) { return entry.hint.field == field; });
    return found == m_entries.end() ? nullptr : &*found;
}

void FieldHints::note(Entry &entry, const QString &reason)
{
    if (!reason.isEmpty() && reason != entry.reason) {
        m_latest = entry.hint.field;
        m_isLatestNew = true;
    }
    entry.reason = reason;
    tell(entry);
}

/// What has the focus may be a part of the field, such as a button of a switch. Anything else, on
/// this page or not, leaves the line as it is.
void FieldHints::noteFocus(const QWidget *now)
{
    const QWidget *field = now;
    while (field && field != m_page && !entryOf(field))
        field = field->parentWidget();
    if (!field || field == m_page || field == m_focused)
        return;
    if (m_latest != m_focused && !m_isLatestNew)
        m_latest = nullptr;
    m_isLatestNew = false;
    m_focused = field;
    updateLine();
}

void FieldHints::tell(const Entry &entry)
{
    const QString sentence = sentenceOf(entry);
    entry.hint.field->setToolTip(PlainTip::of(sentence));
    entry.hint.field->setAccessibleDescription(sentence);
    // The focus is on the buttons of a switch, not on the switch.
    const auto buttons = entry.hint.field->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        button->setAccessibleDescription(sentence);
    updateLine();
}

void FieldHints::updateLine()
{
    const Entry *entry = toldEntry();
    QStringList texts;
    if (entry)
        texts += sentenceOf(*entry);
    if (!entry || isPageEmpty())
        texts += translated("F1: guide");
    m_line->setText(texts.join(QLatin1String(" | ")));
}

QString FieldHints::translated(const char *sentence) const
{
    return QCoreApplication::translate(m_page->metaObject()->className(), sentence);
}

QString FieldHints::reasonOf(const Entry &entry) const
{
    const FieldHint &hint = entry.hint;
    if (hint.reasons.empty())
        return entry.reason;
    const auto *edit = qobject_cast<const KelLineEdit *>(hint.field);
    if (!edit || !edit->hasError())
        return {};
    const auto found =
        std::find_if(hint.reasons.begin(), hint.reasons.end(),
                     [edit](const HintReason &reason) { return reason.word == edit->text(); });
    return translated(found == hint.reasons.end() ? hint.reasons.front().sentence
                                                  : found->sentence);
}

QString FieldHints::sentenceOf(const Entry &entry) const
{
    if (!entry.reason.isEmpty())
        return entry.reason;
    const QString takes = translated(entry.hint.takes);
    const QComboBox *unit = unitSelectorOf(entry.hint.field);
    return unit ? takes.arg(unit->currentText()) : takes;
}

const FieldHints::Entry *FieldHints::toldEntry()
{
    const Entry *focused = entryOf(m_focused);
    const Entry *latest = entryOf(m_latest);
    if (hasReasonToSee(latest) && !hasReasonToSee(focused))
        return latest;
    return focused && focused->hint.field->isVisibleTo(m_page) ? focused : nullptr;
}

bool FieldHints::hasReasonToSee(const Entry *entry) const
{
    return entry && !entry->reason.isEmpty() && entry->hint.field->isVisibleTo(m_page);
}

bool FieldHints::isPageEmpty() const
{
    return std::all_of(m_entries.begin(), m_entries.end(), [](const Entry &entry) {
        return textOf(entry.hint.field) == entry.startText;
    });
}
