#include "ui/qt/text_area.h"

#include "ui/qt/menu_style.h"
#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/palette.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace zephyne {
namespace {

constexpr int halo_margin = 2;  // px at 100 %, around the text, for its glow

}  // namespace

TextArea::TextArea(QWidget* parent, Ground ground)
    : QTextEdit(parent),
      ground_(ground),
      thumb_(*this, ground == Ground::glass ? paint::ScrollPlace::Glass : paint::ScrollPlace::Well),
      caret_(*viewport()) {
    setStyle(&text_style());
    setFrameShape(QFrame::NoFrame);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setAutoFillBackground(false);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
        if (thumb_.needed() == thumb_.isHidden()) set_margins();
    });
    connect(this, &QTextEdit::cursorPositionChanged, this, [this] {
        if (hasFocus() && !isReadOnly()) caret_.start();
    });
}

paint::Role TextArea::role() const {
    return ground_ == Ground::glass ? paint::Role::SongInformation : paint::Role::Row;
}

double TextArea::pitch() const {
    return paint::face(role()).pitch * pixels_.factor;
}

void TextArea::lay_out(const Pixels& pixels, const QRect& box) {
    pixels_ = pixels;
    box_ = box;
    const QFont face = paint::font(role(), pixels.logical_scale());
    setFont(face);
    document()->setDefaultFont(face);
    document()->setDocumentMargin(pixels_.logical_scale().px(halo_margin));
    set_line_pitch();
    set_margins();
}

void TextArea::set_colour(const QColor& colour) {
    colour_ = colour;
    viewport()->update();
}

void TextArea::set_margins() {
    thumb_.lay_out(pixels_, box_);
    QRect inside = paint::text_box_interior(pixels_.scale(), box_, paint::TextLines::Many);
    if (thumb_.needed()) inside.setRight(thumb_.track().left() - 1);
    const QRect area = pixels_.within(inside).translated(-origin_in_window(*this));
    // No slice of a line at the end.
    const int lines = std::max(1, static_cast<int>(area.height() / pitch()));
    const int whole = std::min(area.height(), static_cast<int>(std::ceil(lines * pitch())));
    const int halo = pixels_.logical_scale().px(halo_margin);
    setViewportMargins(area.left() - halo, area.top() - halo, width() - area.right() - 1,
                       height() - area.top() - whole - halo);
    verticalScrollBar()->setSingleStep(static_cast<int>(std::lround(pitch())));
}

void TextArea::set_line_pitch() {
    const bool undo = document()->isUndoRedoEnabled();
    document()->setUndoRedoEnabled(false);
    QTextBlockFormat lines;
    lines.setLineHeight(pitch(), QTextBlockFormat::FixedHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(lines);
    document()->setUndoRedoEnabled(undo);
}

void TextArea::show_text(const QString& text) {
    setPlainText(text);
    set_line_pitch();
}

void TextArea::paint_line(QPainter& painter, const QTextBlock& block, const QTextLine& line,
                          const QPointF& place) const {
    const paint::Scale scale = pixels_.scale();
    const double ratio = pixels_.ratio;
    const double top = std::round(place.y() * ratio);
    const double height = pitch() * ratio;
    const auto x_of = [&](int position) { return (place.x() + line.cursorToX(position)) * ratio; };
    const int end = line.textStart() + line.textLength();
    const auto draw_with = [&](const QColor& colour, paint::Glow glow) {
        for (int from = line.textStart(); from < end;) {
            const auto tab = block.text().indexOf(QLatin1Char('\t'), from);
            const int to = tab < 0 ? end : std::min(end, static_cast<int>(tab));
            const QString part = block.text().mid(from, to - from);
            paint::draw_text(painter, scale, QRectF(x_of(from), top, height, height), part,
                             {.role = role(), .color = colour, .glow = glow});
            from = to + 1;
        }
    };
    draw_with(colour_, ground_ == Ground::glass ? paint::Glow::Led : paint::Glow::None);

    const int first = std::max(line.textStart(), textCursor().selectionStart() - block.position());
    const int last = std::min(end, textCursor().selectionEnd() - block.position());
    if (first >= last) return;
    const QRect selected = QRectF(x_of(first), top, x_of(last) - x_of(first), height).toRect();
    painter.save();
    painter.setClipRect(selected, Qt::IntersectClip);
    painter.fillRect(selected, paint::palette::selection);
    draw_with(paint::palette::selection_text, paint::Glow::None);
    painter.restore();
}

void TextArea::paintEvent(QPaintEvent* /*event*/) {
    const int top = verticalScrollBar()->value();
    const int bottom = top + viewport()->height();
    const QPointF origin = origin_in_window(*viewport()) - QPoint(0, top);
    {
        DevicePainter painter(*viewport());
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            const QRectF place = document()->documentLayout()->blockBoundingRect(block);
            if (place.bottom() < top) continue;
            if (place.top() > bottom) break;
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                paint_line(painter, block, block.layout()->lineAt(i),
                           origin + QPointF(place.left(), place.top() + i * pitch()));
            }
        }
    }
    caret_.paint(pixels_, cursorRect());
}

void TextArea::focusInEvent(QFocusEvent* event) {
    QTextEdit::focusInEvent(event);
    if (!isReadOnly()) caret_.start();
}

void TextArea::focusOutEvent(QFocusEvent* event) {
    QTextEdit::focusOutEvent(event);
    caret_.stop();
}

void TextArea::contextMenuEvent(QContextMenuEvent* event) {
    run_menu(createStandardContextMenu(), pixels_.factor, event->globalPos());
}

}  // namespace zephyne
