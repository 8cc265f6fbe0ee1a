// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterwidget.h"

#include "errortexts.h"
#include "mainprofile.h"
#include "ui_dbconverterwidget.h"

#include <QApplication>

using namespace Dezimo;

DbConverterWidget::DbConverterWidget(QWidget *parent)
    : ModulePage(parent),
      m_ui(std::make_unique<Ui::DbConverterWidget>()),
      m_profile(&MainProfile::instance().dbConverter())
{
    build(*m_ui);
    m_ui->pDbLineEdit->setSuffixText(QStringLiteral("dB"));
    m_ui->vDbLineEdit->setSuffixText(QStringLiteral("dB"));
    dressFields();
    // The model notes a run from P2 or V2 as one from P1 or V1. So leaving P2 or V2 calculates
    // again, even without an edit.
    m_ui->p2LineEdit->setFinishedByEveryLeaving(true);
    m_ui->v2LineEdit->setFinishedByEveryLeaving(true);
    tellAboutFields();
    showModel();
}

DbConverterWidget::~DbConverterWidget()
{
    finishOpenEdit();
}

void DbConverterWidget::tellAboutFields()
{
    tellAboutPowers();
    tellAboutVoltages();
}

void DbConverterWidget::tellAboutPowers()
{
    const char *mismatch = QT_TR_NOOP("P1 and P2 must both have a unit, or neither");
    hints().add({
        {m_ui->p1LineEdit,
         QT_TR_NOOP(
             "P1: dBm, dBW or W, as P2 has it, or no unit; in dB the ratio is 10·log₁₀(P1/P2)"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("P1 is a number with dBm, dBW, W or no unit, and with a point: 2.5W")},
          {ErrorText::kUnitMismatch, mismatch}}},
        {m_ui->p2LineEdit,
         QT_TR_NOOP(
             "P2: dBm, dBW or W, as P1 has it, or no unit; in dB the ratio is 10·log₁₀(P1/P2)"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("P2 is a number with dBm, dBW, W or no unit, and with a point: 2.5W")},
          {ErrorText::kUnitMismatch, mismatch}}},
        {m_ui->pRatioLineEdit,
         QT_TR_NOOP("P1/P2 without a unit: 2, 0.5, 1k; gives the dB, and an empty P1 or P2"),
         {{ErrorText::kInvalid,
           QT_TR_NOOP("The ratio of the powers in dB is a number with a point: -3, 1.5")},
          {ErrorText::kNotANumber, QT_TR_NOOP("P2 is zero, or too small for a ratio")}}},
        {m_ui->pDbLineEdit,
         QT_TR_NOOP("10·log₁₀(P1/P2) in dB: 3, -20; gives the ratio, and an empty P1 or P2"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("The ratio P1/P2 is a number with a point: 2, 0.5, 1k")}}},
    });
}

void DbConverterWidget::tellAboutVoltages()
{
    const char *mismatch = QT_TR_NOOP("V1 and V2 are written without a unit");
    hints().add({
        {m_ui->v1LineEdit,
         QT_TR_NOOP("V1: volts without unit: 2, 100m; in dB the ratio is 20·log₁₀(V1/V2)"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("V1 is a number of volts without a unit, and with a point: 2.5, 100m")},
          {ErrorText::kUnitMismatch, mismatch}}},
        {m_ui->v2LineEdit,
         QT_TR_NOOP("V2: volts without unit: 2, 100m; in dB the ratio is 20·log₁₀(V1/V2)"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("V2 is a number of volts without a unit, and with a point: 2.5, 100m")},
          {ErrorText::kUnitMismatch, mismatch}}},
        {m_ui->vRatioLineEdit,
         QT_TR_NOOP("V1/V2 without a unit: 2, 0.5, 1k; gives the dB, and an empty V1 or V2"),
         {{ErrorText::kInvalid,
           QT_TR_NOOP("The ratio of the voltages in dB is a number with a point: -3, 1.5")},
          {ErrorText::kNotANumber, QT_TR_NOOP("V2 is zero, or too small for a ratio")}}},
        {m_ui->vDbLineEdit,
         QT_TR_NOOP("20·log₁₀(V1/V2) in dB: 6, -20; gives the ratio, and an empty V1 or V2"),
         {{ErrorText::kInvalidInput,
           QT_TR_NOOP("The ratio V1/V2 is a number with a point: 2, 0.5, 1k")}}},
    });
}

void DbConverterWidget::showModel()
{
    using Model = DbConverterProfile;
    using View = DbConverterWidget;
    const std::vector<Value<Model, View>> values = {
        {&Model::currentModeChanged, &View::onCurrentModeChanged},
        {&Model::p1Changed, &View::onP1Changed},
        {&Model::p2Changed, &View::onP2Changed},
        {&Model::pRatioChanged, &View::onPRatioChanged},
        {&Model::pDbChanged, &View::onPDbChanged},
        {&Model::v1Changed, &View::onV1Changed},
        {&Model::v2Changed, &View::onV2Changed},
        {&Model::vRatioChanged, &View::onVRatioChanged},
        {&Model::vDbChanged, &View::onVDbChanged},
    };
    mirror(m_profile, this, values);
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

/// When the model turns the tab, the field with the focus is hidden. That would finish its edit and
/// calculate with values that were just loaded.
void DbConverterWidget::onCurrentModeChanged()
{
    const QSignalBlocker noEdit(QApplication::focusWidget());
    m_ui->mainTab->setCurrentIndex(m_profile->currentMode());
}

void DbConverterWidget::onP1Changed()
{
    showText(m_ui->p1LineEdit, m_profile->p1());
}

void DbConverterWidget::onP2Changed()
{
    showText(m_ui->p2LineEdit, m_profile->p2());
}

void DbConverterWidget::onPRatioChanged()
{
    showText(m_ui->pRatioLineEdit, m_profile->pRatio());
}

void DbConverterWidget::onPDbChanged()
{
    showText(m_ui->pDbLineEdit, m_profile->pDb());
}

void DbConverterWidget::onV1Changed()
{
    showText(m_ui->v1LineEdit, m_profile->v1());
}

void DbConverterWidget::onV2Changed()
{
    showText(m_ui->v2LineEdit, m_profile->v2());
}

void DbConverterWidget::onVRatioChanged()
{
    showText(m_ui->vRatioLineEdit, m_profile->vRatio());
}

void DbConverterWidget::onVDbChanged()
{
    showText(m_ui->vDbLineEdit, m_profile->vDb());
}
