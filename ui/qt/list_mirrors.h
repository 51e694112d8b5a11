// Lists of texts and of folders.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/list_box.h"
#include "ui/qt/mirror.h"
#include "ui/qt/paint/lists.h"

#include <cstddef>

namespace zephyne {

class RowsView;
class Rows;

// What the two have in common: a ground, rows on it, and a selection to follow.
class RowsMirror : public Mirror {
  public:
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  protected:
    // The view takes the rows.
    RowsMirror(FormWindow& window, Control& control, Rows* rows, paint::ListKind kind);

    virtual std::size_t row_count() const = 0;

  private:
    void show_property(Property property) override;
    void laid_out() override;
    void detached() override;

    Rows* rows_;
    RowsView* view_;
};

class ListBoxMirror final : public RowsMirror {
  public:
    ListBoxMirror(FormWindow& window, ListBox& list);

  private:
    std::size_t row_count() const override { return list_.count(); }

    ListBox& list_;
};

// Enter opens a folder, also in a window that has a default key.
class DirListMirror final : public RowsMirror {
  public:
    DirListMirror(FormWindow& window, DirList& list);
    bool takes_enter() const override { return true; }

  private:
    std::size_t row_count() const override { return list_.rows().size(); }
    bool key_pressed(QKeyEvent& event) override;

    DirList& list_;
};

}  // namespace zephyne
