// What lies in the faceplate: labels, pictures, frames, glasses and grooves.
#pragma once

#include "core/controls/simple_controls.h"
#include "ui/qt/mirror.h"

namespace zephyne {

class LabelMirror final : public Mirror {
  public:
    LabelMirror(FormWindow& window, Label& label);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_name() override;
    bool handle(QEvent& event) override;
    void paint_wrapped(QPainter& painter, const paint::Scale& scale) const;

    Label& label_;
};

// The first digit of a clock stands for the whole clock with the keyboard: its ring goes round all
// digits, and Space clicks it.
class PictureMirror final : public Mirror {
  public:
    PictureMirror(FormWindow& window, Picture& picture);
    void paint(QPainter& painter, const paint::Scale& scale) const override;
    QRect reach() const override;

  private:
    bool handle(QEvent& event) override;
    bool key_pressed(QKeyEvent& event) override;
    bool is_stop() const;
    QRect clock_box() const;

    Picture& picture_;
};

class FrameMirror final : public Mirror {
  public:
    FrameMirror(FormWindow& window, Frame& frame);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_name() override;
};

class DecorationMirror final : public Mirror {
  public:
    DecorationMirror(FormWindow& window, Control& control);
    void paint(QPainter& painter, const paint::Scale& scale) const override;
};

}  // namespace zephyne
