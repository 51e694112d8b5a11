#include "shell/tray_menu.h"

#include "core/text/numbers.h"
#include "core/window_placing.h"
#include "engine/recent_songs.h"

#include <string>

namespace zephyne {

TrayMenu::TrayMenu(Stage& stage, Engine& engine, WindowHost& windows, NotificationArea& area)
    : put_away([this] { stage_.form.set_visible(false); }),
      stage_(stage),
      windows_(windows),
      area_(area),
      player_(stage, engine),
      songs_(stage, engine) {
    TrayForm& tray = stage_.tray;
    tray.Timer1.on_tick = [this] { Timer1_Timer(); };
    tray.Timer2.on_tick = [this] { Timer2_Timer(); };
    tray.mnuActivate.on_click = [this] { Show(ShownBy::menu); };
    tray.mnuHide.on_click = [this] { put_away(); };
    tray.mnuAbout.on_click = [this] { show_about(); };
    tray.mnuQuit.on_click = [this] { stage_.form.request_unload(CloseReason::program); };
    area_.on_message = [this](std::uint32_t number, std::uint32_t lParam) {
        message(number, lParam);
    };
    // Once: an entry may be at work while the icon goes and comes again.
    area_.set_menu(tray.mnuBar());
}

void TrayMenu::load() {
    if (loaded_) return;
    loaded_ = true;
    stage_.tray.mnuAbout.enabled = static_cast<bool>(show_about);
    player_.show_state();
    show_recent_songs(stage_);
    data_ = NotifyIconData{};
    data_.set_tip("Zephyne");
    area_.notify_icon(NotifyCommand::add, data_);
    stage_.tray.Timer1.set_enabled(true);
}

void TrayMenu::unload() {
    if (!loaded_) return;
    loaded_ = false;
    area_.notify_icon(NotifyCommand::remove, data_);
    stage_.tray.Timer1.set_enabled(false);
    stage_.tray.Timer2.set_enabled(false);
    clicks_ = 0;
}

void TrayMenu::message(std::uint32_t number, std::uint32_t lParam) {
    if (!loaded_ || number != data_.uCallbackMessage) return;
    if (lParam == MouseMessage::LeftButtonUp) left_button_released();
    if (lParam == MouseMessage::RightButtonUp) area_.show_menu();
}

void TrayMenu::left_button_released() {
    RepeatingTimer& timer = stage_.tray.Timer2;
    if (!timer.enabled()) timer.set_enabled(true);
    if (++clicks_ < 2) return;
    timer.set_enabled(false);
    clicks_ = 0;
    Show(ShownBy::double_click);
}

// No second click came.
void TrayMenu::Timer2_Timer() {
    stage_.tray.Timer2.set_enabled(false);
    clicks_ = 0;
    area_.show_menu();
}

void TrayMenu::Show(ShownBy by) {
    Form& main = stage_.form;
    main.set_state(WindowState::normal);
    main.set_visible(true);
    stage_.events.pump();
    if (stage_.program.Ending) return;
    windows_.bring_to_front(main);

    if (stage_.program.CurrentForm != FormNumber::Main) {
        if (by == ShownBy::double_click) stage_.events.pump();
        if (stage_.program.Ending) return;
        Form* over = windows_.find(form_name(stage_.program.CurrentForm));
        if (over) bring_back(*over, windows_);
    }
    // With the focus last, as nothing else takes input.
    if (Form* modal = windows_.modal_form()) bring_back(*modal, windows_);
}

void TrayMenu::Timer1_Timer() {
    stage_.tray.mnuNext.enabled = next_song_possible();
    data_.set_tip(tooltip());
    data_.uFlags = NotifyIconData::tip_valid;
    area_.notify_icon(NotifyCommand::modify, data_);
    if (!stage_.form.visible() && !area_.has_host()) put_away();
}

bool TrayMenu::next_song_possible() const {
    const Form1& f = stage_.form;
    switch (stage_.settings().Mode) {
        case PlayMode::Queue:
            return f.Command19.enabled();
        case PlayMode::Manual:
            return !f.File1.empty();
        default:
            return !f.List1.empty();
    }
}

std::string TrayMenu::tooltip() const {
    switch (stage_.device.Mode()) {
        case DeviceMode::playing:
            return "Zephyne - Playing " + stage_.program.CurrentSongName + place_in_round();
        case DeviceMode::paused:
            return player_.song_waits() ? "Zephyne - Stopped" : "Zephyne - Paused";
        default:
            return "Zephyne - Stopped";
    }
}

// As the counters of the main window tell it: " (3 of 12)". Nothing with the last song.
std::string TrayMenu::place_in_round() const {
    const Form1& f = stage_.form;
    const Settings& settings = stage_.settings();
    if (settings.Mode >= PlayMode::Manual || !f.File1.selected() || f.List1.empty()) return "";
    if (settings.Continuous == 1) return " (Continuous)";
    const double total = leading_number(f.Label2.caption());
    const double remaining = leading_number(f.Label4.caption());
    return " (" + decimal(total - remaining) + " of " + decimal(total) + ")";
}

}  // namespace zephyne
