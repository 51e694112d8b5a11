// The notification area of the desktop: the icon over D-Bus (StatusNotifierItem), or in the older
// system tray of X11 (XEmbed), whichever is there.
#pragma once

#include "core/ports/notification_area.h"
#include "platform/desktop/qt_popup_menu.h"

#include <QSystemTrayIcon>
#include <functional>
#include <optional>

namespace zephyne {

class QtNotificationArea final : public QObject, public NotificationArea {
  public:
    // picture: draws the icon, when it is wanted. Needs a QApplication.
    QtNotificationArea(std::function<QIcon()> picture, std::unique_ptr<QStyle> menu_style);

    void notify_icon(NotifyCommand command, const NotifyIconData& data) override;
    void set_menu(PopupMenu menu) override { menu_.set_entries(std::move(menu)); }
    void show_menu() override { menu_.open_at_mouse(); }
    bool has_host() override;

    bool eventFilter(QObject* window, QEvent* event) override;

  private:
    QSystemTrayIcon& icon();
    void bring_up_to_date();
    void watch_icon_window();
    void activated(QSystemTrayIcon::ActivationReason reason);

    std::function<QIcon()> picture_;
    QtPopupMenu menu_;
    std::optional<QSystemTrayIcon> icon_;  // made when it is first wanted
    QString tip_;
    std::uint32_t callback_message_ = 0;
    bool added_ = false;
};

}  // namespace zephyne
