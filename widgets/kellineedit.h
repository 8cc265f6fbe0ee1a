// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLINEEDIT_H
#define WIDGETS_KELLINEEDIT_H

#include "kelpastinglineedit.h"
#include "pastedtext.h"

#include <QColor>
#include <QPointer>
#include <QStringList>

class QComboBox;
class QLabel;
class QMenu;

/**
 * A line edit that can show a fixed text, such as a unit, inside its left and its right end. What
 * is typed keeps clear of both.
 *
 * Looking at an edit changes nothing, so leaving it emits `editingFinished` only if the person has
 * changed the text since the last time. Return always emits it. The person leaves the edit when it
 * loses the focus, even to a menu or another window, or when it is hidden. A text that the program
 * writes is no change by the person and makes the edit forget an earlier one. Qt 5.15 by itself
 * would take it for one.
 *
 * Given a list of error words, the edit sets its `error` property while its text is one of them, so
 * that a style sheet can make it look like one. It selects such a word whole, so that typing
 * replaces it. Screen readers get the fixed texts as the edit's description, unless the edit has a
 * description of its own.
 *
 * Of a text that comes in, the unit beside the edit, in its right end or in a selector, is left
 * out, too.
 *
 * Actions that are added to the edit come first in its context menu.
 */
class KelLineEdit : public KelPastingLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool error READ hasError NOTIFY errorChanged)
    Q_PROPERTY(bool quiet READ isQuiet WRITE setQuiet NOTIFY quietChanged)
    Q_PROPERTY(QColor placeholderColor READ placeholderColor WRITE setPlaceholderColor NOTIFY
                   placeholderColorChanged)

public:
    explicit KelLineEdit(QWidget *parent = nullptr);

    /// Whether the whole text is one of the error texts.
    bool hasError() const { return m_hasError; }

    /// Whether a style sheet should keep an error from drawing attention. It stays an error.
    bool isQuiet() const { return m_isQuiet; }
    void setQuiet(bool quiet);

    /// The color of the placeholder. A style sheet sets it as qproperty-placeholderColor: by itself
    /// Qt 5.15 draws placeholders in the full text color of the sheet, like something typed.
    QColor placeholderColor() const { return m_placeholderColor; }
    void setPlaceholderColor(const QColor &color);

    void setPrefixText(const QString &text);
    void setSuffixText(const QString &text);
    void setErrorTexts(const QStringList &texts);

    /// The unit that is chosen there stands beside the edit. Null at first.
    const QComboBox *unitSelector() const;
    void setUnitSelector(const QComboBox *selector);
    /// Whether the edit's reader knows the micro sign. If not, a pasted one becomes "u".
    void setMicroSign(PastedText::MicroSign sign) { m_microSign = sign; }

    /// Emits editingFinished whenever the edit is left, changed or not. Off at first.
    void setFinishedByEveryLeaving(bool finished) { m_isFinishedByEveryLeaving = finished; }

Q_SIGNALS:
    void errorChanged();
    void quietChanged();
    void placeholderColorChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

    QString cleaned(const QString &text) const override;

private:
    void noteEdit(const QString &text);
    void noteWrittenText(const QString &text);
    void leave();
    void selectError();
    void layOutLabels();
    void updateDescription();
    void updateError();
    void styleAgain();
    void applyPlaceholderColor();

    QLabel *const m_prefixLabel;
    QLabel *const m_suffixLabel;
    QPointer<const QComboBox> m_unitSelector;
    PastedText::MicroSign m_microSign = PastedText::MicroSign::Replaced;
    QString m_labelDescription;
    QStringList m_errorTexts;
    bool m_hasError = false;
    bool m_isQuiet = false;
    QColor m_placeholderColor;

    bool m_isFinishedByEveryLeaving = false;
    bool m_isEntered = false; ///< has had the focus since it was last left
    bool m_isEdited = false;  ///< by the person, since the last finished edit
    QString m_editedText;     ///< as the person left it
    bool m_isEnteredByClick = false;
    QPointer<QMenu> m_contextMenu;
};

#endif
