#include "engine/reset_button.h"

#include <utility>

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
    if (holds_song()) {
        stage_.device.set_transport_enabled(false);
        stage_.device.command(DeviceCommand::Pause);
        program.ResumePosition = static_cast<std::int32_t>(stage_.device.Position());
        player_.StopDevice();
    }

    const auto resume = std::exchange(program.ResumePosition, 0);
    const auto auto_reset = std::exchange(program.settings.AutoReset, 1);
    between_.ResetSynth();
    stage_.device.set_transport_enabled(true);
    program.settings.AutoReset = auto_reset;
    program.ResumePosition = resume;

    if (holds_song() && !program.CurrentSongPath.empty()) {
        player_.PlayFile();
    } else {
        player_.StopDevice();
    }
    program.SwitchingSong = false;
}

}  // namespace zephyne
