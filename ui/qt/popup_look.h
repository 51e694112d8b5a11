// Style sheets for the windows that Qt itself opens above ours: menus and tooltips.
#pragma once

#include <QString>

class QMenu;
class QPoint;

namespace zephyne::popup_look {

// factor: logical pixels per px at 100 %.
QString tooltip(double factor);

// Gives our colours and type to the tooltips of what has no style sheet: the tray icon.
void dress_tooltips(double factor);

QString menu(double factor);

// Shows a menu (null: does nothing) in our look until the user has chosen, and deletes it.
void run_menu(QMenu* menu, double factor, const QPoint& screen_point);

}  // namespace zephyne::popup_look
