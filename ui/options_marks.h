// Which groups of the Options window were touched since it was loaded, 0 or 1 each. OK carries out
// what a group's change requires only where its mark is 1.
#pragma once

#include <cstdint>

namespace zephyne {

struct OptionsMarks {
    std::int16_t play_mode = 0;  // also set by OK, where the song list changes
    std::int16_t continuous = 0;
    std::int16_t colour = 0;
    std::int16_t large_display = 0;
    std::int16_t media_types = 0;
    std::int16_t lower_case = 0;
    std::int16_t base_mode = 0;
    std::int16_t tips_at_start = 0;
    std::int16_t tooltips = 0;
    std::int16_t taskbar = 0;
    std::int16_t tray = 0;
};

}  // namespace zephyne
