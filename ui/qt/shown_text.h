// Texts of the logic are bytes, meant as UTF-8; Qt's are UTF-16.
#pragma once

#include <QString>
#include <string_view>

namespace zephyne {

// What cannot be read as UTF-8 is shown as replacement signs.
inline QString shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "&Next" is shown as "Next", and Alt+N presses it; "&&" stands for the sign itself.
inline QString without_mnemonic(QString caption) {
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 1)) {
        caption.remove(at, 1);
    }
    return caption;
}

}  // namespace zephyne
