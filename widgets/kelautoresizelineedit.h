// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELAUTORESIZELINEEDIT_H
#define WIDGETS_KELAUTORESIZELINEEDIT_H

#include "kellineedit.h"

/**
 * A line edit whose font shrinks so that its whole text can be read, from a size that fills the
 * edit's height down to 10 pixels; a text that is too long for that is clipped.
 *
 * The font is set through the edit's own style sheet, which replaces any other that is set on the
 * edit itself.
 */
class KelAutoResizeLineEdit final : public KelLineEdit
{
    Q_OBJECT

public:
    explicit KelAutoResizeLineEdit(QWidget *parent = nullptr);

    /// The size in pixels at which a text is shown that fits easily. Only the height decides on it.
    int largestFontSize() const;

public Q_SLOTS:
    void adjustTextSizeAuto();

Q_SIGNALS:
    /// The applied font size in pixels, when it differs from the one before.
    void fontSizeChanged(int size);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int textWidth(int fontSize) const;
    int fittingFontSize() const;

    int m_fontSize = 0;
};

#endif
