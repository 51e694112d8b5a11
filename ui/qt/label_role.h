// How the text of a label is set.
#pragma once

#include "core/controls/simple_controls.h"
#include "ui/qt/paint/type.h"

namespace zephyne {

inline paint::Role role_of(const Label& label) {
    constexpr int long_message_points = 10;
    switch (label.style()) {
        case Style::led_caption:
            return paint::Role::LedCaption;
        case Style::led_value:
            return paint::Role::LedValue;
        case Style::strong:
        case Style::heading:
            return paint::Role::Heading;
        case Style::notice:
            return paint::Role::Notice;
        case Style::brand:
            return paint::Role::Brand;
        case Style::message:
            return label.font_points() > long_message_points ? paint::Role::MessageShort
                                                             : paint::Role::MessageLong;
        default:
            return paint::Role::Caption;
    }
}

}  // namespace zephyne
