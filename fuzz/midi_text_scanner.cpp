// Song files of any bytes: header, texts, both ways of joining them, Soft Karaoke. The scanner must
// find what a search that visits every byte finds, and not much more text than the file has.
#include "songdata/midi_text_scanner.h"

#include "core/text/utf8.h"
#include "songdata/soft_karaoke.h"
#include "songdata/text_joining.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

using namespace zephyne;

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

// The text event at an offset, read one character at a time.
std::optional<MidiTextItem> event_at(const std::string& image, std::size_t at) {
    const auto byte = [&](std::size_t i) {
        return i < image.size() ? static_cast<unsigned char>(image[i]) : 0U;
    };
    if (at + 2 >= image.size() || byte(at) != 0xFF) return {};
    MidiTextItem item;
    item.meta_type = static_cast<std::uint8_t>(byte(at + 1));
    item.offset = at;
    if (item.meta_type < 1 || item.meta_type > 15) return {};
    const bool two_bytes = byte(at + 2) >= 0x80;
    const std::size_t begin = at + (two_bytes ? 4 : 3);
    const std::size_t length =
        two_bytes ? (byte(at + 2) - 0x80) * 128 + byte(at + 3) % 128 : byte(at + 2);
    for (std::size_t i = begin; i < begin + length && i < image.size(); ++i) {
        const unsigned c = byte(i);
        if (c < 0x20 && c != 0x0D && c != 0x0A) return {};
        if (c > 0x7E && item.meta_type != kLyric) return {};
        item.text += c < 0x20 || c > 0x7E ? ' ' : static_cast<char>(c);
        item.line_break = item.line_break || (c == 0x0A && item.meta_type == kLyric);
    }
    return item;
}

void scan(const std::string& image) {
    ShownText categories[kTextCategories];
    ShownText summary;
    std::size_t looked_at = 0;
    std::size_t text = 0;
    MidiTextScanner scanner(image);
    MidiTextItem item;
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        if (step == ScanStep::pause) continue;
        for (; looked_at < item.offset; ++looked_at) require(!event_at(image, looked_at));
        const auto expected = event_at(image, looked_at++);
        require(expected && expected->meta_type == item.meta_type && expected->text == item.text &&
                expected->line_break == item.line_break);
        text += item.text.size();
        summary.append(item, JoiningRule::summary);
        categories[static_cast<std::size_t>(category_of(item.meta_type)) - 1].append(
            item, JoiningRule::window);
    }
    for (; looked_at < image.size(); ++looked_at) require(!event_at(image, looked_at));
    require(text <= 3 * image.size());
    require(summary.text().size() <= ShownText::limit + 5);
    require(is_ascii(summary.text()));
}

void read_karaoke(const std::string& image) {
    const auto signature = find_soft_karaoke(image);
    if (!signature) return;
    SoftKaraokeReader reader(image, *signature);
    if (!reader.read_header()) return;
    require(is_utf8(reader.transcript().header_text));
    for (std::size_t before = reader.position(); reader.read_words(); before = reader.position()) {
        require(reader.position() > before);
    }
    require(is_utf8(reader.transcript().words_text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MidiImage image{std::string(reinterpret_cast<const char*>(data), size), size};
    const MidiScanResult facts = scan_midi_header(image);
    require(facts.header_found || (facts.format == 0 && facts.track_count == 0));
    scan(image.bytes);
    read_karaoke(image.bytes);
    return 0;
}
