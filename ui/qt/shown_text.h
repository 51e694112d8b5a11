// Texts of the logic are bytes, meant as UTF-8; Qt's are UTF-16.
#pragma once

#include <QString>
#include <string_view>

namespace zephyne {

// What cannot be read as UTF-8 is shown as replacement signs.
inline QString shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace zephyne
