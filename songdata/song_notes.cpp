#include "songdata/song_notes.h"

#include "core/sidecar.h"
#include "core/text/utf8.h"
#include "core/window_placing.h"

#include <utility>

namespace zephyne {

SongNotes::SongNotes(Stage& stage, WindowHost& windows) : stage_(stage), windows_(windows) {
    stage_.form.Command7.set_on_click([this] { Command7_Click(); });
    stage_.services.show_note = [this](const std::string&) { show(); };
    stage_.services.song_renamed = [this](const std::string& from, const std::string& to) {
        song_renamed(from, to);
    };
    stage_.services.song_deleted = [this](const std::string& path) { song_deleted(path); };
}

SongNotes::~SongNotes() {
    if (form_) windows_.destroy(*form_);
}

void SongNotes::Command7_Click() {
    if (!stage_.form.File1.empty() && stage_.form.File1.selected()) show();
}

void SongNotes::show() {
    unload();
    form_ = std::make_unique<Form4>();
    Form_Load();
    windows_.create(*form_);
    // The window has a taskbar button when the main window has one.
    windows_.set_extended_style(*form_, stage_.settings().ShowBar == 1
                                            ? stage_.program.TaskbarExStyle
                                            : stage_.program.NormalExStyle);
    form_->Text1.set_focus();
    form_->set_visible(true);
}

void SongNotes::unload() {
    if (form_) form_->request_unload(CloseReason::program);
}

void SongNotes::Form_Load() {
    Form4& f = *form_;
    const Settings& settings = stage_.settings();
    f.load();
    const Place& owner = stage_.form.place();
    put_in_place(f, windows_, {settings.F4Left, settings.F4Top},
                 {owner.left + 900, owner.top + 900});
    f.Label2.set_caption(stage_.program.CurrentSongName + " ");
    song_path_ = stage_.program.CurrentSongPath;
    const Sidecar file = find_sidecar(stage_.files, song_path_, ".nte");
    if (const auto note = stage_.files.read_file(file.path, FileSystem::text_file_limit);
        file.there && note) {
        f.Text1.set_text(to_utf8(*note));
    }
    closing_handled_ = false;
    f.on_activate = [this] { stage_.program.CurrentForm = FormNumber::Notes; };
    f.on_unload = [this] { Form_Unload(); };
    f.Command1.set_on_click([this] { close(Closing::save); });
    f.Command2.set_on_click([this] { close(Closing::discard); });
    f.Command3.set_on_click([this] { close(Closing::delete_note); });
}

void SongNotes::close(Closing how) {
    closing_handled_ = true;
    switch (how) {
        case Closing::save:
            save();
            break;
        case Closing::discard:
            break;
        case Closing::delete_note:
            remove_note();
            break;
    }
    form_->request_unload(CloseReason::program);
}

// An empty box is never written: only "Delete" removes a note.
void SongNotes::save() const {
    const std::string& text = form_->Text1.text();
    const Sidecar file = find_sidecar(stage_.files, song_path_, ".nte");
    if (!text.empty() && !file.path.empty()) {
        (void)stage_.files.replace_file(file.path, text + "\r\n");
    }
}

void SongNotes::remove_note() const {
    const Sidecar file = find_sidecar(stage_.files, song_path_, ".nte");
    if (file.there) (void)stage_.files.remove_file(file.path);
}

void SongNotes::song_renamed(const std::string& from, const std::string& to) {
    if (!form_ || song_path_ != from) return;
    song_path_ = to;
    form_->Label2.set_caption(split_path(to, stage_.files.path_style()).name + " ");
}

void SongNotes::song_deleted(const std::string& song_path) {
    if (form_ && song_path_ == song_path) close(Closing::discard);
}

void SongNotes::Form_Unload() {
    stage_.settings().F4Left = form_->place().left;
    stage_.settings().F4Top = form_->place().top;
    if (!closing_handled_) save();
    stage_.program.CurrentForm = FormNumber::Main;
    windows_.destroy(*form_);
    leaving_ = std::move(form_);
}

}  // namespace zephyne
