#include "platform/desktop/early_work.h"

#include <fontconfig/fontconfig.h>

#include <QDBusConnection>

namespace zephyne {

void read_fonts() {
    FcInit();
}

void open_session_bus() {
    (void)QDBusConnection::sessionBus();
}

}  // namespace zephyne
