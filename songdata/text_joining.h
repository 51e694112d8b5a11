// Turns the texts of a MIDI file into what a text box shows.
#pragma once

#include "songdata/midi_text_scanner.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace zephyne {

inline constexpr std::string_view kCrLf = "\r\n";

// The six kinds of text that the user tells apart; the numbers are those of the boxes.
enum class TextCategory {
    GeneralText = 1,
    CopyrightText,
    TrackNames,
    InstrumentNames,
    SongLyrics,
    MarkersCuesMisc,
};
inline constexpr std::size_t kTextCategories = 6;

// By the meta type of an item, 1 to 15.
TextCategory category_of(std::uint8_t meta_type);

// Where a hyphen follows a syllable.
enum class JoiningRule {
    summary,  // after one without a blank at its end, unless it ends a line
    window,   // after every one without a blank at its end
};

// A text to be shown, made bit by bit. It stops growing at 1 MiB, with a last line "...": no song
// has as much to say, and a text box would take minutes over the millions of lines that a file of
// another kind may hold.
class ShownText {
  public:
    static constexpr std::size_t limit = std::size_t{1} << 20;

    // Syllables of a lyric run together into words and lines; any other text is a line.
    void append(const MidiTextItem& item, JoiningRule rule);
    void append(std::string_view text);

    bool empty() const { return text_.empty(); }
    const std::string& text() const { return text_; }

  private:
    void close_when_full();

    std::string text_;
    bool full_ = false;
};

}  // namespace zephyne
