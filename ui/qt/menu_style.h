// How menus are painted: the tray's, and those that text boxes open under the right mouse button.
// They are drawn with the type of the windows, since Qt's own of that size makes the default entry
// hardly bolder than the others.
#pragma once

#include <QStyle>
#include <memory>

class QMenu;
class QPoint;

namespace zephyne {

// For QWidget::setStyle() of a menu, which must end first. factor: logical pixels per px at 100 %.
std::unique_ptr<QStyle> menu_style(double factor);

// Shows a menu (null: does nothing) in that style until the user has chosen, and deletes it.
void run_menu(QMenu* menu, double factor, const QPoint& screen_point);

}  // namespace zephyne
