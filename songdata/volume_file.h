// The volume file beside a song: what its sliders and the lock are to be when it plays.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zephyne {

// Slider positions, 0 (full volume) to 100 (silence).
struct RememberedVolume {
    int left = 0;
    int right = 0;
    int lock = 0;
    bool operator==(const RememberedVolume&) const = default;
};

// The four lines of the file, each ended by CR LF.
std::string volume_file_text(const RememberedVolume& volume);

// What a file says; nothing when one of its numbers lies outside 0 to 100. Lines that are missing
// or no number read as 0.
std::optional<RememberedVolume> parse_volume_file(std::string_view text);

}  // namespace zephyne
