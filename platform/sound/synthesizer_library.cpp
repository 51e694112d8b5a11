// The functions of libfluidsynth that we use. They are defined here, and pass on to the library
// once it is there. All are looked up when it is loaded, because the audio thread must not.
#include "platform/sound/synthesizer_library.h"

#include <dlfcn.h>
#include <fluidsynth.h>

namespace {

struct LibraryFunction {
    explicit LibraryFunction(const char* its_name) : name(its_name), next(first) { first = this; }

    const char* name;
    LibraryFunction* next;
    void* address = nullptr;

    static inline LibraryFunction* first = nullptr;
};

bool load() {
    void* const library = dlopen("libfluidsynth.so.3", RTLD_NOW | RTLD_LOCAL);
    if (!library) return false;
    for (auto* function = LibraryFunction::first; function; function = function->next) {
        function->address = dlsym(library, function->name);
        if (!function->address) return false;
    }
    return true;
}

}  // namespace

bool zephyne::load_synthesizer_library() {
    static const bool loaded = load();
    return loaded;
}

#define ZEPHYNE_PASS_ON(result, name, parameters, arguments)                    \
    static LibraryFunction the_##name(#name);                                   \
    extern "C" result name parameters {                                         \
        if (!the_##name.address) return result();                               \
        return reinterpret_cast<decltype(&name)>(the_##name.address) arguments; \
    }

// clang-format off
using Settings = fluid_settings_t*;
using Synth = fluid_synth_t*;
using Preset = fluid_preset_t*;
using Driver = fluid_audio_driver_t*;
using Text = const char*;
using OwnText = char*;

ZEPHYNE_PASS_ON(OwnText, fluid_version_str, (), ())
ZEPHYNE_PASS_ON(fluid_log_function_t, fluid_set_log_function, (int level, fluid_log_function_t function, void* with), (level, function, with))

ZEPHYNE_PASS_ON(Settings, new_fluid_settings, (), ())
ZEPHYNE_PASS_ON(void, delete_fluid_settings, (Settings settings), (settings))
ZEPHYNE_PASS_ON(int, fluid_settings_setint, (Settings settings, Text name, int value), (settings, name, value))
ZEPHYNE_PASS_ON(int, fluid_settings_setnum, (Settings settings, Text name, double value), (settings, name, value))
ZEPHYNE_PASS_ON(int, fluid_settings_setstr, (Settings settings, Text name, Text value), (settings, name, value))
ZEPHYNE_PASS_ON(int, fluid_settings_getnum, (Settings settings, Text name, double* value), (settings, name, value))

ZEPHYNE_PASS_ON(Driver, new_fluid_audio_driver2, (Settings settings, fluid_audio_func_t function, void* with), (settings, function, with))
ZEPHYNE_PASS_ON(void, delete_fluid_audio_driver, (Driver driver), (driver))

ZEPHYNE_PASS_ON(Synth, new_fluid_synth, (Settings settings), (settings))
ZEPHYNE_PASS_ON(void, delete_fluid_synth, (Synth synth), (synth))
ZEPHYNE_PASS_ON(int, fluid_is_soundfont, (Text path), (path))
ZEPHYNE_PASS_ON(int, fluid_synth_sfload, (Synth synth, Text path, int reset), (synth, path, reset))
ZEPHYNE_PASS_ON(int, fluid_synth_write_float, (Synth synth, int frames, void* left, int left_begin, int left_step, void* right, int right_begin, int right_step), (synth, frames, left, left_begin, left_step, right, right_begin, right_step))
ZEPHYNE_PASS_ON(int, fluid_synth_get_active_voice_count, (Synth synth), (synth))

ZEPHYNE_PASS_ON(int, fluid_synth_noteon, (Synth synth, int channel, int key, int velocity), (synth, channel, key, velocity))
ZEPHYNE_PASS_ON(int, fluid_synth_noteoff, (Synth synth, int channel, int key), (synth, channel, key))
ZEPHYNE_PASS_ON(int, fluid_synth_all_notes_off, (Synth synth, int channel), (synth, channel))
ZEPHYNE_PASS_ON(int, fluid_synth_all_sounds_off, (Synth synth, int channel), (synth, channel))
ZEPHYNE_PASS_ON(int, fluid_synth_cc, (Synth synth, int channel, int number, int value), (synth, channel, number, value))
ZEPHYNE_PASS_ON(int, fluid_synth_get_cc, (Synth synth, int channel, int number, int* value), (synth, channel, number, value))
ZEPHYNE_PASS_ON(int, fluid_synth_sysex, (Synth synth, Text message, int length, char* answer, int* answer_length, int* handled, int only_try), (synth, message, length, answer, answer_length, handled, only_try))
ZEPHYNE_PASS_ON(int, fluid_synth_pitch_bend, (Synth synth, int channel, int bend), (synth, channel, bend))
ZEPHYNE_PASS_ON(int, fluid_synth_get_pitch_bend, (Synth synth, int channel, int* bend), (synth, channel, bend))
ZEPHYNE_PASS_ON(int, fluid_synth_pitch_wheel_sens, (Synth synth, int channel, int range), (synth, channel, range))
ZEPHYNE_PASS_ON(int, fluid_synth_get_pitch_wheel_sens, (Synth synth, int channel, int* range), (synth, channel, range))
ZEPHYNE_PASS_ON(int, fluid_synth_channel_pressure, (Synth synth, int channel, int pressure), (synth, channel, pressure))
ZEPHYNE_PASS_ON(int, fluid_synth_key_pressure, (Synth synth, int channel, int key, int pressure), (synth, channel, key, pressure))
ZEPHYNE_PASS_ON(int, fluid_synth_set_gen, (Synth synth, int channel, int number, float value), (synth, channel, number, value))
ZEPHYNE_PASS_ON(float, fluid_synth_get_gen, (Synth synth, int channel, int number), (synth, channel, number))
ZEPHYNE_PASS_ON(int, fluid_synth_set_channel_type, (Synth synth, int channel, int type), (synth, channel, type))
ZEPHYNE_PASS_ON(int, fluid_synth_bank_select, (Synth synth, int channel, int bank), (synth, channel, bank))
ZEPHYNE_PASS_ON(int, fluid_synth_program_change, (Synth synth, int channel, int number), (synth, channel, number))
ZEPHYNE_PASS_ON(int, fluid_synth_get_program, (Synth synth, int channel, int* font, int* bank, int* number), (synth, channel, font, bank, number))
ZEPHYNE_PASS_ON(Preset, fluid_synth_get_channel_preset, (Synth synth, int channel), (synth, channel))
ZEPHYNE_PASS_ON(int, fluid_preset_get_banknum, (Preset preset), (preset))
// clang-format on

#undef ZEPHYNE_PASS_ON
