#include "ui/qt/drop_down.h"

#include "ui/qt/rows_view.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

constexpr std::size_t rows_at_once = 12;

class Texts final : public Rows {
  public:
    Texts(std::vector<QString> texts, std::size_t selected,
          std::function<void(std::size_t)> on_choose)
        : texts_(std::move(texts)), selected_(selected), on_choose_(std::move(on_choose)) {
        reset(texts_.size());
    }

    std::optional<std::size_t> selected() const override { return selected_; }
    QString text(std::size_t row) const override { return texts_[row]; }
    void paint_row(QPainter& painter, const paint::Scale& scale, const QRect& place,
                   const paint::RowState& state, std::size_t row) const override {
        paint::drive_row(painter, scale, place, state, texts_[row]);
    }
    void pressed(std::size_t row, ClickWith /*key*/) override { on_choose_(row); }
    void moved_to(std::size_t row, ClickWith /*key*/) override { selected_ = row; }
    void opened(std::size_t row) override { on_choose_(row); }

  private:
    std::vector<QString> texts_;
    std::size_t selected_;
    std::function<void(std::size_t)> on_choose_;
};

}  // namespace

DropDown::DropDown(QWidget& parent, std::vector<QString> texts, std::size_t selected,
                   std::function<void(std::size_t)> on_choose)
    : QWidget(&parent, Qt::Popup),
      on_choose_(std::move(on_choose)),
      count_(texts.size()),
      view_(new RowsView(
          this, new Texts(std::move(texts), selected, [this](std::size_t row) { choose(row); }),
          paint::ListKind::DropDown)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusProxy(view_);
}

void DropDown::open(const QRect& below, double factor) {
    pixels_ = pixels_of(*parentWidget(), factor);
    const paint::Scale logical = pixels_.logical_scale();
    const int rows = static_cast<int>(std::min(std::max<std::size_t>(count_, 1), rows_at_once));
    const int height =
        rows * paint::row_height(logical, paint::ListKind::DropDown) + 2 * logical.stroke();
    QRect place(below.left(), below.bottom() + 1, below.width(), height);
    const QRect screen = parentWidget()->screen()->availableGeometry();
    if (place.bottom() > screen.bottom()) place.moveBottom(below.top() - 1);
    setGeometry(place);
    view_->setGeometry(rect());
    view_->lay_out(pixels_, pixels_.device(rect()));
    show();
    view_->setFocus(Qt::PopupFocusReason);
}

void DropDown::choose(std::size_t index) {
    const auto chosen = std::exchange(on_choose_, nullptr);
    close();  // the object lives on until the event loop turns
    if (chosen) chosen(index);
}

void DropDown::paintEvent(QPaintEvent* /*event*/) {
    DevicePainter painter(*this);
    paint::drop_down_ground(painter, pixels_.scale(), pixels_.device(rect()));
}

void DropDown::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Cancel)) close();
}

}  // namespace zephyne
