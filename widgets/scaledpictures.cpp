// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "scaledpictures.h"

#include <QPainter>
#include <QPixmap>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace {

/// The document keeps the picture after it has read it once.
QPixmap pictureOf(const QTextDocument &document, const QTextFormat &format)
{
    const QUrl name(format.toImageFormat().name(), QUrl::TolerantMode);
    return document.resource(QTextDocument::ImageResource, name).value<QPixmap>();
}

} // namespace

QSizeF ScaledPictures::intrinsicSize(QTextDocument *document, int /*position*/,
                                     const QTextFormat &format)
{
    const QSizeF own = pictureOf(*document, format).size();
    const qreal room = document->textWidth() - 2 * document->documentMargin();
    return own.width() > room ? own.scaled(room, own.height(), Qt::KeepAspectRatio) : own;
}

void ScaledPictures::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document,
                                int /*position*/, const QTextFormat &format)
{
    const QPixmap picture = pictureOf(*document, format);
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, picture, QRectF(picture.rect()));
    painter->restore();
}
