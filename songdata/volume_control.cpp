#include "songdata/volume_control.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"
#include "songdata/volume_file.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr double kFull = 0xFFFF;

std::uint32_t volume_word(int position) {
    return static_cast<std::uint32_t>(
        round_half_even(static_cast<double>(100 - position) / 100 * kFull));
}

int percentage(std::uint32_t word) {
    return static_cast<int>(round_half_even(static_cast<double>(word) * 100 / kFull));
}

}  // namespace

std::uint32_t FindSynthDevice(const MidiOutVolume& volume) {
    for (std::uint32_t device = 0; device < volume.device_count(); ++device) {
        if (lower_case(volume.device_name(device)).find("synth") != std::string::npos) {
            return device;
        }
    }
    return 0;
}

VolumeControl::VolumeControl(Stage& stage, MidiOutVolume& volume) : stage_(stage), volume_(volume) {
    Form1& f = stage_.form;
    wire(f.Slider2, f.Slider3);
    wire(f.Slider3, f.Slider2);
    f.Check1.set_on_click([this] { Check1_Click(); });
    f.Command14.set_on_click([this] { Command14_Click(); });
    f.Timer6.on_tick = [this] { Timer6_Timer(); };
    stage_.services.apply_remembered_volume = [this](const std::string& song_path) {
        apply_remembered(song_path);
    };
}

// The same for both sliders: the one that moves takes the other along while they are locked. A
// move by key or wheel is a mouse press, move and release in one.
void VolumeControl::wire(Slider& slider, Slider& other) {
    slider.on_mouse_down = [&] {
        tie(slider, other);
        setvolume();
        dragging_ = true;
    };
    slider.on_mouse_move = [&] {
        tie(slider, other);
        if (dragging_) setvolume();
    };
    slider.on_mouse_up = [&] {
        tie(slider, other);
        setvolume();
        dragging_ = false;
        stage_.form.Check1.set_focus();
    };
    slider.on_scroll = [&] {
        if (dragging_) return;
        tie(slider, other);
        setvolume();
    };
}

void VolumeControl::tie(const Slider& moved, Slider& other) const {
    if (stage_.form.Check1.value() == 1) other.set_value(moved.value());
}

void VolumeControl::start() {
    device_ = FindSynthDevice(volume_);
    Percentages now = read_device();
    if (stage_.form.Check1.value() == 1) now.right = now.left;
    stage_.form.Slider2.set_value(100 - now.left);
    stage_.form.Slider3.set_value(100 - now.right);
}

void VolumeControl::setvolume() {
    const std::uint32_t left = volume_word(stage_.form.Slider2.value());
    const std::uint32_t right = volume_word(stage_.form.Slider3.value());
    volume_.set_volume(device_, right << 16U | left);
}

VolumeControl::Percentages VolumeControl::read_device() const {
    const std::uint32_t word = volume_.volume(device_);
    return {percentage(word & 0xFFFFU), percentage(word >> 16U)};
}

void VolumeControl::Check1_Click() {
    Form1& f = stage_.form;
    if (f.Check1.value() != 1) return;
    f.Slider3.set_value(f.Slider2.value());
    setvolume();
}

void VolumeControl::Command14_Click() {
    const DeviceMode mode = stage_.device.Mode();
    Messages& messages = stage_.messages;
    if (mode != DeviceMode::playing && mode != DeviceMode::paused) {
        messages.ShowDlgMessage("Can't save volume settings - no file is currently playing.", 0,
                                "Error");
        return;
    }
    const std::string name = stage_.program.CurrentSongName;
    if (song_kind(name) != SongKind::midi) {
        messages.ShowDlgMessage("Volume settings apply to .MID/.RMI files only.", 0, "Error");
        return;
    }
    // The song may change while the question is open; the answer is about the one it named.
    const std::string file = sidecar_path(stage_.program.CurrentSongPath, ".vol");
    const Answer answer = messages.ShowDlgMessage(
        "This will remember the current volume settings for " + name +
            " and adjust them appropriately the next time you play the song.  Click YES to "
            "remember the settings, NO to forget the settings.",
        1, "Choose an option");
    if (answer == Answer::yes) {
        const Form1& f = stage_.form;
        const auto written = stage_.files.replace_file(
            file, volume_file_text({f.Slider2.value(), f.Slider3.value(), f.Check1.value()}));
        if (!written) {
            messages.ShowDlgMessage("Error saving volume settings - " + written.error().description,
                                    0, "Error");
            return;
        }
        messages.ShowDlgMessage("Volume settings remembered for " + name, 0, "Done.");
    } else {
        (void)stage_.files.remove_file(file);
        messages.ShowDlgMessage("Volume settings forgotten for " + name + ".", 0, "Done.");
    }
}

void VolumeControl::apply_remembered(const std::string& song_path) {
    const std::string file = sidecar_path(song_path, ".vol");
    if (file.empty()) return;
    const auto text = stage_.files.read_file(file, FileSystem::text_file_limit);
    if (!text) return;
    const auto volume = parse_volume_file(*text);
    if (!volume) return;
    Form1& f = stage_.form;
    f.Timer6.set_enabled(false);
    f.Slider2.set_value(volume->left);
    f.Slider3.set_value(volume->right);
    f.Check1.set_value(volume->lock != 0 ? 1 : 0);
    setvolume();
    f.Timer6.set_enabled(true);
}

// Somebody else may have changed the volume. With the lock the louder channel wins.
void VolumeControl::Timer6_Timer() {
    if (dragging_) return;
    Form1& f = stage_.form;
    const Percentages now = read_device();
    if (f.Check1.value() == 1 && now.left != now.right) {
        const int louder = std::max(now.left, now.right);
        f.Timer6.set_enabled(false);
        f.Slider2.set_value(100 - louder);
        f.Slider3.set_value(100 - louder);
        setvolume();
        f.Timer6.set_enabled(true);
        return;
    }
    f.Slider2.set_value(100 - now.left);
    f.Slider3.set_value(100 - now.right);
}

}  // namespace zephyne
