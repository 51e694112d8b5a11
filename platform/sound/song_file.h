// Opens a song: the file, its bytes, the song in it.
#pragma once

#include "platform/sound/midi_song.h"

#include <string>
#include <tl/expected.hpp>

namespace zephyne {

// Only ordinary files (and links to them) of at most 64 MiB are opened; a pipe, socket or device
// never. The error is a part of a sentence, fit for the user, without a full stop. Any thread.
tl::expected<MidiSong, std::string> read_song_file(const std::string& path);

}  // namespace zephyne
