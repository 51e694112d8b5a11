#include "songdata/view_presets.h"

#include "core/sheets/form8.h"
#include "core/window_placing.h"

namespace zephyne {
namespace {

void fill(Form8& form, const Settings& settings) {
    for (std::size_t i = 0; i < Form8::rows; ++i) {
        form.Text1[i]->set_text(settings.PresetPath[i]);
        form.text2[i]->set_text(settings.PresetFileName[i]);
    }
}

void store(Form8& form, Settings& settings) {
    for (std::size_t i = 0; i < Form8::rows; ++i) {
        if (form.Text1[i]->text().empty()) form.text2[i]->set_text("");
        settings.PresetPath[i] = form.Text1[i]->text();
        settings.PresetFileName[i] = form.text2[i]->text();
    }
}

void clear(Form8& form) {
    for (std::size_t i = 0; i < Form8::rows; ++i) {
        form.Text1[i]->set_text("");
        form.text2[i]->set_text("");
    }
}

}  // namespace

ViewPresets::ViewPresets(Stage& stage, WindowHost& windows) : stage_(stage), windows_(windows) {
    stage_.form.Command16.set_on_click([this] { Command16_Click(); });
}

void ViewPresets::Command16_Click() {
    Settings& settings = stage_.settings();
    Form8 form;
    form.load();
    const Place& owner = stage_.form.place();
    put_in_place(form, windows_, {settings.F8Left, settings.F8Top},
                 {owner.left + 420, owner.top + 420});
    fill(form, settings);
    form.Command1.set_on_click([&] {
        store(form, settings);
        form.request_unload(CloseReason::program);
    });
    form.Command2.set_on_click([&] { form.request_unload(CloseReason::program); });
    form.Command3.set_on_click([&] { clear(form); });
    form.on_activate = [this] { stage_.program.CurrentForm = FormNumber::ViewPresets; };
    form.on_unload = [&] {
        settings.F8Left = form.place().left;
        settings.F8Top = form.place().top;
        stage_.program.CurrentForm = FormNumber::Main;
    };
    windows_.create(form);
    windows_.run_modal(form);
    windows_.destroy(form);
}

}  // namespace zephyne
