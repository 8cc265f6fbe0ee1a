// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_RESULTCOPY_H
#define VIEWS_RESULTCOPY_H

#include <QObject>
#include <QString>

class KelLineEdit;
class QAction;
class QComboBox;
class QLineEdit;

/**
 * Copies a result as one reads it, with its unit: by Ctrl+C where nothing is selected, and by an
 * entry in the context menu of the result. The text can be typed into an expression again. An error
 * word is no result, so it is not copied. A result that was taken over stands in the input line,
 * and is copied from there.
 */
class ResultCopy final : public QObject
{
    Q_OBJECT

public:
    /// A hidden selector means that the result has no unit. @p result owns the object.
    ResultCopy(QLineEdit *input, KelLineEdit *result, const QComboBox *unit);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool hasResult() const;
    QString resultWithUnit() const;
    /// What Ctrl+C in @p edit copies. Empty for nothing.
    QString textFor(const QObject *edit) const;
    void updateMenuEntry();

    QLineEdit *const m_input;
    KelLineEdit *const m_result;
    const QComboBox *const m_unit;
    QAction *m_menuEntry = nullptr; ///< null until a context menu is opened for the first time
};

#endif
