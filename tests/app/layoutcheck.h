// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_LAYOUTCHECK_H
#define TESTS_APP_LAYOUTCHECK_H

#include <QStringList>

class QComboBox;
class QLineEdit;
class QWidget;

/// What a window looks like, by geometry.
namespace LayoutCheck {

/// What is wrong with the visible widgets of @p window: texts wider than the widget that shows
/// them, neighbors that overlap, fields that are stretched or flattened, pages that scroll
/// sideways.
QStringList complaints(const QWidget &window);

/// Class and object name, as the complaints name a widget.
QString nameOf(const QWidget &widget);

/// The pixels that a selector, or a line edit, has for its text.
int roomForText(const QComboBox &box);
int roomForText(const QLineEdit &edit);

/// The folder that the environment variable DEZIMO_PICTURES names for pictures, or an empty text.
QString pictureFolder();
/// Saves a picture of @p window if there is such a folder.
void savePicture(QWidget &window, const QString &name);

} // namespace LayoutCheck

#endif
