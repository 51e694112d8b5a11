#include "platform/desktop/qt_notification_area.h"

namespace zephyne {

QtNotificationArea::QtNotificationArea(const QIcon& icon, const QString& menu_look)
    : menu_(menu_look) {
    icon_.setIcon(icon);
    // A desktop that draws the menu by itself asks for it here; elsewhere Qt opens it on a right
    // click, and show_menu() then finds it open.
    icon_.setContextMenu(menu_.widget());
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
}

void QtNotificationArea::notify_icon(NotifyCommand command, const NotifyIconData& data) {
    if (command == NotifyCommand::remove) {
        menu_.close();
        icon_.hide();
        return;
    }
    if ((data.uFlags & NotifyIconData::message_valid) != 0) {
        callback_message_ = data.uCallbackMessage;
    }
    if ((data.uFlags & NotifyIconData::tip_valid) != 0) {
        const QString tip = QString::fromStdString(data.tip());
        if (tip != icon_.toolTip()) icon_.setToolTip(tip);
    }
    menu_.bring_up_to_date();
    if (command == NotifyCommand::add) icon_.show();
}

// Of a double click the first release comes as Trigger, and the second as DoubleClick.
void QtNotificationArea::activated(QSystemTrayIcon::ActivationReason reason) {
    if (!on_message) return;
    switch (reason) {
        case QSystemTrayIcon::Trigger:
        case QSystemTrayIcon::DoubleClick:
            return on_message(callback_message_, MouseMessage::LeftButtonUp);
        case QSystemTrayIcon::Context:
            return on_message(callback_message_, MouseMessage::RightButtonUp);
        default:
            return;
    }
}

}  // namespace zephyne
