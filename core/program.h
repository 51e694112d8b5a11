// The program-wide state, shared by every room for the whole run. All of it is plain data; the
// flags are set and cleared by the procedures that own them, on the user-interface thread only.
#pragma once

#include "core/ports/file_system.h"
#include "core/settings.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephyne {

// The windows that can lie over the main window, as CurrentForm names them.
namespace FormNumber {
inline constexpr std::int16_t Main = 1;
inline constexpr std::int16_t Options = 2;
inline constexpr std::int16_t Information = 3;
inline constexpr std::int16_t Notes = 4;
inline constexpr std::int16_t About = 5;
inline constexpr std::int16_t MoveFile = 6;
inline constexpr std::int16_t ViewPresets = 8;
inline constexpr std::int16_t MessageBox = 9;
inline constexpr std::int16_t InputBox = 10;
inline constexpr std::int16_t PlaylistEditor = 11;
inline constexpr std::int16_t QuickTip = 12;
}  // namespace FormNumber

// The name of that window's form; empty for any other number.
std::string_view form_name(std::int16_t number);

// Why Timer3 blinks the clock.
namespace Blink {
inline constexpr std::int16_t Paused = 1;
inline constexpr std::int16_t Stopped = 2;
inline constexpr std::int16_t LastTenSeconds = 3;
}  // namespace Blink

struct RecentSong {
    std::string folder;  // ends in a separator
    std::string name;
};

// Where the program's own files are.
struct ProgramFolders {
    std::string own;        // settings are written here
    std::string installed;  // read-only files that are not in `own` are taken from here

    // The path of a file that comes with the program: in the own folder when it can be read there.
    std::string file(const FileSystem& files, const std::string& name) const;
};

struct Program {
    Settings settings;
    ProgramFolders folders;
    std::int16_t CurrentForm = FormNumber::Main;
    bool SessionEnded = false;  // nobody is there any more to answer a message
    bool Ending = false;        // the program is shut down; what is still on the stack unwinds

    // The song that the device holds or is about to hold.
    std::string CurrentSongName;      // as listed; a full path for a song from the queue
    std::string CurrentSongPath;      // "" when there is none
    std::int32_t ResumePosition = 0;  // ms; where the next PlayFile starts, which clears it
    bool PausedByUser = false;        // set by Pause, not cleared by resuming
    bool SkipRecentOnce = false;      // the next finished song is not recorded as recent

    // Guards against what arrives in the middle of a step.
    bool StartingUp = false;      // choosing songs and folders does nothing
    bool SwitchingSong = false;   // the program itself reloads a song or moves the selection
    bool AutoStarting = false;    // the program itself stops a song and starts another
    bool SliderSync = false;      // the program itself moves the position slider
    bool SliderDragging = false;  // the user holds it
    bool FindSync = false;        // the program itself empties the Find box
    bool DisplayBusy = false;     // UpdateTimeDisplay is at work
    bool DelayActive = false;     // the pause between songs runs: "Reset List" cancels it
    bool DelayDone = false;       // and is over

    // The clock.
    std::int16_t BlinkReason = 0;
    std::array<std::int16_t, 4> DigitCache{};  // digits last drawn; -1: unknown

    // The cycle.
    std::int32_t OrderIndex = 0;  // what Alpha and Continuous take next from RemainingList
    std::string StartFolder;      // where the folder list stood at the start
    std::array<RecentSong, 5> RecentSongs;  // the oldest first
    int RecentCount = 0;

    bool ResetFilePresent = false;  // the reset sequence chosen by ResetType can be read
    std::int32_t NormalExStyle = 0;
    std::int32_t TaskbarExStyle = 0;
    std::string HelpFile;
};

// The file name of the reset sequence for a ResetType; any other value means General MIDI.
std::string reset_file_name(std::int32_t reset_type);

// Looks whether the chosen reset sequence can be read, and keeps that in ResetFilePresent.
void check_reset_file(Program& program, const FileSystem& files);

// The LED colour for a Display; black for other values than 0, 1, 2.
std::uint32_t led_colour(std::int16_t display);

}  // namespace zephyne
