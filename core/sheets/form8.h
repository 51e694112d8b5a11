// The sheet of the View Presets window: twelve rows of a folder and a song.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

#include <array>
#include <memory>
#include <string>

namespace zephyne {

struct Form8 : Form {
    static constexpr std::size_t rows = 12;

    Form8()
        : Form({.name = "Form8",
                .title = "View Presets",
                .width = 8160,
                .height = 5190 + kTitleBarHeight + kLowerFrameHeight}),
          Label1(*this, heading("Label1", 180, 660, "Preset")),
          Label2(*this, heading("Label2", 960, 4200, "Path")),
          Label3(*this, heading("Label3", 5280, 2700, "Filename")),
          Command1(*this, key("Command1", 2235, "OK", 24)),
          Command2(*this, key("Command2", 3495, "Cancel", 25)),
          Command3(*this, key("Command3", 4755, "Clear All", 26)) {
        for (int i = 0; i < static_cast<int>(rows); ++i) {
            const auto at = static_cast<std::size_t>(i);
            const std::string number = std::to_string(i + 1);
            const std::string label = "Label4(" + number + ")";
            const int top = 480 + 330 * i;
            numbers[at] = std::make_unique<Label>(
                *this,
                ControlDesign{.name = label, .place = {180, top, 660, 285}, .caption = number});
            Text1[at] = box("Text1(" + number + ")", {960, top, 4200, 285}, 2 * i);
            text2[at] = box("text2(" + number + ")", {5280, top, 2700, 285}, 2 * i + 1);
            Text1[at]->set_accessible_name("Path of preset " + number);
            text2[at]->set_accessible_name("Filename of preset " + number);
        }
        set_default_button(&Command1);
        set_cancel_button(&Command2);
    }

    Label Label1;  // headings of the columns
    Label Label2;
    Label Label3;
    std::array<std::unique_ptr<Label>, rows> numbers;
    std::array<std::unique_ptr<TextBox>, rows> Text1;  // folders
    std::array<std::unique_ptr<TextBox>, rows> text2;  // songs
    Button Command1;                                   // "OK"
    Button Command2;                                   // "Cancel"
    Button Command3;                                   // "Clear All"

  private:
    static ControlDesign heading(std::string_view name, int left, int width,
                                 std::string_view caption) {
        return {.name = name,
                .place = {left, 180, width, 255},
                .caption = caption,
                .style = Style::heading};
    }

    static ControlDesign key(std::string_view name, int left, std::string_view caption, int tab) {
        return {.name = name,
                .place = {left, 4635, 1170, 345},
                .caption = caption,
                .tab = tab,
                .stop = TabStop::yes};
    }

    std::unique_ptr<TextBox> box(const std::string& name, const Place& place, int tab) {
        return std::make_unique<TextBox>(
            *this, TextLines::one, TextAccess::read_write,
            ControlDesign{.name = name, .place = place, .tab = tab, .stop = TabStop::yes});
    }
};

}  // namespace zephyne
