#include "ui/qt/rows_view.h"

#include <QAbstractItemDelegate>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

namespace zephyne {
namespace {

class RowPainter final : public QAbstractItemDelegate {
  public:
    RowPainter(RowsView& view, const Rows& rows, paint::ListKind kind, const Pixels& pixels)
        : QAbstractItemDelegate(&view), view_(view), rows_(rows), kind_(kind), pixels_(pixels) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return {1, paint::row_height(pixels_.logical_scale(), kind_)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QPoint origin = origin_in_window(*view_.viewport());
        const auto row = static_cast<std::size_t>(index.row());
        paint::RowState state;
        state.enabled = view_.isEnabled();
        state.hovered = (option.state & QStyle::State_MouseOver) != 0;
        state.selected = rows_.is_selected(row);
        state.current = view_.hasFocus() && rows_.selected() == row;
        painter->save();
        painter->translate(-origin);
        painter->scale(1 / pixels_.ratio, 1 / pixels_.ratio);
        rows_.paint_row(*painter, pixels_.scale(), pixels_.device(option.rect.translated(origin)),
                        state, row);
        painter->restore();
    }

  private:
    const RowsView& view_;
    const Rows& rows_;
    paint::ListKind kind_;
    const Pixels& pixels_;
};

ClickWith key_held(const QInputEvent& event) {
    if (event.modifiers() & Qt::ShiftModifier) return ClickWith::shift;
    return event.modifiers() & Qt::ControlModifier ? ClickWith::ctrl : ClickWith::nothing;
}

}  // namespace

void Rows::reset(std::size_t count) {
    beginResetModel();
    count_ = count;
    endResetModel();
}

int Rows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(count_);
}

QVariant Rows::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return index.row() >= 0 && index.row() < rowCount()
               ? text(static_cast<std::size_t>(index.row()))
               : QVariant();
}

RowsView::RowsView(QWidget* parent, Rows* rows, paint::ListKind kind)
    : QListView(parent), rows_(*rows), kind_(kind), thumb_(*this, paint::ScrollPlace::Well) {
    rows->setParent(this);
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
    setItemDelegate(new RowPainter(*this, rows_, kind_, pixels_));
    setModel(rows);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
        if (thumb_.needed() == thumb_.isHidden()) set_margins();
    });
}

void RowsView::lay_out(const Pixels& pixels, const QRect& box) {
    pixels_ = pixels;
    box_ = box;
    set_margins();
    scheduleDelayedItemsLayout();
}

void RowsView::set_margins() {
    thumb_.lay_out(pixels_, box_);
    const QRect rows =
        paint::rows_area(pixels_.scale(), box_, kind_,
                         thumb_.needed() ? paint::ScrollBar::Shown : paint::ScrollBar::Hidden);
    const QRect area = pixels_.within(rows).translated(-origin_in_window(*this));
    setViewportMargins(area.left(), area.top(), width() - area.right() - 1,
                       height() - area.bottom() - 1);
}

void RowsView::follow_selection() {
    viewport()->update();
    if (!isVisible() || std::exchange(follows_, true)) return;
    QMetaObject::invokeMethod(this, &RowsView::select_now, Qt::QueuedConnection);
}

void RowsView::select_now() {
    follows_ = false;
    const auto row = rows_.rowCount() > 0 ? rows_.selected() : std::nullopt;
    const QModelIndex index = row ? rows_.index(static_cast<int>(*row)) : QModelIndex();
    if (index == currentIndex()) {
        if (index.isValid()) scrollTo(index);
        return;
    }
    setCurrentIndex(index);
    if (!index.isValid()) clearSelection();
}

void RowsView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    follow_selection();
}

std::optional<std::size_t> RowsView::row_at(const QMouseEvent& event) const {
    const QModelIndex index = indexAt(event.position().toPoint());
    if (!index.isValid()) return std::nullopt;
    return static_cast<std::size_t>(index.row());
}

void RowsView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (const auto row = row_at(*event)) rows_.pressed(*row, key_held(*event));
}

void RowsView::mouseMoveEvent(QMouseEvent* /*event*/) {}

void RowsView::mouseReleaseEvent(QMouseEvent* /*event*/) {}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto row = row_at(*event);
    if (!row) return;
    // Two quick clicks on different rows are no double click, nor are two that select.
    const ClickWith key = key_held(*event);
    if (row == rows_.selected() && key == ClickWith::nothing) {
        rows_.opened(*row);
    } else {
        rows_.pressed(*row, key);
    }
}

void RowsView::keyPressEvent(QKeyEvent* event) {
    if (follows_) select_now();
    const QModelIndex before = currentIndex();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (before.isValid()) rows_.opened(static_cast<std::size_t>(before.row()));
        return;
    }
    if (event->matches(QKeySequence::SelectAll) && rows_.all_chosen()) return;
    const ClickWith key = key_held(*event);
    const bool chooses = event->key() == Qt::Key_Space && before.isValid() &&
                         rows_.chosen(static_cast<std::size_t>(before.row()), key);
    if (chooses) return follow_selection();
    QListView::keyPressEvent(event);
    const QModelIndex now = currentIndex();
    if (now.isValid() && now != before) {
        rows_.moved_to(static_cast<std::size_t>(now.row()), key);
    }
    follow_selection();  // the control may have refused
}

}  // namespace zephyne
