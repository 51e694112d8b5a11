#include "songdata/move_file.h"

#include "core/text/utf8.h"
#include "core/window_placing.h"
#include "songdata/file_commands.h"

#include <utility>

namespace zephyne {

MoveFile::MoveFile(Stage& stage, Engine& engine, WindowHost& windows)
    : stage_(stage), engine_(engine), windows_(windows) {
    stage_.form.Command5.set_on_click([this] { Command5_Click(); });
}

void MoveFile::Command5_Click() {
    const Program& program = stage_.program;
    if (form_) return;
    if (program.settings.Mode == PlayMode::Queue && program.CurrentSongPath.empty()) {
        stage_.messages.ShowDlgMessage("No file to move!", 0, "Error");
        return;
    }
    if (program.settings.Mode != PlayMode::Queue && !stage_.form.File1.selected()) return;
    played_then_ = program.CurrentSongPath;
    if (find_source()) show();
}

bool MoveFile::find_source() {
    const Program& program = stage_.program;
    const PathStyle style = stage_.files.path_style();
    if (program.settings.Mode != PlayMode::Queue) {
        name_ = stage_.form.File1.item(*stage_.form.File1.selected()).real();
        source_ = joined(stage_.form.Dir1.path(), name_, style);
        return true;
    }
    SplitPath split = split_path(program.CurrentSongPath, style);
    name_ = std::move(split.name);
    if (split.folder.empty()) split.folder = stage_.files.current_folder();
    source_ = joined(std::move(split.folder), name_, style);
    if (stage_.files.check_readable(source_)) return true;
    stage_.messages.ShowDlgMessage(
        "Error - Path is unspecified for the current file.  Can't locate file to move it!", 0,
        "Error");
    return false;
}

void MoveFile::show() {
    Settings& settings = stage_.settings();
    Form6 form(stage_.files);
    form_ = &form;
    form.load();
    const Place& owner = stage_.form.place();
    put_in_place(form, windows_, {settings.F6Left, settings.F6Top},
                 {owner.left + 600, owner.top + 600});
    if (!settings.MoveToDir.empty()) {
        (void)form.Drive1.set_drive_of(settings.MoveToDir);
        (void)form.Dir1.set_path(settings.MoveToDir);
        form.Drive1.follow(form.Dir1.path());
    }
    form.Label1.set_caption(source_);
    show_destination();
    form.Dir1.on_change = [this] {
        form_->Drive1.follow(form_->Dir1.path());
        show_destination();
    };
    form.Drive1.on_change = [this] { Drive1_Change(); };
    form.Command1.set_on_click([this] { move_it(); });
    form.Command2.set_on_click([&] { form.request_unload(CloseReason::program); });
    form.on_activate = [this] { stage_.program.CurrentForm = FormNumber::MoveFile; };
    form.on_unload = [&] {
        settings.F6Left = form.place().left;
        settings.F6Top = form.place().top;
        stage_.program.CurrentForm = FormNumber::Main;
    };
    windows_.create(form);
    windows_.run_modal(form);
    windows_.destroy(form);
    form_ = nullptr;
}

void MoveFile::show_destination() {
    const std::string& folder = form_->Dir1.path();
    destination_ = joined(folder, name_, stage_.files.path_style());
    form_->Text1.set_text(to_utf8(destination_));
    ListRows rows;
    if (const auto names = stage_.files.list_files(folder)) {
        for (const std::string& name : *names) rows.append({name, {}});
    }
    form_->File1.set_items(std::move(rows));
}

void MoveFile::Drive1_Change() {
    if (form_->Dir1.set_path(form_->Drive1.drive().root)) return;
    stage_.messages.ShowDlgMessage("Error - Drive May Be Unavailable.", 0, "Drive Error");
    form_->Drive1.follow(form_->Dir1.path());
}

void MoveFile::move_it() {
    Settings& settings = stage_.settings();
    settings.F6Left = form_->place().left;
    settings.F6Top = form_->place().top;
    // What the user has not touched keeps the bytes of its name.
    const std::string& wanted = form_->Text1.text();
    if (wanted.empty()) return;
    const std::string destination = wanted == to_utf8(destination_) ? destination_ : wanted;
    if (const auto moved = stage_.files.move_file(source_, destination); !moved) {
        std::string text = file_error_text("Error on Move - ", moved.error());
        if (moved.error().kind == FileErrorKind::permission_denied) {
            text += "  You may have tried to move the file to its current directory.";
        }
        stage_.messages.ShowDlgMessage(std::move(text), 0, "Error on Move");
        return;
    }
    settings.MoveToDir = form_->Dir1.path();
    stage_.program.ResumePosition = 0;
    stage_.program.PausedByUser = false;
    after_move(stage_.files.resolve(destination).value_or(destination));
    form_->request_unload(CloseReason::program);
}

void MoveFile::after_move(const std::string& destination) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const bool same_song = program.CurrentSongPath == played_then_;
    if (program.settings.Mode == PlayMode::Queue) {
        if (same_song) program.CurrentSongName = program.CurrentSongPath = destination;
        stage_.messages.ShowDlgMessage(
            "File was moved to directory " + folder_of_song(destination, stage_.files.path_style()),
            0, "Move Successful.");
        return;
    }
    form_->set_visible(false);
    if (!same_song) {
        engine_.songs.forget(name_);  // another song has begun while the window was open
    } else if (f.List1.empty()) {
        stop_and_clear();
    } else if (program.settings.Mode == PlayMode::Manual) {
        f.File1.set_selected(std::nullopt);
        engine_.songs.rebuild();
    } else {
        engine_.order.drop(name_);
        engine_.songs.rebuild();
        stage_.events.pump();
        engine_.display.rewind_slider();
        engine_.order.PlayNextSong();
    }
    if (!f.File1.empty()) return;
    if (stage_.shows_tray()) stage_.tray.mnuNext.enabled = false;
    f.Text1.set_text("");
}

void MoveFile::stop_and_clear() {
    Form1& f = stage_.form;
    engine_.player.StopDevice();
    stage_.events.pump();
    engine_.songs.rebuild();
    f.Label2.set_caption("");
    if (stage_.settings().Mode != PlayMode::Manual) f.Label4.set_caption("");
}

}  // namespace zephyne
