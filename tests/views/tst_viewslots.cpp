// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keypadcalculatorwidget.h"
#include "propertyvalues.h"
#include "testmain.h"
#include "unitconverterwidget.h"
#include "voltagecalculatorwidget.h"
#include "vswrconverterwidget.h"

#include <QTest>

Q_DECLARE_METATYPE(const QMetaObject *)

/// The slots of the pages. Qt connects most of them by their names, so that a wrong one is never
/// called and no compiler says so.
class ViewSlotsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areDeclaredInOrder_data();
    void areDeclaredInOrder();
};

void ViewSlotsTest::areDeclaredInOrder_data()
{
    QTest::addColumn<const QMetaObject *>("page");
    QTest::addColumn<QByteArray>("names");

    QTest::newRow("what the calculators share")
        << &KeypadCalculatorWidget::staticMetaObject
        << QByteArray("on_inputLineEdit_textChanged "
                      "on_inputLineEdit_returnPressed "
                      "on_outputUnitComboBox_currentIndexChanged "
                      "on_calcModeComboBox_currentIndexChanged "
                      "on_pushButton_calc_clicked "
                      "numpadButtonClicked "
                      "on_pushButton_C_clicked "
                      "on_pushButton_back_clicked "
                      "on_pushButton_plusMinus_clicked "
                      "onOutputFontSizeChanged "
                      "onInputChanged "
                      "onOutputChanged "
                      "onOutputUnitChanged "
                      "onModeChanged "
                      "onValidUnitsChanged");
    QTest::newRow("the voltage calculator") << &VoltageCalculatorWidget::staticMetaObject
                                            << QByteArray("on_phaseSpinBox_valueChanged "
                                                          "onPhaseChanged");
    QTest::newRow("the unit converter") << &UnitConverterWidget::staticMetaObject
                                        << QByteArray("on_dbmLineEdit_textEdited "
                                                      "on_wattLineEdit_textEdited "
                                                      "on_voltLineEdit_textEdited "
                                                      "on_dbvLineEdit_textEdited "
                                                      "on_impedanceLineEdit_textEdited "
                                                      "on_dbmLineEdit_editingFinished "
                                                      "on_wattLineEdit_editingFinished "
                                                      "on_voltLineEdit_editingFinished "
                                                      "on_dbvLineEdit_editingFinished "
                                                      "on_impedanceLineEdit_editingFinished "
                                                      "on_dbmUnitComboBox_currentIndexChanged "
                                                      "on_wattUnitComboBox_currentIndexChanged "
                                                      "on_voltUnitComboBox_currentIndexChanged "
                                                      "on_dbvUnitComboBox_currentIndexChanged "
                                                      "onVModeToggle_currentIndexChanged "
                                                      "onLogPowerChanged "
                                                      "onLinPowerChanged "
                                                      "onLogVoltageChanged "
                                                      "onLinVoltageChanged "
                                                      "onImpedanceChanged "
                                                      "onLogPowerUnitChanged "
                                                      "onLinPowerUnitChanged "
                                                      "onLogVoltageUnitChanged "
                                                      "onLinVoltageUnitChanged "
                                                      "onVoltageModeChanged");
    QTest::newRow("the VSWR converter")
        << &VswrConverterWidget::staticMetaObject
        << QByteArray("on_vswrLineEdit_textEdited "
                      "on_rLineEdit_textEdited "
                      "on_r2LineEdit_textEdited "
                      "on_arLineEdit_textEdited "
                      "on_amLineEdit_textEdited "
                      "on_forwardPowerLineEdit_textEdited "
                      "on_reflectedPowerLineEdit_textEdited "
                      "on_absorbedPowerLineEdit_textEdited "
                      "on_forwardVoltageLineEdit_textEdited "
                      "on_reflectedVoltageLineEdit_textEdited "
                      "on_absorbedVoltageLineEdit_textEdited "
                      "on_forwardPowerUnitComboBox_currentIndexChanged "
                      "on_reflectedPowerUnitComboBox_currentIndexChanged "
                      "on_absorbedPowerUnitComboBox_currentIndexChanged "
                      "on_forwardVoltageUnitComboBox_currentIndexChanged "
                      "on_reflectedVoltageUnitComboBox_currentIndexChanged "
                      "on_absorbedVoltageUnitComboBox_currentIndexChanged "
                      "on_mainTab_currentChanged "
                      "onVswrChanged "
                      "onRChanged "
                      "onR2Changed "
                      "onArChanged "
                      "onAmChanged "
                      "onPForwardChanged "
                      "onPReflectedChanged "
                      "onPAbsorbedChanged "
                      "onVForwardChanged "
                      "onVReflectedChanged "
                      "onVAbsorbedChanged "
                      "onPForwardUnitChanged "
                      "onPReflectedUnitChanged "
                      "onPAbsorbedUnitChanged "
                      "onVForwardUnitChanged "
                      "onVReflectedUnitChanged "
                      "onVAbsorbedUnitChanged "
                      "onCurrentModeChanged");
}

void ViewSlotsTest::areDeclaredInOrder()
{
    QFETCH(const QMetaObject *, page);
    QFETCH(QByteArray, names);

    QCOMPARE(slotNames(*page), QString::fromLatin1(names).split(QLatin1Char(' ')));
}

DEZIMO_TEST_MAIN(QCoreApplication, ViewSlotsTest)
#include "tst_viewslots.moc"
