// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_EXPRESSIONPROFILE_H
#define PROFILES_EXPRESSIONPROFILE_H

#include "announced.h"
#include "moduleprofile.h"

#include <QMap>
#include <QString>

#include <memory>

namespace Dezimo {

class StepRule;
struct CalculatorTable;
struct Evaluation;
struct Operand;
struct Unit;

/**
 * An expression calculator: evaluates the typed text, shows the result in the chosen unit, and
 * tells which units make sense for it. Sums and differences are evaluated from left to right,
 * bracket groups first; an operand is a number with at most one SI prefix and one unit.
 *
 * Bad input becomes an error text in output. A calculator adds its units and modes, how a step
 * combines two operands, and how a result is converted.
 */
class ExpressionProfile : public ModuleProfile
{
    Q_OBJECT
    Q_PROPERTY(QString input READ input WRITE setInput NOTIFY inputChanged)
    Q_PROPERTY(QString output READ output WRITE setOutput NOTIFY outputChanged)
    Q_PROPERTY(int outputUnit READ outputUnit WRITE setOutputUnit NOTIFY outputUnitChanged)
    Q_PROPERTY(int mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(
        QMap<int, bool> validUnits READ validUnits WRITE setValidUnits NOTIFY validUnitsChanged)

public:
    /// The expression as it was typed.
    QString input() const { return m_input.get(); }
    /// The result without its unit, or an error text; "---" before the first calculation.
    QString output() const { return m_output.get(); }
    int outputUnit() const { return m_outputUnit.get(); }
    int mode() const { return m_mode.get(); }
    /// For each unit whether it is offered as the output unit.
    QMap<int, bool> validUnits() const { return m_validUnits.get(); }
    /// The index of the plain number, which is beyond those that a selector shows.
    int plainUnit() const;
    /// The text of a unit; empty for the plain number and for an index that is no unit's.
    QString unitText(int unit) const;

    /// Why calculate() gives an error text for the present input and mode: one sentence of plain
    /// text in US English that names what is wrong. Empty if it gives a result; INF and NAN are
    /// results. It depends on nothing that has been calculated. The time is linear in the length
    /// of the input.
    QString reason() const;

    /// No setter calculates by itself.
    void setInput(const QString &text) { m_input.set(text); }
    void setOutput(const QString &text) { m_output.set(text); }
    void setOutputUnit(int unit) { m_outputUnit.set(unit); }
    void setMode(int mode) { m_mode.set(mode); }
    void setValidUnits(const QMap<int, bool> &validUnits) { m_validUnits.set(validUnits); }

    /// Evaluates a cleaned text without brackets. Returns a number and its unit, or an error text;
    /// a text without an operator is "invalid input", which is also put into output at once.
    QString evaluate(const QString &text);

    void saveSettings(QSettings &settings) override;
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    /// Evaluates input and updates outputUnit, output and validUnits, in this order. Each changes
    /// at most once, except that a bracket group without an operator puts its error text into
    /// output before the result is there. A defect of the brackets leaves the units as they are.
    void calculate();

Q_SIGNALS:
    void inputChanged();
    void outputChanged();
    void outputUnitChanged();
    void modeChanged();
    void validUnitsChanged();

protected:
    /// A result as it is shown.
    struct Shown
    {
        QString output;
        int outputUnit;
        QMap<int, bool> validUnits;
    };

    /// @p table must outlive the profile.
    explicit ExpressionProfile(const CalculatorTable &table, QObject *parent = nullptr);

    /// The rule of one evaluation in the present mode.
    virtual std::unique_ptr<StepRule> newStepRule() const = 0;
    /// Converts @p result into the output unit, or into another one where that makes no sense.
    virtual Shown shown(const Operand &result) const = 0;

    /// The unit with the given index, or that of the plain number if there is none.
    const Unit &unitAt(int index) const;
    /// The units to choose from when a result is shown in @p unit.
    QMap<int, bool> unitsBeside(int unit) const;

private:
    Evaluation evaluated(const QString &text);
    void publish(const Evaluation &result);
    Shown shownError(const QString &errorText) const;
    void show(const Shown &result);

    using Self = ExpressionProfile;
    const CalculatorTable &m_table;
    Announced<QString> m_input{this, &Self::inputChanged};
    Announced<QString> m_output;
    Announced<int> m_outputUnit{this, &Self::outputUnitChanged};
    Announced<int> m_mode{this, &Self::modeChanged};
    Announced<QMap<int, bool>> m_validUnits;
};

} // namespace Dezimo

#endif
