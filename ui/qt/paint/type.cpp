#include "ui/qt/paint/type.h"

#include "ui/qt/paint/kept_picture.h"
#include "ui/qt/paint/palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>

namespace zephyne::paint {

namespace {

constexpr double narrowest_stretch = 0.88;
constexpr double baseline_below_middle = 0.364;  // of the size: half the height of capitals
constexpr double glow_width = 2.6;
constexpr double glow_opacity = 0.17;

constexpr std::array<Face, 13> faces{{
    {11, QFont::Medium, 14, 0},       // Caption
    {12, QFont::Normal, 16, 0},       // Row
    {12, QFont::Medium, 16, 0},       // SelectedRow
    {11, QFont::Medium, 16, 0},       // LedCaption
    {11, QFont::DemiBold, 16, 0},     // LedValue
    {11, QFont::Normal, 14, 0},       // SongInformation
    {11, QFont::DemiBold, 14, 0},     // Heading
    {10.5, QFont::DemiBold, 13, 0},   // FrameCaption
    {11, QFont::Normal, 13.5, 0},     // Notice
    {10, QFont::DemiBold, 12, 0},     // SliderLegend
    {12, QFont::DemiBold, 16, 4.4},   // Brand
    {16, QFont::Normal, 19.5, 0},     // MessageShort
    {13.33, QFont::Normal, 16.5, 0},  // MessageLong
}};

// Text is set this many times too large and drawn reduced. Fonts come in whole pixels, and
// the font renderer thickens the stems of small sizes; the reduction gives every size exactly
// and in the weight it was drawn. Without hinting it costs no sharpness.
constexpr double setting_size = 4;

QFont sized_font(Role role, double unit) {
    const Face& look = face(role);
    QFont result;
    result.setFamilies({QStringLiteral("Inter"), QStringLiteral("Liberation Sans"),
                        QStringLiteral("DejaVu Sans Condensed")});
    result.setStyleHint(QFont::SansSerif);
    result.setPixelSize(std::max(1, Scale{unit}.px(look.size)));
    result.setWeight(look.weight);
    result.setHintingPreference(QFont::PreferNoHinting);
    if (look.letter_spacing > 0)
        result.setLetterSpacing(QFont::AbsoluteSpacing, look.letter_spacing * unit);
    return result;
}

QFont setting_font(Role role, const Scale& scale) {
    return sized_font(role, scale.s * setting_size);
}

// From the setting to the device.
double reduction(Role role, const Scale& scale) {
    return scale.exact(face(role).size) / setting_font(role, scale).pixelSize();
}

double natural_width(const QString& text, Role role, const Scale& scale) {
    return QFontMetricsF(setting_font(role, scale)).horizontalAdvance(text) *
           reduction(role, scale);
}

FittedText elided(const QString& text, Role role, const Scale& scale, double room, double stretch,
                  Qt::TextElideMode mode) {
    const QFontMetricsF metrics(setting_font(role, scale));
    const double reduced = reduction(role, scale) * stretch;
    const QString cut = metrics.elidedText(text, mode, std::max(0.0, room) / reduced);
    const double width = metrics.horizontalAdvance(cut) * reduced;
    // A box that has no room even for the ellipsis stays empty.
    if (width > room) return {QString(), stretch, 0};
    return {cut, stretch, width};
}

// Stroking letters is slow, so halos are kept.
void draw_glow(QPainter& painter, const Scale& scale, const QPointF& origin, const FittedText& line,
               const TextStyle& style) {
    constexpr int parts = 4;  // of a pixel, as finely as letters are placed
    const int left = static_cast<int>(std::floor(origin.x()));
    const int part = static_cast<int>((origin.x() - left) * parts);

    const double size = scale.exact(face(style.role).size);
    const int margin = static_cast<int>(size);  // for the halo and letters that lean out
    const QPoint start(margin, 2 * margin);
    const QSize area(static_cast<int>(line.width) + 3 * margin, 3 * margin);
    const QString name = QStringLiteral("zephyne-glow/%1/%2/%3/%4/%5/")
                             .arg(static_cast<int>(style.role))
                             .arg(style.color.name(QColor::HexArgb))
                             .arg(size)
                             .arg(line.stretch)
                             .arg(part) +
                         line.text;
    const QPixmap halo = kept_picture(name, area, [&](QPainter& on_picture) {
        const double reduced = reduction(style.role, scale);
        QPainterPath outline;
        outline.addText(0, 0, setting_font(style.role, scale), line.text);
        on_picture.setRenderHint(QPainter::Antialiasing);
        on_picture.translate(start.x() + static_cast<double>(part) / parts, start.y());
        on_picture.scale(reduced * line.stretch, reduced);
        on_picture.strokePath(
            outline, QPen(faded(style.color, glow_opacity), scale.exact(glow_width) / reduced,
                          Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    });
    painter.drawPixmap(QPoint(left, static_cast<int>(origin.y())) - start, halo);
}

}  // namespace

const Face& face(Role role) {
    return faces[static_cast<std::size_t>(role)];
}

QFont font(Role role, const Scale& scale) {
    return sized_font(role, scale.s);
}

double text_width(const QString& text, Role role, const Scale& scale) {
    return natural_width(text, role, scale);
}

FittedText fit_text(const QString& text, Role role, const Scale& scale, double room, Fit fit) {
    const double width = natural_width(text, role, scale);
    if (fit == Fit::Overflow || width <= room) return {text, 1, width};
    if (fit == Fit::ElideMiddle) return elided(text, role, scale, room, 1, Qt::ElideMiddle);
    if (width * narrowest_stretch <= room) return {text, room / width, room};
    return elided(text, role, scale, room, narrowest_stretch, Qt::ElideRight);
}

QStringList wrap_text(const QString& text, Role role, const Scale& scale, double room) {
    QString normal = text;
    normal.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    normal.replace(QLatin1Char('\r'), QLatin1Char('\n'));

    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const double line_width = std::max(1.0, room / reduction(role, scale));

    QStringList lines;
    for (const QString& paragraph : normal.split(QLatin1Char('\n'))) {
        if (paragraph.isEmpty()) {
            lines.append(QString());
            continue;
        }
        QTextLayout layout(paragraph, setting_font(role, scale));
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(line_width);
            lines.append(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
    }
    return lines;
}

QStringList balanced_lines(const QString& text, Role role, const Scale& scale) {
    QStringList best{text};
    double shortest = natural_width(text, role, scale);
    for (qsizetype space = text.indexOf(QLatin1Char(' ')); space >= 0;
         space = text.indexOf(QLatin1Char(' '), space + 1)) {
        const QString first = text.left(space);
        const QString second = text.mid(space + 1);
        const double longer =
            std::max(natural_width(first, role, scale), natural_width(second, role, scale));
        if (longer < shortest) {
            shortest = longer;
            best = {first, second};
        }
    }
    return best;
}

void draw_text(QPainter& painter, const Scale& scale, const QRectF& box, const QString& text,
               const TextStyle& style) {
    if (text.isEmpty()) return;
    const FittedText fitted = fit_text(text, style.role, scale, box.width(), style.fit);
    const double slack = box.width() - fitted.width;
    const double left = style.align == Align::Left     ? box.left()
                        : style.align == Align::Center ? box.left() + slack / 2
                                                       : box.left() + slack;
    const double baseline = std::floor(
        box.center().y() + baseline_below_middle * scale.exact(face(style.role).size) + 0.5);
    const double reduced = reduction(style.role, scale);
    const QFont setting = setting_font(style.role, scale);

    if (style.glow == Glow::Led) draw_glow(painter, scale, {left, baseline}, fitted, style);
    const QTransform before = painter.transform();
    painter.translate(left, baseline);
    painter.scale(reduced * fitted.stretch, reduced);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(setting);
    painter.setPen(style.color);
    painter.drawText(QPointF(0, 0), fitted.text);
    painter.setTransform(before);
}

void draw_standing_text(QPainter& painter, const Scale& scale, const QRect& box,
                        const QString& text, const TextStyle& style) {
    const double capitals = 2 * baseline_below_middle * scale.exact(face(style.role).size);
    const double baseline = box.bottom() + 1 - scale.px(1);
    draw_text(painter, scale, QRectF(box.left(), baseline - capitals, box.width(), capitals), text,
              style);
}

void draw_lines(QPainter& painter, const Scale& scale, const QRectF& box, const QStringList& lines,
                const TextStyle& style) {
    const double pitch = scale.exact(face(style.role).pitch);
    QRectF strip(box.left(), box.top(), box.width(), pitch);
    for (const QString& line : lines) {
        draw_text(painter, scale, strip, line, style);
        strip.translate(0, pitch);
    }
}

}  // namespace zephyne::paint
