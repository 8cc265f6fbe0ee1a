// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_KEYPADCALCULATORWIDGET_H
#define VIEWS_KEYPADCALCULATORWIDGET_H

#include "modulepage.h"
#include "takeoverslide.h"

#include <optional>

class InputKeys;
class KelAutoResizeLineEdit;
class KelComboBox;
class QComboBox;
class QLineEdit;
class StrayKeys;

namespace Dezimo {
class ExpressionProfile;
}

/**
 * What the pages of the expression calculators share: an input line, a keypad that types into it, a
 * result that follows every keystroke, its unit, and a mode.
 *
 * When the model changes its unit or mode by itself, the selectors start no calculation. So a
 * loaded result stays as it was stored.
 */
class KeypadCalculatorWidget : public ModulePage
{
    Q_OBJECT

public:
    /// Brings to the input line what is typed while @p control has the focus and this page is open.
    void takeKeysFrom(QWidget *control);

protected:
    /// @p profile must outlive the page.
    KeypadCalculatorWidget(Dezimo::ExpressionProfile &profile, QWidget *parent);

    /// What the page tells, in its translation context.
    struct Sentences
    {
        const char *input;
        /// An example of each mode.
        std::vector<const char *> modes;
    };

    /// Builds the form, connects its widgets and shows the model.
    template <typename Form>
    void setUp(Form &form, const Sentences &sentences)
    {
        m_sentences = sentences;
        build(form);
        m_input = form.inputLineEdit;
        m_outputRow = form.outputWidget;
        m_output = form.outputLineEdit;
        m_outputUnit = form.outputUnitComboBox;
        m_mode = form.calcModeComboBox;
        setFocusProxy(form.inputLineEdit);
        tellAboutFields();
        setUpKeyboard();
        showProfile();
        setUpOutput(); // last, so that a result that is an error is marked at once
    }

    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Calculates again if there is a result, for a choice that the result depends on.
    void recalculate();

private Q_SLOTS:
    void on_inputLineEdit_textChanged(const QString &text);
    void on_inputLineEdit_returnPressed();
    void on_outputUnitComboBox_currentIndexChanged(int index);
    void on_calcModeComboBox_currentIndexChanged(int index);
    void on_pushButton_calc_clicked();
    /// Types the text of the key that was clicked.
    void numpadButtonClicked();
    void on_pushButton_C_clicked();
    void on_pushButton_back_clicked();
    void on_pushButton_plusMinus_clicked();
    void onOutputFontSizeChanged(int fontsize);
    void onInputChanged();
    void onOutputChanged();
    void onOutputUnitChanged();
    void onModeChanged();
    void onValidUnitsChanged();

private:
    void setUpKeyboard();
    void setUpOutput();
    void tellAboutFields();
    void tellAboutModes();
    /// Returns the characters that the keys type.
    QString connectKeys();
    void showProfile();

    /// Whether the output can be taken over. "---" and "bracket missing" can, on purpose.
    bool hasResult() const;
    bool hasUnit() const;
    bool isUnitShown() const;
    QString resultWithUnit() const;
    void showUnitSelector();
    void describeOutput();
    void fitUnitSelector();
    void endTakeOver();

    Dezimo::ExpressionProfile &m_profile;
    Sentences m_sentences;
    QLineEdit *m_input = nullptr;
    QWidget *m_outputRow = nullptr;
    KelAutoResizeLineEdit *m_output = nullptr;
    KelComboBox *m_outputUnit = nullptr;
    QComboBox *m_mode = nullptr;
    InputKeys *m_inputKeys = nullptr;
    StrayKeys *m_strayKeys = nullptr;
    TakeOverSlide m_slide;
    std::optional<QString> m_takenOver; ///< while it slides into the input
};

#endif
