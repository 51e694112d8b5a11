// Pictures that are drawn once and then copied. For the files of this folder only.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSize>
#include <QString>

namespace zephyne::paint {

// The picture of that name, drawn by draw(QPainter&) on a transparent ground if it is not kept
// (or no longer). The name must say everything that the drawing depends on.
template <typename Draw>
QPixmap kept_picture(const QString& name, const QSize& size, Draw draw) {
    QPixmap picture;
    if (QPixmapCache::find(name, &picture)) return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    draw(painter);
    painter.end();
    QPixmapCache::insert(name, picture);
    return picture;
}

}  // namespace zephyne::paint
