// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPUSHBUTTON_H
#define WIDGETS_KELPUSHBUTTON_H

#include <QPushButton>

/**
 * The push button that the toolkit's other push buttons build on. It behaves as Qt's and only gives
 * style sheets a class name to select.
 */
class KelPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit KelPushButton(QWidget *parent = nullptr) : QPushButton(parent) {}
};

#endif
