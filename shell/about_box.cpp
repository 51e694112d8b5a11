#include "shell/about_box.h"

#include "core/window_placing.h"

#include <utility>

namespace zephyne {

AboutBox::AboutBox(Program& program, WindowHost& windows, AboutFacts facts)
    : program_(program), windows_(windows), facts_(std::move(facts)) {}

void AboutBox::show() {
    if (open_) open_->request_unload(CloseReason::program);
    Form5 form;
    Form_Load(form);
    open_ = &form;
    windows_.create(form);
    windows_.run_modal(form);
    windows_.destroy(form);
    if (open_ == &form) open_ = nullptr;
}

void AboutBox::Form_Load(Form5& form) {
    const Settings& settings = program_.settings;
    form.load();
    put_in_place(form, windows_, {settings.F5Left, settings.F5Top}, centred(form, windows_));
    form.Panel1.set_caption("ZEPHYNE");
    form.Panel2.set_caption("Version " + facts_.version);
    form.Panel3.set_caption("A jukebox for people who collect MIDI music.");
    std::string libraries;
    for (const std::string& library : facts_.libraries()) libraries += library + "\r\n";
    form.Panel4.set_caption(std::move(libraries));
    form.on_activate = [this] { program_.CurrentForm = FormNumber::About; };
    form.on_unload = [this, &form] { Form_Unload(form); };
    form.Command1.set_on_click([&form] { form.request_unload(CloseReason::program); });
    form.Command1.set_focus();
}

void AboutBox::Form_Unload(const Form5& form) {
    program_.settings.F5Left = form.place().left;
    program_.settings.F5Top = form.place().top;
    program_.CurrentForm = FormNumber::Main;
}

}  // namespace zephyne
