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
    // Measuring in a size loads the font in it. Most texts are so short or so long that the largest
    // size that they may get tells the result, and no other is loaded.
    const int largest = size - 1;
    if (largest > kSmallestFontSize) {
        const int measured = textWidth(largest);
        if (measured <= available / 2)
            return largest;
        if (qint64(measured) * kSmallestFontSize / largest / 2 > qMax(available, 0))
            return kSmallestFontSize;
    }
    int measured = textWidth(size--);
    while (measured > available && size > kSmallestFontSize)
        measured = textWidth(size--);
    return size;
}
