// The pictures that are linked into the program.
#pragma once

class QIcon;
class QPainter;
class QRect;

namespace zephyne::pictures {

// Simplified at 16 px, where the details would be lost.
QIcon application_icon();

// The application icon in a square box of device pixels.
void paint_emblem(QPainter& painter, const QRect& box);

// For the notification area.
QIcon tray_icon();

}  // namespace zephyne::pictures
