// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelpushbutton.h"

KelPushButton::KelPushButton(QWidget *parent) : QPushButton(parent) {}
