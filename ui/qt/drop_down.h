// The window that drops down from a drive list: all volumes, one to be chosen.
#pragma once

#include "ui/qt/pixels.h"

#include <QWidget>
#include <cstddef>
#include <functional>
#include <vector>

namespace zephyne {

class RowsView;

class DropDown final : public QWidget {
  public:
    // on_choose is called at most once, when the window has closed already.
    DropDown(QWidget& parent, std::vector<QString> texts, std::size_t selected,
             std::function<void(std::size_t)> on_choose);

    // Opens below an area of the screen (logical pixels), or above it where there is no room;
    // deletes itself when it has closed.
    void open(const QRect& below, double factor);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void choose(std::size_t index);

    std::function<void(std::size_t)> on_choose_;
    std::size_t count_;
    RowsView* view_;
    Pixels pixels_;
};

}  // namespace zephyne
