// Reads one track chunk of a Standard MIDI File 1.0. A part of standard_midi_file.h.
#pragma once

#include "platform/sound/midi_song.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace zephyne {

using MidiBytes = std::span<const std::uint8_t>;

// The status byte under which a tempo change stands among the events: its `message` is the length
// of a quarter note in microseconds, never 0.
constexpr std::uint8_t kTempoChange = 0xFF;

struct TrackEnd {
    std::int64_t tick = 0;  // of the last event, of whatever kind
    std::size_t bytes = 0;  // how far the track was read
    bool marked = false;    // by an End of Track event
};

// Adds the events of the track to the song, with ticks for times: channel messages, system
// exclusive and tempo changes. Reads up to the end of the track or the first thing that makes no
// sense, and never beyond `track`.
TrackEnd read_midi_track(MidiBytes track, MidiSong& song);

}  // namespace zephyne
