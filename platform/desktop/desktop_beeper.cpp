#include "platform/desktop/desktop_beeper.h"

#include <QApplication>

namespace zephyne {

void DesktopBeeper::beep() {
    QApplication::beep();
}

}  // namespace zephyne
