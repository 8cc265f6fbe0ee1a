// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLINEEDIT_H
#define WIDGETS_KELLINEEDIT_H

#include <QColor>
#include <QLineEdit>
#include <QPointer>
#include <QStringList>

class QLabel;
class QMenu;

/**
 * A line edit that can show a fixed text, such as a unit, inside its left and its right end. What
 * is typed keeps clear of both.
 *
 * Looking is no editing: `editingFinished` is emitted by Return, and by leaving the edit if the
 * person has changed its text since it was last finished. A text that the program writes is no edit
 * and ends one that was open. Losing the focus, to a menu or another window too, and being hidden
 * are ways of leaving. All this holds with every version of Qt; by itself Qt 5.15 also takes what
 * the program wrote for an edit.
 *
 * Given a list of error words, the edit tells by its `error` property whether its text is one of
 * them, so that a style sheet can make it look like one. It selects such a word whole, so that
 * typing replaces it. A screen reader is told the fixed texts as the edit's description, unless the
 * edit was given a description of its own.
 */
class KelLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool error READ hasError NOTIFY errorChanged)
    Q_PROPERTY(QColor placeholderColor READ placeholderColor WRITE setPlaceholderColor NOTIFY
                   placeholderColorChanged)

public:
    explicit KelLineEdit(QWidget *parent = nullptr);

    /// Whether the whole text is one of the error texts.
    bool hasError() const { return m_hasError; }

    /// The color of the placeholder. A style sheet sets it as qproperty-placeholderColor: by itself
    /// Qt 5.15 draws placeholders in the full text color of the sheet, like something typed.
    QColor placeholderColor() const { return m_placeholderColor; }
    void setPlaceholderColor(const QColor &color);

    void setPrefixText(const QString &text);
    void setSuffixText(const QString &text);
    void setErrorTexts(const QStringList &texts);

    /// Makes every leaving finish an edit, also without a change. Off at first.
    void setFinishedByEveryLeaving(bool finished) { m_isFinishedByEveryLeaving = finished; }

Q_SIGNALS:
    void errorChanged();
    void placeholderColorChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void noteEdit(const QString &text);
    void noteWrittenText(const QString &text);
    void leave();
    void selectError();
    void layOutLabels();
    void updateDescription();
    void updateError();
    void applyPlaceholderColor();

    QLabel *const m_prefixLabel;
    QLabel *const m_suffixLabel;
    QString m_labelDescription;
    QStringList m_errorTexts;
    bool m_hasError = false;
    QColor m_placeholderColor;

    bool m_isFinishedByEveryLeaving = false;
    bool m_isEntered = false; ///< got the focus, and was not left since
    bool m_isEdited = false;  ///< by the person, since the last finished edit
    QString m_editedText;     ///< what the person has made of it
    bool m_isEnteredByClick = false;
    QPointer<QMenu> m_contextMenu;
};

#endif
