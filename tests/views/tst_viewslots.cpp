// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "dbconverterwidget.h"
#include "keypadcalculatorwidget.h"
#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"
#include "unitconverterwidget.h"
#include "voltagecalculatorwidget.h"
#include "vswrconverterwidget.h"

#include <QTest>

Q_DECLARE_METATYPE(const QMetaObject *)

/// The slots of the pages. Qt connects most of them by their names. It never calls a slot with a
/// wrong name, and no compiler complains.
class ViewSlotsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areDeclaredInOrder_data();
    void areDeclaredInOrder();
};

void ViewSlotsTest::areDeclaredInOrder_data()
{
    columns<const QMetaObject *, QString>({"page", "names"});
    row("what the calculators share", &KeypadCalculatorWidget::staticMetaObject,
        "on_inputLineEdit_textChanged on_inputLineEdit_returnPressed"
        " on_outputUnitComboBox_currentIndexChanged on_calcModeComboBox_currentIndexChanged"
        " on_pushButton_calc_clicked numpadButtonClicked on_pushButton_C_clicked"
        " on_pushButton_back_clicked on_pushButton_plusMinus_clicked onOutputFontSizeChanged"
        " onInputChanged onOutputChanged onOutputUnitChanged onModeChanged onValidUnitsChanged");
    row("the voltage calculator", &VoltageCalculatorWidget::staticMetaObject,
        "on_phaseSpinBox_valueChanged onPhaseChanged");
    row("the unit converter", &UnitConverterWidget::staticMetaObject,
        "on_dbmLineEdit_textEdited on_wattLineEdit_textEdited on_voltLineEdit_textEdited"
        " on_dbvLineEdit_textEdited on_impedanceLineEdit_textEdited"
        " on_dbmLineEdit_editingFinished on_wattLineEdit_editingFinished"
        " on_voltLineEdit_editingFinished on_dbvLineEdit_editingFinished"
        " on_impedanceLineEdit_editingFinished on_dbmUnitComboBox_currentIndexChanged"
        " on_wattUnitComboBox_currentIndexChanged on_voltUnitComboBox_currentIndexChanged"
        " on_dbvUnitComboBox_currentIndexChanged onVModeToggle_currentIndexChanged"
        " onLogPowerChanged onLinPowerChanged onLogVoltageChanged onLinVoltageChanged"
        " onImpedanceChanged onLogPowerUnitChanged onLinPowerUnitChanged"
        " onLogVoltageUnitChanged onLinVoltageUnitChanged onVoltageModeChanged");
    row("the dB converter", &DbConverterWidget::staticMetaObject,
        "on_mainTab_currentChanged on_p1LineEdit_editingFinished on_p2LineEdit_editingFinished"
        " on_pRatioLineEdit_editingFinished on_pDbLineEdit_editingFinished"
        " on_p1LineEdit_textEdited on_p2LineEdit_textEdited on_pRatioLineEdit_textEdited"
        " on_pDbLineEdit_textEdited on_v1LineEdit_editingFinished on_v2LineEdit_editingFinished"
        " on_vRatioLineEdit_editingFinished on_vDbLineEdit_editingFinished"
        " on_v1LineEdit_textEdited on_v2LineEdit_textEdited on_vRatioLineEdit_textEdited"
        " on_vDbLineEdit_textEdited onCurrentModeChanged onP1Changed onP2Changed"
        " onPRatioChanged onPDbChanged onV1Changed onV2Changed onVRatioChanged onVDbChanged");
    row("the VSWR converter", &VswrConverterWidget::staticMetaObject,
        "on_vswrLineEdit_textEdited on_rLineEdit_textEdited on_r2LineEdit_textEdited"
        " on_arLineEdit_textEdited on_amLineEdit_textEdited on_forwardPowerLineEdit_textEdited"
        " on_reflectedPowerLineEdit_textEdited on_absorbedPowerLineEdit_textEdited"
        " on_forwardVoltageLineEdit_textEdited on_reflectedVoltageLineEdit_textEdited"
        " on_absorbedVoltageLineEdit_textEdited on_forwardPowerUnitComboBox_currentIndexChanged"
        " on_reflectedPowerUnitComboBox_currentIndexChanged"
        " on_absorbedPowerUnitComboBox_currentIndexChanged"
        " on_forwardVoltageUnitComboBox_currentIndexChanged"
        " on_reflectedVoltageUnitComboBox_currentIndexChanged"
        " on_absorbedVoltageUnitComboBox_currentIndexChanged on_mainTab_currentChanged"
        " onVswrChanged onRChanged onR2Changed onArChanged onAmChanged onPForwardChanged"
        " onPReflectedChanged onPAbsorbedChanged onVForwardChanged onVReflectedChanged"
        " onVAbsorbedChanged onPForwardUnitChanged onPReflectedUnitChanged"
        " onPAbsorbedUnitChanged onVForwardUnitChanged onVReflectedUnitChanged"
        " onVAbsorbedUnitChanged onCurrentModeChanged");
}

void ViewSlotsTest::areDeclaredInOrder()
{
    QFETCH(const QMetaObject *, page);
    QFETCH(QString, names);

    QCOMPARE(slotNames(*page).join(QLatin1Char(' ')), names);
}

DEZIMO_TEST_MAIN(QCoreApplication, ViewSlotsTest)
#include "tst_viewslots.moc"
