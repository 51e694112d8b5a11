// The customary numbers of keys and characters, which the logic knows them by.
#pragma once

#include <optional>

class QKeyEvent;

namespace zephyne {

// The number of a key as its release is reported: 112 to 123 for F1 to F12, 13 Enter, 27 Escape,
// capitals and digits by their character. 0: none that anybody asks for.
int key_code(const QKeyEvent& event);

// The character that a key press enters: one that is printed, 13 for Enter, 27 for Escape.
// Nothing for all other keys, such as arrows and shortcuts.
std::optional<char32_t> entered_character(const QKeyEvent& event);

}  // namespace zephyne
