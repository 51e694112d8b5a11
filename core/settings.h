// Everything that the user can set, under the names it has in the settings file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zephyne {

// The values of Settings::Mode.
namespace PlayMode {
inline constexpr std::int32_t Preview = -1;
inline constexpr std::int32_t Random = 0;
inline constexpr std::int32_t Alpha = 1;  // backwards with Reverse
inline constexpr std::int32_t Manual = 2;
inline constexpr std::int32_t Queue = 3;  // the compact player; never written to the file
}  // namespace PlayMode

// Flags are 1 (on) or 0 (off); positions are twips, 0 meaning that none is saved. The values here
// are the defaults. The volume lock and the folder are not held here but in the controls that show
// them.
struct Settings {
    std::int32_t Left = 0, Top = 0;        // main window
    std::int32_t F2Left = 0, F2Top = 0;    // Options
    std::int32_t F3Left = 0, F3Top = 0;    // Information
    std::int32_t F4Left = 0, F4Top = 0;    // Notes
    std::int32_t F5Left = 0, F5Top = 0;    // About
    std::int32_t F6Left = 0, F6Top = 0;    // Move File
    std::int32_t F8Left = 0, F8Top = 0;    // View Presets
    std::int32_t F11Left = 0, F11Top = 0;  // Edit Playlist

    std::string MoveToDir;         // where a song was last moved to
    std::int16_t Beeps = 1;        // message boxes beep
    std::int16_t ShowTips = 1;     // tooltips
    std::int16_t Playlist = 0;     // base mode: 0 the current folder, 1 the loaded playlist
    std::int16_t Lowercase = 1;    // names are shown in lower case with a capital
    std::int16_t Animated = 1;     // the note roll moves
    std::int16_t Display = 0;      // LED colour: 0 green, 1 orange, 2 red
    std::int16_t Extended = 1;     // the wide window with the song's summary
    std::int16_t TimeMethod = 0;   // the clock shows 0 the time played, 1 the time remaining
    std::int32_t ResetType = 0;    // reset sequence: 0 General MIDI, 1 XG, 2 GS
    std::int32_t AutoReset = 1;    // the synthesizer is reset before songs
    std::int32_t AutoHide = 0;     // start hidden
    std::int32_t AutoRepeat = 0;   // the same song again and again
    std::int32_t AutoNotes = 0;    // a song's note opens with it
    std::int32_t AllowWav = 0;     // WAV and AVI files are songs, too
    std::int32_t Continuous = 0;   // songs do not leave the cycle when played
    std::int32_t Reverse = 0;      // Alpha runs backwards
    std::int16_t ConfirmExit = 1;  // ask before quitting
    std::int32_t AutoDelay = 0;    // wait between songs
    std::int16_t ShowBar = 0;      // the main window has a taskbar button
    std::int16_t ShowTray = 1;     // the tray icon is shown
    double AutoDelayTime = 2;      // seconds to wait between songs
    std::int32_t PreviewTime = 5;  // seconds of each song in Preview mode
    std::int32_t Mode = PlayMode::Random;

    std::int32_t PresetPathOnly = 0;             // presets remember folders only
    std::array<std::string, 12> PresetPath;      // folder of preset 1..12
    std::array<std::string, 12> PresetFileName;  // its song; "" for a folder alone

    // What Queue mode has replaced, put back before the file is written.
    std::int32_t SavedMode = 0;
    std::int16_t SavedShowBar = 0;
    std::int16_t SavedShowTray = 0;

    bool operator==(const Settings&) const = default;
};

}  // namespace zephyne
