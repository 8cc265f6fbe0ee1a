// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_RESOURCEICON_H
#define WIDGETS_RESOURCEICON_H

#include <QFile>
#include <QIcon>

/// The icon in a file of the resources, or none where there is no such file: Qt would log a warning
/// at each attempt to draw it.
inline QIcon resourceIcon(const QString &path)
{
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

#endif
