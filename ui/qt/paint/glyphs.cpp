#include "ui/qt/paint/glyphs.h"

#include "ui/qt/paint/kept_picture.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <memory>

// The picture files are linked into the program; a static library must ask for its own.
static void load_pictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace zephyne::paint {

namespace {

constexpr int preset_count = 12;

constexpr std::array<const char*, 22> ids{
    "preset-1", "preset-2", "preset-3", "preset-4",  "preset-5",  "preset-6",
    "preset-7", "preset-8", "preset-9", "preset-10", "preset-11", "preset-12",
    "play",     "pause",    "stop",     "reset",     "lock",      "unlock",
    "folder",   "drive",    "arrow",    "check"};

const char* id_of(Glyph glyph) {
    return ids[static_cast<std::size_t>(glyph)];
}

// The whole family in one colour.
QSvgRenderer& family(const QColor& color) {
    static QHash<QRgb, std::shared_ptr<QSvgRenderer>> families;
    std::shared_ptr<QSvgRenderer>& renderer = families[color.rgb()];
    if (!renderer) {
        load_pictures();
        QFile file(QStringLiteral(":/pictures/glyphs.svg"));
        QByteArray drawing;
        if (file.open(QIODevice::ReadOnly)) drawing = file.readAll();
        drawing.replace("#FFFFFF", color.name(QColor::HexRgb).toLatin1());
        renderer = std::make_shared<QSvgRenderer>(drawing);
    }
    return *renderer;
}

}  // namespace

Glyph preset_glyph(int number) {
    return static_cast<Glyph>(std::clamp(number, 1, preset_count) - 1);
}

QSize glyph_size(Glyph glyph) {
    return static_cast<int>(glyph) < preset_count ? QSize(10, 8) : QSize(14, 14);
}

void draw_glyph(QPainter& painter, Glyph glyph, const QRect& box, const QColor& color) {
    if (box.isEmpty()) return;
    const QString name = QStringLiteral("zephyne-glyph/%1/%2/%3x%4")
                             .arg(QLatin1String(id_of(glyph)), color.name(QColor::HexArgb))
                             .arg(box.width())
                             .arg(box.height());
    painter.drawPixmap(box.topLeft(), kept_picture(name, box.size(), [&](QPainter& on_picture) {
                           on_picture.setOpacity(color.alphaF());
                           family(color).render(&on_picture, QLatin1String(id_of(glyph)),
                                                QRectF(QPointF(), QSizeF(box.size())));
                       }));
}

void draw_glyph_centered(QPainter& painter, const Scale& scale, Glyph glyph, const QRect& box,
                         const QColor& color) {
    const QSize size = glyph_size(glyph);
    draw_glyph(painter, glyph, centered(box, scale.px(size.width()), scale.px(size.height())),
               color);
}

}  // namespace zephyne::paint
