// A player in playlist mode, with the editor and both readers, and a few folders of songs.
#pragma once

#include "playlists/open_playlist.h"
#include "playlists/playlist_editor.h"
#include "playlists/playlist_file.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {

class PlaylistWorld : public World {
  public:
    explicit PlaylistWorld(PathStyle style = PathStyle::posix)
        : World({"a.mid", "b.mid", "c.rmi", "d.wav", "notes.txt"}, style) {
        settings().Playlist = 1;
        form.Command13.set_visible(true);
        form.Command20.set_visible(true);
        settings().Mode = PlayMode::Manual;
        settings().Lowercase = 0;
        settings().AllowWav = 1;
        settings().AutoReset = 0;
        for (const char* song : {"a.mid", "A.mid", "x.mid"})
            files.add_file("/other/" + std::string(song));
        windows.on_modal = [this](Form& shown) {
            editor = &dynamic_cast<Form9&>(shown);
            while_open(*editor);
            if (editor->loaded()) editor->Command1.click();
        };
    }

    FakeWindows windows;
    ScriptedFileDialogs dialogs{log};
    SimulatedBackend audition{"audition: ", clock, scheduler, log};
    SimulatedBackend audition_wave{"audition wave: ", clock, scheduler, log};
    PlaylistFile file{stage, dialogs};
    OpenPlaylist opening{stage, engine->order, file};
    PlaylistEditor playlist_editor{stage,   *engine, scheduler,
                                   windows, file,    {audition, audition_wave, audition_wave}};
    Form9* editor = nullptr;
    std::function<void(Form9&)> while_open;

    // Opens the editor, and closes it when the act is over.
    void edit(std::function<void(Form9&)> act) {
        while_open = std::move(act);
        form.Command13.click();
    }

    // Chooses this file, with these contents, in the main window.
    void load(const std::string& contents) {
        files.add_file(path("list.lst"), contents);
        dialogs.answers = {path("list.lst")};
        form.Command20.click();
    }

    Log lines() const { return names(form.List3); }

    // The one thing that holds after everything: row by row, the names are those of the lines.
    void expect_in_step(const ListBox& shown) {
        PlaylistLists lists(const_cast<ListBox&>(shown), form.List3, pump);
        EXPECT_TRUE(lists.in_step()) << testing::PrintToString(names(shown)) << " beside "
                                     << testing::PrintToString(lines());
    }
};

inline std::size_t row_of(const ListBox& list, const std::string& text) {
    for (std::size_t row = 0; row < list.count(); ++row) {
        if (list.item(row).text == text) return row;
    }
    ADD_FAILURE() << text << " is not in the list";
    return 0;
}

}  // namespace zephyne::test
