#include "playlists/audition.h"

namespace zephyne {

Audition::Audition(Stage& stage, BetweenSongs& between, TimeDisplay& display, Scheduler& scheduler,
                   Form9& form, MediaBackends backends)
    : stage_(stage),
      between_(between),
      display_(display),
      form_(form),
      device_(scheduler, stage.files, form.MMControl1, backends) {
    device_.on_key = [this](TransportKey key, bool& cancel) { key_pressed(key, cancel); };
    device_.on_done = [this](NotifyCode code) { Done(code); };
    close();
}

void Audition::enable_stopping(bool enabled) {
    form_.MMControl1.set_key_enabled(TransportKey::pause, enabled);
    form_.MMControl1.set_key_enabled(TransportKey::stop, enabled);
}

void Audition::close() {
    device_.StopAndClose();
    device_.set_transport_enabled(true);
    form_.MMControl1.set_key_enabled(TransportKey::play, false);
    enable_stopping(false);
}

void Audition::List1_Click() {
    close();
    form_.MMControl1.set_key_enabled(TransportKey::play, chosen().has_value());
}

// The song that the user was on last, if it is selected, else the first that is.
std::optional<std::string> Audition::chosen() const {
    const ListBox& songs = form_.List1;
    auto row = songs.selected();
    if (!row || !songs.is_selected(*row)) {
        const auto rows = songs.selected_rows();
        if (rows.empty()) return std::nullopt;
        row = rows.front();
    }
    return joined(form_.Dir1.path(), songs.item(*row).real(), stage_.files.path_style());
}

void Audition::key_pressed(TransportKey key, bool& cancel) {
    cancel = resetting_;
    if (cancel) return;
    switch (key) {
        case TransportKey::play:
            if (const auto path = chosen()) {
                cancel = true;
                play(*path);
            }
            break;
        case TransportKey::pause:
            cancel = device_.Mode() == DeviceMode::paused;
            if (cancel) device_.ResumeDevice();
            break;
        case TransportKey::stop:
            enable_stopping(false);
            break;
    }
}

// The reset lets events run. False when meanwhile the user has closed the window or chosen another
// song, or the program has ended.
bool Audition::reset_for(const std::string& path) {
    const FlagGuard resetting(resetting_);
    form_.set_title("Resetting MCI Sequencer...");
    between_.ResetSynth();
    display_.ClearTimeDisplay();
    stage_.form.set_title("Zephyne");
    form_.set_title("Edit Playlist");
    return form_.loaded() && !stage_.program.Ending && chosen() == path;
}

void Audition::play(const std::string& path) {
    const auto type = device_type_of(path);
    if (!type) return;
    const bool resets = *type == DeviceType::Sequencer && stage_.settings().AutoReset == 1;
    if (resets && !reset_for(path)) return;

    device_.Type = *type;
    device_.FileName = path;
    device_.Notify = false;
    device_.Wait = true;
    device_.command(DeviceCommand::Open);
    if (!device_.is_open()) return stage_.beeper.beep();
    device_.Notify = true;
    device_.command(DeviceCommand::Play);
    enable_stopping(true);
}

void Audition::Done(NotifyCode code) {
    if (code != NotifyCode::successful && code != NotifyCode::failed) return;
    enable_stopping(false);
    device_.Notify = false;
    device_.Wait = true;
    device_.command(DeviceCommand::Close);
}

}  // namespace zephyne
