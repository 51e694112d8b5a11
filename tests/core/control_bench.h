// One control of each kind on a form, and a log of the events they raise.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"
#include "core/controls/slider.h"
#include "core/controls/text_box.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"

#include <string>
#include <utility>

namespace zephyne::test {

inline MemoryFileSystem two_drives() {
    MemoryFileSystem files(PathStyle::posix, "/music");
    files.add_volume("/", "System");
    files.add_volume("/stick", "Stick");
    files.add_folder("/music/rags");
    files.add_folder("/stick/blues");
    return files;
}

struct ControlBench : Form {
    ControlBench() : Form({.name = "Bench", .width = 3000, .height = 3000}) {
        label.on_click = event("label");
        key.set_on_click(event("key"));
        box.set_on_click(event("box"));
        picture.on_click = event("picture");
        transport.on_press = [this](TransportKey which) {
            log.push_back("transport " + std::to_string(static_cast<int>(which)));
        };
        slider.set_on_change(event("change"));
        slider.on_scroll = event("scroll");
        slider.on_mouse_down = event("down");
        slider.on_mouse_move = event("move");
        slider.on_mouse_up = event("up");
        text.on_change = event("text");
        reading.on_change = event("reading");
        list.on_click = event("list");
        list.set_items({{"a", {}}, {"b", {}}, {"c", {}}});
        drives.on_change = event("drive");
        folders.on_change = event("folder");
    }

    std::function<void()> event(std::string name) {
        return [this, name = std::move(name)] { log.push_back(name); };
    }
    Log events() { return std::exchange(log, {}); }

    Log log;
    MemoryFileSystem files = two_drives();
    Frame frame{*this, {.name = "frame"}};
    Label label{*this, {.name = "label", .caption = "Label", .frame = &frame}};
    Button key{*this, {.name = "key", .caption = "Key", .frame = &frame}};
    CheckBox box{*this, {.name = "box", .frame = &frame}};
    Picture picture{*this, ImageList::roll, {.name = "picture", .frame = &frame}};
    Transport transport{*this, {.name = "transport", .frame = &frame}};
    Slider slider{*this, Orientation::horizontal, {.name = "slider", .frame = &frame}};
    TextBox text{*this, TextLines::one, TextAccess::read_write, {.name = "text", .frame = &frame}};
    TextBox reading{*this, TextLines::many, TextAccess::read_only, {.name = "reading"}};
    ListBox list{*this, ListOrder::by_text, {.name = "list", .frame = &frame}};
    DriveList drives{*this, files, {.name = "drives", .frame = &frame}};
    DirList folders{*this, files, {.name = "folders", .frame = &frame}};
};

}  // namespace zephyne::test
