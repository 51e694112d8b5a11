// The list of drives: one is shown, all drop down.
#pragma once

#include "core/controls/folder_lists.h"
#include "ui/qt/mirror.h"

#include <QComboBox>
#include <QPointer>
#include <functional>

namespace zephyne {

// A combo box's keys without its look and its popup.
class DriveBox final : public Unpainted<QComboBox> {
  public:
    using Unpainted::Unpainted;

    std::function<void()> on_open;
    std::function<void()> on_close;

    void showPopup() override { on_open(); }
    void hidePopup() override { on_close(); }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;  // not by accident
};

class DriveListMirror final : public Mirror {
  public:
    DriveListMirror(FormWindow& window, DriveList& list);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_property(Property property) override;
    void detached() override;
    void show_selection();
    void choose(std::size_t index);
    void open();
    void close();

    DriveList& list_;
    DriveBox* box_;
    QPointer<QWidget> popup_;
};

}  // namespace zephyne
