#include "core/controls/text_box.h"

#include <utility>

namespace zephyne {

TextBox::TextBox(Form& form, TextLines lines, TextAccess access, const ControlDesign& design)
    : Control(form, ControlKind::text_box, design), lines_(lines), access_(access) {}

void TextBox::set_text(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    selected_text_.clear();
    changed(Property::text);
    if (on_change) on_change();
}

void TextBox::select_all() {
    selected_text_ = text_;
    changed(Property::selection);
}

void TextBox::type(std::string text) {
    if (access_ == TextAccess::read_only || !shown() || !usable()) return;
    set_text(std::move(text));
}

bool TextBox::press_key(char32_t character) {
    return !on_key_press || on_key_press(character);
}

}  // namespace zephyne
