#include "ui/options_ok.h"

#include "core/text/numbers.h"
#include "engine/recent_songs.h"

#include <algorithm>
#include <functional>

namespace zephyne {
namespace {

constexpr double kLongestDelay = 60;               // seconds
constexpr std::int32_t kUnusablePreviewFrom = 60;  // seconds
constexpr std::int32_t kUsualPreview = 5;          // seconds

void call(const std::function<void()>& service) {
    if (service) service();
}

}  // namespace

OptionsOk::OptionsOk(Stage& stage, Engine& engine, MainWindowLayout& layout,
                     const OptionsServices& services, Form2& form, OptionsMarks& marks)
    : stage_(stage),
      engine_(engine),
      layout_(layout),
      services_(services),
      form_(form),
      marks_(marks),
      settings_(stage.settings()) {}

void OptionsOk::run() {
    tray();
    taskbar();
    settings_.Beeps = form_.Check15.value();
    tooltips();
    remember_place();
    form_.set_visible(false);
    stage_.events.pump();
    if (stage_.program.Ending) return;

    const auto preview = to_int32(leading_number(form_.text2.text()));
    const bool usable = preview && *preview >= 1 && *preview < kUnusablePreviewFrom;
    settings_.PreviewTime = usable ? *preview : kUsualPreview;
    tips_at_start();
    base_mode();
    colour();
    settings_.ConfirmExit = form_.Check13.value();
    animation();
    large_display();
    settings_.AutoReset = form_.Check1.value();
    media_types();
    lower_case();
    settings_.AutoNotes = form_.Check8.value();
    settings_.AutoRepeat = form_.Check2.value();
    settings_.AutoHide = form_.Check3.value();
    delay();
    if (marks_.continuous == 1) settings_.Continuous = form_.Check6.value();
    settings_.Reverse = form_.Check7.value();
    presets();
    reset_method();
    if (!stage_.program.Ending) play_mode();
}

// The windows are put away meanwhile, so that none of them stays behind the main window.
void OptionsOk::tray() {
    if (marks_.tray != 1) return;
    if (form_.Check16.value() == 0) {
        call(services_.unload_tray);
        settings_.ShowTray = 0;
        return;
    }
    stage_.form.set_visible(false);
    form_.set_visible(false);
    call(services_.unload_notes);
    call(services_.unload_quick_tip);
    if (!services_.tray_loaded || !services_.tray_loaded()) call(services_.load_tray);
    stage_.form.set_visible(true);
    settings_.ShowTray = 1;
}

void OptionsOk::taskbar() {
    if (marks_.taskbar != 1) return;
    call(services_.unload_notes);
    call(services_.unload_quick_tip);
    form_.set_visible(false);
    if (form_.Check17.value() == 1) {
        layout_.shownbar();
        settings_.ShowBar = 1;
    } else {
        layout_.hidenbar();
        settings_.ShowBar = 0;
    }
}

void OptionsOk::tooltips() {
    if (marks_.tooltips != 1) return;
    settings_.ShowTips = form_.Check14.value();
    layout_.settips();
}

void OptionsOk::remember_place() {
    settings_.F2Top = form_.place().top;
    settings_.F2Left = form_.place().left;
}

void OptionsOk::tips_at_start() {
    if (marks_.tips_at_start != 1 || !services_.set_tips_at_start) return;
    services_.set_tips_at_start(form_.Check5.value() == 1);
}

void OptionsOk::base_mode() {
    if (marks_.base_mode != 1) return;
    if (form_.Option10.selected()) {
        folder_based();
    } else {
        playlist_based();
    }
    if (settings_.ShowTray == 1) {
        stage_.tray.mnuNext.enabled = false;
        stage_.tray.mnuPause.enabled = false;
        stage_.tray.mnuStop.enabled = false;
    }
    ForgetRecentSongs(stage_);
}

void OptionsOk::folder_based() {
    layout_.folder_based();
    settings_.Playlist = 0;
    engine_.songs.rebuild();
    marks_.play_mode = 1;
}

void OptionsOk::playlist_based() {
    Form1& f = stage_.form;
    layout_.playlist_based();
    settings_.Playlist = 1;
    f.File1.clear();
    f.List1.clear();
    f.List3.clear();
    engine_.player.StopDevice();
    f.Label2.set_caption("");
    f.Label4.set_caption("");
}

void OptionsOk::colour() {
    if (marks_.colour != 1) return;
    if (form_.Option7.selected()) settings_.Display = 0;
    if (form_.Option8.selected()) settings_.Display = 1;
    if (form_.Option9.selected()) settings_.Display = 2;
    if (stage_.form.File1.empty()) stage_.program.DigitCache.fill(0);
    engine_.display.recolour();
    layout_.led_colour();
}

void OptionsOk::animation() {
    Form1& f = stage_.form;
    if (form_.Check11.value() == 1) {
        f.Timer4.set_enabled(true);
        settings_.Animated = 1;
        return;
    }
    settings_.Animated = 0;
    f.Timer4.set_enabled(false);
    stage_.events.pump();
    f.Image2.set_image(1);
}

void OptionsOk::large_display() {
    if (marks_.large_display != 1) return;
    Form1& f = stage_.form;
    if (form_.Check10.value() == 0) {
        settings_.Extended = 0;
        f.Text1.set_text("");
        layout_.narrow();
        return;
    }
    settings_.Extended = 1;
    layout_.wide();
    if (!f.File1.empty() && !stage_.program.CurrentSongName.empty()) {
        call(stage_.services.getsonginfo);
    }
}

void OptionsOk::media_types() {
    if (marks_.media_types != 1) return;
    if (settings_.Playlist == 1 && !stage_.form.File1.empty()) {
        stage_.messages.ShowDlgMessage(
            "Please re-create your playlist to reflect the changes in allowed media types.  Press "
            "Create/Edit/Save playlist to make changes.",
            0, "Playlist Mode");
        settings_.AllowWav = form_.Check9.value();
        return;
    }
    settings_.AllowWav = form_.Check9.value();
    engine_.songs.rebuild();
    marks_.play_mode = 1;
}

void OptionsOk::lower_case() {
    if (marks_.lower_case != 1) return;
    settings_.Lowercase = form_.Check12.value();
    marks_.play_mode = 1;
    engine_.songs.refreshfiles();
}

void OptionsOk::delay() {
    const double seconds = leading_number(form_.Text1.text());
    settings_.AutoDelay = form_.Check4.value() == 1 && seconds > 0 ? 1 : 0;
    if (settings_.AutoDelay == 1) settings_.AutoDelayTime = std::min(seconds, kLongestDelay);
}

void OptionsOk::presets() {
    settings_.PresetPathOnly = form_.Option4_1.selected() ? 1 : 0;
    if (settings_.PresetPathOnly == 1) settings_.PresetFileName.fill("");
}

void OptionsOk::reset_method() {
    settings_.ResetType = form_.Option5_1.selected() ? 1 : form_.Option5_2.selected() ? 2 : 0;
    check_reset_file(stage_.program, stage_.files);
}

void OptionsOk::play_mode() {
    const bool marked = marks_.play_mode == 1;
    if (form_.Option1.selected() && marked) {
        play_by(PlayMode::Random, "Random Playback");
    } else if (form_.Option2.selected() && marked) {
        play_by(PlayMode::Alpha, settings_.Reverse == 1 ? "Reverse Alpha" : "Forward Alpha");
    } else if (form_.Option3.selected() && marked) {
        wait_for_choice();
    } else if (form_.Option6.selected() && marked) {
        stage_.program.PausedByUser = false;
        play_by(PlayMode::Preview, "Preview Mode");
    } else if (marks_.continuous == 1 && settings_.Mode < PlayMode::Manual) {
        start_new_cycle();
    }
}

void OptionsOk::play_by(std::int32_t mode, const std::string& name) {
    settings_.Mode = mode;
    stage_.form.Label10.set_caption(name);
    stage_.form.Label2.set_caption(song_count());
    start_new_cycle();
}

// The song that plays goes on; the window stays loaded.
void OptionsOk::wait_for_choice() {
    settings_.Mode = PlayMode::Manual;
    stage_.form.Label10.set_caption("Manual Select");
    stage_.form.Label2.set_caption(song_count());
    stage_.form.Label4.set_caption("N/A");
    stage_.form.List1.clear();
}

void OptionsOk::start_new_cycle() {
    stage_.program.ResumePosition = 0;
    if (!stage_.form.File1.empty()) {
        form_.set_visible(false);
        stage_.events.pump();
        engine_.display.rewind_slider();
    }
    engine_.order.RefillAndPlayNext();
    form_.request_unload(CloseReason::program);
}

std::string OptionsOk::song_count() const {
    return decimal(static_cast<std::int64_t>(stage_.form.File1.count()));
}

}  // namespace zephyne
