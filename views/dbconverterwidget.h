// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_DBCONVERTERWIDGET_H
#define VIEWS_DBCONVERTERWIDGET_H

#include "dbconverterprofile.h"
#include "modulepage.h"

#include <memory>

namespace Ui {
class DbConverterWidget;
}

/**
 * The page of the dB converter: a tab for powers and one for voltages, each reading as a fraction
 * that equals a ratio and corresponds to a value in dB. Typing stores a text in the model; leaving
 * a field or pressing Return calculates from it.
 */
class DbConverterWidget final : public ModulePage
{
    Q_OBJECT

public:
    explicit DbConverterWidget(QWidget *parent = nullptr);
    ~DbConverterWidget() override;

private Q_SLOTS:
    void on_mainTab_currentChanged(int index) { m_profile->setCurrentMode(index); }

    void on_p1LineEdit_editingFinished() { m_profile->calculateFromP1(); }
    void on_p2LineEdit_editingFinished() { m_profile->calculateFromP2(); }
    void on_pRatioLineEdit_editingFinished() { m_profile->calculateFromPRatio(); }
    void on_pDbLineEdit_editingFinished() { m_profile->calculateFromPDb(); }
    void on_p1LineEdit_textEdited(const QString &arg1);
    void on_p2LineEdit_textEdited(const QString &arg1);
    void on_pRatioLineEdit_textEdited(const QString &arg1);
    void on_pDbLineEdit_textEdited(const QString &arg1);

    void on_v1LineEdit_editingFinished() { m_profile->calculateFromV1(); }
    void on_v2LineEdit_editingFinished() { m_profile->calculateFromV2(); }
    void on_vRatioLineEdit_editingFinished() { m_profile->calculateFromVRatio(); }
    void on_vDbLineEdit_editingFinished() { m_profile->calculateFromVDb(); }
    void on_v1LineEdit_textEdited(const QString &arg1);
    void on_v2LineEdit_textEdited(const QString &arg1);
    void on_vRatioLineEdit_textEdited(const QString &arg1);
    void on_vDbLineEdit_textEdited(const QString &arg1);

    void onCurrentModeChanged();
    void onP1Changed();
    void onP2Changed();
    void onPRatioChanged();
    void onPDbChanged();
    void onV1Changed();
    void onV2Changed();
    void onVRatioChanged();
    void onVDbChanged();

private:
    void tellAboutFields();
    void tellAboutPowers();
    void tellAboutVoltages();
    void showModel();

    const std::unique_ptr<Ui::DbConverterWidget> m_ui;
    Dezimo::DbConverterProfile *const m_profile;
};

#endif
