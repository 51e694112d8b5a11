// Finds the texts in a MIDI file, and its header facts.
//
// The texts are the meta-events 1 to 15 of the Standard MIDI File 1.0 (text, copyright, names,
// lyrics, markers and so on). The file is not parsed: its bytes are searched for what looks like a
// header and like text events. So the song inside a RIFF wrapper is found as easily as a bare one,
// and so are the texts of a damaged file; what merely looks like a text event is shown, too.
//
// The scanner reads an image that the caller keeps, and takes time in proportion to its length
// whatever the bytes are (see the source). Any thread.
#pragma once

#include "core/ports/file_system.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephyne {

// The bytes of a song file. The search looks at the first 256 MiB of a longer one, four times
// what the player takes.
struct MidiImage {
    static constexpr std::size_t limit = std::size_t{256} << 20;

    std::string bytes;
    std::uint64_t file_length = 0;
};

// Fails when the file cannot be opened or read.
FileResult<MidiImage> load_midi_image(const FileSystem& files, const std::string& path);

// The facts about a song. Its texts are handed out one by one, by MidiTextScanner: a list of them
// could take a dozen times the memory of the file.
struct MidiScanResult {
    std::uint64_t file_length = 0;
    bool header_found = false;
    std::int16_t format = 0;       // both: 0 when absent or more than 32767
    std::int16_t track_count = 0;  // as the header claims
};

MidiScanResult scan_midi_header(const MidiImage& image);

struct MidiTextItem {
    std::uint8_t meta_type = 0;  // 1 to 15
    std::string text;            // characters from 0x20 to 0x7E only
    bool line_break = false;     // a lyric that held a line feed
    std::size_t offset = 0;      // of the event's 0xFF in the image
};

inline constexpr std::uint8_t kLyric = 5;

enum class ScanStep {
    item,   // a text was found
    pause,  // nothing yet, but a while has passed: the place to let pending events run
    end,    // no more texts
};

class MidiTextScanner {
  public:
    // The image outlives the scanner.
    explicit MidiTextScanner(std::string_view image) : image_(image) {}

    // Goes on to the next text, pause (at every 21st 0xFF) or the end. `item` is written only
    // with ScanStep::item; passing the same one again saves allocations.
    ScanStep next(MidiTextItem& item);

  private:
    bool find_candidate();
    bool read_item(MidiTextItem& item) const;
    std::uint8_t byte(std::size_t offset) const;  // 0 beyond the end

    std::string_view image_;
    std::size_t candidate_ = 0;  // the 0xFF found last
    std::size_t next_ = 0;       // where the search goes on
    unsigned found_ = 0;         // since the last pause
    bool paused_ = false;        // the candidate has not been looked at
};

}  // namespace zephyne
