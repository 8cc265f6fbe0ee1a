// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLINEEDIT_H
#define WIDGETS_KELLINEEDIT_H

#include <QColor>
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

Q_SIGNALS:
    void errorChanged();
    void placeholderColorChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
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
};

#endif
