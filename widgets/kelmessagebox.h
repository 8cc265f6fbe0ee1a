// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELMESSAGEBOX_H
#define WIDGETS_KELMESSAGEBOX_H

#include <QDialog>
#include <QDialogButtonBox>

#include <memory>

namespace Ui {
class KelMessageBox;
}

/**
 * A modal message in the program's own look: an icon for its state, a text and standard buttons.
 * Create it anew for every message.
 *
 * The style sheets choose icon and colors by the `state` property. A normal message has no icon.
 * The text is shown as it stands, never as markup.
 */
class KelMessageBox final : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(State state READ state CONSTANT)

public:
    enum State { StateNormal, StateOk, StateWarning, StateError, StateQuestion };
    Q_ENUM(State)

    KelMessageBox(State state, const QString &title, const QString &text,
                  QDialogButtonBox::StandardButtons buttons, QWidget *parent = nullptr,
                  Qt::WindowFlags flags = Qt::Dialog);
    ~KelMessageBox() override;

    State state() const { return m_state; }

    QSize sizeHint() const override;

    /// Shows a normal message and waits for the answer: the button clicked last, NoButton if the
    /// person closed the message without one, or Cancel if it could not be shown.
    static QDialogButtonBox::StandardButton ask(QWidget *parent, const QString &title,
                                                const QString &text,
                                                QDialogButtonBox::StandardButtons buttons);

private Q_SLOTS:
    void on_buttonBox_clicked(QAbstractButton *button);

private:
    QString stateName() const;

    const std::unique_ptr<Ui::KelMessageBox> m_ui;
    const State m_state;
    QAbstractButton *m_clickedButton = nullptr;
};

#endif
