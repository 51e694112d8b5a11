#include "shell/input_box.h"

#include "core/sheets/txtbox.h"
#include "core/window_placing.h"

#include <utility>

namespace zephyne {

std::string InputBox::ask(std::string prompt, std::string title, std::string proposal) {
    if (program_.Ending) return {};
    std::string answer;
    txtbox box;
    box.load();
    box.set_title(std::move(title));
    box.Text1.set_accessible_name(prompt);
    box.Label1.set_caption(std::move(prompt));
    box.Text1.set_text(std::move(proposal));
    box.Text1.select_all();
    box.Text1.set_focus();
    box.Command1.set_on_click([&] {
        answer = box.Text1.text();
        box.request_unload(CloseReason::program);
    });
    box.Command2.set_on_click([&] { box.request_unload(CloseReason::program); });
    box.on_activate = [&] { program_.CurrentForm = FormNumber::InputBox; };
    box.on_unload = [&] { program_.CurrentForm = FormNumber::Main; };

    windows_.create(box);
    centre(box, windows_);
    windows_.run_modal(box);
    windows_.destroy(box);
    return answer;
}

}  // namespace zephyne
