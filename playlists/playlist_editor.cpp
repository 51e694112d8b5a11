#include "playlists/playlist_editor.h"

#include "core/window_placing.h"

#include <string_view>
#include <utility>

namespace zephyne {
namespace {

struct Tip {
    Control& control;
    std::string_view text;
};

}  // namespace

PlaylistEditor::PlaylistEditor(Stage& stage, Engine& engine, Scheduler& scheduler,
                               WindowHost& windows, PlaylistFile& file, MediaBackends audition)
    : stage_(stage),
      engine_(engine),
      scheduler_(scheduler),
      windows_(windows),
      file_(file),
      audition_(audition) {
    stage_.form.Command13.set_on_click([this] { Command13_Click(); });
}

PlaylistEditor::Opened::Opened(PlaylistEditor& editor)
    : form(editor.stage_.files),
      folder(editor.stage_, form, editor.last_folder_),
      playlist(editor.stage_, form),
      audition(editor.stage_, editor.engine_.between, editor.engine_.display, editor.scheduler_,
               form, editor.audition_) {}

void PlaylistEditor::Command13_Click() {
    engine_.player.StopDevice();
    bool closed = false;
    {
        Opened editor(*this);
        Form_Load(editor);
        windows_.create(editor.form);
        windows_.run_modal(editor.form);
        closed = !editor.form.loaded();
        windows_.destroy(editor.form);
    }
    if (closed) engine_.order.begin_with_new_list();
}

void PlaylistEditor::Form_Load(Opened& editor) {
    Form9& f = editor.form;
    const Settings& settings = stage_.settings();
    f.load();
    put_in_place(f, windows_, {settings.F11Left, settings.F11Top}, centred(f, windows_));
    f.on_activate = [this, &editor] { Form_Activate(editor); };
    f.on_unload = [this, &editor] { Form_Unload(editor); };
    f.List1.on_click = [&editor] { editor.audition.List1_Click(); };
    f.Command1.set_on_click([&f] { f.request_unload(CloseReason::program); });
    f.Command4.set_on_click([this, &editor] { file_.save(editor.playlist.lists()); });
    f.Command5.set_on_click([this, &editor] { Command5_Click(editor.playlist); });
    if (show_drive_search) {
        f.Command8.set_on_click([this, &editor] { show_drive_search(editor.playlist); });
    }
    editor.folder.on_change = [&editor] { editor.audition.close(); };
    editor.folder.open();
    editor.folder.refreshem();
}

void PlaylistEditor::Form_Activate(Opened& editor) {
    stage_.program.CurrentForm = FormNumber::PlaylistEditor;
    settips(editor.form);
}

void PlaylistEditor::settips(Form9& f) const {
    const bool shown = stage_.settings().ShowTips == 1;
    for (const auto& [control, text] : std::initializer_list<Tip>{
             {f.Drive1, "Select Drive"},
             {f.Dir1, "Select Directory"},
             {f.List1, "Select files to add"},
             {f.MMControl1, "Audition File"},
             {f.Command2, "Add selected files"},
             {f.Command7, "Add all files"},
             {f.Command8, "Find all .mid on drive"},
             {f.Command3, "Remove selected from playlist"},
             {f.Command6, "Clear Playlist"},
             {f.Command5, "Open Playlist"},
             {f.Command4, "Save Playlist"},
             {f.Command1, "Click when finished"},
             {f.List2, "Contents of Playlist"},
         }) {
        control.set_tooltip(shown ? std::string(text) : "");
    }
}

void PlaylistEditor::Command5_Click(EditedPlaylist& playlist) {
    auto text = file_.choose_and_read();
    if (!text) return;
    playlist.playlistdisable();
    file_.fill(playlist.lists(), std::move(*text));
    playlist.playlistenable();
}

void PlaylistEditor::Form_Unload(Opened& editor) {
    stage_.settings().F11Left = editor.form.place().left;
    stage_.settings().F11Top = editor.form.place().top;
    stage_.program.CurrentForm = FormNumber::Main;
    formfinish(editor);
}

// The playlist becomes the main window's song list.
void PlaylistEditor::formfinish(Opened& editor) {
    editor.audition.close();
    editor.playlist.playlistdisable();
    stage_.form.File1.set_items(editor.form.List2.items(), Sorting::done);
    engine_.order.show_total();
}

}  // namespace zephyne
