// The twelve preset keys, which jump to a folder or a song, and the keys that store and clear them.
#pragma once

#include "engine/engine.h"
#include "engine/stage.h"

#include <cstddef>
#include <optional>
#include <string>

namespace zephyne {

// What the next press of a preset key does.
enum class PresetMode { use, store, clear };

class Presets {
  public:
    Presets(Stage& stage, Engine& engine);

    // All keys up, unless a song is being switched.
    void release_all();

    // After the settings have been read: the tooltips of all keys.
    void show_tooltips();

  private:
    void arm(PresetMode mode);
    void disarm();
    void Timer2_Timer();
    void preset_Click(std::size_t index);
    void store(std::size_t index);
    void clear(std::size_t index);
    void empty(std::size_t index);
    std::string lasting_name(std::size_t row) const;
    std::optional<std::size_t> row_of(const std::string& name) const;
    void use(std::size_t index);
    bool go_to_folder(std::size_t index);
    void play_folder(bool moved);
    void play_song(std::size_t index, const std::string& path, bool moved);
    void path_not_found(std::size_t index, const std::string& folder, std::size_t drive,
                        const std::string& selected);
    void file_not_found(std::size_t index, bool moved);
    void Command17_Click();
    void show_tooltip(std::size_t index);

    Stage& stage_;
    Engine& engine_;
    PresetMode mode_ = PresetMode::use;
    bool blink_phase_ = false;
};

}  // namespace zephyne
