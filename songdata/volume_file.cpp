#include "songdata/volume_file.h"

#include "core/text/numbers.h"
#include "core/text/utf8.h"

#include <vector>

namespace zephyne {

std::string volume_file_text(const RememberedVolume& volume) {
    std::string text = "Zephyne Volume Settings File\r\n";
    for (const int number : {volume.left, volume.right, volume.lock}) {
        text += " " + decimal(static_cast<std::int64_t>(number)) + "\r\n";
    }
    return text;
}

std::optional<RememberedVolume> parse_volume_file(std::string_view text) {
    const std::vector<std::string_view> lines = text_lines(text);
    const auto number = [&](std::size_t line) {
        return line < lines.size() ? round_half_even(leading_number(lines[line])) : 0.0;
    };
    for (const std::size_t line : {1, 2, 3}) {
        if (!(number(line) >= 0 && number(line) <= 100)) return std::nullopt;
    }
    return RememberedVolume{static_cast<int>(number(1)), static_cast<int>(number(2)),
                            static_cast<int>(number(3))};
}

}  // namespace zephyne
