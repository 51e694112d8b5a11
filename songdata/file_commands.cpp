#include "songdata/file_commands.h"

#include "core/text/letter_case.h"

#include <algorithm>
#include <string_view>

namespace zephyne {
namespace {

constexpr std::string_view kExtensions[] = {".mid", ".rmi", ".wav", ".avi"};

bool has_song_extension(const std::string& name) {
    const std::string extension = extension_of(name);
    return std::find(std::begin(kExtensions), std::end(kExtensions), extension) !=
           std::end(kExtensions);
}

}  // namespace

std::string file_error_text(const std::string& prefix, const FileError& error) {
    std::string text = prefix + error.description + ".";
    if (error.kind == FileErrorKind::already_open) {
        text +=
            "  If Auto-Info is active, allow it to finish reading the current file, then try "
            "again.";
    }
    return text;
}

std::string name_from_text(const std::string& text) {
    std::string name;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 0x20) {
            if (!name.ends_with(' ')) name += ' ';
        } else if (std::string_view("/\\:?<>|\"").find(c) == std::string_view::npos) {
            name += c;
        }
    }
    return name;
}

std::string folder_of_song(const std::string& path, PathStyle style) {
    std::string folder = split_path(path, style).folder;
    if (folder.empty()) return folder;
    const bool is_root = style == PathStyle::posix && folder.size() == 1;
    if (!is_root) folder.pop_back();
    return folder;
}

FileCommands::FileCommands(Stage& stage, Engine& engine, Questions& questions,
                           FileManager& file_manager)
    : stage_(stage), engine_(engine), questions_(questions), file_manager_(file_manager) {
    Form1& f = stage_.form;
    f.Command18.set_on_click([this] { renamefile(); });
    f.Command4.set_on_click([this] { Command4_Click(); });
    f.Command22.set_on_click([this] { Command22_Click(); });
    f.Command23.set_on_click([this] { Command23_Click(); });
    f.Command24.set_on_click([this] { Command24_Click(); });
}

void FileCommands::renamefile() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.SwitchingSong || f.File1.empty() || !f.File1.selected()) return;
    const ListItem old = f.File1.item(*f.File1.selected());

    std::string proposal = name_from_text(f.Text1.selected_text());
    if (proposal.empty()) proposal = old.text;
    if (!has_song_extension(proposal)) proposal += ".mid";
    std::string name = questions_.ask("Rename File To:", "Rename File", proposal);
    if (name.empty()) return;
    if (!has_song_extension(name)) name += extension_of(old.real());

    const PathStyle style = stage_.files.path_style();
    const std::string from = joined(f.Dir1.path(), old.real(), style);
    const std::string to = joined(f.Dir1.path(), name, style);
    if (const auto renamed = stage_.files.rename_file(from, to); !renamed) {
        stage_.messages.ShowDlgMessage(file_error_text("Error Renaming File - ", renamed.error()),
                                       0, "Error on Rename");
        return;
    }
    (void)stage_.files.rename_file(sidecar_path(from, ".nte"), sidecar_path(to, ".nte"));
    {
        const FlagGuard switching(program.SwitchingSong);
        engine_.songs.refreshfiles();
    }
    program.PausedByUser = false;
    show_renamed(old.real(), name);
}

// The renamed song is the current one from now on, unless it is no song any more.
void FileCommands::show_renamed(const std::string& old_name, const std::string& name) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const auto& songs = f.File1.items();
    auto found = std::find_if(songs.begin(), songs.end(),
                              [&](const ListRow& song) { return song.real() == name; });
    if (found == songs.end()) {
        found = std::find_if(songs.begin(), songs.end(), [&](const ListRow& song) {
            return equal_ignoring_case(song.text, name);
        });
    }
    if (found != songs.end()) {
        const FlagGuard switching(program.SwitchingSong);
        f.File1.set_selected(static_cast<std::size_t>(found - songs.begin()));
        engine_.order.rename(old_name, *found);
        program.CurrentSongName = name;
        program.CurrentSongPath = joined(f.Dir1.path(), name, stage_.files.path_style());
        if (stage_.device.Mode() == DeviceMode::playing) engine_.player.show_playing();
        return;
    }
    engine_.order.drop(old_name);
    engine_.player.StopDevice();
    program.SwitchingSong = false;
    program.ResumePosition = 0;
    engine_.player.PlayFile();
}

void FileCommands::Command4_Click() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.SwitchingSong) return;
    const bool queueing = program.settings.Mode == PlayMode::Queue;
    std::string name;
    std::string path;
    if (queueing) {
        name = path = program.CurrentSongPath;
        if (path.empty()) {
            stage_.messages.ShowDlgMessage("No file to delete!", 0, "Error");
            return;
        }
    } else {
        if (!f.File1.selected()) return;
        const ListItem song = f.File1.item(*f.File1.selected());
        name = song.text;
        path = joined(f.Dir1.path(), song.real(), stage_.files.path_style());
    }
    const Answer answer = stage_.messages.ShowDlgMessage(
        "Are you sure you want to delete " + name + "?", 1, "Please Verify Delete...");
    if (answer != Answer::yes) return;
    if (const auto removed = stage_.files.remove_file(path); !removed) {
        stage_.messages.ShowDlgMessage(file_error_text("Error on Delete - ", removed.error()), 0,
                                       "Error on Delete");
        return;
    }
    (void)stage_.files.remove_file(sidecar_path(path, ".nte"));
    program.SwitchingSong = false;
    engine_.player.StopDevice();
    program.PausedByUser = false;
    after_delete(path);
}

void FileCommands::after_delete(const std::string& path) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.settings.Mode == PlayMode::Queue) {
        if (f.List2.empty()) {
            program.CurrentSongPath.clear();
        } else {
            engine_.order.play_next_queued();
        }
        return;
    }
    const bool manual = program.settings.Mode == PlayMode::Manual;
    if (manual) {
        f.File1.set_selected(std::nullopt);
    } else {
        engine_.order.drop(split_path(path, stage_.files.path_style()).name);
    }
    engine_.songs.refreshfiles();
    if (f.File1.empty() && program.settings.Extended == 1) f.Text1.set_text("");
    if (manual) return;
    engine_.display.rewind_slider();
    engine_.order.PlayNextSong();
}

std::string FileCommands::folder_of_current_song() {
    const std::string& path = stage_.program.CurrentSongPath;
    if (!path.empty()) {
        const std::string folder = folder_of_song(path, stage_.files.path_style());
        return folder.empty() ? path.substr(0, 1) + ":\\" : folder;
    }
    stage_.messages.ShowDlgMessage("No file playing - using current directory.", 0, "No File");
    return stage_.files.current_folder();
}

void FileCommands::Command22_Click() {
    file_manager_.open_folder(folder_of_current_song());
}

void FileCommands::Command23_Click() {
    const std::string folder = folder_of_current_song();
    (void)stage_.files.set_current_folder(folder);
    file_manager_.open_folder(stage_.files.current_folder());
}

void FileCommands::Command24_Click() {
    (void)stage_.files.set_current_folder(stage_.form.Dir1.path());
    file_manager_.open_folder(stage_.files.current_folder());
}

}  // namespace zephyne
