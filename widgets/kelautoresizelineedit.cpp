// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelautoresizelineedit.h"

#include <QFontMetrics>

namespace {

/// Pixels that the frame takes from the edit's height and width.
constexpr int kFrame = 12;

constexpr int kSmallestFontSize = 10;

} // namespace

KelAutoResizeLineEdit::KelAutoResizeLineEdit(QWidget *parent) : KelLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &KelAutoResizeLineEdit::adjustTextSizeAuto);
    // A style sheet may give a quiet error other letters, which need another width.
    connect(this, &KelLineEdit::quietChanged, this, &KelAutoResizeLineEdit::adjustTextSizeAuto);
}

int KelAutoResizeLineEdit::largestFontSize() const
{
    return height() - kFrame - 1;
}

void KelAutoResizeLineEdit::adjustTextSizeAuto()
{
    ensurePolished(); // measures with the family of the style sheets
    const int size = fittingFontSize();
    if (size != m_fontSize) {
        m_fontSize = size;
        Q_EMIT fontSizeChanged(size);
    }
    setStyleSheet(QStringLiteral("font-size: %1px").arg(size));
}

void KelAutoResizeLineEdit::resizeEvent(QResizeEvent *event)
{
    KelLineEdit::resizeEvent(event);
    adjustTextSizeAuto();
}

int KelAutoResizeLineEdit::textWidth(int fontSize) const
{
    QFont candidate = font();
    candidate.setPixelSize(fontSize);
    return QFontMetrics(candidate).boundingRect(text()).width();
}

/// To keep a pixel of air around the text, the size is one below the last one measured. In an edit
/// that is too low for any text it is zero or negative.
int KelAutoResizeLineEdit::fittingFontSize() const
{
    const int available = width() - kFrame;
    int size = height() - kFrame;
    if (size - 1 > kSmallestFontSize) {
        // Each size that is measured loads the font in that size. The one that a short text gets
        // tells of most texts that they fit even one pixel larger, or by far not at any size.
        const int measured = textWidth(size - 1);
        if (measured <= available / 2)
            return size - 1;
        if (qint64(measured) * kSmallestFontSize / (size - 1) / 2 > qMax(available, 0))
            return kSmallestFontSize;
    }
    int measured = textWidth(size--);
    while (measured > available && size > kSmallestFontSize)
        measured = textWidth(size--);
    return size;
}
