#include "ui/kill_commands.h"

#include "core/file_removal.h"

#include <string>

namespace zephyne {

void KillCommands::kill(const std::string& extension, const std::string& question,
                        const std::function<void()>& before) const {
    if (stage_.settings().Playlist == 1) {
        stage_.messages.ShowDlgMessage(
            "This command only works in the folder-based mode.  Switch to that mode and try again.",
            0, "Error");
        return;
    }
    const std::string folder = stage_.form.Dir1.path();
    if (stage_.messages.ShowDlgMessage(question, 1, "Please verify...") != Answer::yes) return;
    if (before) before();
    remove_files_ending(stage_.files, folder, extension);
    stage_.messages.ShowDlgMessage("Deletion Complete.", 0, "Done.");
}

void KillCommands::kill_notes() const {
    kill(".nte",
         "You are about to kill all notes you have entered ('Note...' button on the main screen) "
         "for files in the current directory.  This will delete all '.nte' files.  Are you sure "
         "you want to continue?",
         unload_notes_);
}

void KillCommands::kill_volumes() const {
    kill(".vol",
         "You are about to kill all volume settings you have saved ('RemVol' button on the main "
         "screen) for files in the current directory.  This will delete all '.vol' files.  Are "
         "you sure you want to continue?",
         {});
}

}  // namespace zephyne
