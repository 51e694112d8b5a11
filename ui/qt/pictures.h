// The pictures that are linked into the program.
#pragma once

class QIcon;

namespace zephyne::pictures {

// Simplified at 16 px, where the details would be lost.
QIcon application_icon();

// For the notification area.
QIcon tray_icon();

}  // namespace zephyne::pictures
