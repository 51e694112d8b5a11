// Builds Standard MIDI Files byte by byte, so that a test reads like the song it is about:
//
//   smf(1, 480, {Track().at(0).tempo(500'000).end_at(960), Track().at(480).note_on(0, 60, 100)})
#pragma once

#include <cstdint>

namespace zephyne::test {

using Bytes = std::vector<std::uint8_t>;

inline void append(Bytes& bytes, const Bytes& more) {
    for (const std::uint8_t byte : more) bytes.push_back(byte);
}

inline Bytes big_endian(std::uint32_t value, int size) {
    Bytes bytes;
    while (size-- > 0) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * size));
    return bytes;
}

inline Bytes quantity(std::uint32_t value) {
    Bytes bytes;
    for (int shift = 21; shift > 0; shift -= 7) {
        if (value >> shift)
            bytes.push_back(static_cast<std::uint8_t>(0x80 | (value >> shift & 0x7F)));
    }
    bytes.push_back(static_cast<std::uint8_t>(value & 0x7F));
    return bytes;
}

inline Bytes chunk(std::string_view name, const Bytes& contents, std::uint32_t claimed_length) {
    Bytes bytes(name.begin(), name.end());
    append(bytes, big_endian(claimed_length, 4));
    append(bytes, contents);
    return bytes;
}

inline Bytes chunk(std::string_view name, const Bytes& contents) {
    return chunk(name, contents, static_cast<std::uint32_t>(contents.size()));
}

// The contents of a track. Every event stands at the tick named by the last at().
class Track {
  public:
    Track& at(std::uint32_t tick) {
        now_ = tick;
        return *this;
    }

    // Any bytes, after a delta time.
    Track& raw(std::initializer_list<std::uint8_t> bytes) {
        append(bytes_, quantity(now_ - last_));
        append(bytes_, bytes);
        last_ = now_;
        return *this;
    }

    Track& note_on(int channel, int key, int velocity) {
        return message(0x90, channel, key, velocity);
    }
    Track& note_off(int channel, int key) { return message(0x80, channel, key, 64); }
    Track& key_pressure(int channel, int key, int value) {
        return message(0xA0, channel, key, value);
    }
    Track& controller(int channel, int number, int value) {
        return message(0xB0, channel, number, value);
    }
    Track& program(int channel, int number) { return raw({byte(0xC0 | channel), byte(number)}); }
    Track& channel_pressure(int channel, int value) {
        return raw({byte(0xD0 | channel), byte(value)});
    }
    Track& pitch_bend(int channel, int bend) {
        return message(0xE0, channel, bend & 0x7F, bend >> 7);
    }
    Track& tempo(std::uint32_t microseconds) {
        return raw(
            {0xFF, 0x51, 3, byte(microseconds >> 16), byte(microseconds >> 8), byte(microseconds)});
    }
    Track& text(std::string_view text) {
        raw({0xFF, 0x01, byte(text.size())});
        for (const char letter : text) bytes_.push_back(byte(letter));
        return *this;
    }
    // The bytes between 0xF0 and 0xF7.
    Track& exclusive(std::initializer_list<std::uint8_t> message) {
        raw({0xF0});
        append(bytes_, quantity(static_cast<std::uint32_t>(message.size()) + 1));
        append(bytes_, message);
        bytes_.push_back(0xF7);
        return *this;
    }
    Track& end_at(std::uint32_t tick) { return at(tick).raw({0xFF, 0x2F, 0}); }

    const Bytes& bytes() const { return bytes_; }

  private:
    template <typename Number>
    static std::uint8_t byte(Number value) {
        return static_cast<std::uint8_t>(value);
    }
    Track& message(int kind, int channel, int data1, int data2) {
        return raw({byte(kind | channel), byte(data1), byte(data2)});
    }

    Bytes bytes_;
    std::uint32_t now_ = 0;
    std::uint32_t last_ = 0;
};

inline Bytes header(int format, int tracks, int division) {
    Bytes contents = big_endian(static_cast<std::uint32_t>(format), 2);
    append(contents, big_endian(static_cast<std::uint32_t>(tracks), 2));
    append(contents, big_endian(static_cast<std::uint32_t>(division) & 0xFFFF, 2));
    return chunk("MThd", contents);
}

inline Bytes smf(int format, int division, const std::vector<Track>& tracks) {
    Bytes bytes = header(format, static_cast<int>(tracks.size()), division);
    for (const Track& track : tracks) append(bytes, chunk("MTrk", track.bytes()));
    return bytes;
}

// With 500 ticks in a quarter note of 0.5 s: one tick is one millisecond.
constexpr int kTicksAreMilliseconds = 500;

}  // namespace zephyne::test
