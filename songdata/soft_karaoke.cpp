#include "songdata/soft_karaoke.h"

#include "core/text/utf8.h"
#include "songdata/text_joining.h"

#include <algorithm>

namespace zephyne {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kSignature = "\x03\x0CSoft Karaoke"sv;
constexpr std::string_view kWordsSignature = "\x03\x05W"sv;
constexpr std::string_view kTrackStart = "MTrk"sv;
constexpr std::size_t kSearchedForSignature = 8192;
constexpr char kTextType = 1;
constexpr int kSyllablesPerPause = 10;

bool has_tag(std::string_view text) {
    return text.size() > 1 && text.front() == '@';
}

constexpr std::size_t kTagLength = 2;

std::string readable(std::string_view bytes) {
    std::string text(bytes);
    std::erase_if(
        text, [](char c) { return (c >= 0 && c < 0x20 && c != '\r' && c != '\n') || c == 0x7F; });
    return to_utf8(text);
}

// A tagged text is a line; otherwise a mark at the front begins a new one.
std::string words_of(std::string_view text) {
    std::string_view line_end;
    if (has_tag(text)) {
        text.remove_prefix(kTagLength);
        line_end = kCrLf;
    }
    std::string words;
    if (text.starts_with('\\') || text.starts_with('/')) {
        text.remove_prefix(1);
        words = kCrLf;
    }
    return words.append(readable(text)).append(line_end);
}

}  // namespace

std::optional<std::size_t> find_soft_karaoke(std::string_view image) {
    const auto found = image.substr(0, kSearchedForSignature).find(kSignature);
    if (found == std::string_view::npos) return {};
    return found;
}

std::string_view SoftKaraokeReader::rest_from(std::size_t offset) const {
    return image_.substr(std::min(offset, image_.size()));
}

// The event whose type is at the position. Its length is a single byte, whatever its top bit.
SoftKaraokeReader::TextEvent SoftKaraokeReader::text_event() const {
    const auto rest = rest_from(position_ + 1);
    const std::size_t length = rest.empty() ? 0 : static_cast<unsigned char>(rest.front());
    return {rest_from(position_ + 2).substr(0, length), position_ + 2 + length};
}

// Behind each text come the time of the next event (one byte as a rule, which is stepped over
// unseen) and its 0xFF; the search for the next type goes on from there.
bool SoftKaraokeReader::read_header() {
    for (position_ += kSignature.size() + 1; position_ < image_.size(); ++position_) {
        if (image_[position_] == kTextType) {
            const TextEvent event = text_event();
            const auto line = event.text.substr(has_tag(event.text) ? kTagLength : 0);
            transcript_.header_text.append(readable(line)).append(kCrLf);
            position_ = event.end;
        } else if (rest_from(position_).starts_with(kWordsSignature)) {
            // Behind the name, the time and the 0xFF comes the first event of the track, of which
            // only the length is left: it is the language tag and not shown.
            position_ += 10;
            return true;
        }
    }
    return false;
}

bool SoftKaraokeReader::read_words() {
    int syllables = 0;
    while (!ended_ && position_ < image_.size() && syllables < kSyllablesPerPause) {
        if (image_[position_] == kTextType) {
            const TextEvent event = text_event();
            transcript_.words_text += words_of(event.text);
            position_ = event.end + 1;
            ++syllables;
        }
        ended_ = rest_from(position_).starts_with(kTrackStart);
        if (!ended_) ++position_;
    }
    return syllables == kSyllablesPerPause;
}

}  // namespace zephyne
