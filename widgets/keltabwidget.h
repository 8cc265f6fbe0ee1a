// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELTABWIDGET_H
#define WIDGETS_KELTABWIDGET_H

#include <QTabWidget>

/**
 * A tab widget whose KelTabPages join it by themselves. The form compiler knows it as a plain
 * widget and so makes the pages as its children; the pages of a QTabWidget it makes apart, fills,
 * and moves there at last, which styles everything on them twice, shown or not.
 */
class KelTabWidget final : public QTabWidget
{
    Q_OBJECT

public:
    using QTabWidget::QTabWidget;
};

#endif
