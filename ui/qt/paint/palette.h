// The colours of Zephyne: graphite for the body, ice for the hand, one LED colour for the
// music. Every other file here takes its colours from this one.
#pragma once

#include <QColor>
#include <cstdint>

namespace zephyne::paint {

constexpr QColor rgb(std::uint32_t hex) {
    return QColor(static_cast<int>(hex >> 16 & 0xFF), static_cast<int>(hex >> 8 & 0xFF),
                  static_cast<int>(hex & 0xFF));
}

// The colour at an opacity from 0 to 1.
inline QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}
inline QColor light(double opacity) {
    return faded(rgb(0xFFFFFF), opacity);
}
inline QColor shade(double opacity) {
    return faded(rgb(0x000000), opacity);
}

namespace palette {

inline constexpr QColor face_top = rgb(0x454A50);
inline constexpr QColor face_bottom = rgb(0x2B2E33);
inline constexpr QColor key_top = rgb(0x575D65);
inline constexpr QColor key_bottom = rgb(0x40454C);
inline constexpr QColor key_hover_top = rgb(0x626973);
inline constexpr QColor key_hover_bottom = rgb(0x4A5058);
inline constexpr QColor key_down_top = rgb(0x2C3035);
inline constexpr QColor key_down_bottom = rgb(0x383D43);
inline constexpr QColor key_off = rgb(0x3A3E44);
inline constexpr QColor edge = rgb(0x14161A);

inline constexpr QColor well = rgb(0x14161A);
inline constexpr QColor well_edge = rgb(0x0B0C0E);
inline constexpr QColor well_edge_hover = rgb(0x3A4149);
inline constexpr QColor glass_edge = rgb(0x000000);
inline constexpr QColor glass_top = rgb(0x121516);
inline constexpr QColor glass_middle = rgb(0x070809);
inline constexpr QColor glass_bottom = rgb(0x0A0C0C);

inline constexpr QColor ink = rgb(0xF2F4F6);
inline constexpr QColor engraving = rgb(0xDFE4E9);
inline constexpr QColor quiet = rgb(0xA9B0B8);
inline constexpr QColor face_off = rgb(0xB4BAC1);
inline constexpr QColor off_glyph = rgb(0x8E959D);
inline constexpr QColor ribbon_glyph = rgb(0xE6EAEE);
inline constexpr QColor list_glyph = rgb(0x9AA2AB);

inline constexpr QColor well_text = rgb(0xDCE1E6);
inline constexpr QColor selection = rgb(0x2B5F77);
inline constexpr QColor selection_text = rgb(0xFFFFFF);
inline constexpr QColor selection_off = rgb(0x252A30);
inline constexpr QColor folder_selection = rgb(0x2B3138);
inline constexpr QColor row_hover = rgb(0x22272D);

inline constexpr QColor ice = rgb(0x7CD4F5);
inline constexpr QColor ice_dim = rgb(0x3F8DAB);
inline constexpr QColor ice_light = rgb(0xE2F7FF);

inline constexpr QColor cap_top = rgb(0xC9CED4);
inline constexpr QColor cap_hover_top = rgb(0xE3E7EB);
inline constexpr QColor cap_bottom = rgb(0x868D95);
inline constexpr QColor cap_off = rgb(0x5A616A);
inline constexpr QColor cap_edge = rgb(0x101215);
inline constexpr QColor cap_line = rgb(0x1A1D21);

inline constexpr QColor scroll_track = rgb(0x0E1012);
inline constexpr QColor scroll_thumb = rgb(0x5A616A);
inline constexpr QColor scroll_thumb_glass = rgb(0x4A5058);
inline constexpr QColor scroll_thumb_hover = rgb(0x79818B);

inline constexpr QColor popup = rgb(0x22252A);
inline constexpr QColor popup_edge = rgb(0x4A5058);

inline constexpr QColor led_green = rgb(0x00FF00);
inline constexpr QColor led_orange = rgb(0xFF9900);
inline constexpr QColor led_red = rgb(0xFF0000);
inline constexpr QColor led_none = rgb(0x000000);

}  // namespace palette

// The LED colour of a Display setting: 0 green, 1 orange, 2 red. Any other number is black,
// which is how a damaged setting looks: a dark display, not a crash.
constexpr QColor led_color(int display) {
    switch (display) {
        case 0:
            return palette::led_green;
        case 1:
            return palette::led_orange;
        case 2:
            return palette::led_red;
        default:
            return palette::led_none;
    }
}

}  // namespace zephyne::paint
