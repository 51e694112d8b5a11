// The notification area of the taskbar, where the program has its icon.
//
// The desktop may have no such area, or get and lose one while the program runs; an icon that has
// been added comes up by itself as soon as there is a place for it. User-interface thread only.
#pragma once

#include "core/controls/menu.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zephyne {

// What the program tells of its icon, in the first, 88-byte layout of the platform's record.
struct NotifyIconData {
    static constexpr std::uint32_t message_valid = 1;
    static constexpr std::uint32_t icon_valid = 2;
    static constexpr std::uint32_t tip_valid = 4;

    std::uint32_t cbSize = 88;
    std::uint32_t hWnd = 0;  // window and icon are the area's own: it has but one of each
    std::uint32_t uID = 1;
    std::uint32_t uFlags = message_valid | icon_valid | tip_valid;
    std::uint32_t uCallbackMessage = 512;  // the message that a mouse event on the icon comes as
    std::uint32_t hIcon = 0;
    std::array<char, 64> szTip{};

    // Stores the text and a NUL behind it, padded with blanks; what does not fit is cut off.
    void set_tip(std::string_view text);

    // The text up to its NUL, or all of it; without the torn UTF-8 character that a cut may have
    // left at its end.
    std::string tip() const;
};
static_assert(sizeof(NotifyIconData) == 88);

enum class NotifyCommand { add = 0, modify = 1, remove = 2 };

// The mouse messages that matter, in the low part of lParam.
namespace MouseMessage {
inline constexpr std::uint32_t LeftButtonUp = 514;
inline constexpr std::uint32_t RightButtonUp = 517;
}  // namespace MouseMessage

class NotificationArea {
  public:
    virtual ~NotificationArea() = default;

    // Adds the icon, changes what the flags call valid, or removes it. A menu that is open is
    // brought up to date with `modify`, and closed with `remove`.
    virtual void notify_icon(NotifyCommand command, const NotifyIconData& data) = 0;

    // The icon's menu. Its entries outlive the icon. An entry that the user chooses is clicked.
    virtual void set_menu(PopupMenu menu) = 0;

    // Opens it at the mouse and returns at once; nothing happens while it is open already.
    virtual void show_menu() = 0;

    // Whether the desktop shows tray icons at present.
    virtual bool has_host() = 0;

    // Mouse events on the icon, from the event loop: the callback message, and lParam.
    std::function<void(std::uint32_t message, std::uint32_t lParam)> on_message;
};

}  // namespace zephyne
