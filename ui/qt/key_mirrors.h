// What is pressed: keys, boxes to check, and the transport.
#pragma once

#include "core/controls/option_button.h"
#include "core/controls/simple_controls.h"
#include "ui/qt/mirror.h"

#include <QAbstractButton>
#include <array>

namespace zephyne {

// A button's behaviour without a look. Its checked state follows the control, never the mouse.
class Key final : public Unpainted<QAbstractButton> {
  public:
    using Unpainted::Unpainted;

  protected:
    void nextCheckState() override {}
};

class ButtonMirror final : public Mirror {
  public:
    ButtonMirror(FormWindow& window, Button& button);
    void paint(QPainter& painter, const paint::Scale& scale) const override;
    bool takes_enter() const override { return true; }

  private:
    bool key_pressed(QKeyEvent& event) override;
    void show_name() override;

    Button& button_;
    Key* key_;
};

class CheckBoxMirror final : public Mirror {
  public:
    CheckBoxMirror(FormWindow& window, CheckBox& box);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_property(Property property) override;

    CheckBox& check_box_;
    Key* key_;
};

// Tab stops once in a group, and the arrows move the choice.
class OptionButtonMirror final : public Mirror {
  public:
    OptionButtonMirror(FormWindow& window, OptionButton& option);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_property(Property property) override;
    bool key_pressed(QKeyEvent& event) override;

    OptionButton& option_;
    Key* key_;
};

// Three keys and one tab stop: the arrows move between the keys.
class TransportMirror final : public Mirror {
  public:
    TransportMirror(FormWindow& window, Transport& transport);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    static constexpr std::size_t key_count = 3;

    void laid_out() override;
    void show_property(Property property) override;
    bool key_pressed(QKeyEvent& event) override;
    void move_to(std::size_t key);

    Transport& transport_;
    std::array<Key*, key_count> keys_{};
    std::size_t current_ = 0;  // the key that Space presses
};

}  // namespace zephyne
