// What a window does with the keys that none of its controls takes.
#include "core/controls/simple_controls.h"
#include "ui/qt/form_window.h"
#include "ui/qt/key_codes.h"

#include <QKeyEvent>
#include <utility>

namespace zephyne {
namespace {

bool is_modifier(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
            return true;
        default:
            return false;
    }
}

}  // namespace

void FormWindow::key_used(const QKeyEvent& event) {
    if (is_modifier(event) || std::exchange(keyboard_used_, true)) return;
    if (Mirror* mirror = mirror_of(form_.focused())) mirror->repaint();
}

void FormWindow::mouse_used() {
    if (!std::exchange(keyboard_used_, false)) return;
    if (Mirror* mirror = mirror_of(form_.focused())) mirror->repaint();
}

bool FormWindow::press_answer_key(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    Control* answer = nullptr;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            answer = form_.default_button();
            break;
        case Qt::Key_Escape:
            answer = form_.cancel_button();
            break;
        default:
            break;
    }
    if (!answer || answer->kind() != ControlKind::button || !answer->shown() || !answer->usable()) {
        return false;
    }
    // A key held down must not answer the next question, too.
    if (!event.isAutoRepeat()) static_cast<Button*>(answer)->click();
    return true;
}

void FormWindow::report_released_key(const QKeyEvent& event) {
    const int code = key_code(event);
    if (code != 0 && !event.isAutoRepeat()) form_.user_released_key(code);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (!attached_ || (focusWidget() && focusWidget() != this)) return;
    key_used(*event);
    event->setAccepted(press_answer_key(*event));
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    event->ignore();
    if (!attached_ || (focusWidget() && focusWidget() != this)) return;
    report_released_key(*event);
}

}  // namespace zephyne
