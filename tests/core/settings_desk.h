// A main window and a settings file, with nothing else around them.
#pragma once

#include "core/settings_file.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/virtual_time.h"

#include <ostream>
#include <string>

namespace zephyne::test {

struct SettingsDesk {
    explicit SettingsDesk(PathStyle style = PathStyle::posix)
        : files(style, style == PathStyle::posix ? "/music" : "C:\\music"), form(files, scheduler) {
        program.folders.own = style == PathStyle::posix ? "/zephyne" : "C:\\zephyne";
        files.add_folder(program.folders.own);
    }

    std::string path() const { return SettingsPath(program, files.path_style()); }

    Settings& read(const std::string& text) {
        files.add_file(path(), text);
        ReadSettings(program, form, files);
        return program.settings;
    }

    std::string write() {
        WriteSettings(program, form, files, messages);
        return files.contents(path()).value_or("(no file)");
    }

    Log log;
    MemoryFileSystem files;
    VirtualClock clock;
    Scheduler scheduler{clock};
    Program program;
    Form1 form;
    ScriptedMessages messages{log};
};

// A file in which every number is another one.
inline constexpr std::string_view kFullFile =
    "'Caution - the order of these entries is important.\r\n"
    "'Do not add/remove entries by hand.\r\n"
    "\r\n"
    "[Window Positions]\r\n"
    "Left=1011\r\nTop=-1012\r\nF2Left=1021\r\nF2Top=1022\r\nF3Left=1031\r\nF3Top=1032\r\n"
    "F4Left=1041\r\nF4Top=1042\r\nF5Left=1051\r\nF5Top=1052\r\nF6Left=1061\r\nF6Top=1062\r\n"
    "F8Top=1082\r\nF8Left=1081\r\nF11Left=1111\r\nF11Top=1112\r\n"
    "\r\n"
    "[Directories]\r\n"
    "LastDir=/music/rags\r\nMoveToDir=/music/old = new\r\n"
    "\r\n"
    "[Options]\r\n"
    "Beeps=21\r\nVolLocked=1\r\nShowTips=22\r\nPlaylist=23\r\nLowercase=24\r\nAnimated=25\r\n"
    "Display=26\r\nExtended=27\r\nTimeMethod=28\r\nResetType=29\r\nAutoReset=30\r\n"
    "AutoHide=31\r\nAutoRepeat=32\r\nAutoNotes=33\r\nAllowWav=34\r\nContinuous=35\r\n"
    "Reverse=1\r\nConfirmExit=37\r\nAutoDelay=38\r\nShowBar=39\r\nShowTray=40\r\n"
    "AutoDelayTime=2.5\r\nPreviewTime=42\r\nMode=Alpha\r\n"
    "\r\n"
    "[Presets]\r\n"
    "PresetPathOnly=43\r\nPresetPath01=/music/rags\r\nPresetFileName01=Maple leaf.mid\r\n"
    "PresetPath12=/music/blues\r\n";

inline Settings full_settings() {
    Settings s;
    s.Left = 1011, s.Top = -1012;
    s.F2Left = 1021, s.F2Top = 1022;
    s.F3Left = 1031, s.F3Top = 1032;
    s.F4Left = 1041, s.F4Top = 1042;
    s.F5Left = 1051, s.F5Top = 1052;
    s.F6Left = 1061, s.F6Top = 1062;
    s.F8Left = 1081, s.F8Top = 1082;
    s.F11Left = 1111, s.F11Top = 1112;
    s.MoveToDir = "/music/old = new";
    s.Beeps = 21, s.ShowTips = 22, s.Playlist = 23, s.Lowercase = 24, s.Animated = 25;
    s.Display = 26, s.Extended = 27, s.TimeMethod = 28, s.ResetType = 29, s.AutoReset = 30;
    s.AutoHide = 31, s.AutoRepeat = 32, s.AutoNotes = 33, s.AllowWav = 34, s.Continuous = 35;
    s.Reverse = 1, s.ConfirmExit = 37, s.AutoDelay = 38, s.ShowBar = 39, s.ShowTray = 40;
    s.AutoDelayTime = 2.5, s.PreviewTime = 42, s.Mode = PlayMode::Alpha, s.PresetPathOnly = 43;
    s.PresetPath[0] = "/music/rags", s.PresetFileName[0] = "Maple leaf.mid";
    s.PresetPath[11] = "/music/blues";
    return s;
}

}  // namespace zephyne::test

namespace zephyne {

inline void PrintTo(const Settings& settings, std::ostream* out) {
    test::SettingsDesk desk;
    desk.program.settings = settings;
    *out << desk.write();
}

}  // namespace zephyne
