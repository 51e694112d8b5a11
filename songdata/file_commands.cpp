#include "songdata/file_commands.h"

#include "core/sidecar.h"
#include "core/text/letter_case.h"
#include "core/text/utf8.h"

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

// What the user has chosen to act on. The question about it is answered later, and meanwhile the
// song may end, another may be handed over, and the folder may change.
FileCommands::Choice FileCommands::selected_song() const {
    const Form1& f = stage_.form;
    const ListItem song = f.File1.item(*f.File1.selected());
    return {song, f.Dir1.path(), joined(f.Dir1.path(), song.real(), stage_.files.path_style()),
            stage_.program.CurrentSongPath};
}

bool FileCommands::still_here(const Choice& choice) const {
    return stage_.form.Dir1.path() == choice.folder &&
           stage_.program.CurrentSongPath == choice.played_then;
}

void FileCommands::renamefile() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.SwitchingSong || f.File1.empty() || !f.File1.selected()) return;
    const Choice choice = selected_song();

    std::string proposal = name_from_text(f.Text1.selected_text());
    if (proposal.empty()) proposal = to_utf8(choice.song.text);
    if (!has_song_extension(proposal)) proposal += ".mid";
    std::string name = questions_.ask("Rename File To:", "Rename File", proposal);
    if (name.empty() || program.Ending) return;
    if (!has_song_extension(name)) name += extension_of(choice.path);

    const Sidecar note = find_sidecar(stage_.files, choice.path, ".nte");
    const std::string to = joined(choice.folder, name, stage_.files.path_style());
    if (const auto renamed = stage_.files.rename_file(choice.path, to); !renamed) {
        stage_.messages.ShowDlgMessage(file_error_text("Error Renaming File - ", renamed.error()),
                                       0, "Error on Rename");
        return;
    }
    if (note.there) (void)stage_.files.rename_file(note.path, sidecar_path(to, ".nte"));
    if (stage_.services.song_renamed) stage_.services.song_renamed(choice.path, to);
    const bool same_song = still_here(choice);
    engine_.songs.rebuild();
    program.PausedByUser = false;
    show_renamed(choice, name, same_song ? MakeCurrent::yes : MakeCurrent::no);
}

std::optional<std::size_t> FileCommands::row_of(const std::string& name) const {
    const auto& songs = stage_.form.File1.items();
    auto found = std::find_if(songs.begin(), songs.end(),
                              [&](const ListRow& song) { return song.real() == name; });
    if (found == songs.end()) {
        found = std::find_if(songs.begin(), songs.end(), [&](const ListRow& song) {
            return equal_ignoring_case(song.text, name);
        });
    }
    if (found == songs.end()) return std::nullopt;
    return static_cast<std::size_t>(found - songs.begin());
}

// The renamed song is the current one from now on, unless it is no song any more, or another has
// become current while its new name was being typed.
void FileCommands::show_renamed(const Choice& choice, const std::string& name, MakeCurrent make) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const auto row = f.Dir1.path() == choice.folder ? row_of(name) : std::nullopt;
    if (row) {
        engine_.order.rename(choice.song.real(), f.File1.item(*row));
    } else {
        engine_.order.drop(choice.song.real());
    }
    if (make == MakeCurrent::no) return engine_.between.select_current_song();
    if (row) {
        {
            const FlagGuard switching(program.SwitchingSong);
            f.File1.set_selected(row);
        }
        program.CurrentSongName = name;
        program.CurrentSongPath = joined(choice.folder, name, stage_.files.path_style());
        if (stage_.device.Mode() != DeviceMode::playing) return;
        engine_.player.show_playing();
        if (program.settings.Extended == 1 && stage_.services.getsonginfo) {
            stage_.services.getsonginfo();  // it begins with the path
        }
        return;
    }
    engine_.player.StopDevice();
    program.SwitchingSong = false;
    program.ResumePosition = 0;
    engine_.player.PlayFile();
}

void FileCommands::Command4_Click() {
    Program& program = stage_.program;
    if (program.SwitchingSong) return;
    const bool queueing = program.settings.Mode == PlayMode::Queue;
    if (queueing && program.CurrentSongPath.empty()) {
        stage_.messages.ShowDlgMessage("No file to delete!", 0, "Error");
        return;
    }
    if (!queueing && !stage_.form.File1.selected()) return;
    const Choice choice = queueing ? Choice{{program.CurrentSongPath, {}},
                                            stage_.form.Dir1.path(),
                                            program.CurrentSongPath,
                                            program.CurrentSongPath}
                                   : selected_song();
    const Answer answer = stage_.messages.ShowDlgMessage(
        "Are you sure you want to delete " + choice.song.text + "?", 1, "Please Verify Delete...");
    if (answer != Answer::yes || program.Ending) return;

    const Sidecar note = find_sidecar(stage_.files, choice.path, ".nte");
    if (const auto removed = stage_.files.remove_file(choice.path); !removed) {
        stage_.messages.ShowDlgMessage(file_error_text("Error on Delete - ", removed.error()), 0,
                                       "Error on Delete");
        return;
    }
    if (note.there) (void)stage_.files.remove_file(note.path);
    if (stage_.services.song_deleted) stage_.services.song_deleted(choice.path);
    if (!still_here(choice)) {  // another song has begun meanwhile
        if (!queueing) engine_.songs.forget(choice.song.real());
        return;
    }
    program.SwitchingSong = false;
    engine_.player.StopDevice();
    program.PausedByUser = false;
    after_delete(choice);
}

void FileCommands::after_delete(const Choice& choice) {
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
        engine_.order.drop(choice.song.real());
    }
    engine_.songs.refreshfiles();
    if (f.File1.empty()) {
        program.CurrentSongPath.clear();  // so that a summary under way does not come back
        if (program.settings.Extended == 1) f.Text1.set_text("");
    }
    if (manual) return;
    engine_.display.rewind_slider();
    engine_.order.PlayNextSong();
}

std::string FileCommands::folder_of_current_song() {
    const std::string& path = stage_.program.CurrentSongPath;
    if (!path.empty()) {
        std::string folder = folder_of_song(path, stage_.files.path_style());
        if (!folder.empty()) return folder;
        if (stage_.files.path_style() == PathStyle::windows) return path.substr(0, 1) + ":\\";
        return stage_.files.current_folder();
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
