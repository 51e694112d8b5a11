// A box of text, in one line or many.
#pragma once

#include "core/controls/control.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace zephyne {

enum class TextLines { one, many };
enum class TextAccess { read_write, read_only };

class TextBox final : public Control {
  public:
    TextBox(Form& form, TextLines lines, TextAccess access, const ControlDesign& design);

    TextLines lines() const { return lines_; }
    TextAccess access() const { return access_; }

    const std::string& text() const { return text_; }
    void set_text(std::string text);  // from code; raises on_change when it differs
    std::function<void()> on_change;

    // What the user has marked; "" when nothing is.
    const std::string& selected_text() const { return selected_text_; }

    // From code: marks the whole text, and nothing of a text set later.
    void select_all();

    // The user's acts. type() gives the whole text as it is now, and user_selected() the marked
    // part of it.
    void type(std::string text);
    void user_selected(std::string text) { selected_text_ = std::move(text); }

    // A character key, before it has an effect: 13 is Enter, 27 Escape. Returns whether the key
    // is to take effect.
    bool press_key(char32_t character);
    std::function<bool(char32_t)> on_key_press;  // false swallows the key

  private:
    TextLines lines_;
    TextAccess access_;
    std::string text_;
    std::string selected_text_;
};

}  // namespace zephyne
