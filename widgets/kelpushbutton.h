// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELPUSHBUTTON_H
#define WIDGETS_KELPUSHBUTTON_H

#include <QPushButton>

/**
 * The push button that the toolkit's other push buttons build on. It behaves as the one it derives
 * from and gives style sheets a class of its own to select.
 * It takes its size, text and icon from the form or the view that holds it.
 */
class KelPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit KelPushButton(QWidget *parent = nullptr);
};

#endif
