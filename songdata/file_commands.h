// Renaming and deleting songs, and opening the file manager where they are.
#pragma once

#include "engine/engine.h"
#include "engine/stage.h"

#include <cstddef>
#include <optional>
#include <string>

namespace zephyne {

// The text to tell the user after a failed file operation: the prefix, what went wrong, and a hint
// where the song may be in use.
std::string file_error_text(const std::string& prefix, const FileError& error);

// A file name made of text that the user has selected: control characters become single blanks,
// and what cannot stand in a name everywhere is dropped.
std::string name_from_text(const std::string& text);

// The folder part of a song's path, without the separator at its end; "" when there is none.
std::string folder_of_song(const std::string& path, PathStyle style);

class FileCommands {
  public:
    FileCommands(Stage& stage, Engine& engine, Questions& questions, FileManager& file_manager);

    // Asks for a new name for the selected song and renames it, with its note. Nothing happens
    // without a selected song, or while a song is being switched.
    void renamefile();

  private:
    struct Choice {
        ListItem song;
        std::string folder;
        std::string path;
        std::string played_then;  // what was the current song
    };
    enum class MakeCurrent { no, yes };

    Choice selected_song() const;
    bool still_here(const Choice& choice) const;
    std::optional<std::size_t> row_of(const std::string& name) const;
    void show_renamed(const Choice& choice, const std::string& name, MakeCurrent make);
    void Command4_Click();
    void after_delete(const Choice& choice);
    std::string folder_of_current_song();
    void Command22_Click();
    void Command23_Click();
    void Command24_Click();

    Stage& stage_;
    Engine& engine_;
    Questions& questions_;
    FileManager& file_manager_;
};

}  // namespace zephyne
