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
    QString text(std::size_t row) const override { return shown(list_.item(row).text); }
    void paint_row(QPainter& painter, const paint::Scale& scale, const QRect& place,
                   const paint::RowState& state, std::size_t row) const override {
        paint::list_row(painter, scale, place, state, text(row));
    }
    void pressed(std::size_t row) override { list_.click(row); }
    void moved_to(std::size_t row) override { list_.click(row); }

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
    void pressed(std::size_t row) override { list_.select(row); }
    void moved_to(std::size_t row) override { list_.select(row); }
    void opened(std::size_t row) override { list_.open(row); }

  private:
    DirList& list_;
};

}  // namespace

ListBoxMirror::ListBoxMirror(FormWindow& window, ListBox& list)
    : Mirror(window, list),
      list_(list),
      rows_(new ListBoxRows(list)),
      view_(new RowsView(&window, rows_, paint::ListKind::Plain)) {
    set_widget(view_);
    watch(view_->viewport());
}

void ListBoxMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::list_ground(painter, scale, box(), look());
}

void ListBoxMirror::show_property(Property property) {
    if (property == Property::items) rows_->reset(list_.count());
    if (property == Property::items || property == Property::selection) view_->follow_selection();
}

void ListBoxMirror::laid_out() {
    view_->lay_out(window().pixels(), box());
}

void ListBoxMirror::detached() {
    rows_->reset(0);
}

DirListMirror::DirListMirror(FormWindow& window, DirList& list)
    : Mirror(window, list),
      list_(list),
      rows_(new DirListRows(list)),
      view_(new RowsView(&window, rows_, paint::ListKind::Folders)) {
    set_widget(view_);
    watch(view_->viewport());
}

void DirListMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::list_ground(painter, scale, box(), look());
}

bool DirListMirror::key_pressed(QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
    if (!event.isAutoRepeat()) list_.open(list_.selected());
    return true;
}

void DirListMirror::show_property(Property property) {
    if (property == Property::items) rows_->reset(list_.rows().size());
    if (property == Property::items || property == Property::selection) view_->follow_selection();
}

void DirListMirror::laid_out() {
    view_->lay_out(window().pixels(), box());
}

void DirListMirror::detached() {
    rows_->reset(0);
}

}  // namespace zephyne
