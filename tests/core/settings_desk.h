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
    "Left=1011\r\n"
    "Top=-1012\r\n"
    "F2Left=1021\r\n"
    "F2Top=1022\r\n"
    "F3Left=1031\r\n"
    "F3Top=1032\r\n"
    "F4Left=1041\r\n"
    "F4Top=1042\r\n"
    "F5Left=1051\r\n"
    "F5Top=1052\r\n"
    "F6Left=1061\r\n"
    "F6Top=1062\r\n"
    "F8Top=1082\r\n"
    "F8Left=1081\r\n"
    "F11Left=1111\r\n"
    "F11Top=1112\r\n"
    "\r\n"
    "[Directories]\r\n"
    "LastDir=/music/rags\r\n"
    "MoveToDir=/music/old = new\r\n"
    "\r\n"
    "[Options]\r\n"
    "Beeps=21\r\n"
    "VolLocked=1\r\n"
    "ShowTips=22\r\n"
    "Playlist=23\r\n"
    "Lowercase=24\r\n"
    "Animated=25\r\n"
    "Display=26\r\n"
    "Extended=27\r\n"
    "TimeMethod=28\r\n"
    "ResetType=29\r\n"
    "AutoReset=30\r\n"
    "AutoHide=31\r\n"
    "AutoRepeat=32\r\n"
    "AutoNotes=33\r\n"
    "AllowWav=34\r\n"
    "Continuous=35\r\n"
    "Reverse=1\r\n"
    "ConfirmExit=37\r\n"
    "AutoDelay=38\r\n"
    "ShowBar=39\r\n"
    "ShowTray=40\r\n"
    "AutoDelayTime=2.5\r\n"
    "PreviewTime=42\r\n"
    "Mode=Alpha\r\n"
    "\r\n"
    "[Presets]\r\n"
    "PresetPathOnly=43\r\n"
    "PresetPath01=/music/rags\r\n"
    "PresetFileName01=Maple leaf.mid\r\n"
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
