// Reads Standard MIDI Files 1.0 and their RIFF form (RMID).
//
// Formats 0, 1 and 2 (whose tracks follow one another, each with a tempo of its own), divisions in
// ticks and in SMPTE frames, running status (which is kept across meta events and system
// exclusive, as many writers expect), system exclusive in several packets, unknown chunks.
//
// A damaged file is read as far as it goes: up to the first thing in each track that makes no
// sense. The number of tracks is not believed at all, and a chunk length only when it leads
// somewhere. Time and memory grow with the size of the file and nothing else.
#pragma once

#include "platform/sound/midi_song.h"

#include <cstdint>
#include <span>
#include <string>
#include <tl/expected.hpp>

namespace zephyne {

// The error is a part of a sentence, fit for the user, without a full stop. Any thread.
tl::expected<MidiSong, std::string> parse_standard_midi_file(std::span<const std::uint8_t> bytes);

}  // namespace zephyne
