// Lists of texts and of folders.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/list_box.h"
#include "ui/qt/mirror.h"

namespace zephyne {

class RowsView;
class Rows;

class ListBoxMirror final : public Mirror {
  public:
    ListBoxMirror(FormWindow& window, ListBox& list);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_property(Property property) override;
    void laid_out() override;
    void detached() override;

    ListBox& list_;
    Rows* rows_;
    RowsView* view_;
};

// Enter opens a folder, also in a window that has a default key.
class DirListMirror final : public Mirror {
  public:
    DirListMirror(FormWindow& window, DirList& list);
    void paint(QPainter& painter, const paint::Scale& scale) const override;
    bool takes_enter() const override { return true; }

  private:
    void show_property(Property property) override;
    bool key_pressed(QKeyEvent& event) override;
    void laid_out() override;
    void detached() override;

    DirList& list_;
    Rows* rows_;
    RowsView* view_;
};

}  // namespace zephyne
