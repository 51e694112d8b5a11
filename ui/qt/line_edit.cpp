#include "ui/qt/line_edit.h"

#include "ui/qt/menu_style.h"
#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/palette.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <cmath>

namespace zephyne {
namespace {

// Qt keeps these around a line's text and around its caret.
constexpr int qt_side_margin = 2;
constexpr int qt_caret_margin = 5;

}  // namespace

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent), caret_(*this) {
    setStyle(&text_style());
    setFrame(false);
    // Qt finds out in painting how far the text is scrolled, so it must paint, but unseen.
    QPalette unseen = palette();
    for (const auto role : {QPalette::Base, QPalette::Text, QPalette::PlaceholderText,
                            QPalette::Highlight, QPalette::HighlightedText}) {
        unseen.setColor(role, Qt::transparent);
    }
    setPalette(unseen);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] {
        if (hasFocus()) caret_.start();
    });
}

void LineEdit::lay_out(const Pixels& pixels, const QRect& box) {
    pixels_ = pixels;
    box_ = box;
    setFont(paint::font(paint::Role::Row, pixels.logical_scale()));
    const QRect inside = paint::text_box_interior(pixels.scale(), box, paint::TextLines::One);
    const int side =
        static_cast<int>(std::lround((inside.left() - box.left()) / pixels.ratio)) - qt_side_margin;
    setTextMargins(side, 0, side, 0);
}

void LineEdit::set_colour(const QColor& colour) {
    colour_ = colour;
    update();
}

double LineEdit::width_of(const QString& part) const {
    return paint::text_width(part, paint::Role::Row, pixels_.scale());
}

void LineEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    const QString text = displayText();
    const paint::Scale scale = pixels_.scale();
    const QPoint origin = origin_in_window(*this);

    // Where the text starts follows from the caret, which Qt keeps in sight.
    const QRect caret = cursorRect();
    const double before_caret = width_of(text.left(cursorPosition())) / pixels_.ratio;
    const double start = std::round(caret.left() + qt_caret_margin - before_caret);
    const double left = (origin.x() + start) * pixels_.ratio;
    const QRectF line(left, box_.top(), width_of(text) + 1, box_.height());
    {
        DevicePainter painter(*this);
        painter.setClipRect(
            paint::text_box_interior(scale, box_, paint::TextLines::One).adjusted(-1, 0, 1, 0));
        paint::draw_text(painter, scale, line, text, {.role = paint::Role::Row, .color = colour_});
        if (hasSelectedText()) {
            const double from = left + width_of(text.left(selectionStart()));
            const double to = left + width_of(text.left(selectionEnd()));
            const int margin = scale.px(2);
            const QRectF selected(from, box_.top() + margin, to - from, box_.height() - 2 * margin);
            painter.setClipRect(selected.toRect(), Qt::IntersectClip);
            painter.fillRect(selected.toRect(), paint::palette::selection);
            paint::draw_text(painter, scale, line, text,
                             {.role = paint::Role::Row, .color = paint::palette::selection_text});
        }
    }
    caret_.paint(pixels_, {caret.left() + qt_caret_margin, caret.top(), 1, caret.height()});
}

void LineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!isReadOnly()) caret_.start();
}

void LineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    caret_.stop();
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event) {
    run_menu(createStandardContextMenu(), pixels_.factor, event->globalPos());
}

}  // namespace zephyne
