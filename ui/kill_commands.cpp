#include "ui/kill_commands.h"

#include "core/file_removal.h"

#include <string>

namespace zephyne {

bool KillCommands::may_kill(const std::string& question) const {
    if (stage_.settings().Playlist == 1) {
        stage_.messages.ShowDlgMessage(
            "This command only works in the folder-based mode.  Switch to that mode and try again.",
            0, "Error");
        return false;
    }
    return stage_.messages.ShowDlgMessage(question, 1, "Please verify...") == Answer::yes;
}

void KillCommands::kill(const std::string& extension) const {
    remove_files_ending(stage_.files, stage_.form.Dir1.path(), extension);
    stage_.messages.ShowDlgMessage("Deletion Complete.", 0, "Done.");
}

void KillCommands::kill_notes() const {
    const bool yes = may_kill(
        "You are about to kill all notes you have entered ('Note...' button on the main screen) "
        "for files in the current directory.  This will delete all '.nte' files.  Are you sure you "
        "want to continue?");
    if (!yes) return;
    if (unload_notes_) unload_notes_();
    kill(".nte");
}

void KillCommands::kill_volumes() const {
    const bool yes = may_kill(
        "You are about to kill all volume settings you have saved ('RemVol' button on the main "
        "screen) for files in the current directory.  This will delete all '.vol' files.  Are you "
        "sure you want to continue?");
    if (yes) kill(".vol");
}

}  // namespace zephyne
