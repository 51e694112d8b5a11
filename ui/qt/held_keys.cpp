#include "ui/qt/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace zephyne {

HeldKeys::HeldKeys() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* target, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    const bool release = event->type() == QEvent::KeyRelease;
    if (!target->isWindowType() || (!press && !release)) return false;

    const auto& key = *static_cast<QKeyEvent*>(event);
    if (release) {
        released_key_ = key.nativeScanCode();
        released_at_ = key.timestamp();
        return false;
    }
    const bool again = key.nativeScanCode() != 0 && key.nativeScanCode() == released_key_ &&
                       key.timestamp() == released_at_;
    if (!again || key.isAutoRepeat()) return false;
    QKeyEvent repetition(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                         key.nativeVirtualKey(), key.nativeModifiers(), key.text(), true,
                         static_cast<quint16>(key.count()));
    repetition.setTimestamp(key.timestamp());
    QCoreApplication::sendEvent(target, &repetition);
    event->setAccepted(repetition.isAccepted());
    return true;
}

}  // namespace zephyne
