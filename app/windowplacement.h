// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_WINDOWPLACEMENT_H
#define APP_WINDOWPLACEMENT_H

#include <QRect>
#include <QVector>

/// Where a window that was stored as @p window is put: where it was if any part of it lies on one
/// of
/// @p screens, else wholly onto the nearest one. All in device-independent pixels. Without screens
/// the window stays where it was.
QPoint reachablePosition(const QRect &window, const QVector<QRect> &screens);

#endif
