// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLINEEDIT_H
#define WIDGETS_KELLINEEDIT_H

#include <QLineEdit>
#include <QStringList>

class QLabel;

/**
 * A line edit that can show a fixed text, such as a unit, inside its left and its right end. What
 * is typed keeps clear of both.
 *
 * Given a list of error words, the edit tells by its `error` property whether its text is one of
 * them, so that a style sheet can make it look like one. A screen reader is told the fixed texts as
 * the edit's description, unless the edit was given a description of its own.
 */
class KelLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool error READ hasError NOTIFY errorChanged)

public:
    explicit KelLineEdit(QWidget *parent = nullptr);

    /// Whether the whole text is one of the error texts.
    bool hasError() const { return m_hasError; }

    void setPrefixText(const QString &text);
    void setSuffixText(const QString &text);
    void setErrorTexts(const QStringList &texts);

Q_SIGNALS:
    void errorChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void layOutLabels();
    void updateDescription();
    void updateError();

    QLabel *const m_prefixLabel;
    QLabel *const m_suffixLabel;
    QString m_labelDescription;
    QStringList m_errorTexts;
    bool m_hasError = false;
};

#endif
