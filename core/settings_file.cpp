#include "core/settings_file.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"
#include "core/text/utf8.h"

#include <cmath>
#include <functional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zephyne {
namespace {

// A numeric field of the record, by its width. A double is AutoDelayTime, which is not rounded.
using Field = std::variant<std::int16_t Settings::*, std::int32_t Settings::*, double Settings::*>;

struct Key {
    std::string_view name;  // as the file has it
    Field field;
};

const std::vector<Key>& window_keys() {
    static const std::vector<Key> keys = {
        {"Left", &Settings::Left},       {"Top", &Settings::Top},
        {"F2Left", &Settings::F2Left},   {"F2Top", &Settings::F2Top},
        {"F3Left", &Settings::F3Left},   {"F3Top", &Settings::F3Top},
        {"F4Left", &Settings::F4Left},   {"F4Top", &Settings::F4Top},
        {"F5Left", &Settings::F5Left},   {"F5Top", &Settings::F5Top},
        {"F6Left", &Settings::F6Left},   {"F6Top", &Settings::F6Top},
        {"F8Top", &Settings::F8Top},     {"F8Left", &Settings::F8Left},
        {"F11Left", &Settings::F11Left}, {"F11Top", &Settings::F11Top},
    };
    return keys;
}

// In the order of the file, in which Reverse has to come before the mode.
const std::vector<Key>& option_keys() {
    static const std::vector<Key> keys = {
        {"ShowTips", &Settings::ShowTips},     {"Playlist", &Settings::Playlist},
        {"Lowercase", &Settings::Lowercase},   {"Animated", &Settings::Animated},
        {"Display", &Settings::Display},       {"Extended", &Settings::Extended},
        {"TimeMethod", &Settings::TimeMethod}, {"ResetType", &Settings::ResetType},
        {"AutoReset", &Settings::AutoReset},   {"AutoHide", &Settings::AutoHide},
        {"AutoRepeat", &Settings::AutoRepeat}, {"AutoNotes", &Settings::AutoNotes},
        {"AllowWav", &Settings::AllowWav},     {"Continuous", &Settings::Continuous},
        {"Reverse", &Settings::Reverse},       {"ConfirmExit", &Settings::ConfirmExit},
        {"AutoDelay", &Settings::AutoDelay},   {"ShowBar", &Settings::ShowBar},
        {"ShowTray", &Settings::ShowTray},
    };
    return keys;
}

// These two are left out of the file while they are 0.
const std::vector<Key>& time_keys() {
    static const std::vector<Key> keys = {{"AutoDelayTime", &Settings::AutoDelayTime},
                                          {"PreviewTime", &Settings::PreviewTime}};
    return keys;
}

const Key kBeeps = {"Beeps", &Settings::Beeps};
const Key kPresetPathOnly = {"PresetPathOnly", &Settings::PresetPathOnly};

void assign(Settings& settings, const Field& field, double value) {
    if (const auto* narrow = std::get_if<std::int16_t Settings::*>(&field)) {
        if (const auto fits = to_int16(value)) settings.** narrow = *fits;
    } else if (const auto* wide = std::get_if<std::int32_t Settings::*>(&field)) {
        if (const auto fits = to_int32(value)) settings.** wide = *fits;
    } else if (std::isfinite(value)) {
        settings.*std::get<double Settings::*>(field) = value;
    }
}

std::string written(const Settings& settings, const Field& field) {
    return std::visit(
        [&](auto member) {
            if constexpr (std::is_same_v<decltype(member), double Settings::*>) {
                return decimal(settings.*member);
            } else {
                return decimal(static_cast<std::int64_t>(settings.*member));
            }
        },
        field);
}

class Reader {
  public:
    Reader(Program& program, Form1& form) : program_(program), form_(form) {}

    // A line is held against every key; some lines match two (PresetPathOnly is also a PresetPath,
    // of no number).
    void read(std::string_view line) {
        if (const auto value = value_of(line, "LastDir=")) show_folder(std::string(*value));
        if (const auto value = value_of(line, "MoveToDir=")) {
            program_.settings.MoveToDir = std::string(*value);
        }
        for (const Key& key : window_keys()) read_number(line, key);
        read_number(line, kBeeps);
        if (const auto value = value_of(line, "VolLocked=")) {
            if (const auto locked = to_int16(leading_number(*value)))
                form_.Check1.set_value(*locked);
        }
        for (const Key& key : option_keys()) read_number(line, key);
        for (const Key& key : time_keys()) read_number(line, key);
        if (const auto value = value_of(line, "Mode=")) read_mode(lower_case(*value));
        read_number(line, kPresetPathOnly);
        if (value_of(line, "PresetPath")) {
            if (auto* path = preset(program_.settings.PresetPath, line, 10)) {
                *path = std::string(from(line, 13));
            }
        }
        if (value_of(line, "PresetFileName")) {
            if (auto* name = preset(program_.settings.PresetFileName, line, 14)) {
                *name = std::string(from(line, 17));
                const auto index = name - program_.settings.PresetFileName.data();
                form_.presets[static_cast<std::size_t>(index)]->set_tooltip(*name);
            }
        }
    }

  private:
    static std::string_view from(std::string_view line, std::size_t at) {
        return at < line.size() ? line.substr(at) : std::string_view();
    }

    static std::optional<std::string_view> value_of(std::string_view line, std::string_view key) {
        if (!equal_ignoring_case(line.substr(0, key.size()), key)) return std::nullopt;
        return line.substr(key.size());
    }

    void read_number(std::string_view line, const Key& key) {
        if (line.size() <= key.name.size() || line[key.name.size()] != '=') return;
        if (!value_of(line, key.name)) return;
        assign(program_.settings, key.field, leading_number(from(line, key.name.size() + 1)));
    }

    // The preset whose number the two characters at `at` form, or null.
    static std::string* preset(std::array<std::string, 12>& texts, std::string_view line,
                               std::size_t at) {
        const auto number = to_int16(leading_number(from(line, at).substr(0, 2)));
        if (!number || *number < 1 || *number > 12) return nullptr;
        return &texts[static_cast<std::size_t>(*number - 1)];
    }

    void show_folder(const std::string& folder) {
        program_.SwitchingSong = true;
        (void)form_.Drive1.set_drive_of(folder);
        (void)form_.Dir1.set_path(folder);
        program_.SwitchingSong = false;
    }

    void read_mode(const std::string& word) {
        Settings& settings = program_.settings;
        if (word == "random") {
            settings.Mode = PlayMode::Random;
            form_.Label10.set_caption("Random Playback");
        } else if (word.starts_with("alpha")) {
            settings.Mode = PlayMode::Alpha;
            form_.Label10.set_caption(settings.Reverse == 1 ? "Reverse Alpha" : "Forward Alpha");
        } else if (word == "manual") {
            settings.Mode = PlayMode::Manual;
            form_.Label10.set_caption("Manual Select");
            form_.Label4.set_caption("N/A");
            form_.Label2.set_caption(decimal(static_cast<std::int64_t>(form_.File1.count())));
        } else if (word == "preview") {
            settings.Mode = PlayMode::Preview;
            form_.Label10.set_caption("Preview Mode");
        }
    }

    Program& program_;
    Form1& form_;
};

std::string mode_word(std::int32_t mode) {
    switch (mode) {
        case PlayMode::Preview:
            return "Preview";
        case PlayMode::Random:
            return "Random";
        case PlayMode::Alpha:
            return "Alpha";
        case PlayMode::Manual:
            return "Manual";
        default:
            return "";
    }
}

// A folder whose name has a line break cannot be kept: its second line would pass for a setting.
std::string one_line(const std::string& text) {
    return text.find_first_of("\r\n") == std::string::npos ? text : std::string();
}

std::vector<std::string> lines_of(const Settings& settings, const Form1& form) {
    std::vector<std::string> lines;
    const auto add = [&](std::string line) { lines.push_back(std::move(line)); };
    const auto add_value = [&](std::string_view key, const std::string& value) {
        lines.push_back(std::string(key) + "=" + value);
    };
    const auto add_text = [&](std::string_view key, const std::string& text) {
        if (const std::string value = one_line(text); !value.empty()) add_value(key, value);
    };
    const auto add_number = [&](const Key& key) {
        add_value(key.name, written(settings, key.field));
    };

    add("'Caution - the order of these entries is important.");
    add("'Do not add/remove entries by hand.");
    add("");
    add("[Window Positions]");
    for (const Key& key : window_keys()) add_number(key);
    add("");
    add("[Directories]");
    add_value("LastDir", one_line(form.Dir1.path()));
    add_text("MoveToDir", settings.MoveToDir);
    add("");
    add("[Options]");
    add_number(kBeeps);
    add_value("VolLocked", decimal(static_cast<std::int64_t>(form.Check1.value())));
    for (const Key& key : option_keys()) add_number(key);
    for (const Key& key : time_keys()) {
        if (written(settings, key.field) != "0") add_number(key);
    }
    add_value("Mode", mode_word(settings.Mode));
    add("");
    add("[Presets]");
    add_number(kPresetPathOnly);
    for (std::size_t i = 0; i < settings.PresetPath.size(); ++i) {
        const std::string number = two_digits(static_cast<std::int64_t>(i) + 1);
        add_text("PresetPath" + number, settings.PresetPath[i]);
        add_text("PresetFileName" + number, settings.PresetFileName[i]);
    }
    return lines;
}

FileResult<void> write_lines(const std::vector<std::string>& lines, const std::string& path,
                             FileSystem& files) {
    auto file = files.create_file(path);
    if (!file) return tl::unexpected(file.error());
    for (const std::string& line : lines) {
        if (auto written = (*file)->write(line + "\r\n"); !written) {
            (void)(*file)->close();
            return written;
        }
    }
    return (*file)->close();
}

}  // namespace

std::string SettingsPath(const Program& program, PathStyle style) {
    return joined(program.folders.own, "zephyne.ini", style);
}

void ReadSettings(Program& program, Form1& form, const FileSystem& files) {
    const auto text =
        files.read_file(SettingsPath(program, files.path_style()), FileSystem::text_file_limit);
    if (!text) {
        form.Label10.set_caption("Random Playback");
        return;
    }
    Reader reader(program, form);
    for (const std::string_view line : text_lines(*text)) reader.read(line);
}

void WriteSettings(Program& program, const Form1& form, FileSystem& files, Messages& messages) {
    Settings& settings = program.settings;
    if (settings.Mode == PlayMode::Queue) {
        settings.Mode = settings.SavedMode;
        settings.ShowBar = settings.SavedShowBar;
        settings.ShowTray = settings.SavedShowTray;
    }
    const std::string path = SettingsPath(program, files.path_style());
    if (!write_lines(lines_of(settings, form), path, files)) {
        messages.ShowDlgMessage("Error writing ZEPHYNE.INI file!", 0, "Error");
    }
}

}  // namespace zephyne
