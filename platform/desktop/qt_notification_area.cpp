#include "platform/desktop/qt_notification_area.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTextDocument>
#include <QWindow>
#include <utility>

namespace zephyne {
namespace {

// Qt, and some desktops, would take a name with a "<b>" in it for markup; a blank without width
// behind each sign that begins one takes the meaning from it.
QString without_markup(QString text) {
    if (!Qt::mightBeRichText(text)) return text;
    const QChar nothing(0x200B);
    return text.replace(u'<', QString(u'<') + nothing).replace(u'&', QString(u'&') + nothing);
}

}  // namespace

QtNotificationArea::QtNotificationArea(std::function<QIcon()> picture,
                                       std::unique_ptr<QStyle> menu_style)
    : picture_(std::move(picture)), menu_(std::move(menu_style)) {}

// To look for the desktop's tray takes a time that the start of the program has better use for.
QSystemTrayIcon& QtNotificationArea::icon() {
    if (icon_) return *icon_;
    icon_.emplace(this);
    QObject::connect(
        &*icon_, &QSystemTrayIcon::activated, this,
        [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); },
        Qt::QueuedConnection);
    return *icon_;
}

// Qt keeps looking for a host only while there is an icon.
bool QtNotificationArea::has_host() {
    icon();
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void QtNotificationArea::notify_icon(NotifyCommand command, const NotifyIconData& data) {
    if ((data.uFlags & NotifyIconData::message_valid) != 0) {
        callback_message_ = data.uCallbackMessage;
    }
    if ((data.uFlags & NotifyIconData::tip_valid) != 0) {
        tip_ = without_markup(QString::fromStdString(data.tip()));
    }
    added_ = command == NotifyCommand::add || (added_ && command != NotifyCommand::remove);
    if (command != NotifyCommand::add) return bring_up_to_date();
    // An icon goes up behind what else this step brings, as the main window.
    QMetaObject::invokeMethod(
        this, [this] { bring_up_to_date(); }, Qt::QueuedConnection);
}

void QtNotificationArea::bring_up_to_date() {
    if (!added_) {
        menu_.close();
        if (icon_) icon_->hide();
        return;
    }
    if (icon().icon().isNull()) {
        icon().setIcon(picture_());
        // For a desktop that draws the menu by itself. Where Qt opens it, show_menu() finds it
        // open.
        icon().setContextMenu(menu_.widget());
    }
    if (icon().toolTip() != tip_) icon().setToolTip(tip_);
    menu_.bring_up_to_date();
    icon().show();
    watch_icon_window();
}

// In the older system tray the icon is a window of ours, which would not be clicked while one of
// our windows is modal. Qt lets the clicks through to a window of a tooltip's type, where they are
// taken before Qt's widgets drop them. The icon's window is made anew with each host.
void QtNotificationArea::watch_icon_window() {
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        QWindow* window = widget->windowHandle();
        if (!widget->inherits("QSystemTrayIconSys") || !window) continue;
        if (window->type() == Qt::ToolTip) continue;
        window->setFlags((window->flags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
        window->setTransientParent(window->transientParent());  // settles anew what is blocked
        window->installEventFilter(this);
    }
}

// What follows a click may take the icon away, and so may a host that goes meanwhile; the click is
// told when its event, and with it the icon's window, is in use no longer.
bool QtNotificationArea::eventFilter(QObject* /*window*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return true;
        case QEvent::MouseButtonRelease:
            break;
        default:
            return false;
    }
    const auto button = static_cast<const QMouseEvent*>(event)->button();
    const auto tell_later = [this](QSystemTrayIcon::ActivationReason reason) {
        QMetaObject::invokeMethod(
            this, [this, reason] { activated(reason); }, Qt::QueuedConnection);
    };
    if (button == Qt::LeftButton) tell_later(QSystemTrayIcon::Trigger);
    if (button == Qt::RightButton) tell_later(QSystemTrayIcon::Context);
    return true;
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
