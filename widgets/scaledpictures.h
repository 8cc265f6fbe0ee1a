// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_SCALEDPICTURES_H
#define WIDGETS_SCALEDPICTURES_H

#include <QObject>
#include <QTextObjectInterface>

/**
 * Draws the pictures of a text document: in their own size, or as wide as the text if that is
 * narrower. Qt by itself gives them one size for every width, and leaves out pixels when it scales.
 */
class ScaledPictures final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit ScaledPictures(QObject *parent) : QObject(parent) {}

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;
};

#endif
