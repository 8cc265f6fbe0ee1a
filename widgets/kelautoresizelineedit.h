// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELAUTORESIZELINEEDIT_H
#define WIDGETS_KELAUTORESIZELINEEDIT_H

#include "kellineedit.h"

/**
 * A line edit whose font shrinks until the whole text can be read, from a size that fills the
 * height of the edit down to 10 pixels. A text that is still too long is clipped.
 *
 * The edit sets the font in its own style sheet, so do not give it another one.
 */
class KelAutoResizeLineEdit final : public KelLineEdit
{
    Q_OBJECT

public:
    explicit KelAutoResizeLineEdit(QWidget *parent = nullptr);

    /// The size in pixels of a text with room to spare. It depends on the edit's height alone.
    int largestFontSize() const;

public Q_SLOTS:
    void adjustTextSizeAuto();

Q_SIGNALS:
    /// Emitted with the new font size in pixels when it has changed.
    void fontSizeChanged(int size);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int textWidth(int fontSize) const;
    int fittingFontSize() const;

    int m_fontSize = 0;
};

#endif
