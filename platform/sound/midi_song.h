// A song as the sequencer plays it: one list of MIDI messages, in the order of their time.
//
// Times are nanoseconds from the start of the song, so that they do not depend on a tempo, a
// division or a sample rate. A song is not changed once it has been made, and may then be read
// from any thread.
#pragma once

#include "core/time.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zephyne {

using Nanoseconds = std::int64_t;

struct MidiEvent {
    Nanoseconds time = 0;
    std::uint32_t message = 0;  // of a system exclusive message: its number in the song
    std::uint8_t status = 0;    // 0x80 to 0xEF, the channel in the low half; or 0xF0
    std::uint8_t data1 = 0;     // 0 to 127
    std::uint8_t data2 = 0;     // 0 to 127
};

class MidiSong {
  public:
    std::vector<MidiEvent> events;
    Nanoseconds length = 0;  // to the last event, of whatever kind, of the longest track

    // To the nearest millisecond.
    Milliseconds length_in_milliseconds() const { return (length + 500'000) / 1'000'000; }

    // Keeps a copy of a system exclusive message and returns its number.
    std::uint32_t add_message(std::span<const std::uint8_t> bytes) {
        message_bytes_.insert(message_bytes_.end(), bytes.begin(), bytes.end());
        message_ends_.push_back(message_bytes_.size());
        return static_cast<std::uint32_t>(message_ends_.size() - 1);
    }

    // The message with that number, without its framing bytes 0xF0 and 0xF7.
    std::span<const std::uint8_t> message(std::uint32_t number) const {
        const std::size_t begin = number == 0 ? 0 : message_ends_[number - 1];
        return std::span(message_bytes_).subspan(begin, message_ends_[number] - begin);
    }

  private:
    std::vector<std::uint8_t> message_bytes_;
    std::vector<std::size_t> message_ends_;
};

}  // namespace zephyne
