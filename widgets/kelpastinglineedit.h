// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPASTINGLINEEDIT_H
#define WIDGETS_KELPASTINGLINEEDIT_H

#include <QClipboard>
#include <QLineEdit>

class QMenu;

/**
 * A line edit that cleans a text that is pasted or dropped (see pastedtext.h). If nothing is left
 * of it, nothing happens. What is typed stays as it is. Otherwise the edit does as Qt's own does:
 * what comes in is one step of undo.
 *
 * An edit for words, not for a value, has to switch the cleaning off.
 */
class KelPastingLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KelPastingLineEdit(QWidget *parent = nullptr) : QLineEdit(parent) {}

    /// Cleans what is pasted or dropped. On at first.
    void setCleaningPastes(bool cleaning) { m_isCleaningPastes = cleaning; }
    /// What the mouse brings replaces the whole text, wherever it points. Off at first.
    void setReplacedByMouse(bool replaced) { m_isReplacedByMouse = replaced; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// What an edit that cleans takes of a text.
    virtual QString cleaned(const QString &text) const = 0;
    /// Makes the entry Paste of one of Qt's menus for this edit clean what it pastes.
    void cleanPastesOf(const QMenu &menu);

private:
    QString taken(const QString &text) const;
    void pasteFrom(QClipboard::Mode mode);
    void takeDrop(QDropEvent *event);
    void hideDropCursor();
    void insertAsOneStep(const QString &text);
    void endUndoStep();

    bool m_isCleaningPastes = true;
    bool m_isReplacedByMouse = false;
};

#endif
