// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "keypadcalculatorwidget.h"

#include "errortexts.h"
#include "expressionprofile.h"
#include "inputkeys.h"
#include "kelautoresizelineedit.h"
#include "kelcombobox.h"
#include "plaintip.h"
#include "quieterror.h"
#include "resultcopy.h"
#include "straykeys.h"

#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPushButton>
#include <QStandardItemModel>
#include <QToolTip>

using namespace Dezimo;

namespace {

/// Pixels beside the text of the unit selector: its frame, its padding and its arrow.
constexpr int kUnitFrame = 44;

/// Pixels of the font in the list of units, however large the chosen unit is shown.
constexpr int kUnitListFont = 18;

/// The keys with a slot of their own. Every other one types its text.
bool isFunctionKey(const QPushButton *key)
{
    static const QStringList names{
        QStringLiteral("pushButton_C"), QStringLiteral("pushButton_back"),
        QStringLiteral("pushButton_calc"), QStringLiteral("pushButton_plusMinus")};
    return names.contains(key->objectName());
}

} // namespace

KeypadCalculatorWidget::KeypadCalculatorWidget(ExpressionProfile &profile, QWidget *parent)
    : ModulePage(parent),
      m_profile(profile),
      m_slide(this)
{
    connect(&m_slide, &TakeOverSlide::finished, this, &KeypadCalculatorWidget::endTakeOver);
}

void KeypadCalculatorWidget::changeEvent(QEvent *event)
{
    ModulePage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_mode)
        tellAboutModes();
}

void KeypadCalculatorWidget::takeKeysFrom(QWidget *control)
{
    m_strayKeys->takeFrom(control);
}

/// While a result slides, the model has taken it as its input already and has an output for it. A
/// window that is closed must not store that output, so hiding ends the slide at once.
void KeypadCalculatorWidget::hideEvent(QHideEvent *event)
{
    m_slide.finish();
    ModulePage::hideEvent(event);
}

bool KeypadCalculatorWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_output && event->type() == QEvent::Resize)
        fitUnitSelector();
    if (watched == m_output && event->type() == QEvent::ToolTip) {
        // A tip takes on the font size of its widget, which is far too large here.
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), m_output->toolTip(),
                           m_outputRow);
        return true;
    }
    return ModulePage::eventFilter(watched, event);
}

void KeypadCalculatorWidget::recalculate()
{
    if (!m_profile.output().isEmpty())
        m_profile.calculate();
}

void KeypadCalculatorWidget::on_inputLineEdit_textChanged(const QString &text)
{
    m_profile.setInput(text);
    m_profile.calculate();
}

void KeypadCalculatorWidget::on_inputLineEdit_returnPressed()
{
    on_pushButton_calc_clicked();
}

void KeypadCalculatorWidget::on_outputUnitComboBox_currentIndexChanged(int index)
{
    if (index == m_profile.outputUnit())
        return;
    m_profile.setOutputUnit(index);
    recalculate();
}

void KeypadCalculatorWidget::on_calcModeComboBox_currentIndexChanged(int index)
{
    if (index == m_profile.mode())
        return;
    m_profile.setMode(index);
    recalculate();
}

void KeypadCalculatorWidget::on_pushButton_calc_clicked()
{
    m_output->setQuiet(false);
    if (m_takenOver || !hasResult())
        return;
    m_inputKeys->noteTakenOver(m_profile.input());
    m_takenOver = resultWithUnit();
    m_profile.setInput(*m_takenOver);
    m_slide.start(m_outputRow, m_input);
}

void KeypadCalculatorWidget::numpadButtonClicked()
{
    m_input->insert(qobject_cast<QPushButton *>(sender())->text());
}

/// Empties the line as a person would, so that Ctrl+Z brings the expression back.
void KeypadCalculatorWidget::on_pushButton_C_clicked()
{
    m_input->selectAll();
    m_input->del();
    m_profile.setOutput(QString());
}

void KeypadCalculatorWidget::on_pushButton_back_clicked()
{
    m_input->backspace();
}

void KeypadCalculatorWidget::on_pushButton_plusMinus_clicked()
{
    m_input->insert(QStringLiteral("-"));
}

void KeypadCalculatorWidget::onOutputFontSizeChanged(int fontsize)
{
    m_outputUnit->setStyleSheet(QStringLiteral("font-size: %1px").arg(fontsize));
}

void KeypadCalculatorWidget::onInputChanged()
{
    showText(m_input, m_profile.input());
    describeOutput();
}

/// The row shows the result that was taken over until it has slid up, not what the model makes of
/// it as an input.
void KeypadCalculatorWidget::onOutputChanged()
{
    if (m_takenOver)
        return;
    showText(m_output, m_profile.output());
    showUnitSelector();
}

void KeypadCalculatorWidget::onOutputUnitChanged()
{
    if (m_takenOver)
        return;
    if (m_profile.outputUnit() != m_profile.plainUnit())
        m_outputUnit->setCurrentIndex(m_profile.outputUnit());
    showUnitSelector();
}

void KeypadCalculatorWidget::onModeChanged()
{
    m_mode->setCurrentIndex(m_profile.mode());
    hints().setTakes(m_mode, m_sentences.modes.at(size_t(m_profile.mode())));
    m_output->setQuiet(false);
    describeOutput();
}

void KeypadCalculatorWidget::onValidUnitsChanged()
{
    const QMap<int, bool> validUnits = m_profile.validUnits();
    const auto *items = qobject_cast<QStandardItemModel *>(m_outputUnit->model());
    for (int i = 0; i < items->rowCount(); ++i)
        items->item(i)->setEnabled(validUnits.value(i));
}

void KeypadCalculatorWidget::setUpKeyboard()
{
    m_inputKeys = new InputKeys(m_input);
    connect(m_inputKeys, &InputKeys::calculateRequested, this,
            &KeypadCalculatorWidget::on_pushButton_calc_clicked);
    connect(m_inputKeys, &InputKeys::clearRequested, this,
            &KeypadCalculatorWidget::on_pushButton_C_clicked);
    // The keypad has no brackets, but they are typed in the same go.
    m_strayKeys = new StrayKeys(m_input, connectKeys() + QStringLiteral("()="));
    takeKeysFrom(m_output);
    takeKeysFrom(m_outputUnit);
    takeKeysFrom(m_mode);
}

void KeypadCalculatorWidget::setUpOutput()
{
    markErrors({m_output});
    new QuietError(m_input, m_output);
    new ResultCopy(m_input, m_output, m_outputUnit);
    connect(m_output, &KelAutoResizeLineEdit::fontSizeChanged, this,
            &KeypadCalculatorWidget::onOutputFontSizeChanged);
    m_outputUnit->setListFontSize(kUnitListFont);
    m_output->installEventFilter(this);
    describeOutput();
}

void KeypadCalculatorWidget::tellAboutFields()
{
    hints().add({{m_input, m_sentences.input}, {m_mode, m_sentences.modes.front()}});
    tellAboutModes();
}

void KeypadCalculatorWidget::tellAboutModes()
{
    for (int mode = 0; mode < m_mode->count(); ++mode)
        m_mode->setItemData(mode, hints().translated(m_sentences.modes.at(size_t(mode))),
                            Qt::ToolTipRole);
}

/// After a click on a key, typing goes on in the input line, whatever had the focus before.
QString KeypadCalculatorWidget::connectKeys()
{
    QString characters;
    const QList<QPushButton *> keys = findChildren<QPushButton *>();
    for (QPushButton *key : keys) {
        if (!isFunctionKey(key)) {
            connect(key, &QPushButton::clicked, this, &KeypadCalculatorWidget::numpadButtonClicked);
            characters += key->text();
        }
        connect(key, &QPushButton::clicked, m_input, qOverload<>(&QWidget::setFocus));
    }
    return characters;
}

/// The font of the result is not fitted yet, because its row has no size.
void KeypadCalculatorWidget::showProfile()
{
    using Model = ExpressionProfile;
    using View = KeypadCalculatorWidget;
    const QSignalBlocker noCalculation(m_input);
    const QSignalBlocker noFitting(m_output);
    const std::vector<Value<Model, View>> values = {
        {&Model::inputChanged, &View::onInputChanged},
        {&Model::outputUnitChanged, &View::onOutputUnitChanged},
        {&Model::modeChanged, &View::onModeChanged},
        {&Model::outputChanged, &View::onOutputChanged},
        {&Model::validUnitsChanged, &View::onValidUnitsChanged},
    };
    mirror(&m_profile, this, values);
}

bool KeypadCalculatorWidget::hasResult() const
{
    const QString output = m_profile.output();
    return !output.isEmpty() && output != ErrorText::kInvalidInput &&
           output != ErrorText::kUnitMissing;
}

bool KeypadCalculatorWidget::hasUnit() const
{
    return m_profile.outputUnit() != m_profile.plainUnit();
}

bool KeypadCalculatorWidget::isUnitShown() const
{
    return hasResult() && hasUnit();
}

QString KeypadCalculatorWidget::resultWithUnit() const
{
    if (!hasUnit())
        return m_profile.output();
    return m_profile.output() + QLatin1Char(' ') + m_profile.unitText(m_profile.outputUnit());
}

void KeypadCalculatorWidget::showUnitSelector()
{
    m_outputUnit->setVisible(isUnitShown());
    describeOutput();
}

/// A screen reader tells a result together with its unit, and an error word together with the
/// reason, which the tool tip tells as well. The reason may change while the word stays.
void KeypadCalculatorWidget::describeOutput()
{
    const QString reason = m_output->hasError() ? m_profile.reason() : QString();
    const QString unit = isUnitShown() ? m_profile.unitText(m_profile.outputUnit()) : QString();
    m_output->setToolTip(PlainTip::of(reason));
    m_output->setAccessibleDescription(reason.isEmpty() ? unit : reason);
    hints().setReason(m_input, reason);
}

/// The selector is wide enough for the largest size of a result in this row, so that its arrow
/// stays beside the unit. The size of the present result would not do: it depends in turn on the
/// room that the selector leaves.
void KeypadCalculatorWidget::fitUnitSelector()
{
    QFont largest = m_outputUnit->font();
    largest.setPixelSize(qMax(m_output->largestFontSize(), 1));
    const QFontMetrics metrics(largest);
    int widest = 0;
    for (int i = 0; i < m_outputUnit->count(); ++i)
        widest = qMax(widest, metrics.horizontalAdvance(m_outputUnit->itemText(i)));
    m_outputUnit->setFixedWidth(widest + kUnitFrame);
}

/// If the person has typed during the slide, the result of that stays.
void KeypadCalculatorWidget::endTakeOver()
{
    const bool isInput = m_profile.input() == m_takenOver;
    m_takenOver.reset();
    if (isInput)
        m_profile.setOutput(QString());
    onOutputUnitChanged();
    onOutputChanged();
}
