// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_RESOURCEICON_H
#define WIDGETS_RESOURCEICON_H

#include <QFile>
#include <QIcon>

/// The icon in a file of the resources. A missing file gives no icon, because Qt would log a
/// warning each time it tried to draw it.
inline QIcon resourceIcon(const QString &path)
{
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

#endif
