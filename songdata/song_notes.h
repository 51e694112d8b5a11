// The Notes window: a text that the user keeps beside a song, in a file with the song's name.
#pragma once

#include "core/ports/window_host.h"
#include "core/sheets/form4.h"
#include "engine/stage.h"

#include <memory>
#include <string>

namespace zephyne {

class SongNotes {
  public:
    SongNotes(Stage& stage, WindowHost& windows);
    ~SongNotes();

    // "Note...": opens the window on the current song's note, anew if it is open. Nothing happens
    // without a selected song.
    void Command7_Click();

    // Opens the window on the current song's note, not modal.
    void show();

    // Closes it, if it is open. What has been typed is saved, as by its close box.
    void unload();

  private:
    enum class Closing { save, discard, delete_note };

    void Form_Load();
    void Form_Unload();
    void close(Closing how);
    void save() const;

    Stage& stage_;
    WindowHost& windows_;
    std::unique_ptr<Form4> form_;
    std::unique_ptr<Form4> leaving_;  // closed, but its handler may be on the stack
    std::string note_path_;           // of the song that it was opened for
    bool closing_handled_ = false;
};

}  // namespace zephyne
