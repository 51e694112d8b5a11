// Soft Karaoke files: MIDI files whose words are ordinary text events in a track called "Words",
// one syllable each, with marks for lines and paragraphs, after a header of tagged lines.
//
// Like the MIDI text scanner, the reader searches for patterns of bytes instead of parsing, and
// any bytes will do. It visits each byte once. Any thread.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zephyne {

struct SoftKaraokeTranscript {
    std::string header_text;  // without the tags, each line ended by CR LF
    std::string words_text;
};

// Where the track name "Soft Karaoke" is, in the first 8192 bytes; nothing when this is no Soft
// Karaoke file.
std::optional<std::size_t> find_soft_karaoke(std::string_view image);

class SoftKaraokeReader {
  public:
    // `signature` is what find_soft_karaoke() has found. The image outlives the reader.
    SoftKaraokeReader(std::string_view image, std::size_t signature)
        : image_(image), position_(signature) {}

    // Reads the header lines, up to the words. False when there are no words.
    bool read_header();

    // After the header: reads the next ten syllables. False when there were fewer, and the words
    // are at an end.
    bool read_words();

    // What has been read so far, as UTF-8: texts that are not are taken for Windows-1252.
    const SoftKaraokeTranscript& transcript() const { return transcript_; }

    // How far the reader has come in the image.
    std::size_t position() const { return position_; }

  private:
    struct TextEvent {
        std::string_view text;
        std::size_t end;  // of the text, were the image long enough
    };
    TextEvent text_event() const;
    std::string_view rest_from(std::size_t offset) const;

    std::string_view image_;
    std::size_t position_;
    bool ended_ = false;  // at the next track
    SoftKaraokeTranscript transcript_;
};

}  // namespace zephyne
