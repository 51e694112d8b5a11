#include "songdata/text_joining.h"

namespace zephyne {

TextCategory category_of(std::uint8_t meta_type) {
    constexpr auto last = static_cast<std::uint8_t>(TextCategory::MarkersCuesMisc);
    return static_cast<TextCategory>(meta_type < last ? meta_type : last);
}

void ShownText::append(const MidiTextItem& item, JoiningRule rule) {
    if (full_) return;
    const bool lyric = item.meta_type == kLyric;
    const bool ends_line = !lyric || item.line_break;
    text_ += item.text;
    if (lyric && !item.text.ends_with(' ') && (rule == JoiningRule::window || !ends_line)) {
        text_ += '-';
    }
    if (ends_line) text_ += kCrLf;
    close_when_full();
}

void ShownText::append(std::string_view text) {
    if (full_) return;
    text_ += text;
    close_when_full();
}

void ShownText::close_when_full() {
    if (text_.size() <= limit) return;
    full_ = true;
    text_.resize(limit);
    text_ += "\r\n...";
}

}  // namespace zephyne
