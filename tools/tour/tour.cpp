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

namespace {

void typeInto(QWidget *field, const QString &text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

void choose(QTabWidget *tabs, const QString &title)
{
    for (int index = 0; index < tabs->count(); ++index) {
        if (tabs->tabText(index) == title)
            tabs->setCurrentIndex(index);
    }
}

/// A segmented switch is a row of buttons that carry the items' texts.
void press(QWidget *buttons, const QString &text)
{
    const QList<QPushButton *> candidates = buttons->findChildren<QPushButton *>();
    for (QPushButton *button : candidates) {
        if (button->text() == text)
            QTest::mouseClick(button, Qt::LeftButton);
    }
}

bool perform(QWidget &window, const Tour::Step &step)
{
    auto *widget = window.findChild<QWidget *>(QLatin1String(step.objectName));
    const QString text = QString::fromUtf8(step.text);
    if (widget == nullptr)
        return false;
    if (auto *selector = qobject_cast<QComboBox *>(widget))
        selector->setCurrentText(text);
    else if (auto *tabs = qobject_cast<QTabWidget *>(widget))
        choose(tabs, text);
    else if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QSpinBox *>(widget))
        typeInto(widget, text);
    else
        press(widget, text);
    return true;
}

QString textOf(const QWidget &window, const char *objectName)
{
    auto *widget = window.findChild<QWidget *>(QLatin1String(objectName));
    if (auto *selector = qobject_cast<QComboBox *>(widget))
        return selector->isVisible() ? selector->currentText() : QString();
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    return QLatin1String(objectName) + QLatin1String(" is missing");
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

QString Tour::play(QWidget &window, const Example &example)
{
    auto *modules = window.findChild<QListWidget *>(QStringLiteral("menuItemsWidget"));
    modules->setCurrentRow(example.module);
    QWidget &page =
        *window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget();
    QString line = modules->currentItem()->text() + QLatin1String(": ") +
                   QString::fromUtf8(example.typed) + QLatin1String(" -> ");
    for (const Step &step : example.steps) {
        if (!perform(page, step))
            line += QLatin1String(step.objectName) + QLatin1String(" is missing; ");
    }
    for (const Shown &shown : example.shown)
        line += QString::fromUtf8(shown.before) + textOf(page, shown.objectName) +
                QString::fromUtf8(shown.after);
    return line;
}
