#include "ui/options_window.h"

#include "core/window_placing.h"
#include "ui/options_loading.h"
#include "ui/options_ok.h"

#include <array>
#include <string_view>
#include <utility>

namespace zephyne {
namespace {

constexpr char32_t kBackspace = 8;

}  // namespace

OptionsWindow::OptionsWindow(Stage& stage, Engine& engine, MainWindowLayout& layout,
                             WindowHost& windows, OptionsServices& services)
    : stage_(stage),
      engine_(engine),
      layout_(layout),
      windows_(windows),
      services_(services),
      kill_(stage, services.unload_notes) {}

OptionsWindow::~OptionsWindow() {
    if (form_) windows_.destroy(*form_);
}

void OptionsWindow::show() {
    if (in_use_) return;
    const FlagGuard use(in_use_);
    if (!form_) Form_Load();
    windows_.run_modal(*form_);
    // Hidden by OK it is no longer the window to come back to.
    if (stage_.program.CurrentForm == FormNumber::Options) {
        stage_.program.CurrentForm = FormNumber::Main;
    }
    if (form_->loaded()) return;
    windows_.destroy(*form_);
    form_.reset();
}

void OptionsWindow::Form_Load() {
    const Settings& settings = stage_.settings();
    form_ = std::make_unique<Form2>();
    Form2& form = *form_;
    marks_ = {};
    form.load();
    take_handlers(form);
    load_options(form, settings, services_);
    for (OptionButton* mode : {&form.Option1, &form.Option2, &form.Option3, &form.Option6}) {
        if (mode->selected()) mode->set_focus();
    }
    load_options_help(form, services_);
    const OptionsMarks touched_by_loading = marks_;
    marks_ = {.tooltips = touched_by_loading.tooltips,
              .taskbar = touched_by_loading.taskbar,
              .tray = touched_by_loading.tray};

    put_in_place(form, windows_, {settings.F2Left, settings.F2Top}, centred(form, windows_));
    windows_.create(form);
}

void OptionsWindow::Form_Unload() {
    stage_.settings().F2Left = form_->place().left;
    stage_.settings().F2Top = form_->place().top;
    stage_.program.CurrentForm = FormNumber::Main;
}

void OptionsWindow::take_handlers(Form2& form) {
    form.on_activate = [this] { stage_.program.CurrentForm = FormNumber::Options; };
    form.on_unload = [this] { Form_Unload(); };
    form.Command1.set_on_click([this] { Command1_Click(); });
    form.Command3.set_on_click([&form] { form.request_unload(CloseReason::program); });
    form.Command5.set_on_click([this] { kill_.kill_notes(); });
    form.Command6.set_on_click([this] { kill_.kill_volumes(); });
    if (services_.show_about) form.Command2.set_on_click(services_.show_about);
    if (services_.ask_whats_this) form.Command4.set_on_click(services_.ask_whats_this);
    take_mode_handlers(form);
    take_mark_handlers(form);
    take_key_filters(form);
}

void OptionsWindow::take_mode_handlers(Form2& form) {
    for (OptionButton* mode : {&form.Option1, &form.Option2, &form.Option3, &form.Option6}) {
        mode->on_click = [this, mode] { mode_Click(*mode); };
    }
    form.Label3.on_click = [&form] { form.Check7.click(); };
    form.Label4.on_click = [&form] { form.Check6.click(); };
    form.Check4.set_on_click([&form] { enable_for_delay(form); });
}

void OptionsWindow::take_mark_handlers(Form2& form) {
    const std::array<std::pair<CheckBox*, std::int16_t*>, 7> boxes = {{
        {&form.Check7, &marks_.play_mode},
        {&form.Check6, &marks_.continuous},
        {&form.Check10, &marks_.large_display},
        {&form.Check9, &marks_.media_types},
        {&form.Check12, &marks_.lower_case},
        {&form.Check5, &marks_.tips_at_start},
        {&form.Check14, &marks_.tooltips},
    }};
    for (const auto& [box, mark] : boxes) {
        box->set_on_click([mark = mark] { *mark = 1; });
    }
    for (OptionButton* colour : {&form.Option7, &form.Option8, &form.Option9}) {
        colour->on_click = [this] { marks_.colour = 1; };
    }
    for (OptionButton* base : {&form.Option10, &form.Option11}) {
        base->on_click = [this] { marks_.base_mode = 1; };
    }
    form.Check16.set_on_click([this, &form] { presence_Click(form.Check16, marks_.tray); });
    form.Check17.set_on_click([this, &form] { presence_Click(form.Check17, marks_.taskbar); });
}

void OptionsWindow::take_key_filters(Form2& form) {
    const auto let_pass = [this](TextBox& box, std::u32string_view accepted) {
        box.on_key_press = [this, accepted](char32_t key) {
            if (key == kBackspace || accepted.find(key) != accepted.npos) return true;
            stage_.beeper.beep();
            return false;
        };
    };
    let_pass(form.Text1, U"0123456789.");
    let_pass(form.text2, U"0123456789");
}

void OptionsWindow::mode_Click(const OptionButton& mode) {
    marks_.play_mode = 1;
    enable_for_mode(*form_, mode);
}

// Without either of the two the main window could not be reached any more.
void OptionsWindow::presence_Click(CheckBox& clicked, std::int16_t& mark) {
    mark = 1;
    if (form_->Check16.value() == 1 || form_->Check17.value() == 1) return;
    clicked.set_value(1);
    stage_.messages.ShowDlgMessage("One or both of these items must be checked", 0, "Error");
}

void OptionsWindow::Command1_Click() {
    OptionsOk(stage_, engine_, layout_, services_, *form_, marks_).run();
}

}  // namespace zephyne
