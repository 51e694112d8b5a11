#include "songdata/midi_text_scanner.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr unsigned kCandidatesPerPause = 21;
constexpr std::uint8_t kLastTextType = 15;
constexpr char kMetaEvent = '\xFF';

// Two bytes, the higher first. What is missing or does not fit counts as 0.
std::int16_t number_at(std::string_view image, std::size_t offset) {
    if (image.size() < offset + 2) return 0;
    const int value = static_cast<std::uint8_t>(image[offset]) * 256 +
                      static_cast<std::uint8_t>(image[offset + 1]);
    return value < 0x8000 ? static_cast<std::int16_t>(value) : std::int16_t{0};
}

bool is_line_end(char c) {
    return c == '\r' || c == '\n';
}

bool is_printable(char c) {
    return c >= 0x20 && c <= 0x7E;
}

// Lyrics of all languages pass, with blanks for the letters that are not ASCII. Other texts with
// such bytes are taken for something else than text.
bool is_acceptable(char c, std::uint8_t meta_type) {
    return is_printable(c) || is_line_end(c) ||
           (meta_type == kLyric && static_cast<std::uint8_t>(c) > 0x7E);
}

}  // namespace

FileResult<MidiImage> load_midi_image(const FileSystem& files, const std::string& path) {
    auto bytes = files.read_file(path, MidiImage::limit);
    if (!bytes) return tl::unexpected(bytes.error());
    MidiImage image{std::move(*bytes)};
    image.file_length = image.bytes.size();
    if (image.file_length == MidiImage::limit) {
        image.file_length = files.file_length(path).value_or(image.file_length);
    }
    return image;
}

MidiScanResult scan_midi_header(const MidiImage& image) {
    MidiScanResult result;
    result.file_length = image.file_length;
    const auto header = image.bytes.find("MThd");
    if (header != std::string::npos) {
        result.header_found = true;
        result.format = number_at(image.bytes, header + 8);
        result.track_count = number_at(image.bytes, header + 10);
    }
    return result;
}

std::uint8_t MidiTextScanner::byte(std::size_t offset) const {
    return offset < image_.size() ? static_cast<std::uint8_t>(image_[offset]) : 0;
}

ScanStep MidiTextScanner::next(MidiTextItem& item) {
    for (;;) {
        if (!paused_) {
            if (!find_candidate()) return ScanStep::end;
            if (++found_ == kCandidatesPerPause) {
                found_ = 0;
                paused_ = true;
                return ScanStep::pause;
            }
        }
        paused_ = false;
        if (read_item(item)) return ScanStep::item;
    }
}

// Goes on one byte behind the last candidate and not behind its text, so that a candidate that
// was no event at all hides none. An event needs a type and a length behind its 0xFF.
bool MidiTextScanner::find_candidate() {
    const auto searched = image_.substr(0, image_.size() < 2 ? 0 : image_.size() - 2);
    candidate_ = searched.find(kMetaEvent, next_);
    if (candidate_ == std::string_view::npos) {
        next_ = image_.size();
        return false;
    }
    next_ = candidate_ + 1;
    return true;
}

// Texts may overlap, but no byte is looked at often. The text of an event that is no lyric is
// given up at the next 0xFF, which is the next candidate but one at most. A lyric runs on through
// 0xFF, but is given up at the next byte 5, and every later lyric has one behind its 0xFF. For the
// same reason the accepted texts of a file are never much longer than the file.
bool MidiTextScanner::read_item(MidiTextItem& item) const {
    const std::uint8_t type = byte(candidate_ + 1);
    if (type == 0 || type > kLastTextType) return false;

    std::size_t begin = candidate_ + 3;
    std::size_t length = byte(candidate_ + 2);
    if (length > 0x7F) {
        length = (length & 0x7FU) * 128 + (byte(begin) & 0x7FU);
        ++begin;
    }
    const auto raw = image_.substr(std::min(begin, image_.size()), length);
    const auto acceptable = [type](char c) { return is_acceptable(c, type); };
    if (!std::all_of(raw.begin(), raw.end(), acceptable)) return false;

    item.meta_type = type;
    item.text = raw;
    std::replace_if(
        item.text.begin(), item.text.end(), [](char c) { return !is_printable(c); }, ' ');
    item.line_break = type == kLyric && raw.find('\n') != std::string_view::npos;
    item.offset = candidate_;
    return true;
}

}  // namespace zephyne
