// A box of text, in one line or many.
#pragma once

#include "core/controls/control.h"

#include <cstddef>
#include <functional>
#include <string>

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

    // The user's acts. type() gives the whole text as it is now.
    void type(std::string text);

    // A character key, before it has an effect: 13 is Enter, 27 Escape. Returns whether the key
    // is to take effect.
    bool press_key(char32_t character);
    std::function<bool(char32_t)> on_key_press;  // false swallows the key

  private:
    TextLines lines_;
    TextAccess access_;
    std::string text_;
};

}  // namespace zephyne
