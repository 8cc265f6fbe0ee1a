// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelmessagebox.h"

#include "ui_kelmessagebox.h"

#include <QLabel>

KelMessageBox::KelMessageBox(State state, const QString &title, const QString &text,
                             QDialogButtonBox::StandardButtons buttons, QWidget *parent,
                             Qt::WindowFlags flags)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::KelMessageBox>()),
      m_state(state)
{
    // Style sheets select the state by its name, which they only see if the type is registered.
    qRegisterMetaType<State>();
    m_ui->setupUi(this);
    auto *label = new QLabel(text, m_ui->content);
    label->setObjectName(QStringLiteral("messageLabel"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    m_ui->iconWidget->resize(m_ui->icon->size());
    m_ui->iconWidget->setVisible(m_state != StateNormal);
    m_ui->icon->setAccessibleName(stateName());
    setWindowTitle(title);
    setAccessibleDescription(text);
    m_ui->verticalLayout->addWidget(label);
    m_ui->buttonBox->setStandardButtons(buttons);
    setWindowFlags(flags);
    resize(sizeHint());
}

KelMessageBox::~KelMessageBox() = default;

/// One pixel more than the contents need, because on Wayland a window loses a pixel of its height
/// if the scale is not a whole number.
QSize KelMessageBox::sizeHint() const
{
    return QDialog::sizeHint() + QSize(0, 1);
}

QDialogButtonBox::StandardButton KelMessageBox::ask(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QDialogButtonBox::StandardButtons buttons)
{
    KelMessageBox box(StateNormal, title, text, buttons, parent,
                      Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint);
    if (box.exec() == -1)
        return QDialogButtonBox::Cancel;
    return box.m_ui->buttonBox->standardButton(box.m_clickedButton);
}

void KelMessageBox::on_buttonBox_clicked(QAbstractButton *button)
{
    m_clickedButton = button;
}

QString KelMessageBox::stateName() const
{
    switch (m_state) {
    case StateOk:
        return tr("Done");
    case StateWarning:
        return tr("Warning");
    case StateError:
        return tr("Error");
    case StateQuestion:
        return tr("Question");
    case StateNormal:
        break;
    }
    return {};
}
