#include "shell/message_box.h"

#include "core/sheets/dlgbox.h"
#include "core/text/utf8.h"
#include "core/window_placing.h"

#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

constexpr std::size_t kLongText = 80;  // characters
constexpr int kFrames = 7;

// A short text is large, and starts one line down.
void show_text(dlgbox& box, std::string text) {
    const bool is_long = character_count(text) >= kLongText;
    box.Label1.set_font_points(is_long ? 10 : 12);
    box.Label1.set_caption(is_long ? std::move(text) : "\r\n" + text);
}

// A text too long for the label makes room for itself.
void grow_for_text(dlgbox& box, int text_height) {
    const Place& label = box.Label1.place();
    const int more = std::max(0, text_height - label.height);
    if (more == 0) return;
    box.Label1.set_height(label.height + more);
    for (Button* button : {&box.Command1, &box.Command2, &box.Command3}) {
        button->set_top(button->place().top + more);
    }
    Place place = box.place();
    place.height += more;
    box.set_place(place);
}

void show_buttons(dlgbox& box, bool question) {
    box.Command1.set_visible(!question);
    box.Command2.set_visible(question);
    box.Command3.set_visible(question);
    Button& first = question ? box.Command3 : box.Command1;
    box.set_default_button(&first);
    box.set_cancel_button(&first);
    first.set_focus();
}

}  // namespace

Answer MessageBox::ShowDlgMessage(std::string text, std::int16_t flags, std::string title) {
    const bool question = flags != 0;
    Answer answer = question ? Answer::no : Answer::ok;
    if (program_.SessionEnded || program_.Ending) return answer;

    dlgbox box(scheduler_);
    box.load();
    const auto answer_with = [&](Button& button, Answer with) {
        button.set_on_click([&, with] {
            answer = with;
            box.request_unload(CloseReason::program);
        });
    };
    answer_with(box.Command1, Answer::ok);
    answer_with(box.Command2, Answer::yes);
    answer_with(box.Command3, Answer::no);
    box.on_activate = [&] { program_.CurrentForm = FormNumber::MessageBox; };
    box.on_unload = [&] {
        box.Timer1.set_enabled(false);
        program_.CurrentForm = FormNumber::Main;
    };
    int frame = 0;
    box.Timer1.on_tick = [&] {
        frame = frame % kFrames + 1;
        box.Image2.set_image(frame);
    };

    show_text(box, std::move(text));
    box.set_title(std::move(title));
    show_buttons(box, question);
    windows_.create(box);
    grow_for_text(box, windows_.text_height(box.Label1));
    centre(box, windows_);
    if (program_.settings.Beeps == 1) beeper_.beep();
    box.Timer1.set_enabled(true);
    windows_.run_modal(box);
    windows_.destroy(box);
    return answer;
}

}  // namespace zephyne
