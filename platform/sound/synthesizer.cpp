#include "platform/sound/synthesizer.h"

#include "platform/sound/sample_time.h"
#include "platform/sound/synthesizer_library.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <new>
#include <system_error>

namespace zephyne {
namespace {

constexpr double kGain = 0.3;  // full songs come close to full scale, and few go beyond it
constexpr int kEveryChannel = -1;
constexpr int kSustainPedal = 64;
constexpr int kSostenutoPedal = 66;
constexpr int kResetAllControllers = 121;
constexpr int kAllNotesOff = 123;
constexpr int kFirstModeMessage = 124;  // omni off and on, mono, poly

// The library's messages are for its own developers; what concerns a user is said by the callers.
void ignore_message(int, const char*, void*) {}

fluid_settings_t* make_settings() {
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
        fluid_set_log_function(level, ignore_message, nullptr);
    }
    fluid_settings_t* const settings = new_fluid_settings();
    if (!settings) throw std::bad_alloc();
    fluid_settings_setnum(settings, "synth.sample-rate", kFramesPerSecond);
    fluid_settings_setnum(settings, "synth.gain", kGain);
    fluid_settings_setint(settings, "synth.polyphony", 256);
    // The number under which GS and XG messages address a synthesizer; any other is deaf to them.
    fluid_settings_setint(settings, "synth.device-id", 16);
    fluid_settings_setint(settings, "synth.threadsafe-api", 0);  // one thread at a time: no lock
    return settings;
}

}  // namespace

Synthesizer::~Synthesizer() = default;

bool Synthesizer::open() {
    if (!load_synthesizer_library()) return false;
    settings_.reset(make_settings());
    synth_.reset(new_fluid_synth(settings_.get()));
    if (!synth_) throw std::bad_alloc();
    return true;
}

bool Synthesizer::load_sound_font(const std::string& path) {
    constexpr int kGiveChannelsTheirPrograms = 1;
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored) && fluid_is_soundfont(path.c_str()) &&
           fluid_synth_sfload(synth_.get(), path.c_str(), kGiveChannelsTheirPrograms) !=
               FLUID_FAILED;
}

void Synthesizer::note_off(int channel, int key) {
    fluid_synth_noteoff(synth_.get(), channel, key);
}

void Synthesizer::note_on(int channel, int key, int velocity) {
    fluid_synth_noteon(synth_.get(), channel, key, velocity);
}

void Synthesizer::key_pressure(int channel, int key, int pressure) {
    told_.key_pressure[channel][key] = static_cast<std::uint8_t>(pressure);
    fluid_synth_key_pressure(synth_.get(), channel, key, pressure);
}

void Synthesizer::controller(int channel, int number, int value) {
    if (number == kResetAllControllers) {
        told_.key_pressure[channel].fill(0);
        told_.channel_pressure[channel] = 0;
    }
    // All 16 channels are played, whatever a mode message says: the library would let one for the
    // first channel silence all others. What is left of it is that it ends the channel's notes.
    if (number >= kFirstModeMessage) number = kAllNotesOff;
    fluid_synth_cc(synth_.get(), channel, number, value);
}

void Synthesizer::program(int channel, int number) {
    fluid_synth_program_change(synth_.get(), channel, number);
}

void Synthesizer::channel_pressure(int channel, int pressure) {
    told_.channel_pressure[channel] = static_cast<std::uint8_t>(pressure);
    fluid_synth_channel_pressure(synth_.get(), channel, pressure);
}

void Synthesizer::pitch_bend(int channel, int bend) {
    fluid_synth_pitch_bend(synth_.get(), channel, bend);
}

void Synthesizer::system_exclusive(std::span<const std::uint8_t> message) {
    if (const auto volume = master_volume_in(message)) told_.master_volume = *volume;
    const auto reset = reset_in(message);
    if (reset) told_ = UnansweredState{.bank_mode = *reset};
    if (reset && !seeking_) bridge();
    fluid_synth_sysex(synth_.get(), reinterpret_cast<const char*>(message.data()),
                      static_cast<int>(message.size()), nullptr, nullptr, nullptr, 0);
    if (reset && !seeking_) end_all_voices();
}

void Synthesizer::remember_state() {
    at_start_of_song_.capture(synth_.get(), told_);
}

void Synthesizer::begin_seek() {
    bridge();
    seeking_ = true;
    at_start_of_song_.restore(synth_.get());
    told_ = at_start_of_song_.unanswered();
}

// The voices are ended after the replay, not before: a reset among it only releases them.
void Synthesizer::end_seek() {
    seeking_ = false;
    end_all_voices();
}

void Synthesizer::release_notes() {
    for (int channel = 0; channel < UnansweredState::kChannels; ++channel) {
        fluid_synth_cc(synth_.get(), channel, kSustainPedal, 0);
        fluid_synth_cc(synth_.get(), channel, kSostenutoPedal, 0);
    }
    fluid_synth_all_notes_off(synth_.get(), kEveryChannel);
}

void Synthesizer::cut_notes() {
    bridge();
    release_notes();
    end_all_voices();
}

// Only a reset takes the reverb out of the library; what it was told before is told again. The
// voices go first, or their last moments would be in the room again.
void Synthesizer::empty_room() {
    release_notes();
    end_all_voices();
    SynthesizerState now;
    now.capture(synth_.get(), told_);
    now.restore(synth_.get());
    end_all_voices();
}

// The library renders in blocks of 64 frames, and goes on with the one that it has begun: two
// blocks are rendered for nobody.
void Synthesizer::end_all_voices() {
    fluid_synth_all_sounds_off(synth_.get(), kEveryChannel);
    std::array<float, 128> unheard;
    fluid_synth_write_float(synth_.get(), static_cast<int>(unheard.size()), unheard.data(), 0, 1,
                            unheard.data(), 0, 1);
}

void Synthesizer::set_flow(SoundFlow flow) {
    if (flow == flow_) return;
    bridge();
    flow_ = flow;
}

// Out of silence there is nothing to bridge, and the first note of a song keeps its attack.
void Synthesizer::bridge() {
    if (flow_ == SoundFlow::frozen && !has_voices() && !bridging()) return;
    bridge_.begin([this](float* left, float* right, int frames) { render(left, right, frames); });
}

void Synthesizer::render(float* left, float* right, int frames) {
    if (flow_ == SoundFlow::heard && synth_) {
        fluid_synth_write_float(synth_.get(), frames, left, 0, 1, right, 0, 1);
    } else {
        std::fill_n(left, frames, 0.0F);
        std::fill_n(right, frames, 0.0F);
    }
    bridge_.apply(left, right, frames);
}

}  // namespace zephyne
