// The notification area of the desktop: the icon over D-Bus (StatusNotifierItem), or in the older
// system tray of X11 (XEmbed), whichever is there.
#pragma once

#include "core/ports/notification_area.h"
#include "platform/desktop/qt_popup_menu.h"

#include <QSystemTrayIcon>

namespace zephyne {

class QtNotificationArea final : public QObject, public NotificationArea {
  public:
    // menu_look: a style sheet for the menu. Needs a QApplication.
    QtNotificationArea(const QIcon& icon, const QString& menu_look);

    void notify_icon(NotifyCommand command, const NotifyIconData& data) override;
    void set_menu(PopupMenu menu) override { menu_.set_entries(std::move(menu)); }
    void show_menu() override { menu_.open_at_mouse(); }
    bool has_host() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }

    bool eventFilter(QObject* window, QEvent* event) override;

  private:
    void watch_icon_window();
    void activated(QSystemTrayIcon::ActivationReason reason);

    QtPopupMenu menu_;
    QSystemTrayIcon icon_{this};
    std::uint32_t callback_message_ = 0;
};

}  // namespace zephyne
