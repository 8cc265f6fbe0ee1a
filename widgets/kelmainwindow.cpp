// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelmainwindow.h"

KelMainWindow::KelMainWindow(QWidget *parent) : QMainWindow(parent) {}
