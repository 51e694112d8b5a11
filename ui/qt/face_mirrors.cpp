#include "ui/qt/face_mirrors.h"

#include "core/controls/form.h"
#include "ui/qt/form_window.h"
#include "ui/qt/label_role.h"
#include "ui/qt/paint/led_digits.h"
#include "ui/qt/paint/message_pictures.h"
#include "ui/qt/paint/note_roll.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/pictures.h"
#include "ui/qt/shown_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace zephyne {
namespace {

// px at 100 %
constexpr int digit_glow = 5;
constexpr int clock_ring_distance = 3;
constexpr int message_middle = 29;  // where a short message stands, beside the picture's middle

// A banner this wide (twips) fills a window of its own.
constexpr int wide_banner = 4500;

// The Display setting that gives this colour; one without a colour if none does.
int display_of(Colour colour) {
    constexpr int no_display = 3;
    int display = 0;
    while (display < no_display && paint::led_color(display) != paint::rgb(colour)) ++display;
    return display;
}

bool is_left_release(const QEvent& event, const QWidget& widget) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    return mouse.button() == Qt::LeftButton && widget.rect().contains(mouse.position().toPoint());
}

QLabel* unseen_label(FormWindow& window) {
    auto* label = new Unpainted<QLabel>(&window);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

LabelMirror::LabelMirror(FormWindow& window, Label& label) : Mirror(window, label), label_(label) {
    set_widget(unseen_label(window));
}

void LabelMirror::show_name() {
    static_cast<QLabel*>(widget())->setText(shown(label_.caption()));
}

bool LabelMirror::handle(QEvent& event) {
    if (!is_left_release(event, *widget())) return false;
    label_.click();
    return true;
}

void LabelMirror::paint_wrapped(QPainter& painter, const paint::Scale& scale) const {
    const paint::LabelState state{.enabled = label_.usable(), .role = role_of(label_)};
    const QString text = shown(label_.caption());
    QRect lines = box();
    painter.save();
    painter.setClipRect(reach(), Qt::IntersectClip);
    if (label_.style() == Style::message) {
        const int height = paint::wrapped_height(scale, text, state.role, lines.width());
        lines.setTop(lines.top() + std::max(0, scale.px(message_middle) - height / 2));
    }
    paint::wrapped_label(painter, scale, lines, state, text);
    painter.restore();
}

void LabelMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    const QString text = shown(label_.caption());
    const paint::Role role = role_of(label_);
    switch (label_.style()) {
        case Style::led_caption:
            paint::led_label(painter, scale, box(), role, paint::Align::Left,
                             display_of(label_.colour()), text);
            break;
        case Style::led_value:
            paint::led_label(painter, scale, box(), role, paint::Align::Right,
                             display_of(label_.colour()), text);
            break;
        case Style::brand:
            paint::brand(painter, scale, box(), text);
            break;
        case Style::notice:
        case Style::message:
            paint_wrapped(painter, scale);
            break;
        default:
            paint::label(painter, scale, box(),
                         {.enabled = label_.usable(), .role = role, .fit = paint::Fit::ElideMiddle},
                         text);
            break;
    }
}

PictureMirror::PictureMirror(FormWindow& window, Picture& picture)
    : Mirror(window, picture), picture_(picture) {
    set_widget(unseen_label(window));
}

bool PictureMirror::is_stop() const {
    return picture_.tab_stop() == TabStop::yes;
}

bool PictureMirror::handle(QEvent& event) {
    if (!is_left_release(event, *widget())) return false;
    picture_.click();
    return true;
}

bool PictureMirror::key_pressed(QKeyEvent& event) {
    if (event.key() != Qt::Key_Space) return false;
    if (!event.isAutoRepeat()) picture_.click();
    return true;
}

QRect PictureMirror::clock_box() const {
    QRect clock = box();
    for (const Control* control : picture_.form().controls()) {
        if (control->kind() != ControlKind::picture) continue;
        const ImageList list = static_cast<const Picture*>(control)->image_list();
        if (list == ImageList::digits || list == ImageList::status) {
            clock = clock.united(window().pixels().box(control->place(), control->inset()));
        }
    }
    return paint::shrunk(clock, -window().pixels().scale().px(clock_ring_distance));
}

QRect PictureMirror::reach() const {
    const paint::Scale scale = window().pixels().scale();
    const QRect glow = paint::shrunk(box(), -scale.px(digit_glow));
    if (!is_stop()) return glow;
    return glow.united(paint::shrunk(clock_box(), -paint::overhang * scale.stroke()));
}

void PictureMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    const int image = picture_.image();
    switch (picture_.image_list()) {
        case ImageList::digits:
            paint::led_digit(painter, scale, box(), image);
            break;
        case ImageList::status:
            paint::led_status(painter, scale, box(), image);
            break;
        case ImageList::roll:
            paint::note_roll(painter, scale, box(), image);
            break;
        case ImageList::banner:
            paint::note_banner(painter, scale, box(),
                               picture_.place().width > wide_banner
                                   ? paint::BannerPlace::Information
                                   : paint::BannerPlace::MainWindow);
            break;
        case ImageList::loudspeaker:
            paint::loudspeaker(painter, scale, box());
            break;
        case ImageList::sound_waves:
            paint::sound_waves(painter, scale, box(), image);
            break;
        case ImageList::note_pad:
            paint::note_pad(painter, scale, box());
            break;
        case ImageList::light_bulb:
            paint::light_bulb(painter, scale, box());
            break;
        case ImageList::emblem:
            pictures::paint_emblem(painter, box());
            break;
    }
    if (is_stop()) {
        paint::focus_ring(painter, scale, clock_box(), paint::glass_radius,
                          window().focus_look(picture_));
    }
}

FrameMirror::FrameMirror(FormWindow& window, Frame& frame) : Mirror(window, frame) {
    set_widget(unseen_label(window));
    widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FrameMirror::show_name() {
    static_cast<QLabel*>(widget())->setText(shown(control().caption()));
}

void FrameMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    constexpr Colour unless_set = 0xFFFFFF;
    const Colour colour = control().colour() != 0 ? control().colour() : unless_set;
    paint::frame(painter, scale, box(), shown(control().caption()),
                 control().usable() ? paint::rgb(colour) : paint::palette::quiet);
}

DecorationMirror::DecorationMirror(FormWindow& window, Control& control)
    : Mirror(window, control) {}

void DecorationMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    if (control().kind() == ControlKind::line) {
        paint::groove(painter, scale, box());
    } else if (control().style() == Style::glass) {
        paint::glass(painter, scale, box());
    } else {
        paint::lamp(painter, scale, box(), paint::rgb(control().colour()));
    }
}

}  // namespace zephyne
