#include "ui/qt/pictures.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// A static library must ask for its own resources.
static void load_pictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace zephyne::pictures {
namespace {

void add(QIcon& icon, const QString& drawing, std::initializer_list<int> sizes) {
    load_pictures();
    QSvgRenderer renderer(drawing);
    for (const int size : sizes) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
}

}  // namespace

QIcon application_icon() {
    QIcon icon;
    add(icon, QStringLiteral(":/pictures/tray.svg"), {16});
    add(icon, QStringLiteral(":/pictures/icon.svg"), {24, 32, 48, 64, 128});
    return icon;
}

void paint_emblem(QPainter& painter, const QRect& box) {
    load_pictures();
    QSvgRenderer(QStringLiteral(":/pictures/icon.svg")).render(&painter, box);
}

QIcon tray_icon() {
    QIcon icon;
    add(icon, QStringLiteral(":/pictures/tray.svg"), {16, 22, 24, 32, 48, 64});
    return icon;
}

}  // namespace zephyne::pictures
