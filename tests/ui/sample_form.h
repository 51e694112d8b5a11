// One control of most kinds, and everything that is raised goes into the log.
#pragma once

#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"
#include "core/controls/slider.h"
#include "core/controls/text_box.h"
#include "tests/ui/shown_form.h"

#include <string>
#include <string_view>

namespace zephyne::test {

// A control that is known by its name, and a stop of the Tab key.
inline ControlDesign stop(std::string_view name, Place place, int tab, Control* frame = nullptr) {
    return {.name = name,
            .place = place,
            .caption = name,
            .tab = tab,
            .stop = TabStop::yes,
            .frame = frame};
}

struct SampleForm : Form {
    SampleForm() : Form({.name = "Sample", .title = "Sample", .width = 6000, .height = 4405}) {
        for (Control* control : controls()) {
            control->set_accessible_name(control->name());
            control->on_got_focus = [this, control] { log.push_back("focus " + control->name()); };
        }
        inner.set_on_click([this] { log.push_back("inner"); });
        ok.set_on_click([this] { log.push_back("ok"); });
        box.set_on_click([this] { log.push_back("box " + std::to_string(box.value())); });
        line.on_change = [this] { log.push_back("line " + line.text()); };
        area.on_change = [this] { log.push_back("area " + area.text()); };
        slider.set_on_change([this] { log.push_back("slid " + std::to_string(slider.value())); });
        list.on_click = [this] { log.push_back("row " + std::to_string(*list.selected())); };
        list.set_items({{"one", ""}, {"t\xff\xff", ""}, {"three", ""}});
    }

    Frame group{*this, {.name = "group", .place = {150, 150, 2700, 900}, .caption = "Group"}};
    Button inner{*this, stop("inner", {300, 450, 1200, 300}, 1, &group)};
    CheckBox box{*this, stop("box", {3000, 150, 1500, 255}, 2)};
    TextBox line{*this, TextLines::one, TextAccess::read_write,
                 stop("line", {150, 1200, 2700, 285}, 3)};
    TextBox area{*this, TextLines::many, TextAccess::read_write,
                 stop("area", {3000, 1200, 2700, 1200}, 4)};
    Slider slider{*this, Orientation::horizontal, stop("slider", {150, 1650, 2265, 255}, 5)};
    ListBox list{*this, ListOrder::as_added, stop("list", {150, 2100, 2700, 1500}, 6)};
    Button ok{*this, stop("ok", {3000, 3000, 1200, 345}, 0)};
    Picture roll{*this, ImageList::roll, {.name = "roll", .place = {4800, 150, 570, 600}}};
    Log log;
};

}  // namespace zephyne::test
