// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterwidget.h"

#include "errortexts.h"
#include "mainprofile.h"
#include "mirroredtext.h"
#include "ui_dbconverterwidget.h"

#include <QApplication>
#include <QEvent>

using namespace Dezimo;

DbConverterWidget::DbConverterWidget(QWidget *parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::DbConverterWidget>()),
      m_profile(&MainProfile::instance().dbConverter())
{
    m_ui->setupUi(this);
    m_ui->pDbLineEdit->setSuffixText(QStringLiteral("dB"));
    m_ui->vDbLineEdit->setSuffixText(QStringLiteral("dB"));
    const QList<KelLineEdit *> edits = findChildren<KelLineEdit *>();
    for (KelLineEdit *edit : edits)
        edit->setErrorTexts(ErrorText::all());
    // Their runs are told as those of P1 and V1, so none of theirs ever counts as the latest.
    m_ui->p2LineEdit->setFinishedByEveryLeaving(true);
    m_ui->v2LineEdit->setFinishedByEveryLeaving(true);
    connectModel();
    showModel();
}

/// Hiding takes the focus from a field that is being edited, which finishes the edit. It has to
/// happen while form and slots are still there.
DbConverterWidget::~DbConverterWidget()
{
    hide();
}

void DbConverterWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

void DbConverterWidget::connectModel()
{
    using Model = DbConverterProfile;
    using View = DbConverterWidget;
    connect(m_profile, &Model::currentModeChanged, this, &View::onCurrentModeChanged);
    connect(m_profile, &Model::p1Changed, this, &View::onP1Changed);
    connect(m_profile, &Model::p2Changed, this, &View::onP2Changed);
    connect(m_profile, &Model::pRatioChanged, this, &View::onPRatioChanged);
    connect(m_profile, &Model::pDbChanged, this, &View::onPDbChanged);
    connect(m_profile, &Model::v1Changed, this, &View::onV1Changed);
    connect(m_profile, &Model::v2Changed, this, &View::onV2Changed);
    connect(m_profile, &Model::vRatioChanged, this, &View::onVRatioChanged);
    connect(m_profile, &Model::vDbChanged, this, &View::onVDbChanged);
}

void DbConverterWidget::showModel()
{
    onCurrentModeChanged();
    onP1Changed();
    onP2Changed();
    onPRatioChanged();
    onPDbChanged();
    onV1Changed();
    onV2Changed();
    onVRatioChanged();
    onVDbChanged();
}

void DbConverterWidget::on_mainTab_currentChanged(int index)
{
    m_profile->setCurrentMode(index);
}

void DbConverterWidget::on_p1LineEdit_editingFinished()
{
    m_profile->calculateFromP1();
}

void DbConverterWidget::on_p2LineEdit_editingFinished()
{
    m_profile->calculateFromP2();
}

void DbConverterWidget::on_pRatioLineEdit_editingFinished()
{
    m_profile->calculateFromPRatio();
}

void DbConverterWidget::on_pDbLineEdit_editingFinished()
{
    m_profile->calculateFromPDb();
}

void DbConverterWidget::on_p1LineEdit_textEdited(const QString &arg1)
{
    m_profile->setP1(arg1);
    m_profile->setPLatestRun(0);
}

void DbConverterWidget::on_p2LineEdit_textEdited(const QString &arg1)
{
    m_profile->setP2(arg1);
    m_profile->setPLatestRun(0);
}

void DbConverterWidget::on_pRatioLineEdit_textEdited(const QString &arg1)
{
    m_profile->setPRatio(arg1);
    m_profile->setPLatestRun(0);
}

void DbConverterWidget::on_pDbLineEdit_textEdited(const QString &arg1)
{
    m_profile->setPDb(arg1);
    m_profile->setPLatestRun(0);
}

void DbConverterWidget::on_v1LineEdit_editingFinished()
{
    m_profile->calculateFromV1();
}

void DbConverterWidget::on_v2LineEdit_editingFinished()
{
    m_profile->calculateFromV2();
}

void DbConverterWidget::on_vRatioLineEdit_editingFinished()
{
    m_profile->calculateFromVRatio();
}

void DbConverterWidget::on_vDbLineEdit_editingFinished()
{
    m_profile->calculateFromVDb();
}

void DbConverterWidget::on_v1LineEdit_textEdited(const QString &arg1)
{
    m_profile->setV1(arg1);
    m_profile->setVLatestRun(0);
}

void DbConverterWidget::on_v2LineEdit_textEdited(const QString &arg1)
{
    m_profile->setV2(arg1);
    m_profile->setVLatestRun(0);
}

void DbConverterWidget::on_vRatioLineEdit_textEdited(const QString &arg1)
{
    m_profile->setVRatio(arg1);
    m_profile->setVLatestRun(0);
}

void DbConverterWidget::on_vDbLineEdit_textEdited(const QString &arg1)
{
    m_profile->setVDb(arg1);
    m_profile->setVLatestRun(0);
}

/// A tab that the model turns hides the field with the focus, which would finish its edit and
/// calculate on values that were just loaded.
void DbConverterWidget::onCurrentModeChanged()
{
    const QSignalBlocker noEdit(QApplication::focusWidget());
    m_ui->mainTab->setCurrentIndex(m_profile->currentMode());
}

void DbConverterWidget::onP1Changed()
{
    mirrorText(m_ui->p1LineEdit, m_profile->p1());
}

void DbConverterWidget::onP2Changed()
{
    mirrorText(m_ui->p2LineEdit, m_profile->p2());
}

void DbConverterWidget::onPRatioChanged()
{
    mirrorText(m_ui->pRatioLineEdit, m_profile->pRatio());
}

void DbConverterWidget::onPDbChanged()
{
    mirrorText(m_ui->pDbLineEdit, m_profile->pDb());
}

void DbConverterWidget::onV1Changed()
{
    mirrorText(m_ui->v1LineEdit, m_profile->v1());
}

void DbConverterWidget::onV2Changed()
{
    mirrorText(m_ui->v2LineEdit, m_profile->v2());
}

void DbConverterWidget::onVRatioChanged()
{
    mirrorText(m_ui->vRatioLineEdit, m_profile->vRatio());
}

void DbConverterWidget::onVDbChanged()
{
    mirrorText(m_ui->vDbLineEdit, m_profile->vDb());
}
