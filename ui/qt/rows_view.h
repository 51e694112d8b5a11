// A list of rows to look at and to choose from: what all our lists have in common.
#pragma once

#include "core/controls/list_box.h"
#include "ui/qt/paint/lists.h"
#include "ui/qt/pixels.h"
#include "ui/qt/scroll_thumb.h"

#include <QAbstractListModel>
#include <QListView>
#include <cstddef>
#include <functional>
#include <optional>

class QPainter;

namespace zephyne {

// What a view shows, and whom it tells about the user. The rows stay where they are (in a control);
// nothing is copied but their number.
class Rows : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    // All rows have changed. None: they must not be asked for any more.
    void reset(std::size_t count);

    // The row that the keyboard is on, and whether a row is selected. They differ only where
    // several rows can be selected.
    virtual std::optional<std::size_t> selected() const = 0;
    virtual bool is_selected(std::size_t row) const { return selected() == row; }

    virtual QString text(std::size_t row) const = 0;
    virtual void paint_row(QPainter& painter, const paint::Scale& scale, const QRect& place,
                           const paint::RowState& state, std::size_t row) const = 0;

    virtual void pressed(std::size_t row, ClickWith key) = 0;   // with the mouse
    virtual void moved_to(std::size_t row, ClickWith key) = 0;  // with arrows, Home, End or letters
    virtual void opened(std::size_t /*row*/) {}                 // double click, Enter

    // Space; false where that is a letter like others.
    virtual bool chosen(std::size_t /*row*/, ClickWith /*key*/) { return false; }

    // Ctrl+A; false where no more than one row can be selected.
    virtual bool all_chosen() { return false; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::size_t count_ = 0;
};

class RowsView final : public QListView {
  public:
    // Takes the rows as a child. The ground is not painted here.
    RowsView(QWidget* parent, Rows* rows, paint::ListKind kind);

    // box: of the whole list, device pixels of the window.
    void lay_out(const Pixels& pixels, const QRect& box);

    // Shows which row is selected, and that row; at the next turn of the event loop, so that many
    // changes in a row cost no more than one.
    void follow_selection();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    std::optional<std::size_t> row_at(const QMouseEvent& event) const;
    void select_now();
    void set_margins();

    Rows& rows_;
    paint::ListKind kind_;
    Pixels pixels_;
    QRect box_;
    ScrollThumb thumb_;
    bool follows_ = false;  // select_now() is to come
};

}  // namespace zephyne
