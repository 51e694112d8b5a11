#include "engine/reset_button.h"

#include <string>

namespace zephyne {

ResetButton::ResetButton(Stage& stage, BetweenSongs& between, Player& player)
    : stage_(stage), between_(between), player_(player) {
    stage_.form.SSCommand1.set_on_click([this] { SSCommand1_Click(); });
}

void ResetButton::SSCommand1_Click() {
    Program& program = stage_.program;
    if (program.SwitchingSong || program.AutoStarting) return;  // a song is on its way
    between_.EnableControls(Reselect::yes);
    if (!program.ResetFilePresent) return;
    program.SwitchingSong = true;
    const auto holds_song = [&] {
        return stage_.form.File1.selected().has_value() || program.settings.Mode == PlayMode::Queue;
    };
    Milliseconds place = 0;
    if (holds_song()) {
        stage_.device.set_transport_enabled(false);
        stage_.device.command(DeviceCommand::Pause);
        place = stage_.device.Position();
        player_.StopDevice();
    }

    const std::string song = program.CurrentSongPath;
    between_.reset_now();
    stage_.device.set_transport_enabled(true);
    if (stage_.device.is_open()) return;  // by a song that has been started meanwhile

    // The place is one in the song that played, and in no other.
    if (program.CurrentSongPath == song) {
        program.ResumePosition = static_cast<std::int32_t>(place);
    }
    if (holds_song() && !program.CurrentSongPath.empty()) {
        player_.PlayFile();
    } else {
        player_.StopDevice();
    }
}

}  // namespace zephyne
