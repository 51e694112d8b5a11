#include "ui/qt/list_mirrors.h"

#include "ui/qt/form_window.h"
#include "ui/qt/rows_view.h"
#include "ui/qt/shown_text.h"

#include <QKeyEvent>

namespace zephyne {
namespace {

class ListBoxRows final : public Rows {
  public:
    explicit ListBoxRows(ListBox& list) : list_(list) {}

    std::optional<std::size_t> selected() const override { return list_.selected(); }
    bool is_selected(std::size_t row) const override { return list_.is_selected(row); }
    QString text(std::size_t row) const override { return shown(list_.item(row).text); }
    void paint_row(QPainter& painter, const paint::Scale& scale, const QRect& place,
                   const paint::RowState& state, std::size_t row) const override {
        paint::list_row(painter, scale, place, state, text(row));
    }
    void pressed(std::size_t row, ClickWith key) override { list_.click(row, key); }
    void moved_to(std::size_t row, ClickWith key) override { list_.move_to(row, key); }
    void opened(std::size_t row) override { list_.double_click(row); }
    bool chosen(std::size_t row, ClickWith key) override {
        if (list_.selecting() == Selecting::one) return false;
        list_.click(row, key);
        return true;
    }

    bool all_chosen() override { return list_.choose_all(); }

  private:
    ListBox& list_;
};

class DirListRows final : public Rows {
  public:
    explicit DirListRows(DirList& list) : list_(list) {}

    std::optional<std::size_t> selected() const override { return list_.selected(); }
    QString text(std::size_t row) const override { return shown(list_.rows()[row].text); }
    void paint_row(QPainter& painter, const paint::Scale& scale, const QRect& place,
                   const paint::RowState& state, std::size_t row) const override {
        paint::folder_row(painter, scale, place, state, list_.rows()[row].depth, text(row));
    }
    void pressed(std::size_t row, ClickWith /*key*/) override { list_.select(row); }
    void moved_to(std::size_t row, ClickWith /*key*/) override { list_.select(row); }
    void opened(std::size_t row) override { list_.open(row); }

  private:
    DirList& list_;
};

}  // namespace

RowsMirror::RowsMirror(FormWindow& window, Control& control, Rows* rows, paint::ListKind kind)
    : Mirror(window, control), rows_(rows), view_(new RowsView(&window, rows, kind)) {
    set_widget(view_);
    watch(view_->viewport());
}

void RowsMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::list_ground(painter, scale, box(), look());
}

void RowsMirror::show_property(Property property) {
    if (property == Property::items) rows_->reset(row_count());
    if (property == Property::items || property == Property::selection) view_->follow_selection();
}

void RowsMirror::laid_out() {
    view_->lay_out(window().pixels(), box());
}

void RowsMirror::detached() {
    rows_->reset(0);
}

ListBoxMirror::ListBoxMirror(FormWindow& window, ListBox& list)
    : RowsMirror(window, list, new ListBoxRows(list), paint::ListKind::Plain), list_(list) {}

DirListMirror::DirListMirror(FormWindow& window, DirList& list)
    : RowsMirror(window, list, new DirListRows(list), paint::ListKind::Folders), list_(list) {}

bool DirListMirror::key_pressed(QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
    if (!event.isAutoRepeat()) list_.open(list_.selected());
    return true;
}

}  // namespace zephyne
