// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_WINDOWPLACEMENT_H
#define APP_WINDOWPLACEMENT_H

#include <QRect>
#include <QVector>

/// Where a window that was stored at @p position is put: there if any part of it lies on one of
/// @p screens, else wholly onto the nearest one. All in device-independent pixels. Any position is
/// allowed, even at the limits of int. Without screens the window stays where it was.
QPoint reachablePosition(const QPoint &position, const QSize &size, const QVector<QRect> &screens);

#endif
