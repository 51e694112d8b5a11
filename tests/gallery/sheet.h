// A sheet of the gallery: a faceplate on which things are placed in px at 100 %.
#pragma once

#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/scale.h"

#include <QPainter>
#include <QRect>
#include <QString>

namespace zephyne::gallery {

class Sheet {
  public:
    Sheet(QPainter& painter, const paint::Scale& scale) : painter_(painter), scale_(scale) {}

    QPainter& painter() const { return painter_; }
    const paint::Scale& scale() const { return scale_; }

    QRect place(int x, int y, int width, int height) const {
        constexpr int t = paint::twips_per_pixel;
        return scale_.box(x * t, y * t, width * t, height * t);
    }
    void heading(int x, int y, const QString& text) const {
        paint::label(painter_, scale_, place(x, y, 300, 16), {.role = paint::Role::Heading}, text);
    }

  private:
    QPainter& painter_;
    paint::Scale scale_;
};

inline constexpr int sheet_width = 900;
inline constexpr int states_height = 560;
inline constexpr int lists_height = 400;

// Keys, boxes, displays, glyphs and frames in all their states. The top of the gallery.
void draw_states(const Sheet& sheet);

// Lists, sliders, menus and the larger pictures, from `top` downward.
void draw_lists(const Sheet& sheet, int top);

}  // namespace zephyne::gallery
