#include "core/ports/notification_area.h"

#include "core/text/utf8.h"

#include <algorithm>

namespace zephyne {
namespace {

// The text without a UTF-8 character at its end of which bytes are missing.
std::string_view without_torn_end(std::string_view text) {
    constexpr std::size_t longest_character = 4;
    for (std::size_t back = 1; back <= std::min(longest_character, text.size()); ++back) {
        const auto byte = static_cast<unsigned char>(text[text.size() - back]);
        if ((byte & 0xC0U) == 0x80U) continue;  // in the middle of a character
        const std::size_t needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
        if (needed > back) text.remove_suffix(back);
        break;
    }
    return text;
}

}  // namespace

void NotifyIconData::set_tip(std::string_view text) {
    szTip.fill(' ');
    const std::size_t kept = std::min(text.size(), szTip.size());
    std::copy_n(text.begin(), kept, szTip.begin());
    if (kept < szTip.size()) szTip[kept] = '\0';
}

std::string NotifyIconData::tip() const {
    const std::string_view whole(szTip.data(), szTip.size());
    const std::size_t end = whole.find('\0');
    if (end != std::string_view::npos) return to_utf8(whole.substr(0, end));
    return to_utf8(without_torn_end(whole));
}

}  // namespace zephyne
