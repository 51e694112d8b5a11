#include "ui/qt/mirror.h"

#include "core/controls/form.h"
#include "ui/qt/form_window.h"
#include "ui/qt/key_codes.h"
#include "ui/qt/shown_text.h"
#include "ui/qt/whats_this.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QWidget>

namespace zephyne {

Mirror::Mirror(FormWindow& window, Control& control) : window_(window), control_(control) {}

Mirror::~Mirror() {
    detach();
}

QRect Mirror::box() const {
    return window_.pixels().box(control_.place(), control_.inset());
}

QRect Mirror::reach() const {
    return paint::shrunk(box(), -paint::overhang * window_.pixels().scale().stroke());
}

void Mirror::set_widget(QWidget* widget) {
    widget_ = widget;
    widget_->setFocusPolicy(control_.tab_stop() == TabStop::yes ? Qt::StrongFocus : Qt::NoFocus);
    widget_->setVisible(false);
    watch(widget_);
}

void Mirror::watch(QObject* part) {
    part->installEventFilter(this);
}

void Mirror::attach() {
    attached_ = true;
    control_.observe(this);
    for (const Property property :
         {Property::place, Property::caption, Property::colour, Property::value, Property::items,
          Property::text, Property::selection, Property::image, Property::font, Property::enabled,
          Property::visible}) {
        property_changed(property);
    }
}

void Mirror::detach() {
    if (!attached_) return;
    attached_ = false;
    control_.observe(nullptr);
    detached();
}

void Mirror::subject_gone() {
    window_.end();
}

void Mirror::lay_out() {
    if (widget_)
        widget_->setGeometry(window_.pixels().containing(window_.pixels().box(control_.place())));
    show_or_hide();
    laid_out();
}

void Mirror::show_or_hide() {
    if (widget_) widget_->setVisible(on_window());
}

bool Mirror::on_window() const {
    return control_.shown() && window_.holds(control_.place());
}

void Mirror::repaint() {
    if (control_.shown()) painted_ = painted_.united(reach());
    window_.repaint(painted_);
    painted_ = control_.shown() ? reach() : QRect();
}

void Mirror::show_name() {
    if (widget_) widget_->setAccessibleName(shown(control_.accessible_name()));
}

void Mirror::property_changed(Property property) {
    switch (property) {
        case Property::place:
            lay_out();
            break;
        case Property::visible:
            show_or_hide();
            break;
        case Property::enabled:
            if (widget_) widget_->setEnabled(control_.usable());
            break;
        case Property::caption:
        case Property::tooltip:
            show_name();
            break;
        case Property::focus:
            window_.follow_focus();
            break;
        default:
            break;
    }
    show_property(property);
    repaint();
}

paint::ControlState Mirror::look() const {
    paint::ControlState state;
    state.enabled = control_.usable();
    state.focus = window_.focus_look(control_);
    if (widget_ && widget_->underMouse()) state.pointer = paint::Pointer::Over;
    return state;
}

bool Mirror::eventFilter(QObject* /*target*/, QEvent* event) {
    if (!attached_) return false;
    switch (event->type()) {
        case QEvent::Enter:
        case QEvent::Leave:
        case QEvent::FocusOut:
            repaint();
            break;
        case QEvent::FocusIn:
            repaint();
            control_.form().set_focused(&control_);
            break;
        case QEvent::ToolTip:
            window_.show_tooltip(static_cast<QHelpEvent*>(event)->globalPos(),
                                 shown(control_.tooltip()));
            return true;
        case QEvent::QueryWhatsThis:
            event->setAccepted(!control_.help().empty());
            return true;
        case QEvent::WhatsThis:
            show_help(static_cast<QHelpEvent*>(event)->globalPos());
            return true;
        case QEvent::MouseButtonPress:
            window_.mouse_used();
            break;
        case QEvent::KeyPress:
            return press_key(*static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            window_.report_released_key(*static_cast<QKeyEvent*>(event));
            break;
        default:
            break;
    }
    return attached_ && handle(*event);
}

void Mirror::show_help(const QPoint& screen_point) {
    show_whats_this(*widget_, screen_point, shown(control_.help()), window_.pixels().factor);
}

bool Mirror::press_key(QKeyEvent& event) {
    window_.key_used(event);
    if (event.key() == Qt::Key_F1 && event.modifiers() == Qt::ShiftModifier) {
        show_help(widget_->mapToGlobal(widget_->rect().bottomLeft()));
        return true;
    }
    if (takes_enter()) return key_pressed(event) || window_.press_answer_key(event);
    return window_.press_answer_key(event) || key_pressed(event);
}

}  // namespace zephyne
