// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "tour.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include <optional>

namespace {

void typeInto(QWidget *field, const QString &text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

bool choose(QTabWidget *tabs, const QString &title)
{
    for (int index = 0; index < tabs->count(); ++index) {
        if (tabs->tabText(index) == title) {
            tabs->setCurrentIndex(index);
            return true;
        }
    }
    return false;
}

bool choose(QComboBox *selector, const QString &text)
{
    selector->setCurrentText(text);
    return selector->currentText() == text;
}

/// A segmented switch is a row of buttons with the texts of the items.
bool press(QWidget *buttons, const QString &text)
{
    const QList<QPushButton *> candidates = buttons->findChildren<QPushButton *>();
    for (QPushButton *button : candidates) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

/// Fails if there is no such widget, or no such item in it.
bool perform(QWidget &page, const Tour::Step &step)
{
    auto *widget = page.findChild<QWidget *>(QLatin1String(step.objectName));
    const QString text = QString::fromUtf8(step.text);
    if (widget == nullptr)
        return false;
    if (auto *selector = qobject_cast<QComboBox *>(widget))
        return choose(selector, text);
    if (auto *tabs = qobject_cast<QTabWidget *>(widget))
        return choose(tabs, text);
    if (!qobject_cast<QLineEdit *>(widget) && !qobject_cast<QSpinBox *>(widget))
        return press(widget, text);
    typeInto(widget, text);
    return true;
}

/// What the widget shows, or nothing if there is no such widget. A selector is hidden if the result
/// has no unit; its text is empty then.
std::optional<QString> textOf(const QWidget &page, const char *objectName)
{
    auto *widget = page.findChild<QWidget *>(QLatin1String(objectName));
    if (auto *selector = qobject_cast<QComboBox *>(widget))
        return selector->isVisible() ? selector->currentText() : QString();
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    return std::nullopt;
}

} // namespace

const std::vector<Tour::Example> &Tour::examples()
{
    static const std::vector<Example> all{
        {0,
         "dbm-calculator",
         "a receiver chain, -30dBm+20dB-3dB",
         {{"inputLineEdit", "-30dBm+20dB-3dB"}},
         {{"", "outputLineEdit", " "}, {"", "outputUnitComboBox", ""}}},
        {0,
         "",
         "two equal powers into a combiner, 10dBm+10dBm, incoherent",
         {{"inputLineEdit", "10dBm+10dBm"}, {"calcModeComboBox", "Incoherent Powers (Combiner)"}},
         {{"", "outputLineEdit", " "}, {"", "outputUnitComboBox", ""}}},
        {1,
         "voltage-calculator",
         "two correlated voltages at 90°, 3mV+4mV",
         {{"calcModeComboBox", "Correlated Voltages"},
          {"phaseSpinBox", "90"},
          {"inputLineEdit", "3mV+4mV"}},
         {{"", "outputLineEdit", " "}, {"", "outputUnitComboBox", ""}}},
        {2,
         "unit-converter",
         "0 dBm at 50 Ω",
         {{"dbmLineEdit", "0"}},
         {{"", "wattLineEdit", " "},
          {"", "wattUnitComboBox", ", "},
          {"", "voltLineEdit", " "},
          {"", "voltUnitComboBox", " RMS, "},
          {"", "dbvLineEdit", " "},
          {"", "dbvUnitComboBox", ""}}},
        {3,
         "db-converter",
         "P1 = 10dBm, P2 = 0dBm",
         {{"p1LineEdit", "10dBm"}, {"p2LineEdit", "0dBm"}},
         {{"P1/P2 = ", "pRatioLineEdit", ""}, {", ", "pDbLineEdit", " dB"}}},
        {4,
         "vswr-converter",
         "an antenna with 14 dB return loss at 40 dBm forward power",
         {{"arLineEdit", "14"}, {"forwardPowerLineEdit", "40"}},
         {{"VSWR 1 : ", "vswrLineEdit", ""},
          {", Γ = ", "rLineEdit", ""},
          {", reflected ", "reflectedPowerLineEdit", " "},
          {"", "reflectedPowerUnitComboBox", ", "},
          {"mismatch loss ", "amLineEdit", " dB"}}},
    };
    return all;
}

Tour::Played Tour::play(QWidget &window, const Example &example)
{
    auto *modules = window.findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    auto *pages = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    if (modules == nullptr || pages == nullptr || modules->item(example.module) == nullptr)
        return {{}, {QStringLiteral("module %1").arg(example.module)}};
    modules->setCurrentRow(example.module);
    QWidget &page = *pages->currentWidget();

    Played played;
    played.line = modules->currentItem()->text() + QLatin1String(": ") +
                  QString::fromUtf8(example.typed) + QLatin1String(" -> ");
    for (const Step &step : example.steps) {
        if (!perform(page, step))
            played.missing +=
                QLatin1String(step.objectName) + QLatin1Char(' ') + QString::fromUtf8(step.text);
    }
    // The last field is left like those before it, so that its edit is finished.
    if (QWidget *field = page.focusWidget())
        field->clearFocus();
    for (const Shown &shown : example.shown) {
        const auto text = textOf(page, shown.objectName);
        if (!text)
            played.missing += QLatin1String(shown.objectName);
        played.line += QString::fromUtf8(shown.before) + text.value_or(QString()) +
                       QString::fromUtf8(shown.after);
    }
    return played;
}
