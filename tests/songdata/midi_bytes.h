// MIDI files for tests, byte by byte.
#pragma once

#include <string>
#include <string_view>

namespace zephyne::test {

inline std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) text += static_cast<char>(value);
    return text;
}

// A meta-event without the time before it; its length in as many bytes as it takes.
inline std::string meta(int type, std::string_view text) {
    std::string event = bytes({0xFF, type});
    const int length = static_cast<int>(text.size());
    if (length > 127) event += static_cast<char>(0x80 | (length >> 7));
    event += static_cast<char>(length & 0x7F);
    return event.append(text);
}

inline std::string header(int format, int tracks) {
    return "MThd" +
           bytes({0, 0, 0, 6, format >> 8, format & 0xFF, tracks >> 8, tracks & 0xFF, 0, 96});
}

// Each text event with a time of one byte before it.
inline std::string text_events(std::initializer_list<std::string_view> texts) {
    std::string events;
    for (const auto text : texts) events += bytes({0}) + meta(1, text);
    return events;
}

// A Soft Karaoke file: header lines, and words after a language tag.
inline std::string karaoke_file(const std::string& header_events, const std::string& word_events,
                                const std::string& behind = {}) {
    return header(1, 3) + "MTrk" + bytes({0, 0, 0, 99, 0}) + meta(3, "Soft Karaoke") +
           header_events + bytes({0}) + meta(0x2F, "") + "MTrk" + bytes({0, 0, 0, 99, 0}) +
           meta(3, "Words") + bytes({0}) + meta(1, "@LENGL") + word_events + bytes({0}) +
           meta(0x2F, "") + "MTrk" + behind;
}

}  // namespace zephyne::test
